// Files of settings, read and applied to the set-up form.
#include "setup/einstellungsdatei.h"
#include "soak/fuzz/law.h"
#include "soak/fuzz/practice.h"
#include "soak/fuzz/seeds.h"

#include <cstddef>
#include <cstdint>

namespace soak {

namespace {

std::string exerciseOf(const setup::Einstellungssatz& file) {
    const auto type = file.kopf.find("type");
    return type != file.kopf.end() && type->second == "4" ? "4" : "1";
}

void tryFile(const std::string& bytes) {
    const auto file = setup::EinstellungenLesenAus(bytes);
    if (file.eintraege.empty()) return;
    rehearsal::MemoryHost host;
    Practice pupil(host, exerciseOf(file));
    setup::EinstellungenAnwenden(pupil.setUp(), file);
    pupil.expectInRange();
    law(pupil.dialogs.messages.empty() && host.faults.empty(), "no message");
    pupil.run(false);
}

/// What a teacher writes who has marked these groups, for each exercise with sound.
std::map<std::string, std::string> honest() {
    std::map<std::string, std::string> files;
    for (const std::string exercise : {"1", "4"})
        for (int choice = 0; choice < 6; ++choice) {
            rehearsal::MemoryHost host;
            Practice teacher(host, exercise);
            for (const int group : {0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 15})
                if (choice != 1 || group % 2 == 0) teacher.mark(group);
            teacher.combo("temp_Combo").setListIndex(choice);
            teacher.combo("CmbOktAnz").setListIndex(choice % 4);
            if (choice == 2) teacher.combo("skal_typ_cmb").setListIndex(exercise == "1" ? 4 : 0);
            if (choice == 3) teacher.option("stimm_g", 1).click();
            if (choice == 4) teacher.option("abfolge", 1).click();
            if (choice == 5) teacher.pick({1, -1, 2, -2});
            files[exercise + "-" + std::to_string(choice) + ".mvs"] =
                setup::EinstellungenText(teacher.setUp(), exercise == "1" ? 1 : 4, "für alle");
        }
    return files;
}

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    soak::onSeeds(*argc, *argv, soak::honest);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    soak::tryFile({reinterpret_cast<const char*>(data), size});
    return 0;
}
