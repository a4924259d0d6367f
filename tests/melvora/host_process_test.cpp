#include "hostlink/dbus_host.h"
#include "melvora/store.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <optional>
#include <thread>

namespace melvora {
namespace {

using core::Value;

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
        eventually([this] { return !ask("LANG", "").isEmpty(); });
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
    Value ask(const std::string& key, const Value& argument) {
        Value result;
        try {
            return link().request(key, argument, result) ? result : Value();
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

TEST_F(HostProcess, KilledAtAnyMomentItLosesNothingThatItAcknowledged) {
    std::atomic<int> acknowledged = -1;
    for (unsigned long round = 0; round < 4; ++round) {
        SCOPED_TRACE(round);
        start();
        const int first = acknowledged + 1;
        std::thread murderer([&] {
            while (acknowledged < first) QThread::msleep(1);
            QThread::msleep(37 * round);
            ::kill(static_cast<pid_t>(host_.processId()), SIGKILL);
        });
        Value result;
        const auto storeUntilItDies = [&] {
            for (int i = first;; ++i) {
                const Value record = Value::Array{i, std::string(20'000, 'x'), i};
                if (link().request("STORE", Value::Array{"zepha9", "E1", record}, result))
                    acknowledged = i;
            }
        };
        EXPECT_THROW(storeUntilItDies(), core::HostGone) << "long before the time-out";
        murderer.join();
        ASSERT_TRUE(host_.waitForFinished());

        start();
        const Value record = ask("READ", Value::Array{"zepha9", "E1"});
        EXPECT_GE(std::stoi(record.at(0).text()), acknowledged);
        EXPECT_EQ(record.at(0), record.at(2));
        EXPECT_EQ(record.at(1).text().size(), 20'000u);
        kill();
    }
}

TEST_F(HostProcess, OfTwoHostsStartedAtOnceOneStays) {
    QProcess other;
    prepare(host_, {});
    prepare(other, {});
    host_.start();
    other.start();
    eventually([&] { return host_.waitForFinished(10) || other.waitForFinished(10); });
    QProcess& gone = host_.state() == QProcess::NotRunning ? host_ : other;
    EXPECT_EQ(gone.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(gone.exitCode(), 0) << gone.readAllStandardError().toStdString();
    EXPECT_FALSE(ask("LANG", "").isEmpty());

    // One that waits beside a host that hangs takes its place when that one ends.
    QProcess& first = &gone == &other ? host_ : other;
    ::kill(static_cast<pid_t>(first.processId()), SIGSTOP);
    gone.start();
    ASSERT_TRUE(gone.waitForStarted());
    EXPECT_FALSE(gone.waitForFinished(1000));
    first.kill();
    ASSERT_TRUE(first.waitForFinished());
    link_.reset();
    eventually([this] { return !ask("LANG", "").isEmpty(); });
    EXPECT_EQ(gone.state(), QProcess::Running);
    gone.kill();
    gone.waitForFinished();
}

TEST_F(HostProcess, TellsWhatIsWrongAndEndsWithStatusTwo) {
    QFile file(data());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    struct Row {
        const char* name;
        QStringList arguments;
        std::string told;
    };
    const Row rows[] = {
        {"data folder is a file", {}, data().toStdString()},
        {"unknown option", {"--nonsense"}, "nonsense"},
        {"option without its value", {"--start"}, "start"},
        {"value for a switch", {"--teacher=1"}, "teacher"},
        {"unknown module", {"--start", "zepha8"}, "zepha8"},
        {"two files", {"a.mvs", "b.mvs"}, "b.mvs"},
        {"no such file", {"nowhere.mvs"}, QDir::current().filePath("nowhere.mvs").toStdString()},
        {"file for another module", {"--start", "zepha8", data()}, "zepha8"},
        {"unknown user", {"--data", folder_.filePath("d1"), "--user", "ghost"}, "ghost"},
        {"unknown language", {"--data", folder_.filePath("d2"), "--language", "Latina"}, "Deutsch"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Ended ended = second(row.arguments);
        EXPECT_EQ(ended.status, 2);
        EXPECT_NE(ended.complaint.find(row.told), std::string::npos) << ended.complaint;
    }
    for (const char* option : {"--help", "-v"}) EXPECT_EQ(second({option}).status, 0) << option;
}

TEST_F(HostProcess, CallsThatAreNoRequestsDoItNoHarm) {
    start();
    const auto caller =
        QDBusConnection::connectToPeer("unix:path=" + socket(), "caller of nonsense");
    const QVariant nothing = QVariant::fromValue(QDBusVariant(QString()));
    const std::pair<const char*, QVariantList> calls[] = {
        {"Request", {}},
        {"Request", {5, nothing, nothing}},
        {"Request", {"LANG", "no variant", nothing}},
        {"Destroy", {"LANG", nothing, nothing}},
        {"Request",
         {"LOGMESS", QVariant::fromValue(QDBusVariant(QString(20 << 20, 'x'))), nothing}},
    };
    for (const auto& [method, arguments] : calls) {
        auto call = QDBusMessage::createMethodCall({}, hostlink::objectPath,
                                                   hostlink::interfaceName, method);
        call.setArguments(arguments);
        EXPECT_EQ(caller.call(call, QDBus::Block, 5000).type(), QDBusMessage::ErrorMessage);
    }
    QDBusConnection::disconnectFromPeer("caller of nonsense");

    const int plain = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un name{AF_UNIX, {}};
    socket().toStdString().copy(name.sun_path, sizeof name.sun_path - 1);
    ASSERT_EQ(connect(plain, reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
    const std::string noise(100'000, '\xff');
    EXPECT_GT(send(plain, noise.data(), noise.size(), MSG_NOSIGNAL), 0);
    close(plain);

    EXPECT_FALSE(ask("LANG", "").isEmpty());
}

TEST_F(HostProcess, CallersThatComeAndGoLeaveNothingOpen) {
    start();
    const QDir open(QString("/proc/%1/fd").arg(host_.processId()));
    const auto visit = [&](int times) {
        for (int i = 0; i < times; ++i) {
            Value result;
            hostlink::DbusHost caller(hostlink::addressOf(socket().toStdString()));
            EXPECT_TRUE(caller.request("LANG", "", result));
        }
    };
    visit(5);
    const auto before = open.entryList(QDir::System | QDir::Files).size();
    visit(50);
    EXPECT_LT(open.entryList(QDir::System | QDir::Files).size(), before + 10);
}

TEST_F(HostProcess, AnotherUserIsNotServed) {
    if (getuid() != 0) GTEST_SKIP() << "only root can act as another user";
    start();
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(socket(), QFile::Permissions(0x7777));
    for (const auto& [task, status] : {std::pair{"vanish", 0}, {"stranger", 4}}) {
        SCOPED_TRACE(task);
        QProcess caller;
        prepare(caller, {}, task);
        // By a relative path the folders above cannot keep the stranger away: only the host can.
        auto environment = caller.processEnvironment();
        environment.insert("MELVORA_HOST_ADDRESS", "unix:path=host");
        caller.setProcessEnvironment(environment);
        caller.setWorkingDirectory(folder_.path());
        caller.setProgram(MELVORA_FAKE_MODULES "/zepha9");
        caller.setArguments({});
        caller.start();
        ASSERT_TRUE(caller.waitForFinished(20'000));
        EXPECT_EQ(caller.exitCode(), status);
    }
    EXPECT_EQ(logged().size(), 1);
    EXPECT_FALSE(ask("LANG", "").isEmpty());
}

TEST_F(HostProcess, ASecondHostHandsItsModuleOrFileOn) {
    const QString path = folder_.filePath("Übung 1%2.mvs");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<test><basic><type>1</type></basic></test>");
    file.close();
    const QString fromHere = QDir::current().relativeFilePath(path);
    start({fromHere, "--teacher"}, "vanish");
    const QString withFile = "started as zepha9.exe --teacher --settings " + path;
    eventually([&] { return logged().contains(withFile) && startedModule().empty(); });
    EXPECT_EQ(second({"--start", "zepha9"}).status, 0);
    eventually([&] { return logged().size() == 2 && startedModule().empty(); });
    EXPECT_EQ(logged().first(), "started as zepha9.exe --teacher");
    EXPECT_EQ(second({fromHere}).status, 0);
    eventually([&] { return logged().size() == 3 && startedModule().empty(); });
    EXPECT_EQ(logged().first(), withFile);
    EXPECT_EQ(second({path + "x"}).status, 2);
    EXPECT_EQ(second().status, 0);
    EXPECT_EQ(host_.state(), QProcess::Running);
}

TEST_F(HostProcess, AModuleThatHasHandedOverAndDoesNotEndIsEnded) {
    start({"--start", "zepha9"}, "stay");
    eventually([this] { return !startedModule().empty(); });
    eventually([this] { return startedModule().empty(); });
    EXPECT_EQ(logged().size(), 1) << "nothing went wrong";
}

TEST_F(HostProcess, AMissingModuleIsToldOfWithItsPath) {
    prepare(host_, {"--start", "zepha9"});
    auto environment = host_.processEnvironment();
    environment.insert("MELVORA_MODULE_PATH", folder_.filePath("none"));
    host_.setProcessEnvironment(environment);
    host_.start();
    eventually([this] { return QFile::exists(data() + "/melvora.sqlite") && !logged().isEmpty(); });
    EXPECT_TRUE(logged().first().contains(folder_.filePath("none/zepha9")));
}

}  // namespace
}  // namespace melvora
