#include "melvora/host.h"

#include "core/wort.h"
#include "melvora/midi_ports.h"
#include "melvora/record_html.h"
#include "melvora/settings_file.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace melvora {

namespace wort = core::wort;

namespace {

/// Results that were not taken are looked for again after so long.
constexpr std::chrono::seconds untilAgain{2};

}  // namespace

Host::Host(Place place, Words& words)
    : place_(std::move(place)),
      words_(words),
      store_(place_.data),
      collector_(QDir(place_.data).absoluteFilePath("spool"), store_.results) {
    user_ = store_.users.find(store_.settings.get("user"));
    midiDevice_ = store_.settings.get("midi");
    soundfont_ = store_.settings.get("soundfont");
    words_.choose(store_.settings.get("language"));

    connect(&module_, &ModuleProcess::started, this, &Host::moduleStarted);
    connect(&module_, &ModuleProcess::ended, this, &Host::onModuleEnded);
    connect(&module_, &ModuleProcess::failed, this, [this](const QString& cause) {
        notice(words_.wort(wort::moduleNotStarted).arg(moduleTitle(), cause));
        emit moduleEnded();
        emit menuWanted();
    });
    connect(&spoolWatcher_, &QFileSystemWatcher::directoryChanged, this,
            [this](const QString& folder) {
                // In the folder above, the spool may have become another one.
                if (folder != collector_.folder()) spoolWatcher_.removePath(collector_.folder());
                collect();
            });
    again_.setSingleShot(true);
    again_.setInterval(untilAgain);
    connect(&again_, &QTimer::timeout, this, &Host::collect);
}

void Host::begin() {
    store_.database.setPatience(std::chrono::milliseconds(0));
    inTurn([this] { store_.log.prune(); });
    prepareSpool();
    collect();
}

QString Host::moduleTitle() const { return words_.wort(wort::scales); }

QString Host::userKey() const { return user_ ? user_->key : QString(nobody); }

bool Host::logIn(const QString& key) {
    const bool out = key.isEmpty() || key == nobody;
    std::optional<User> user;
    if (!out) guarded([&] { user = store_.users.find(key); });
    if (!out && !user) return false;
    if (user == user_) return true;
    if (isLocked())
        emit noticed(words_.wort(wort::lockedNow));
    else
        changeUsers([this, user] {
            store_.settings.set("user", user ? user->key : QString());
            user_ = user;
        });
    return true;
}

void Host::putUser(const User& user) {
    changeUsers([this, user] {
        store_.users.put(user);
        if (userKey() == user.key) user_ = user;
    });
}

void Host::removeUser(const QString& key) {
    if (isLocked() && key == userKey()) return emit noticed(words_.wort(wort::lockedNow));
    changeUsers([this, key] {
        store_.users.remove(key);
        if (userKey() == key) user_.reset();
    });
}

/// Whoever shows the users shows them as they are, also when nothing could be changed.
void Host::changeUsers(const Turns::Operation& change) {
    inTurn(change, [this](const std::exception* fault) {
        if (fault) tell(*fault);
        emit usersChanged();
    });
}

bool Host::chooseLanguage(const QString& language) {
    if (!words_.languages().contains(language)) return false;
    if (isLocked()) {
        emit noticed(words_.wort(wort::lockedNow));
        return true;
    }
    inTurn([this, language] { store_.settings.set("language", language); });
    words_.choose(language);
    emit languageChanged();
    return true;
}

void Host::chooseMidiDevice(const QString& name) {
    inTurn([this, name] { store_.settings.set("midi", name); });
    midiDevice_ = name;
    emit midiDeviceChanged();
}

void Host::chooseSoundfont(const QString& file) {
    inTurn([this, file] { store_.settings.set("soundfont", file); });
    soundfont_ = file;
}

int Host::midiNumber() const {
    return midiDevice_.isEmpty() ? builtInSynthesiser : deviceNumber(midiDevice_, midiPorts());
}

