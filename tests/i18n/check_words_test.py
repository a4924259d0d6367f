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


def word_file(texts):
    lines = [f'<message id="{key}"><translation>{text}</translation></message>'
             for key, text in texts.items()]
    return "<TS><context><name></name>" + "\n".join(lines) + "</context></TS>"


class CheckWords(unittest.TestCase):
    def complaints(self, first, second, code=""):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "i18n").mkdir()
            (root / "src").mkdir()
            (root / "i18n/melvoralang.de.ts").write_text(word_file(first), encoding="utf-8")
            (root / "i18n/melvoralang.en.ts").write_text(word_file(second), encoding="utf-8")
            (root / "src/form.cpp").write_text(code, encoding="utf-8")
            return check_words.check(root)[0]

    def test_each_fault_is_named(self):
        def but(key, text):
            texts = {k: v for k, v in SOUND.items() if k != key}
            if text is not None:
                texts[key] = text
            return dict(sorted(texts.items(), key=lambda item: check_words.rank(item[0])))

        rows = [
            ("nothing wrong", SOUND, "", None),
            ("one language lacks a word", but("354s", None), "", "en: 354s is missing"),
            ("an empty text", but("354s", ""), "", "en: 354s has no finished text"),
            ("another placeholder", but("817s", "%2 of 15"), "", "817s: the placeholders differ"),
            ("a lost blank", but("461s", "left:"), "", "en: 461s has lost its last blank"),
            ("a stray blank", but("354s", "modes "), "", "en: 354s ends in a blank"),
            ("an octave of two names", SOUND | {"671s": "contra", "681s": "great"}, "",
             "en: one octave, several names"),
            ("no name of the language", but("name", None), "", "en: name is missing"),
            ("order", dict(reversed(SOUND.items())), "", "en: the messages are not sorted"),
            ("a call", SOUND, "x = Wort(354) + Wort( 355 );", "form.cpp:1: word 355 is missing"),
            ("a choice", SOUND, "Wort(f(x) ? 354 : 419);", "word 419 is missing in de"),
            ("an offset is no word", SOUND, "Wort(354 + 2 * i);", None),
            ("a comment is no call", SOUND, "// Wort(999)", None),
            ("captions", SOUND, 'beschriften({{a(2), 354},\n {b, 12}});',
             "form.cpp:2: word 12 is missing"),
            ("a constant", SOUND, "constexpr int nummerWort = 426;", "word 426 is missing in de"),
            ("a table", SOUND, "constexpr std::array<int, 90> t{354, 0, 99}; // words",
             "form.cpp:1: word 99 is missing"),
            ("a long table", SOUND, "int t[2] = { // words\n{1, 354},\n{2, 98}};\nint n = 97;",
             "form.cpp:3: word 98 is missing"),
            ("a mark within a table", SOUND, "int t[2] = {\n// words\n{1, 354},\n{2, 98}};",
             "form.cpp:4: word 98 is missing"),
            ("indices in a table", SOUND, "int t[2] = { // words\n{1, 354, {0, 12}}};", None),
            ("what follows a table", SOUND, "int t[1] = { // words\n354};\nint n = 98;", None),
        ]
        for name, second, code, fault in rows:
            with self.subTest(name):
                found = self.complaints(SOUND, second, code)
                if fault is None:
                    self.assertEqual(found, [])
                else:
                    self.assertTrue(any(fault in text for text in found), found)


if __name__ == "__main__":
    unittest.main()
