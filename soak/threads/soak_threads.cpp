#include "threads/lane.h"

#include <malloc.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <new>
#include <set>
#include <sstream>

using namespace std::chrono_literals;
using namespace soak;
namespace fs = std::filesystem;

/// Of a sanitizer, when there is one.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace {

/// So many drills play beside each other, each in a process of its own: one sleeps most of its
/// time.
constexpr int drills = 4;
/// Nothing may take longer than this; what waits in vain gives up before.
constexpr auto hangs = 60s;
/// What a process may hold more, in KB, at its end than after a quarter of its time.
constexpr std::int64_t growth = 4096;

/// The laws of all processes.
Laws* laws = nullptr;

/// A folder for all drills, which is gone when the process that made it ends.
struct Scratch {
    Scratch() {
        std::string name = "/tmp/soak-threads-XXXXXX";
        if (fs::exists("/dev/shm")) name.replace(0, 4, "/dev/shm");
        path = mkdtemp(name.data());
    }
    ~Scratch() {
        if (getpid() == owner) fs::remove_all(path);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    pid_t owner = getpid();
    fs::path path;
};

/// Bytes of memory that are not free. The sanitizers keep what is freed for a while, so what the
/// process takes of the machine says less.
std::size_t bytesInUse() {
    if (__sanitizer_get_current_allocated_bytes) return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

/// What the process holds.
struct Held {
    std::int64_t kilobytes = static_cast<std::int64_t>(bytesInUse() >> 10U);
    std::ptrdiff_t threads = 0;
    std::multiset<std::string> files;

    static Held now() {
        Held held;
        held.threads = std::distance(fs::directory_iterator("/proc/self/task"), {});
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            held.files.insert(fs::read_symlink(entry, gone).string());
        }
        return held;
    }
};

/// Ends the process when its drill does not go on, and says where it was.
std::jthread watchdog(Lane& lane) {
    return std::jthread([&lane](const std::stop_token& stop) {
        for (; !stop.stop_requested(); std::this_thread::sleep_for(100ms)) {
            if (lane.progress().milliseconds() < std::chrono::milliseconds(hangs).count()) continue;
            std::cerr << "FAILED " + lane.name() + " hangs: " + lane.progress().what() + "\n";
            std::abort();
        }
    });
}

/// One drill; it leaves nothing behind.
/// @param home of what looks for one
void play(const std::string& name, const fs::path& home, std::int64_t seed, double seconds) {
    const std::string socket = home / "server";
    fs::create_directory(home);
    for (const char* variable : {"HOME", "XDG_RUNTIME_DIR"}) setenv(variable, home.c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + socket).c_str(), 1);
    SoundServer server(socket);
    Lane lane(*laws, server, home, name, seed);
    const std::jthread dog = watchdog(lane);
    const Held before = Held::now();
    const auto begin = Clock::now();
    const auto playUntil = [&](double end) {
        while (static_cast<double>(since(begin)) < end * 1000) lane.life();
    };
    playUntil(seconds / 4);
    const auto grown = Held::now().kilobytes;  // the first ones load what stays loaded
    playUntil(seconds);

    // Cards and servers that hang were left behind; each must end by itself.
    lane.progress().doing("wait for what hangs");
    server.leave();
    Held after = Held::now();
    for (const auto end = Clock::now() + 20s; after.threads > before.threads && Clock::now() < end;
         after = Held::now())
        std::this_thread::sleep_for(20ms);
    const auto broken = [&](const std::string& what) { laws->broken(Law::Outputs, name, what); };
    if (after.threads > before.threads)
        broken(std::to_string(after.threads - before.threads) + " threads are left");
    std::vector<std::string> files;
    std::ranges::set_difference(after.files, before.files, std::back_inserter(files));
    for (const auto& file : files) broken("still open: " + file);
    if (after.kilobytes > grown + growth) broken("memory has grown");
    laws->memoryBefore.see(grown);
    laws->memoryAfter.see(after.kilobytes);
    lane.progress().doing("end");
}

