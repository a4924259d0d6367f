#pragma once
#include "melvora/database.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace melvora {

enum class LogKind { Message, Error };

struct LogLine {
    QDateTime time;
    QString user;
    LogKind kind;
    QString text;
};

/// The suite's log. All operations throw StoreError.
class Log {
  public:
    /// A longer text is cut to this many characters, with its full length behind it. Any path has
    /// room.
    static constexpr int longestText = 5000;
    /// The oldest lines beyond so many, or beyond so many characters in all, are dropped.
    static constexpr int mostLines = 100'000;
    static constexpr int mostText = 20'000'000;

    struct Filter {
        QString text;                 ///< part of the text or of the user key, in any case
        std::optional<LogKind> kind;  ///< nothing: all kinds
        int most = 1000;              ///< at most this many lines
    };

    explicit Log(Database& database) : database_(database) {}

    /// Drops the oldest lines from time to time.
    void write(LogKind kind, const QString& user, const QString& text);
    /// Newest first.
    QList<LogLine> lines(const Filter& filter) const;
    void prune();

  private:
    Database& database_;
    int written_ = 0;  ///< lines since the last pruning
};

}  // namespace melvora
