#pragma once
#include "melvora/results.h"

#include <QSaveFile>
#include <QString>
#include <QTextStream>

#include <functional>
#include <stdexcept>

namespace melvora {

/// A file of a table cannot be written; the text names it and the cause.
class CsvError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Results as tables for other programs: comma-separated values (RFC 4180), UTF-8, the first line
/// names the columns. One file has a line for each answer, another one, `...-runs.csv`, a line for
/// each run; a run's number joins them. Names of scales and settings are in the language of their
/// run. Files that are there are replaced when both are whole, or not at all.
class ResultCsv {
  public:
    /// @param answers path of the file of answers. @throws CsvError
    explicit ResultCsv(const QString& answers);

    /// @param user name, as it is shown
    /// @param record nothing for one that cannot be read: its run is there, without answers
    void add(const Result& result, const QString& user, const std::optional<ResultRecord>& record);
    /// @throws CsvError; what was there before stays as it was
    void finish();

    QString answersFile() const { return answers_.fileName(); }
    QString runsFile() const { return runs_.fileName(); }
    int answers() const { return answerCount_; }
    int unreadable() const { return unreadable_; }

  private:
    QSaveFile answers_, runs_;
    QTextStream answerLines_, runLines_;
    int answerCount_ = 0, unreadable_ = 0;
};

}  // namespace melvora
