#include "threads/lane.h"

#include "synth/synth_output.h"

#include <fstream>
#include <numeric>

namespace soak {

using namespace std::chrono_literals;
using sound::MidiOutput;

namespace {

/// Channels that a task uses.
constexpr int channels = decltype(core::Zustand::patch)::size();

/// So long may anything take that must happen in the end, on a busy machine too.
constexpr auto patience = 25s;
/// Deeper than so many actions in each other nobody presses a button.
constexpr int deepest = 3;
constexpr auto font = "/usr/share/sounds/sf2/TimGM6mb.sf2";

void pauseFor(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// One of the rows, each as often as its weight says.
template <class Rows>
const auto& drawn(base::Rnd& rnd, const Rows& rows) {
    int sum = 0;
    for (const auto& row : rows) sum += row.weight;
    int at = rnd.below(sum);
    auto row = std::begin(rows);
    while ((at -= row->weight) >= 0) ++row;
    return *row;
}

/// What an output plays on.
struct Kind {
    const char* driver;
    int weight;
    int period;   ///< of a sound card in place of the driver, in milliseconds; 0 for none
    bool paced;   ///< at the clock's pace
    bool broken;  ///< a file that takes nothing
};
constexpr Kind kinds[] = {
    {"", 40, 11, true, false},     {"", 10, 1, true, false},    {"none", 10, 0, true, false},
    {"none", 10, 0, false, false}, {"file", 6, 0, true, false}, {"file", 8, 0, false, false},
    {"file", 4, 0, true, true},    {"", 8, 0, true, false},
};

struct Font {
    int weight;
    const char* file;
};
constexpr Font fonts[] = {{40, font}, {2, "/no/such/font.sf2"}, {2, "/proc/self/exe"}, {1, ""}};

}  // namespace

const std::vector<Lane::Action> Lane::actions{
    {8, "present a task", &Lane::present, true},
    {2, "sound check", &Lane::soundCheck, true},
    {2, "start in place of what plays", &Lane::replace, true},
    {1, "start an empty queue", &Lane::startNothing, true},
    {1, "start while closed", &Lane::startClosed, true},
    {3, "stop", &Lane::stop, false},
    {1, "set the volume", &Lane::setVolume, true},
    {2, "reset", &Lane::reset, true},
    {2, "list the devices", &Lane::listDevices, true},
    {2, "open any device", &Lane::openAny, true},
    {1, "close", &Lane::close, true},
    {5, "wait shortly", &Lane::waitShortly, false},
    {8, "wait for the end", &Lane::waitForEnd, false},
    {6, "wait until near the end", &Lane::waitUntilNearTheEnd, false},
    {3, "lose the device", &Lane::loseDevice, false},
    {1, "unplug", &Lane::unplug, true},
    {3, "plug", &Lane::plug, true},
    {3, "change the card", &Lane::changeCard, false},
    {2, "change the ports", &Lane::changePorts, true},
    {1, "change the sound server", &Lane::changeServer, false},
    {4, "press a button", &Lane::press, true},
    {6, "see which problem is told", &Lane::settle, false},
};

Lane::Lane(Laws& laws, SoundServer& server, const std::filesystem::path& folder, std::string name,
           std::int64_t seed)
    : laws_(laws),
      server_(server),
      file_(folder / (name + ".wav")),
      name_(std::move(name)),
      rnd_(seed) {}

void Lane::life() {
    who_ = name_ + ", output " + std::to_string(++lives_);
    const synth::SynthOptions options = machineAndOptions();
    WatchedOutput::Pace pace;
    if (!options.paced || machine_->period == 1) pace.builtIn = 1h;
    progress_.doing("make an output");
    output_ = std::make_unique<WatchedOutput>(synth::makeSynthOutput(options, loop_.mail.post()),
                                              *machine_, who_, pace);
    output_->queueEmpty = [this] {
        if (oneIn(8)) act(true);
    };
    midi_.emplace(loop_, host_);
    listDevices();
    for (int left = rnd_.below(oneIn(4) ? 4 : 30); left > 0; --left) act(false);
    end();
    if (options.driver == "file") checkFile();
}

/// The output goes at any moment, often as its queue ends; what it has posted comes later, or when
/// the next one is there.
void Lane::end() {
    if (output_->due() && oneIn(2)) waitUntilNearTheEnd();
    if (oneIn(4)) pauseFor(rnd_.below(30));
    progress_.doing("end the output");
    midi_.reset();
    output_.reset();
    if (oneIn(2)) loop_.wait(rnd_.below(20), false);
    machine_.reset();
    Machine::here() = nullptr;
}

synth::SynthOptions Lane::machineAndOptions() {
    const Kind& kind = drawn(rnd_, kinds);
    machine_ = std::make_shared<Machine>(laws_, who_);
    machine_->period = kind.period;
    machine_->slowness = oneIn(3) ? rnd_.below(2000) : 0;
    Machine::here() = machine_.get();
    changePorts();
    synth::SynthOptions options;
    options.driver = kind.driver;
    options.audioFile =
        kind.broken ? (oneIn(2) ? "/dev/full" : "/no/such/folder/sound.wav") : file_.string();
    options.soundfont = drawn(rnd_, fonts).file;
    options.paced = kind.paced;
    if (kind.period > 0) options.openDevice = machine_->card();
    return options;
}

void Lane::act(bool nested) {
    const Action& action = drawn(rnd_, actions);
    if (!output_ || depth_ >= deepest || (nested && !action.nested)) return;
    progress_.doing(action.name);
    ++depth_;
    (this->*action.act)();
    --depth_;
}

/// Lets events happen until `done`, which nobody tells; false when that takes too long.
bool Lane::until(const std::function<bool()>& done) {
    const auto begin = Clock::now();
    while (!loop_.mail.runUntil(done, 2ms))
        if (Clock::now() - begin > patience) return false;
    return true;
}

/// A file is whole at any moment: its head knows its length.
void Lane::checkFile() {
    if (!std::filesystem::exists(file_)) return;
    std::uint32_t bytes = 0;
    std::ifstream(file_, std::ios::binary)
        .ignore(40)
        .read(reinterpret_cast<char*>(&bytes), sizeof bytes);
    ++laws_.files;
    if (bytes + 44 != std::filesystem::file_size(file_))
        laws_.broken(Law::Files, who_, "the head of the sound file does not know its length");
    std::filesystem::remove(file_);
}

/// A scale: tones one after another, all on one channel or each on its own.
void Lane::queueTask() {
    const bool tuned = oneIn(2);
    const int tones = rnd_.upTo(9);
    const int beat = oneIn(6) ? 2 : 20 + rnd_.below(180);
    const int first = 40 + rnd_.below(40);
    for (int i = 0; i < tones; ++i) {
        const int channel = tuned ? i % channels : 0;
        if (tuned) midi_->MidiPitchBend(channel, rnd_.below(128));
        midi_->MidiNote(first + rnd_.below(3), beat * i, std::max(1, beat * 9 / 10), channel, i);
    }
}

void Lane::present() {
    midi_->MidiReset();
    midi_->Delay(static_cast<float>(rnd_.below(10)));
    for (int i = 0; i < channels; ++i) midi_->SetzeKlangfarbe(rnd_.below(128), i);
    midi_->MidiAusblenden();
    queueTask();
    midi_->Delay(static_cast<float>(rnd_.below(10)));
    midi_->MidiEinblenden();
}

void Lane::soundCheck() {
    midi_->MidiReset();
    queueTask();
    midi_->output().start();
}

void Lane::replace() {
    queueTask();
    output_->start();
}

void Lane::startNothing() {
    output_->stop();
    output_->start();
}

void Lane::startClosed() {
    output_->close();
    queueTask();
    output_->start();
}

void Lane::stop() {
    output_->stop();
    const auto begin = Clock::now();
    if (!until([this] { return output_->stopped(); }))
        laws_.broken(Law::Silence, who_, "a port was not stopped in time");
    laws_.slowestStop.see(since(begin));
    loop_.wait(rnd_.below(60), false);
}

void Lane::setVolume() {
    output_->setVolume(rnd_.below(MidiOutput::maxVolume), rnd_.below(MidiOutput::maxVolume));
}

void Lane::reset() { midi_->MidiReset(); }

void Lane::listDevices() {
    midi_->MidiGeraete(*output_);
    midi_->MidiInit(*output_);
}

void Lane::openAny() { output_->open(rnd_.below(5) - 1); }

void Lane::close() { output_->close(); }

void Lane::waitShortly() { loop_.wait(rnd_.below(oneIn(10) ? 2500 : 60), false); }

void Lane::waitForEnd() {
    if (!output_->due()) return;
    const auto due = *output_->due();
    const bool told = loop_.mail.runUntil(
        [&] { return output_->due() != due; },
        std::chrono::duration_cast<std::chrono::milliseconds>(due - Clock::now() + patience));
    if (!told) laws_.broken(Law::Ends, who_, "the end of a queue was not told in time");
}

/// With or without a look at what is posted meanwhile.
void Lane::waitUntilNearTheEnd() {
    if (!output_->due()) return;
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
        *output_->due() - Clock::now() + std::chrono::milliseconds(rnd_.below(45) - 5));
    if (left <= 0us) return;
    if (oneIn(2)) return std::this_thread::sleep_for(left);
    loop_.wait(static_cast<double>(left.count()) / 1000, false);
}

/// The device goes in the middle of a task, which is played to its end without it.
void Lane::loseDevice() {
    plug();
    present();
    loop_.wait(rnd_.below(300), false);
    unplug();
    waitForEnd();
    if (oneIn(2)) loop_.wait(rnd_.below(1200), false);
    plug();
}

void Lane::unplug() { machine_->plugged = false; }
void Lane::plug() { machine_->plugged = true; }

/// Mostly it comes and goes at once; now and then it takes longer than one waits for it.
void Lane::changeCard() {
    machine_->refuses = oneIn(4);
    machine_->opening = oneIn(8) ? 2500 : rnd_.below(20);
    machine_->closing = oneIn(4) ? rnd_.below(1500) : 0;
}

void Lane::changePorts() {
    for (bool& there : machine_->portThere) there = oneIn(2);
}

void Lane::changeServer() {
    if (oneIn(2))
        server_.come();
    else
        server_.leave();
}

/// Somebody does something as soon as events happen.
void Lane::press() {
    loop_.post([this] { act(true); });
}

void Lane::settle() {
    if (!until([this] { return output_->problemTold(); }))
        laws_.broken(Law::Problems, who_, "the problem that there is was not told");
}

}  // namespace soak
