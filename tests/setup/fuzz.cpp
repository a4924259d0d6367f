// Damaged settings files and damaged saved trainings, for as many seconds as asked: the form takes
// what it offers and refuses the rest, and nothing hangs.
#include "setup/einstellungsdatei.h"
#include "setup/set_up.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <stdexcept>

namespace setup::test {

namespace {

using core::Value;

/// Bytes or values changed, lost, doubled, or put in from a list of nasty ones.
class Mutator {
  public:
    explicit Mutator(std::int64_t seed) : chance_(seed) {}

    std::string text(std::string bytes) {
        static const std::vector<std::string> nasty{
            "<control>", "</control>", "<!DOCTYPE a>", "<![CDATA[", "<index>", "True",
            "&a;",       "\xff",       "-1",           "99999",     "<!--",    "<?xml?>"};
        for (int n = below(6); n >= 0; --n) {
            const auto at = below(bytes.size() + 1), length = below(60UL);
            switch (below(6)) {
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
                    bytes.insert(at, nasty[below(nasty.size())]);
                    break;
                case 4:
                    bytes.insert(at, 40000, "<9"[below(2)]);
                    break;
                default:
                    bytes.resize(at);
            }
        }
        return bytes;
    }

    Value array(Value::Array array) {
        static const std::vector<Value> nasty{"", "-1", "0",     "32768",           "1e5", "true",
                                              7,  2.5,  Value(), Value::Array{"1"}, "15",  "\xff"};
        for (int n = below(3); n >= 0; --n) {
            const auto at = below(array.size() + 1);
            if (below(8) == 0) array.resize(at);
            if (below(8) == 0) array.emplace_back("1");
            if (at < array.size()) array[at] = nasty[below(nasty.size())];
        }
        return array;
    }

    int below(int n) { return chance_.below(n); }
    std::size_t below(std::size_t n) {
        return static_cast<std::size_t>(int(chance_.below(static_cast<int>(n))));
    }

  private:
    base::Rnd chance_;
};

void expect(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
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
    for (const int group : {0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 15}) teacher.mark(group);
    teacher.pick({1, -1, 2, -2});
    return EinstellungenText(teacher.setUp(), 1, "honest");
}

/// A run of chosen scales on a host that keeps what it saved.
void train(support::FakeHost& host, int mode) {
    Practice s(host, {.tempOrdner = "/tmp"});
    if (mode == 1) s.pick({1, -1, 2, -2});
    s.mode(mode);
    expectInRange(s.z);
    s.begin();
    if (!s.running()) return;
    s.task(true);
    expect(s.z.matbox_zahl >= 0, "weights");
    s.leave(mode == 1);
    expect(!s.running(), "the worksheet can be left");
}

void damagedFile(Mutator& mutate, const std::string& honest, support::FakeHost& host) {
    Practice s(host, {.tempOrdner = "/tmp"});
    EinstellungenAnwenden(s.setUp(), EinstellungenLesenAus(mutate.text(honest)));
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
    long files = 0, trainings = 0;
    while (std::chrono::steady_clock::now() < until) {
        support::FakeHost none;
        for (int i = 0; i < 20; ++i, ++files) damagedFile(mutate, file, none);
        for (int i = 0; i < 5; ++i, ++trainings) damagedTraining(mutate, host.records);
    }
    std::printf("%ld damaged files, %ld damaged trainings in %d s, seed %lld\n", files, trainings,
                seconds, static_cast<long long>(seed));
    return 0;
}

}  // namespace

}  // namespace setup::test

int main(int argc, char** argv) {
    const char* const asked = std::getenv("MELVORA_FUZZ_SECONDS");
    const std::int64_t seed = argc > 1 ? std::atoll(argv[1]) : std::time(nullptr);
    try {
        return setup::test::run(asked ? std::atoi(asked) : 2, seed);
    } catch (const std::exception& fault) {
        std::printf("seed %lld: %s\n", static_cast<long long>(seed), fault.what());
    }
    return 1;
}
