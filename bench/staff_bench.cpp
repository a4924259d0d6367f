// The staff of a written task: its strokes, and how long a drop takes to be seen.
#include "notation/pixelbild.h"
#include "notation/sheet.h"
#include "qt/staff_widget.h"

#include <QApplication>
#include <QPixmap>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// A key of six sharps with its signs written.
void write(Sheet& sheet) {
    notation::NotenZeigen(sheet.staff, sheet.task);
    sheet.staff.GrenzLinienMalen();
    for (int c = 1; c < 7; ++c)
        sheet.drop(c, notation::quelle::mit(notation::vorzeichen(sheet.task.inSpalte(c).qz)));
}

/// Lines, clef, notes, signs and limits of a new task, down to the pixels.
void rasterTask(benchmark::State& state) {
    Sheet sheet(6, 0, 60);
    for ([[maybe_unused]] const auto _ : state) {
        sheet.staff.NotenzeileAufbauen(8, sheet.staff.umfang());
        write(sheet);
        notation::Pixelbild pixels(362, 144);
        sheet.staff.PicB(0).zeigen(pixels);
        benchmark::DoNotOptimize(pixels.an(60, 80));
    }
}
BENCHMARK(rasterTask)->Name("staff/task_on_pixels")->Unit(benchmark::kMicrosecond);

/// From a drop to the painted window, the staff as large as it becomes on 2560x1440 at scale 2.
void dropToPaint(benchmark::State& state) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    int arguments = 0;
    const auto application = std::make_unique<QApplication>(arguments, nullptr);
    Sheet sheet(6, 0, 60);
    write(sheet);
    qt::StaffWidget widget(sheet.staff.PicBNot);
    widget.resize(1280, 500);
    QPixmap window(widget.size() * 2);
    window.setDevicePixelRatio(2);
    int accidental = 0;
    for ([[maybe_unused]] const auto _ : state) {
        accidental = 1 - accidental;
        sheet.drop(3, notation::quelle::mit(accidental));
        widget.render(&window);
    }
}
BENCHMARK(dropToPaint)->Name("staff/drop_to_paint")->Unit(benchmark::kMillisecond);

}  // namespace
