#pragma once
#include "form/bench_form.h"
#include "notation/tastenschrift.h"
#include "notation/urteil.h"

/// A form with a staff, its palette and all ways to write.
struct Sheet {
    /// A mode of a key as a task that ascends. @param base MIDI number below the key's first C.
    Sheet(int key, int mode, int base, int signature = 0) {
        constexpr std::array fifths{0, 2, 4, -1, 1, 3, 5}, pattern{0, 2, 4, 5, 7, 9, 11};
        task.tonAnz = 8;
        task.akt_richtung = 1;
        for (int k = 0; k < 8; ++k) {
            const auto degree = static_cast<std::size_t>((mode + k) % 7);
            notation::Ton& note = task.toene[k];
            note.qz = key + fifths[degree] + notation::QzMitte;
            note.midi =
                (pattern[degree] + notation::tonklasse(key + notation::QzMitte)) % 12 + base;
            if (k > 0 && note.midi < task.toene[k - 1].midi) note.midi += 12;
        }
        const int first = fifths[static_cast<std::size_t>(mode)];
        palette.PaletteMalen();
        palette.PaletteEin();
        staff.SchluesselWahl(task.toene[7].midi);
        const notation::Umfang range{key, first,
                                     notation::tonklasse(key + first + notation::QzMitte), 36, 84};
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
    notation::Erwartung task{};
    notation::Notenzeile staff{bench.form};
    notation::Noteneingabe entry{staff};
    notation::Palette palette{bench.form, staff.PicBNot};
    notation::Tastenschrift keys{staff, entry, palette};
};
