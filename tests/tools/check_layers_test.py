#!/usr/bin/env python3
"""The layer check finds each fault it is there to find, and nothing in a sound tree."""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import check_layers  # noqa: E402

SOUND = {
    "src/base/i16.h": "#pragma once\n#include <cstdint>\n",
    "src/form/form.h": '#include "base/i16.h"\n',
    "src/core/programm.h": '#include "form/form.h"\n#include <string>\n',
    "src/results/record.cpp": '#include "core/programm.h"\n\n#include <pugixml.hpp>\n',
    "src/results/table.h": "#pragma once\n",
    "src/sound/midi.h": '#include "core/programm.h"\n',
    "src/engine/task.h": '#include "base/i16.h"\n#include "results/table.h"\n',
    "src/drill/drill.h": '#include "engine/task.h"\n',
    "src/synth/player.cpp": "#include <fluidsynth.h>\n#include <unistd.h>\n",
    "src/qt/window.cpp": '#include "drill/drill.h"\n#include <QWidget>\n#include "window.moc"\n',
    "tests/support/fake.h": '#include "drill/drill.h"\n',
    "tests/qt/window_test.cpp": '#include "stage.h"\n#include "support/fake.h"\n',
    "tests/qt/stage.h": "#include <QWidget>\n",
}


class CheckLayers(unittest.TestCase):
    def faults(self, changed):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in {**SOUND, **changed}.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text, encoding="utf-8")
            return check_layers.check(root)[0]

    def test_each_fault_is_told_with_its_place(self):
        rows = [
            ("toolkit in the logic", "src/core/programm.h", "\n\n#include <QString>",
             "src/core/programm.h:3: core may not include <QString>"),
            ("toolkit by its old name", "src/form/form.h", "#include <qglobal.h>",
             "src/form/form.h:1: form may not include <qglobal.h>"),
            ("synthesiser beside its adapter", "src/qt/a.cpp", "#include <fluidsynth.h>",
             "src/qt/a.cpp:1: qt may not include <fluidsynth.h>"),
            ("ports beside their adapter", "src/sound/midi.h", "#include <rtmidi/RtMidi.h>",
             "src/sound/midi.h:1: sound may not include <rtmidi/RtMidi.h>"),
            ("document reader in a low layer", "src/core/programm.h", "#include <pugixml.hpp>",
             "src/core/programm.h:1: core may not include <pugixml.hpp>"),
            ("operating system in the logic", "src/engine/task.h", "#include <sys/stat.h>",
             "src/engine/task.h:1: engine may not include <sys/stat.h>"),
            ("a library nobody named", "src/base/i16.h", "#include <boost/any.hpp>",
             "src/base/i16.h:1: <boost/any.hpp> belongs to no library"),
            ("file without folder", "src/sound/a.cpp", '#include "midi.h"',
             'src/sound/a.cpp:1: "midi.h" is not of the form'),
            ("path upwards", "src/sound/a.cpp", '  #  include "../core/programm.h"',
             'src/sound/a.cpp:1: "../core/programm.h" is not of the form'),
        ]
        for name, file, text, fault in rows:
            with self.subTest(name):
                found = self.faults({file: text})
                self.assertEqual(len(found), 1, found)
                self.assertTrue(found[0].startswith(fault), found[0])

    def test_a_circle_is_told_once_whatever_its_length(self):
        two = {"src/core/a.h": '#include "core/b.h"', "src/core/b.h": '#include "core/a.h"'}
        self.assertEqual(self.faults(two),
                         ["src/core/a.h:1: a circle: src/core/a.h -> src/core/b.h -> src/core/a.h"])
        three = {**two, "src/core/b.h": '#include "core/c.h"', "src/core/c.h": '#include "core/a.h"',
                 "src/core/a.cpp": '#include "core/c.h"', "src/core/0.h": '#include "core/b.h"'}
        self.assertEqual(len(self.faults(three)), 1)
        itself = {"src/core/a.h": '#include "core/a.h"'}
        self.assertEqual(len(self.faults(itself)), 1)

    def test_a_sound_tree_has_no_fault(self):
        self.assertEqual(self.faults({}), [])
        in_comments = {"src/core/a.h": '// #include "drill/drill.h"\n/*\n#include <QString>\n*/\n'}
        self.assertEqual(self.faults(in_comments), [])


if __name__ == "__main__":
    unittest.main()
