// Damaged settings files and damaged saved trainings, for as many seconds as asked: the form takes
// what it offers and refuses the rest, nothing hangs, and no memory is lost.
#include "setup/einstellungsdatei.h"
#include "setup/set_up.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>

namespace setup::test {

namespace {

using core::Value;

/// Bytes changed, lost, doubled, or put in from a list of nasty ones.
class Mutator {
  public:
    explicit Mutator(std::int64_t seed) : chance_(seed) {}

    std::string text(std::string bytes) {
        static const std::vector<std::string> nasty{"<control>",
                                                    "</control>",
                                                    "&a;",
                                                    "\xff",
                                                    std::string(1, '\0'),
                                                    "-1",
                                                    "99999",
                                                    "<!DOCTYPE a [<!ENTITY a \"&a;&a;\">]>",
                                                    "<![CDATA[",
                                                    "<index>",
                                                    "<value>True</value>",
                                                    std::string(3000, '<'),
                                                    std::string(40000, '9'),
                                                    "<?xml version=\"1.0\" encoding=\"utf-16\"?>"};
        for (int n = below(6); n >= 0; --n) {
            const auto at = static_cast<std::size_t>(below(static_cast<int>(bytes.size()) + 1));
            const auto length = static_cast<std::size_t>(below(60));
            switch (below(5)) {
                case 0:
                    if (at < bytes.size()) bytes[at] = static_cast<char>(below(256));
                    break;
                case 1:
                    bytes.erase(at, length);
                    break;
                case 2:
                    bytes.insert(at, bytes.substr(at, length));
                    break;
                case 3:
                    bytes.insert(
                        at, nasty[static_cast<std::size_t>(below(static_cast<int>(nasty.size())))]);
                    break;
                default:
                    bytes.resize(at);
            }
        }
        return bytes;
    }

    Value array(Value::Array array) {
        static const std::vector<Value> nasty{
            "", "-1", "0",     "32768",           "1e5", "true", true,
            7,  2.5,  Value(), Value::Array{"1"}, "15",  "-10",  "\xff"};
        for (int n = below(3); n >= 0; --n) {
            const auto at = static_cast<std::size_t>(below(static_cast<int>(array.size()) + 1));
            if (below(8) == 0) array.resize(at);
            if (below(8) == 0)
                array.insert(
                    array.begin() + static_cast<std::ptrdiff_t>(std::min(at, array.size())), "1");
            if (at < array.size())
                array[at] = nasty[static_cast<std::size_t>(below(static_cast<int>(nasty.size())))];
        }
        return array;
    }

    int below(int n) { return chance_.below(n); }

