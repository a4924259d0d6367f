#include "melvora/host_process.h"
#include "melvora/store.h"

#include <QDir>

namespace melvora {
namespace {

class ModuleRun : public HostProcess {
  protected:
    /// Texts of the log that the host has written so far, newest first.
    QStringList logged() const {
        QStringList texts;
        for (const LogLine& line : Store(data()).log.lines({})) texts.append(line.text);
        return texts;
    }
    std::string startedModule() { return ask("APP", {}).at(1).text(); }
};

TEST_F(ModuleRun, ASecondHostHandsItsModuleOrFileOn) {
    const QString path = folder_.filePath("Übung 1%2.mvs");
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
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

TEST_F(ModuleRun, AMissingModuleIsToldOfWithItsPath) {
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
