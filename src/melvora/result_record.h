#pragma once
#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

namespace melvora {

enum class Branch { Unknown, Ear, Theory };
enum class Kind { Unknown, Identify, Write };

/// What a run was about. Texts are in the language of its time.
struct Exercise {
    Branch branch = Branch::Unknown;
    Kind kind = Kind::Unknown;
    QString name;       ///< as the record calls it, for what it does not show otherwise
    QString mode;       ///< "" when the record does not say
    QString scaleType;  ///< the same
};

/// One run as the module records it.
struct ResultRecord {
    struct Answer {
        bool right = false;
        QString scale;    ///< that was named; "" when it was written
        QString seconds;  ///< "" when the record does not say
    };
    struct Lesson {
        QString scale;
        QList<Answer> answers;
    };

    QString program;
    QString user;
    QString exercise;
    QString description;
    QDateTime ended;                          ///< local time; invalid when the record does not say
    QList<QPair<QString, QString>> settings;  ///< key and value
    QList<Lesson> lessons;

    int rightFirst() const;
    int answered() const;
    /// Derived from settings and answers. A run without an answer does not show its kind.
    Exercise about() const;
};

/// Reads the XML text of a record; nothing when it is not well formed or no record.
std::optional<ResultRecord> parseResultRecord(const QByteArray& xml);

}  // namespace melvora