  private:
    base::Rnd chance_;
};

long residentKilobytes() {
    std::ifstream pages("/proc/self/statm");
    long size = 0, resident = 0;
    pages >> size >> resident;
    return resident * 4;
}

struct Fault {
    std::string what;
};

void expect(bool holds, const char* what) {
    if (!holds) throw Fault{what};
}

void expectInRange(const core::Zustand& z) {
    const auto within = [](int v, int most) { return v >= 0 && v <= most; };
    expect(within(z.skal_typ, 6) && within(z.richtung, 2) && within(z.final, 2), "scales");
    expect(within(z.tempoIdx, 9) && within(z.stimmung, 2) && within(z.oktAnz, 3), "sound");
    expect(z.FrquMinAkt >= 36 && z.FrquMaxAkt <= 96 && z.FrquMinAkt < z.FrquMaxAkt, "range");
    expect(z.skal_typ < 2 || (z.abfolge == 0 && z.stimmung == 0), "what the category forbids");
}

/// A settings file that a teacher wrote.
std::string honestFile() {
    support::FakeHost host;
    Practice teacher(host, {.tempOrdner = "/tmp", .pruefEdit = true});
    for (const int group : {0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 15}) {
        teacher.group(group).context();
        teacher.get<form::MenuEntry>("popExamToggle").click();
    }
    teacher.option("ska_ausw", 1).click();
    for (const int code : {1, -1, 2, -2}) teacher.pick(code);
    return EinstellungenText(*teacher.drill.programm.forms.loaded("einstellung1"), 1, "honest");
}

/// A run of chosen scales on a host that keeps what it saved.
void train(support::FakeHost& host, int mode) {
    Practice s(host, {.tempOrdner = "/tmp"});
    if (mode == 1) {
        s.option("ska_ausw", 1).click();
        for (const int code : {1, -1, 2, -2}) s.pick(code);
    }
    s.combo("training_Combo").setListIndex(mode);
    expectInRange(s.z);
    s.button("cmdOK").click();
    s.loop.advance(50);
    auto& forms = s.drill.programm.forms;
    if (!forms.loaded("arbeitsblatt1")) return;
    const auto press = [&](const char* button) {
        static_cast<form::Button*>(forms.loaded("arbeitsblatt1")->find(button))->click();
    };
    press("CmdNextAufg");
    for (int i = 0; i < 300 && s.z.schalter_frei == 0; ++i) {
        s.loop.advance(100);
        s.get<form::Picture>("ton_art", s.z.skala_nr, "arbeitsblatt1").click();
    }
    expect(s.z.matbox_zahl >= 0, "weights");
    s.dialogs.answers = {mode == 1};
    s.get<form::Panel>("zurueck", form::Place::noIndex, "arbeitsblatt1").click();
    s.loop.advance(500);
    expect(!forms.loaded("arbeitsblatt1"), "the worksheet can be left");
}

void damagedFile(Mutator& mutate, const std::string& honest, support::FakeHost& host) {
    Practice s(host, {.tempOrdner = "/tmp"});
    EinstellungenAnwenden(*s.drill.programm.forms.loaded("einstellung1"),
                          EinstellungenLesenAus(mutate.text(honest)));
    expectInRange(s.z);
    expect(s.dialogs.messages.empty(), "no message");
}

void damagedTraining(Mutator& mutate, const std::map<std::string, Value>& honest) {
    support::FakeHost host;
    host.records = honest;
    for (auto& [key, record] : host.records)
        if (mutate.below(2) == 0) record = mutate.array(record.items());
    train(host, 2);
}

int run(int seconds, std::int64_t seed) {
    Mutator mutate(seed);
    const std::string file = honestFile();
    support::FakeHost host;
    train(host, 1);
    expect(host.records.size() == 2, "a training was saved");

    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    long files = 0, trainings = 0, warm = 0;
    while (std::chrono::steady_clock::now() < until) {
        support::FakeHost none;
        for (int i = 0; i < 20; ++i, ++files) damagedFile(mutate, file, none);
        for (int i = 0; i < 5; ++i, ++trainings) damagedTraining(mutate, host.records);
        if (warm == 0 && files >= 200) warm = residentKilobytes();
    }
    const long grown = warm == 0 ? 0 : residentKilobytes() - warm;
    std::printf("%ld damaged files, %ld damaged trainings in %d s, %ld KB more memory, seed %lld\n",
                files, trainings, seconds, grown, static_cast<long long>(seed));
#ifndef __SANITIZE_ADDRESS__  // whose quarantine grows by design
    expect(grown < 20 * 1024, "memory grows");
#endif
    return 0;
}

}  // namespace

}  // namespace setup::test

int main(int argc, char** argv) {
    const char* const asked = std::getenv("MELVORA_FUZZ_SECONDS");
    const std::int64_t seed = argc > 1 ? std::atoll(argv[1]) : std::time(nullptr);
    try {
        return setup::test::run(asked ? std::atoi(asked) : 2, seed);
    } catch (const setup::test::Fault& fault) {
        std::printf("seed %lld: %s\n", static_cast<long long>(seed), fault.what.c_str());
    } catch (const std::exception& fault) {
        std::printf("seed %lld: thrown: %s\n", static_cast<long long>(seed), fault.what());
    }
    return 1;
}
