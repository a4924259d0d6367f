#!/usr/bin/env python3
"""The word check finds each fault it is there to find, and nothing in a sound tree."""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import check_words  # noqa: E402

SOUND = {"name": "x", "354s": "modes", "394s": "min ", "461s": "left: ", "489s": "scale ",
         "547s": "tempo ", "700s": ": ", "817s": "%1 of 15"}
HEADER = """enum class Id : int {
    none = 0,  // no text
    modes = 354,  // modes
    left = 461,   // le …
};
inline constexpr auto first = run<1>(354);
"""
CODE = "Wort(i == 0 ? wort::none : wort::modes) + Wort(core::wort::left) + wort::first[0]"


def word_file(texts):
    lines = [f'<message id="{key}"><translation>{text}</translation></message>'
             for key, text in texts.items()]
    return "<TS><context><name></name>" + "\n".join(lines) + "</context></TS>"


class CheckWords(unittest.TestCase):
    def complaints(self, second=SOUND, header=HEADER):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for path, text in {"i18n/melvoralang.de.ts": word_file(SOUND), "src/form.cpp": CODE,
                               "i18n/melvoralang.en.ts": word_file(second),
                               "src/core/wort.h": header}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text, encoding="utf-8")
            return check_words.check(root)[0]

    def test_each_fault_is_named(self):
        def but(key, text):
            texts = {k: v for k, v in SOUND.items() if k != key}
            if text is not None:
                texts[key] = text
            return dict(sorted(texts.items(), key=lambda item: check_words.rank(item[0])))

        def named(old, new):
            self.assertIn(old, HEADER)
            return SOUND, HEADER.replace(old, new)

        rows = [
            ("en: 354s is missing", but("354s", None)),
            ("en: 354s has no finished text", but("354s", "")),
            ("817s: the placeholders differ", but("817s", "%2 of 15")),
            ("en: 461s has lost its last blank", but("461s", "left:")),
            ("en: 354s ends in a blank", but("354s", "modes ")),
            ("en: one octave, several names", SOUND | {"671s": "contra", "681s": "great"}),
            ("en: name is missing", but("name", None)),
            ("en: the messages are not sorted", dict(reversed(SOUND.items()))),
            ("modes: 355s is missing in en", *named("354,", "355,")),
            ("first: 355s is missing in de", *named("run<1>", "run<2>")),
            ("354s has two names, modes and left", *named("461", "354")),
            ("modes: the German text of 354s is another", *named("// modes", "// scales")),
            ("left: the German text of 461s is another", *named("le …", "la …")),
            ("not a name, a number and a text: modes = 354,", *named("354,  // modes", "354,")),
            ("idle is used nowhere", *named("};", "    idle = 817,  // %1 of 15\n};")),
        ]
        self.assertEqual(self.complaints(), [])
        for fault, *arguments in rows:
            with self.subTest(fault):
                found = self.complaints(*arguments)
                self.assertTrue(any(fault in text for text in found), found)


if __name__ == "__main__":
    unittest.main()
