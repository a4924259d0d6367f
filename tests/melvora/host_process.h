#pragma once
#include "hostlink/dbus_host.h"
#include "melvora/store.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <optional>

namespace melvora {

/// The real host program with a socket and a data folder of its own.
class HostProcess : public testing::Test {
  protected:
    QString socket() const { return folder_.filePath("host"); }
    QString data() const { return folder_.filePath("data"); }

    void prepare(QProcess& process, const QStringList& arguments, const QString& task = {}) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("MELVORA_HOST_ADDRESS", socket());
        environment.insert("MELVORA_MODULE_PATH", MELVORA_FAKE_MODULES);
        environment.insert("FAKE_MODULE", task);
        process.setProcessEnvironment(environment);
        process.setProgram(MELVORA_PROGRAM);
        process.setArguments(QStringList{"--data", data()} + arguments);
    }

    /// Starts the host and waits until it answers.
    void start(const QStringList& arguments = {}, const QString& task = {}) {
        prepare(host_, arguments, task);
        host_.start();
        ASSERT_TRUE(host_.waitForStarted());
        eventually([this] { return ask("LANG", "").isEmpty() == false; });
    }

    void kill() {
        host_.kill();
        ASSERT_TRUE(host_.waitForFinished());
    }

    struct Ended {
        int status;
        std::string complaint;
    };
    /// Runs a host to its end beside the one that runs.
    Ended second(const QStringList& arguments = {}) const {
        QProcess process;
        prepare(process, arguments);
        process.start();
        EXPECT_TRUE(process.waitForFinished(20'000));
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardError().toStdString()};
    }

    /// The host's result, nothing when it refuses or is not there.
    core::Value ask(const std::string& key, const core::Value& argument) {
        core::Value result;
        try {
            return link().request(key, argument, result) ? result : core::Value();
        } catch (const core::HostGone&) {
            return {};
        }
    }
    std::string startedModule() { return ask("APP", {}).at(1).text(); }
    /// Texts of the log that the host has written so far, newest first.
    QStringList logged() const {
        QStringList texts;
        for (const LogLine& line : Store(data()).log.lines({})) texts.append(line.text);
        return texts;
    }
    hostlink::DbusHost& link() {
        if (!link_)
            link_.emplace(hostlink::addressOf(socket().toStdString()), std::chrono::minutes(10));
        return *link_;
    }

    template <class Condition>
    static void eventually(Condition condition) {
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            ASSERT_LT(clock.elapsed(), 20'000) << "waited in vain";
            QThread::msleep(10);
        }
    }

    void TearDown() override {
        if (host_.state() != QProcess::NotRunning) kill();
    }

    QTemporaryDir folder_;
    QProcess host_;
    std::optional<hostlink::DbusHost> link_;
};

}  // namespace melvora