bool Host::startModule(const QString& module, const QString& settingsFile) {
    QStringList arguments = place_.moduleArguments;
    if (!settingsFile.isEmpty()) {
        if (const QString cause = whyUnusable(words_, settingsFile); !cause.isEmpty()) {
            notice(cause, Details::Here);
            return false;
        }
        arguments << "--settings" << settingsFile;
    }
    if (module_.runs()) {
        if (!settingsFile.isEmpty())
            notice(words_.wort(wort::settingsMustWait).arg(moduleTitle(), settingsFile),
                   Details::Here);
        return true;
    }
    handedOver_ = false;
    guarded([this] { resultBefore_ = store_.results.newest(); });
    prepareSpool();
    module_.start(module, arguments,
                  {place_.address, collector_.folder(), QDir(place_.data).absoluteFilePath("fonts"),
                   soundfont_});
    return true;
}

void Host::prepareSpool() {
    const QString trouble = collector_.trouble();
    if (!trouble.isEmpty() && trouble != spoolTrouble_)
        notice(words_.wort(wort::resultsNotTaken).arg(trouble));
    spoolTrouble_ = trouble;
    spoolWatcher_.addPaths({place_.data, collector_.folder()});
}

void Host::takeOver() {
    handedOver_ = true;
    module_.endSoon();
    collect();
    tellResult();
    emit menuWanted();
}

void Host::removeTraining(const Training& training) {
    if (module_.runs()) {
        emit noticed(words_.wort(wort::noDeletingNow));
        return;
    }
    inTurn([this, training] {
        store_.trainings.remove(training);
        emit recordsChanged();
    });
}

void Host::onModuleEnded(int status) {
    collect();
    if (!handedOver_) tellResult();
    // How a module ends that has handed over is nobody's concern.
    if (status != 0 && !handedOver_)
        notice(words_.wort(wort::moduleEnded).arg(moduleTitle()).arg(status));
    emit moduleEnded();
    if (!handedOver_) emit menuWanted();
}

void Host::collect() {
    const auto take = [this] {
        const bool running = module_.runs() && !handedOver_;
        const auto harvest = collector_.collect(
            running ? Collector::When::DuringRun : Collector::When::AfterRun,
            [this](const QString& path) {
                const QString text = words_.wort(wort::recordUnreadable).arg(path);
                store_.log.write(LogKind::Error, userKey(), text);
                emit logChanged();
                emit noticed(text, Details::Log);
            });
        if (harvest.taken > 0) emit resultsChanged();
        // A folder that was away, or closed, tells nothing when it is as it should be again.
        const QString spool = collector_.folder();
        const bool watched = spoolWatcher_.directories().contains(spool);
        if (!watched) spoolWatcher_.addPath(spool);
        if (!watched || harvest.left || !QFileInfo(spool).isReadable()) again_.start();
    };
    inTurn(take, [this](const std::exception* fault) {
        const std::string trouble = fault ? fault->what() : "";
        if (fault && trouble != collectTrouble_) tell(*fault);
        if (fault) again_.start();
        collectTrouble_ = trouble;
    });
}

void Host::tellResult() {
    guarded([this] {
        QList<Result> fresh;
        for (Result& result : store_.results.since(resultBefore_))
            if (result.answered > 0) fresh.append(std::move(result));
        if (fresh.isEmpty()) return;
        resultBefore_ = fresh.last().id;
        const Result& last = fresh.last();
        emit noticed(words_.wort(wort::resultTaken)
                         .arg(exerciseText(words_, last.exercise),
                              shareText(words_, last.rightFirst, last.answered)),
                     Details::Results);
    });
}

void Host::log(LogKind kind, const QString& text) {
    inTurn([this, kind, user = userKey(), text] {
        store_.log.write(kind, user, text);
        emit logChanged();
    });
}

void Host::guarded(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const StoreError& error) {
        tell(error);
    }
}

void Host::inTurn(Turns::Operation operation, Turns::End end) {
    if (!end)
        end = [this](const std::exception* fault) {
            if (fault) tell(*fault);
        };
    turns_.run(std::move(operation), std::move(end));
}

void Host::tell(const std::exception& fault) {
    const QString cause = QString::fromUtf8(fault.what());
    if (!dynamic_cast<const StoreError*>(&fault))
        return notice(words_.wort(wort::unexpectedFault).arg(cause));
    emit noticed(words_.wort(wort::savingFailed).arg(cause));
    // What the store cannot take, its log cannot either.
    if (cause != storeTrouble_) std::fprintf(stderr, "melvora: %s\n", fault.what());
    storeTrouble_ = cause;
}

void Host::notice(const QString& text, Details where) {
    log(LogKind::Error, text);
    emit noticed(text, where);
}

}  // namespace melvora