template <class... Parts>
std::string text(const Parts&... parts) {
    std::ostringstream out;
    out << std::fixed << std::setprecision(1);
    (out << ... << parts);
    return out.str();
}

/// Prints the table. @return whether all held
bool report(double seconds) {
    struct Row {
        Law law;
        const char* what;
        std::string tried;
        std::string figures;
    };
    const Laws& l = *laws;
    const auto often = [&](std::int64_t times) { return static_cast<double>(times) / seconds; };
    std::vector<Row> rows{
        {Law::Ends, "threads: a queue's end is told once", text(l.queues, " queues"),
         text(l.told, " told, at most ", l.late.value(), " ms late; ", l.cut, " cut")},
        {Law::Silence, "threads: a stop leaves nothing sounding", text(l.stops, " stops"),
         text(l.connections, " connections to a port, ", l.messages, " messages, silent at ",
              l.checks, " looks, at most ", l.slowestStop.value(), " ms after a stop; ", l.cards,
              " cards, ", l.heard, " buffers with sound")},
        {Law::Problems, "threads: a problem is told", text(l.problems, " problems"),
         text(l.losses, " devices lost while they were open")},
        {Law::Files, "threads: a sound file is whole", text(l.files, " files"), "head and length"},
        {Law::Outputs, "threads: outputs come and go", text(l.outputs, " outputs"),
         text(often(l.outputs), " outputs, ", often(l.openings), " openings, ", often(l.queues),
              " queues, ", often(l.stops), " stops, ", often(l.losses),
              " losses a second; the longest end took ", l.slowestEnd.value(),
              " ms; memory in use ", l.memoryBefore.value(), " to ", l.memoryAfter.value(),
              " KB")}};
#ifdef __SANITIZE_THREAD__
    rows.push_back({Law::Races, "threads: no races", text(seconds, " s"),
                    text(l.races, " reports of the sanitizer")});
#endif
    bool held = true;
    for (const auto& row : rows) {
        held = held && l.held(row.law);
        std::cout << row.what << '\t' << row.tried << '\t' << (l.held(row.law) ? "held" : "FAILED")
                  << '\t' << row.figures << '\n';
    }
    return held;
}

double given(int count, char** words, const char* name, double standard) {
    for (int i = 1; i + 1 < count; ++i)
        if (words[i] == std::string(name)) return std::strtod(words[i + 1], nullptr);
    return standard;
}

}  // namespace

/// The thread sanitizer calls it at each of its reports, when it is there.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" void __tsan_on_report(void*) {
    ++laws->races;
    laws->broken(Law::Races, "the thread sanitizer", "has a report");
}

int main(int count, char** words) {
    const double seconds = given(count, words, "--seconds", 10);
    const auto seed = static_cast<std::int64_t>(
        given(count, words, "--seed", static_cast<double>(std::time(nullptr))));
    laws =
        new (mmap(nullptr, sizeof(Laws), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
            Laws;
    const Scratch scratch;
    const auto begin = Clock::now();
    for (int i = 1; i <= drills; ++i) {
        if (fork() != 0) continue;
        const std::string number = std::to_string(i);
        play("seed " + std::to_string(seed) + ", drill " + number, scratch.path / number,
             seed * (drills + 1) + i, seconds);
        return 0;
    }
    for (int status = 0; wait(&status) > 0;)
        if (WIFSIGNALED(status) || (status != 0 && laws->races == 0))
            laws->broken(Law::Outputs, "seed " + std::to_string(seed),
                         "a drill ended with status " + std::to_string(status));
    if (laws->cardsOpen != 0)
        laws->broken(Law::Outputs, "seed " + std::to_string(seed),
                     std::to_string(laws->cardsOpen) + " cards are left open");
    return report(static_cast<double>(since(begin)) / 1000) ? 0 : 1;
}
