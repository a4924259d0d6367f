#pragma once
#include "form/bench_form.h"
#include "staff/ink.h"
#include "staff/keyboard_entry.h"

/// A form with a staff, its palette and all ways to write.
struct Sheet {
    /// A mode of a key as a task that ascends. @param base MIDI number below the key's first C.
    Sheet(int key, int mode, int base, int signature = 0) {
        constexpr std::array fifths{0, 2, 4, -1, 1, 3, 5}, pattern{0, 2, 4, 5, 7, 9, 11};
        for (int k = 0; k < 8; ++k) {
            const auto degree = static_cast<std::size_t>((mode + k) % 7);
            staff::Pitch& note = notes[k];
            note.qz = key + fifths[degree] + staff::QzMitte;
            note.midi = (pattern[degree] + staff::pitchClass(key + staff::QzMitte)) % 12 + base;
            if (k > 0 && note.midi < notes[k - 1].midi) note.midi += 12;
        }
        const int first = fifths[static_cast<std::size_t>(mode)];
        palette.PaletteMalen();
        palette.PaletteEin();
        staff.SchluesselWahl(notes[7].midi);
        const staff::Range range{key, first, staff::pitchClass(key + first + staff::QzMitte), 36,
                                 84};
        if (signature == 0)
            staff.NotenzeileAufbauen(8, range);
        else
            staff.NotenzeileAufbauen(8, range, signature);
        keys.beginTask();
    }

    /// Puts the notes there, the inner ones as letters.
    void showTask() {
        for (int c = 0; c < 8; ++c)
            staff.NoteSetzen(c, c == 0 || c == 7 ? notes[c] : core::withoutAccidental(notes[c]),
                             staff::ink::black);
    }
    /// Drops on the head of a column. @param index of the palette.
    bool drop(int column, int index) {
        return entry.DragDrop(staff.SchlZ(), index, static_cast<float>(staff.layout().x(column)),
                              static_cast<float>(staff.NotSelb(column).y()));
    }

    form::Bench bench;
    base::FixedArray<staff::Pitch, 8> notes;
    staff::Staff staff{bench.form};
    staff::NoteEntry entry{staff};
    staff::Palette palette{bench.form, staff.PicBNot};
    staff::KeyboardEntry keys{staff, entry, palette};
};
