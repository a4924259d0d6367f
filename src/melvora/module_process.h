#pragma once
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

namespace melvora {

/// The one module that the host has started.
class ModuleProcess : public QObject {
    Q_OBJECT
  public:
    /// Modules that the host can start.
    static QStringList known() { return {"zepha9"}; }

    explicit ModuleProcess(QObject* parent = nullptr);
    /// Asks a running module to end and gives it two seconds for that.
    ~ModuleProcess() override;

    struct Surroundings {
        QString address;     ///< where the module finds the host
        QString spool;       ///< folder for its result records
        QString fontTables;  ///< folder for what it measures of soundfonts
        QString soundfont;   ///< to play with, unless the environment names one; "" for the usual
    };
    /// Starts a module from MELVORA_MODULE_PATH, else from the folder of this program.
    /// Does nothing while one runs.
    void start(const QString& module, const QStringList& arguments, const Surroundings& where);

    /// Ends a module that has handed over and does not end by itself: after five seconds it is
    /// asked to, two seconds later it is killed.
    void endSoon();

    bool runs() const { return process_.state() != QProcess::NotRunning; }
    /// Name of the module started last.
    const QString& name() const { return name_; }
    /// For example "zepha9.exe"; "" while none runs.
    QString executable() const { return runs() ? name_ + ".exe" : QString(); }

  signals:
    void started();
    /// @param cause why the program could not be started, with its path
    void failed(const QString& cause);
    /// @param status exit status; the signal's number, negative, when it was killed by one
    void ended(int status);

  private:
    QProcess process_;
    QString name_;
    QTimer patience_;
    bool asked_ = false;  ///< to end
};

}  // namespace melvora
