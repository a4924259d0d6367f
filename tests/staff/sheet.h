#pragma once
#include "form/bench_form.h"
#include "staff/tastenschrift.h"
#include "staff/urteil.h"

/// A form with a staff, its palette and all ways to write.
struct Sheet {
    /// A mode of a key as a task that ascends. @param base MIDI number below the key's first C.
    Sheet(int key, int mode, int base, int signature = 0) {
        constexpr std::array fifths{0, 2, 4, -1, 1, 3, 5}, pattern{0, 2, 4, 5, 7, 9, 11};
        task.tonAnz = 8;
        task.akt_richtung = 1;
        for (int k = 0; k < 8; ++k) {
            const auto degree = static_cast<std::size_t>((mode + k) % 7);
            staff::Ton& note = task.toene[k];
            note.qz = key + fifths[degree] + staff::QzMitte;
            note.midi = (pattern[degree] + staff::tonklasse(key + staff::QzMitte)) % 12 + base;
            if (k > 0 && note.midi < task.toene[k - 1].midi) note.midi += 12;
        }
        const int first = fifths[static_cast<std::size_t>(mode)];
        palette.PaletteMalen();
        palette.PaletteEin();
        staff.SchluesselWahl(task.toene[7].midi);
        const staff::Umfang range{key, first, staff::tonklasse(key + first + staff::QzMitte), 36,
                                  84};
        if (signature == 0)
            staff.NotenzeileAufbauen(8, range);
        else
            staff.NotenzeileAufbauen(8, range, signature);
        entry.AufgabeBeginnt();
        keys.AufgabeBeginnt();
    }

    /// Drops on the head of a column. @param index of the palette.
    bool drop(int column, int index) {
        return entry.DragDrop(staff.SchlZ(), index, static_cast<float>(staff.lage().x(column)),
                              static_cast<float>(staff.NotSelb(column).y()));
    }

    form::Bench bench;
    staff::Erwartung task{};
    staff::Notenzeile staff{bench.form};
    staff::Noteneingabe entry{staff};
    staff::Palette palette{bench.form, staff.PicBNot};
    staff::Tastenschrift keys{staff, entry, palette};
};
