// The set-up form: a choice until it is painted, the start of a saved training, files of settings;
// a result on paper. `setup_bench --read FILE` reads a file of settings, `setup_bench --print FILE`
// prints a result to a PDF file; both print how far memory rose at its peak, in KB.
#include "core/fortsetzung.h"
#include "qt/printer.h"
#include "qt/stage.h"
#include "setup/einstellungsdatei.h"

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace {

constexpr int tetrachords = 6;  ///< ten scales: twenty items, or rows, in both directions
constexpr std::size_t biggest = (1 << 19) - 1;  ///< bytes of a file of settings that is read

// A click in a list until the window is painted.

void click(QWidget& viewport, QPoint at) {
    const auto send = [&](QEvent::Type type, Qt::MouseButtons held) {
        QMouseEvent event(type, at, viewport.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&viewport, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
}

/// Counts how often a widget is painted.
struct Painted final : QObject {
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        times += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int times = 0;
};

/// Moves the first item on offer to the chosen ones and back.
void choose(benchmark::State& state) {
    Stage stage;
    stage.openSetup();
    stage.combo("skal_typ_cmb").setListIndex(tetrachords);
    stage.option("ska_ausw", 1).click();
    QWidget& window = stage.window("einstellung1");
    window.resize(2560, 1400);
    QApplication::processEvents();
    auto& offered = stage.widget<QListWidget>("einstellung1", "lst_ska_0");
    auto& chosen = stage.widget<QListWidget>("einstellung1", "lst_ska_1");
    if (offered.count() != 20) throw std::logic_error("other than 20 items");
    const Painted left(*offered.viewport()), right(*chosen.viewport());
    const int most = static_cast<int>(state.range(0));
    QListWidget* source = &offered;
    for ([[maybe_unused]] const auto _ : state) {
        const int before = chosen.count(), leftBefore = left.times, rightBefore = right.times;
        click(*source->viewport(), source->visualItemRect(source->item(0)).center());
        if (std::abs(chosen.count() - before) != 1) throw std::logic_error("nothing has moved");
        // The toolkit paints with the next frame, some milliseconds later.
        while (left.times == leftBefore || right.times == rightBefore)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (chosen.count() == most) source = &chosen;
        if (chosen.count() == 0) source = &offered;
    }
}
BENCHMARK(choose)->Name("setup/choose")->Arg(15)->Unit(benchmark::kMillisecond)->UseRealTime();

// OK until the first task can be called, on a host in memory.

struct Desk : support::Practice {
    Desk() { combo("skal_typ_cmb").setListIndex(tetrachords); }
    /// From the choice of the mode to the worksheet that is ready.
    void start(int chosen) {
        mode(chosen);
        button("cmdOK").click();
        while (!running() || !on("CmdNextAufg").usable()) wait(1);
        if (exerciseRun().pool().potSkala() != 20) throw std::logic_error("other than 20 rows");
    }
};

void startTraining(benchmark::State& state) {
    Desk desk;
    desk.start(core::modus::training);
    desk.task(true);
    desk.leave(true);
    for ([[maybe_unused]] const auto _ : state) {
        desk.start(static_cast<int>(state.range(0)));
        state.PauseTiming();
        desk.leave(false);
        state.ResumeTiming();
    }
}
BENCHMARK(startTraining)
    ->Name("setup/start_training")
    ->Arg(core::modus::training)
    ->Arg(core::modus::fortsetzung)
    ->Iterations(500)
    ->Unit(benchmark::kMillisecond);

// Memory that one thing needs, in a process of its own.

/// A field of the memory that this process has used, KB.
long memory(const char* field) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(field)) return std::stol(line.substr(line.find(':') + 1));
    throw std::runtime_error("no memory count");
}

template <class F>
int printPeak(F work) {
    const long before = memory("VmHWM");
    work();
    std::printf("%ld\n", memory("VmHWM") - before);
    return 0;
}

/// What a fresh process needs to read or print a file, MB.
double peakOf(const std::string& what, const std::string& path) {
    std::FILE* out =
        popen(("/proc/" + std::to_string(getpid()) + "/exe " + what + " " + path).c_str(), "r");
    long kilobytes = -1;
    if (!out || std::fscanf(out, "%ld", &kilobytes) != 1 || pclose(out) != 0)
        throw std::runtime_error("the memory could not be measured");
    return static_cast<double>(kilobytes) / 1024;
}

// A result on paper.

/// A result with its longest content: fifteen chosen scales, twenty rows, all settings.
QWidget& longestResult(Stage& stage) {
    stage.openSetup();
    stage.combo("skal_typ_cmb").setListIndex(tetrachords);
    stage.option("ska_ausw", 1).click();
    for (int chosen = 0; chosen < 15; ++chosen)
        stage.control<form::ListBox>("einstellung1", "lst_ska", 0).click(0);
    stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(1);
    stage.openWorksheet();
    stage.drill.programm.forms.load("testergebnis");
    stage.wait(10);
    return stage.windows.of(stage.form("testergebnis"))->contents();
}

void printResult(benchmark::State& state) {
    Stage stage;
    QWidget& result = longestResult(stage);
    const QTemporaryDir folder;
    const std::string path = folder.filePath("result.pdf").toStdString();
    for ([[maybe_unused]] const auto _ : state) qt::printWidget(result, path);
    state.counters["peak_MB"] = peakOf("--print", path);
}
BENCHMARK(printResult)->Name("setup/print_result")->Unit(benchmark::kMillisecond);

// Files of settings as large as they may be.

struct Sample {
    const char* name;
    const char *begin, *each, *end;
    bool read;  ///< the file says something; else it is refused
};
constexpr const char* control =
    "<control><cname>temp_Combo</cname><index>0</index><value text=\"80\">3</value></control>\n";
constexpr const char* head = "<test><basic><modul>VESHNA</modul></basic><setting>";
constexpr Sample samples[]{
    {"controls", head, control, "</setting></test>", true},
    {"values", "<test><basic/><control><cname>lst_ska</cname>", "<value>x</value>",
     "</control></test>", true},
    {"short_elements", "<test><basic/>", "x<a/>", "</test>", false},
    {"broken_at_the_end", head, control, "</setting>", false},
    {"nested", "<a>", "<a>", "", false},
    {"no_xml", "", "no settings at all ", "", false},
};

/// Writes a sample as big as it may be. @return its path.
std::string written(const Sample& sample, const QTemporaryDir& folder) {
    std::string text = sample.begin;
    const std::size_t room = biggest - std::string(sample.end).size();
    while (text.size() + std::string(sample.each).size() <= room) text += sample.each;
    text += sample.end;
    const std::string path = folder.filePath(sample.name).toStdString() + ".mvs";
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

void readSettings(benchmark::State& state) {
    const Sample& sample = samples[state.range(0)];
    const QTemporaryDir folder;
    const std::string path = written(sample, folder);
    for ([[maybe_unused]] const auto _ : state)
        if (setup::EinstellungenLesen(path).eintraege.empty() == sample.read)
            throw std::logic_error("read otherwise than meant");
    state.counters["peak_MB"] = peakOf("--read", path);
    state.SetLabel(sample.name);
}
BENCHMARK(readSettings)
    ->Name("setup/read_settings")
    ->DenseRange(0, std::size(samples) - 1)
    ->Unit(benchmark::kMillisecond);

/// A file that fills a list with so many values, applied to the form in its window.
void applySettings(benchmark::State& state) {
    std::string text = "<test><basic/><control><cname>lst_ska</cname><index>1</index>";
    for (int i = 0; i < state.range(0); ++i) text += "<value>x</value>";
    const auto settings = setup::EinstellungenLesenAus(text + "</control></test>");
    for ([[maybe_unused]] const auto _ : state) {
        state.PauseTiming();
        auto stage = std::make_unique<Stage>();
        stage->openSetup();
        state.ResumeTiming();
        setup::EinstellungenAnwenden(stage->form("einstellung1"), settings);
        state.PauseTiming();
        const auto& list = stage->control<form::ListBox>("einstellung1", "lst_ska", 1);
        if (list.count() != state.range(0)) throw std::logic_error("not applied");
        stage.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(applySettings)
    ->Name("setup/apply_settings")
    ->Arg(20)
    ->Arg(1000)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const std::string what = argc == 3 ? argv[1] : "";
    if (what == "--read") return printPeak([&] { setup::EinstellungenLesen(argv[2]); });
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (what == "--print") {
        Stage stage;
        const QWidget& result = longestResult(stage);
        return printPeak([&] { qt::printWidget(result, argv[2]); });
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
