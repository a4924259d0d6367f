#include "melvora/module_process.h"

#include "fontfile/font_files.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

namespace melvora {

namespace {

constexpr int untilAsked = 5000, untilKilled = 2000;  // milliseconds

QString folderOfModules() {
    const QString given = qEnvironmentVariable("MELVORA_MODULE_PATH");
    return given.isEmpty() ? QCoreApplication::applicationDirPath() : given;
}

}  // namespace

ModuleProcess::ModuleProcess(QObject* parent) : QObject(parent) {
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    process_.setInputChannelMode(QProcess::ForwardedInputChannel);
    connect(&process_, &QProcess::started, this, &ModuleProcess::started);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            emit failed(process_.program() + ": " + process_.errorString());
    });
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, [this] {
        if (std::exchange(asked_, true)) return process_.kill();
        process_.terminate();
        patience_.start(untilKilled);
    });
    connect(&process_, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        patience_.stop();
        emit ended(status == QProcess::CrashExit ? -code : code);
    });
}

ModuleProcess::~ModuleProcess() {
    process_.disconnect(this);
    if (!runs()) return;
    process_.terminate();
    process_.waitForFinished(2000);
}

void ModuleProcess::endSoon() {
    asked_ = false;
    if (runs()) patience_.start(untilAsked);
}

void ModuleProcess::start(const QString& module, const QStringList& arguments,
                          const Surroundings& where) {
    if (runs()) return;
    name_ = module;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("temp", where.spool);
    environment.insert("MELVORA_FONT_TABLES", where.fontTables);
    // One that is no longer there would be missed; the usual one is played instead.
    if (!environment.contains("MELVORA_SOUNDFONT") &&
        fontfile::isSoundfont(where.soundfont.toStdString()))
        environment.insert("MELVORA_SOUNDFONT", where.soundfont);
    environment.insert("MELVORA_HOST_ADDRESS", where.address);
    process_.setProcessEnvironment(environment);
    process_.start(QDir(folderOfModules()).absoluteFilePath(module), arguments);
}

}  // namespace melvora
