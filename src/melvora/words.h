#pragma once
#include "core/wort.h"
#include "suite/languages.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <stdexcept>
#include <vector>

namespace melvora {

/// The installed languages and the texts of the one in force.
class Words {
  public:
    /// Takes the system's language where it is installed, else Deutsch, else the first.
    /// @throws std::runtime_error naming the folder when it holds no language.
    explicit Words(const QString& folder);

    /// Names of the languages, each in its own language, in alphabetical order.
    QStringList languages() const;
    const QString& language() const;
    /// @return false, and nothing changed, when no installed language has that name.
    bool choose(const QString& language);

    /// The text; "VOID" when the language lacks it.
    QString wort(core::wort::Id word) const;
    /// A text of any installed language, in the language in force, when it is one of those words;
    /// else as it is.
    QString today(const QString& text, std::initializer_list<core::wort::Id> words) const;
    /// Suffix of the language in force, for example "de".
    const QString& suffix() const { return languages_[chosen_].suffix; }
    /// Local date and time in the language's short format, the year in full; a dash for an invalid
    /// moment.
    enum class Precision { Minutes, Seconds };
    QString moment(const QDateTime& moment, Precision precision = Precision::Minutes) const;

  private:
    const std::vector<suite::Language> languages_;
    std::size_t chosen_ = 0;
    suite::ToolkitTexts toolkit_;
};

}  // namespace melvora
