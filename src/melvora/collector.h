#pragma once
#include "melvora/results.h"

#include <QDir>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

namespace melvora {

/// Takes the result records that a module has left in the spool folder into the store.
class Collector {
  public:
    struct Harvest {
        int taken = 0;      ///< new results
        bool left = false;  ///< a file whose content is in the store could not be removed
        /// Paths not told of before. The files stay where they are; what a module had not finished
        /// when it died lies beside them as `unfinished-RSX*.xml`.
        QStringList unreadable;
    };

    Collector(QString folder, Results& results);

    /// While a module runs it may still be writing: an unreadable file is not told of then.
    enum class When { DuringRun, AfterRun };

    /// Reads all `RSX*.xml` of the folder that are plain files of up to 64 MB; links are not
    /// followed. A file goes only when its content is safely in the store.
    /// @param tell is given each unreadable path, also where a file will lie that is put aside;
    /// what it throws leaves the file as it was, to be told of the next time
    /// @throws StoreError when the store cannot be written; the file is still there then.
    Harvest collect(When when, const std::function<void(const QString&)>& tell = {});

    /// Makes the folder anew when it is missing. @return why no result can be taken from there,
    /// with its path; "" when all is well.
    QString trouble() const;

    const QString& folder() const { return folder_; }

  private:
    bool take(const QString& path);

    QString folder_;
    Results& results_;
    int taken_ = 0;  ///< not told yet
    bool left_ = false;
    QSet<QString> told_;
};

}  // namespace melvora
