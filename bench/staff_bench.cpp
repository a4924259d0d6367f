// The staff of a written task: its strokes, and how long a drop takes to be seen.
#include "qt/staff_widget.h"
#include "staff/pixel_grid.h"
#include "staff/sheet.h"

#include <QApplication>
#include <QPixmap>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// A key of six sharps with its signs written.
void write(Sheet& sheet) {
    sheet.showTask();
    sheet.staff.GrenzLinienMalen();
    for (int c = 1; c < 7; ++c)
        sheet.drop(c, staff::source::with(staff::accidental(sheet.notes[c].qz)));
}

/// Lines, clef, notes, signs and limits of a new task, down to the pixels.
void rasterTask(benchmark::State& state) {
    Sheet sheet(6, 0, 60);
    for ([[maybe_unused]] const auto _ : state) {
        sheet.staff.NotenzeileAufbauen(8, sheet.staff.range());
        write(sheet);
        staff::PixelGrid pixels(362, 144);
        sheet.staff.PicB(0).replay(pixels);
        benchmark::DoNotOptimize(pixels.at(60, 80));
    }
}
BENCHMARK(rasterTask)->Name("staff/task_on_pixels")->Unit(benchmark::kMicrosecond);

/// A staff with a written task, as large as it becomes on 2560x1440 at scale 2.
class LargeStaff {
  public:
    LargeStaff() {
        write(sheet);
        widget_.resize(1280, 500);
        window_ = QPixmap(widget_.size() * 2);
        window_.setDevicePixelRatio(2);
    }
    void paint() { widget_.render(&window_); }

  private:
    static std::unique_ptr<QApplication> screen(int& arguments) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_SCALE_FACTOR", "2");
        return std::make_unique<QApplication>(arguments, nullptr);
    }

    int arguments_ = 0;
    std::unique_ptr<QApplication> application_ = screen(arguments_);

  public:
    Sheet sheet{6, 0, 60};

  private:
    qt::StaffWidget widget_{sheet.staff.PicBNot};
    QPixmap window_;
};

/// From a drop to the painted window.
void dropToPaint(benchmark::State& state) {
    LargeStaff staff;
    int accidental = 0;
    for ([[maybe_unused]] const auto _ : state) {
        accidental = 1 - accidental;
        staff.sheet.drop(3, staff::source::with(accidental));
        staff.paint();
    }
}
BENCHMARK(dropToPaint)->Name("staff/drop_to_paint")->Unit(benchmark::kMillisecond);

/// From the pointer's step into the next column to the painted preview there.
void dragOverToPaint(benchmark::State& state) {
    LargeStaff staff;
    staff::Staff& line = staff.sheet.staff;
    const form::Control& source = staff.sheet.palette.NotP(staff::source::with(-2));
    const int s = line.SchlZ();
    int column = 1;
    for ([[maybe_unused]] const auto _ : state) {
        column = column % 6 + 1;
        const auto x = static_cast<float>(line.layout().x(column));
        line.PicB(s).dragOver({source, x, 80}, staff::DragPhase::Over);
        staff.paint();
    }
}
BENCHMARK(dragOverToPaint)->Name("staff/drag_over_to_paint")->Unit(benchmark::kMillisecond);

}  // namespace
