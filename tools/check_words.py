#!/usr/bin/env python3
"""Checks the word files of all languages against each other and against the names of the words.

src/core/wort.h names every word that the code asks for, in lines of these two forms; code cannot ask
for a bare number:
  nextTask = 420,  // and the German text, or how it begins and "…"
  inline constexpr auto noteNames = run<35>(844);
A name that nothing below src uses is a fault, too.

Usage: check_words.py ROOT        ROOT holds src/ and i18n/. Exit status 1 if anything is wrong.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

# Texts that are put in front of a value: their last character is a blank in every language.
ENDING_IN_BLANK = {"394s", "461s", "489s", "547s", "700s"}
# Octaves that stand side by side on a form, as a caption, in a range, or where one range ends and
# another begins: one octave has one name in a language.
SAME_OCTAVE = [("671s", "681s"), ("672s", "682s", "693s"), ("673s", "683s", "694s"),
               ("674s", "684s", "695s"), ("675s", "696s")]
# Texts that the host and the program need although no number asks for them.
ALWAYS = {"name"}

HEADER = pathlib.Path("core/wort.h")
ENUM = re.compile(r"enum class Id[^{]*\{\n(.*?)\n\};", re.DOTALL)
WORD = re.compile(r" +(\w+) = (\d+),\s*// (.*)")
RUN = re.compile(r"\b(\w+) = run<(\d+)>\((\d+)\)")
USE = re.compile(r"\bwort::(\w+)")
PLACEHOLDER = re.compile(r"%(?:n|L?\d+)")


class Language:
    """The messages of one language in the order of the file."""

    def __init__(self, path):
        self.suffix = path.name.split(".")[1]
        self.texts = {}
        self.order = []
        self.complaints = []
        for message in ElementTree.parse(path).getroot().iter("message"):
            key = message.get("id")
            translation = message.find("translation")
            if key in self.texts:
                self.complain(f"{key} stands twice")
            if translation is None or not translation.text or translation.get("type"):
                self.complain(f"{key} has no finished text")
                continue
            self.texts[key] = translation.text
            self.order.append(key)
        if self.order != sorted(self.order, key=rank):
            self.complain("the messages are not sorted by number")

    def complain(self, text):
        self.complaints.append(f"{self.suffix}: {text}")


def rank(key):
    digits = re.match(r"\d+", key)
    return (int(digits.group()) if digits else -1, key)


class Names:
    """The header: every name with its numbers and the German text that is written beside it."""

    def __init__(self, path):
        header = path.read_text(encoding="utf-8")
        lines = [line for line in ENUM.search(header)[1].splitlines()
                 if line.strip() and not line.lstrip().startswith("//")]
        self.complaints = [f"not a name, a number and a text: {line.strip()}"
                           for line in lines if not WORD.fullmatch(line)]
        words = [match.groups() for line in lines if (match := WORD.fullmatch(line))]
        self.words = [(name, [int(number)], text) for name, number, text in words]
        self.words += [(name, list(range(int(first), int(first) + int(length))), None)
                       for name, length, first in RUN.findall(header)]


def says(comment, text):
    """Whether the comment on a word is the text, or how it begins."""
    return comment == text.strip() or (comment.endswith("…") and
                                       text.startswith(comment.rstrip(" …")))


def compare_names(names, code, languages):
    """Returns what is wrong with the names of the words."""
    complaints = list(names.complaints)
    used = set(USE.findall(code))
    name_of = {}
    for name, numbers, comment in names.words:
        if name not in used:
            complaints.append(f"{name} is used nowhere")
        for number in filter(None, numbers):
            key = f"{number}s"
            complaints += [f"{name}: {key} is missing in {language.suffix}"
                           for language in languages if key not in language.texts]
            if comment is None:
                continue
            if (other := name_of.setdefault(number, name)) != name:
                complaints.append(f"{key} has two names, {other} and {name}")
            complaints += [f"{name}: the German text of {key} is another"
                           for language in languages if language.suffix == "de"
                           and not says(comment, language.texts.get(key, comment))]
    return complaints


def compare(languages):
    """Returns what the languages disagree on."""
    complaints = [c for language in languages for c in language.complaints]
    every = set(ALWAYS) | ENDING_IN_BLANK
    for language in languages:
        every |= set(language.texts)
    for key in sorted(every, key=rank):
        held = {lang.suffix: lang.texts[key] for lang in languages if key in lang.texts}
        for language in languages:
            if language.suffix not in held:
                complaints.append(f"{language.suffix}: {key} is missing")
        if len({tuple(sorted(PLACEHOLDER.findall(text))) for text in held.values()}) > 1:
            complaints.append(f"{key}: the placeholders differ: {held}")
        for suffix, text in held.items():
            if text.endswith(" ") != (key in ENDING_IN_BLANK):
                fault = "has lost its last blank" if key in ENDING_IN_BLANK else "ends in a blank"
                complaints.append(f"{suffix}: {key} {fault}")
    for octave in SAME_OCTAVE:
        for language in languages:
            if len(names := {language.texts[key] for key in octave if key in language.texts}) > 1:
                complaints.append(f"{language.suffix}: one octave, several names: {sorted(names)}")
    return complaints


def check(root):
    languages = [Language(p) for p in sorted((root / "i18n").glob("melvoralang.*.ts"))]
    if not languages:
        return [f"no word files below {root / 'i18n'}"], 0, 0
    code = [path.read_text(encoding="utf-8") for path in sorted((root / "src").rglob("*"))
            if path.suffix in (".h", ".cpp") and path != root / "src" / HEADER]
    names = Names(root / "src" / HEADER)
    complaints = compare(languages) + compare_names(names, "\n".join(code), languages)
    return complaints, len(languages), len(names.words)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    complaints, languages, words = check(root)
    for complaint in complaints:
        print(complaint)
    print(f"{languages} languages, {words} names, {len(complaints)} faults")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
