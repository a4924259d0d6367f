#pragma once
#include "melvora/collector.h"
#include "melvora/module_process.h"
#include "melvora/store.h"
#include "melvora/turns.h"
#include "melvora/words.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <functional>
#include <optional>

namespace melvora {

/// The resident host without its window: who is logged in, the choices, the module that runs, the
/// collected results, the log. Where the store fails, an operation here tells so by noticed() and
/// leaves things as they were; where another program holds it, the operation waits its turn.
class Host : public QObject {
    Q_OBJECT
  public:
    struct Place {
        QString data;     ///< folder of the store and of the spool
        QString address;  ///< where modules find the host
        QStringList moduleArguments;
    };

    /// @throws StoreError when the store cannot be opened or read.
    Host(Place place, Words& words);
    /// From here on the event loop runs, and nothing stands still for a store that is held: takes
    /// up what lies in the spool, and bounds the log.
    void begin();

    Store& store() { return store_; }
    const Words& words() const { return words_; }

    const std::optional<User>& user() const { return user_; }
    /// Key of who is logged in, or "unbekannt".
    QString userKey() const;
    /// While a module runs, user and language stay as they are: it has asked for them already.
    bool isLocked() const { return module_.runs(); }
    /// "" or "unbekannt" logs out. Does nothing, after telling, while it is locked.
    /// @return false when there is no such user.
    bool logIn(const QString& key);
    void putUser(const User& user);
    /// Refused, with a notice, for who is logged in while it is locked.
    void removeUser(const QString& key);

    /// Does nothing, after telling, while it is locked.
    /// @return false when the language is not installed.
    bool chooseLanguage(const QString& language);

    /// Path of the chosen soundfont; "" for the usual one.
    const QString& soundfont() const { return soundfont_; }
    void chooseSoundfont(const QString& file);

    /// Steady name of the chosen MIDI port; "" for the built-in synthesiser.
    const QString& midiDevice() const { return midiDevice_; }
    void chooseMidiDevice(const QString& name);
    /// Its number now; the built-in synthesiser's when the port is not there.
    int midiNumber() const;

    /// Starts the module, with an absolute path of a file of settings when one is given. While one
    /// runs, it stays the only one, and a file is answered by a notice.
    /// @return false, after telling, when the file cannot be used.
    bool startModule(const QString& module, const QString& settingsFile = {});
    const ModuleProcess& module() const { return module_; }
    /// How the user calls the module that was started last.
    QString moduleTitle() const;
    /// The module hands over: results are taken in, the menu is wanted.
    void takeOver();
    /// Refused, with a notice, while a module runs: it may be continuing that training.
    void removeTraining(const Training& training);
    /// Takes result records from the spool folder into the store.
    void collect();
    /// Makes the spool when it is missing, and tells why it cannot be used.
    void prepareSpool();

    void log(LogKind kind, const QString& text);
    /// Runs what reads from the store, now. What fails is told.
    void guarded(const std::function<void()>& operation);
    /// Runs an operation on the store in its turn (see Turns). What fails is told, unless `end` is
    /// given and sees to it.
    void inTurn(Turns::Operation operation, Turns::End end = {});
    /// Where the details of a notice are to be found.
    enum class Details { Here, Log, Results };

    /// Logs and tells a fault; one of the store cannot be logged there.
    void tell(const std::exception& fault);

  signals:
    void usersChanged();  ///< the list, or who is logged in
    void languageChanged();
    void midiDeviceChanged();
    void recordsChanged();  ///< a module has stored one, or a training was deleted
    void resultsChanged();
    void logChanged();
    void moduleStarted();
    void moduleEnded();
    void menuWanted();
    void raiseWanted();
    void noticed(const QString& text, Details where = Details::Here);
    /// @param page of the help
    void helpWanted(const QString& page);

  private:
    /// Logs what went wrong, and tells it.
    void notice(const QString& text, Details where = Details::Log);
    /// Tells once of the run whose answers came into the store since the module was started.
    void tellResult();
    void onModuleEnded(int status);
    void changeUsers(const Turns::Operation& change);

    const Place place_;
    Words& words_;
    Store store_;
    Turns turns_;
    Collector collector_;
    ModuleProcess module_;
    QFileSystemWatcher spoolWatcher_;
    QString spoolTrouble_;  ///< told last
    QString storeTrouble_;  ///< told last on the standard error
    /// Told last of the results that the store did not take; they are offered again.
    std::string collectTrouble_;
    QTimer again_;
    std::optional<User> user_;
    QString midiDevice_;
    QString soundfont_;
    bool handedOver_ = false;
    int resultBefore_ = 0;  ///< number of the newest result when the module was started, or told
};

}  // namespace melvora
