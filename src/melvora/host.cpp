#include "melvora/host.h"

#include "melvora/midi_ports.h"
#include "melvora/settings_file.h"

#include <QDir>

namespace melvora {

Host::Host(Place place, Words& words)
    : place_(std::move(place)),
      words_(words),
      store_(place_.data),
      collector_(QDir(place_.data).absoluteFilePath("spool"), store_.results) {
    user_ = store_.users.find(store_.settings.get("user"));
    midiDevice_ = store_.settings.get("midi");
    words_.choose(store_.settings.get("language"));

    connect(&module_, &ModuleProcess::started, this, &Host::moduleStarted);
    connect(&module_, &ModuleProcess::ended, this, &Host::onModuleEnded);
    connect(&module_, &ModuleProcess::failed, this, [this](const QString& cause) {
        notice(words_.wort(941).arg(module_.name(), cause));
        emit moduleEnded();
        emit menuWanted();
    });
    connect(&spoolWatcher_, &QFileSystemWatcher::directoryChanged, this, &Host::collect);
}

QString Host::userKey() const { return user_ ? user_->key : QString(nobody); }

bool Host::logIn(const QString& key) {
    const bool out = key.isEmpty() || key == nobody;
    bool known = out;
    guarded([&] {
        const auto user = out ? std::nullopt : store_.users.find(key);
        known = out || user;
        if (!known || user == user_) return;
        store_.settings.set("user", user ? user->key : QString());
        user_ = user;
        emit usersChanged();
    });
    return known;
}

void Host::putUser(const User& user) {
    guarded([&] {
        store_.users.put(user);
        if (userKey() == user.key) user_ = user;
        emit usersChanged();
    });
}

void Host::removeUser(const QString& key) {
    guarded([&] {
        store_.users.remove(key);
        if (userKey() == key) user_.reset();
        emit usersChanged();
    });
}

bool Host::chooseLanguage(const QString& language) {
    if (!words_.languages().contains(language)) return false;
    guarded([&] { store_.settings.set("language", language); });
    words_.choose(language);
    emit languageChanged();
    return true;
}

void Host::chooseMidiDevice(const QString& name) {
    guarded([&] { store_.settings.set("midi", name); });
    midiDevice_ = name;
    emit midiDeviceChanged();
}

int Host::midiNumber() const {
    return midiDevice_.isEmpty() ? builtInSynthesiser : deviceNumber(midiDevice_, midiPorts());
}

bool Host::startModule(const QString& module, const QString& settingsFile) {
    QStringList arguments = place_.moduleArguments;
    if (!settingsFile.isEmpty()) {
        if (const QString cause = whyUnreadable(settingsFile); !cause.isEmpty()) {
            notice(words_.wort(970).arg(cause));
            return false;
        }
        arguments << "--settings" << settingsFile;
    }
    if (module_.runs()) {
        if (!settingsFile.isEmpty()) notice(words_.wort(971).arg(module_.name(), settingsFile));
        return true;
    }
    handedOver_ = false;
    prepareSpool();
    module_.start(module, arguments, {place_.address, collector_.folder()});
    return true;
}

void Host::prepareSpool() {
    const QString trouble = collector_.trouble();
    if (!trouble.isEmpty() && trouble != spoolTrouble_) notice(words_.wort(974).arg(trouble));
    spoolTrouble_ = trouble;
    spoolWatcher_.addPath(collector_.folder());
}

void Host::takeOver() {
    handedOver_ = true;
    module_.endSoon();
    collect();
    emit menuWanted();
}

void Host::removeTraining(const Training& training) {
    if (module_.runs()) {
        emit noticed(words_.wort(968));
        return;
    }
    guarded([&] {
        store_.trainings.remove(training);
        emit recordsChanged();
    });
}

void Host::onModuleEnded(int status) {
    collect();
    // How a module ends that has handed over is nobody's concern.
    if (status != 0 && !handedOver_) notice(words_.wort(942).arg(module_.name()).arg(status));
    emit moduleEnded();
    if (!handedOver_) emit menuWanted();
}

void Host::collect() {
    guarded([this] {
        const bool running = module_.runs() && !handedOver_;
        const auto harvest =
            collector_.collect(running ? Collector::When::DuringRun : Collector::When::AfterRun);
        for (const QString& path : harvest.unreadable) notice(words_.wort(944).arg(path));
        if (harvest.taken > 0) emit resultsChanged();
    });
}

void Host::log(LogKind kind, const QString& text) {
    guarded([&] {
        store_.log.write(kind, userKey(), text);
        emit logChanged();
    });
}

bool Host::guarded(const std::function<void()>& operation) {
    try {
        operation();
        return true;
    } catch (const StoreError& error) {
        tell(error);
        return false;
    }
}

void Host::tell(const StoreError& error) {
    emit noticed(words_.wort(945).arg(QString::fromUtf8(error.what())));
}

void Host::tell(const std::exception& fault) {
    notice(words_.wort(973).arg(QString::fromUtf8(fault.what())));
}

void Host::notice(const QString& text) {
    log(LogKind::Error, text);
    emit noticed(text);
}

}  // namespace melvora
