#include "setup/set_up.h"

#include <filesystem>

namespace core {
namespace {

/// The whole drill, opened by a teacher, with a folder for its files that has gone.
struct Unwritable : setup::test::SetUp {
    Unwritable() {
        words.texts = {{"815s", "no record in %1: free some space"},
                       {"834s", "no settings in %1: choose another folder"}};
        programm.aufruf.tempOrdner = gone;
        programm.aufruf.pruefEdit = true;
        programm.forms.unload("einstellung1");
        programm.forms.load("einstellung1");
        loop.advance(250);
    }
    const std::string gone = (std::filesystem::path(testing::TempDir()) / "gone/x").string();
};

TEST_F(Unwritable, RecordAndSettingsAreToldWithTheirPathAndWhatToDo) {
    dialogs.files = {gone + "/exam.mvs"};
    const auto watch = programm.forms.made.connect([&](form::Form& made) {
        if (made.name() != "frmSave") return;
        loop.post([&] {
            for (const char* name : {"cmdSave", "cmdOK"})
                control<form::Button>("frmSave", name).click();
        });
    });
    button("cmdOptionSave").click();
    button("cmdOK").click();
    loop.advance(500);
    click("zurueck");
    ASSERT_EQ(dialogs.messages.size(), 2U);
    const std::string warning = "W720\nW721\nW722\nW723\n\n",
                      reason = " (No such file or directory)";
    EXPECT_EQ(dialogs.messages[0].text,
              warning + "no settings in " + gone + "/exam.mvs: choose another folder" + reason);
    const std::string file = drill.xml.datei();
    EXPECT_EQ(file.rfind(gone, 0), 0U);
    EXPECT_EQ(dialogs.messages[1].text,
              warning + "no record in " + file + ": free some space" + reason);
}

}  // namespace
}  // namespace core
