#!/usr/bin/env python3
"""Checks the word files of all languages against each other and against the code.

A word is asked for by its number in one of these ways:
  Wort(354), Wort(671 + i), Wort(a ? 419 : 420)
  beschriften({{control, 354}, ...})
  constexpr int titelWort = 491;
  a table with the comment `// words`, behind its opening brace or alone on a line within it, or
  behind a row: every number from 78 on. Smaller numbers in a table are indices or semitones.
All .h and .cpp files below src are read.

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

SMALLEST_IN_TABLES = 78
MARK = "\x01"  # stands for the comment `// words`

CALL = re.compile(r"\b[Ww]ort\s*\(([^()]*(?:\([^()]*\)[^()]*)*)\)")
CALL_NUMBER = re.compile(r"(?:^|[?:])\s*(\d+)")
CAPTIONS = re.compile(r"\b(?:beschriften|benennen)\s*\(\s*\{")
CAPTION_NUMBER = re.compile(r",\s*(\d+)\s*\}")
CONSTANT = re.compile(r"\bconstexpr\s+(?:std::)?\w+\s+\w*[Ww]ort\s*(?:=|\{)\s*(\d+)")
NUMBER = re.compile(r"(?<![\w.])(\d+)(?![\w.])")
TEXT_OR_COMMENT = re.compile(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*')
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


def block_end(code, start):
    """The place of the brace that closes the block around start."""
    depth = 1
    for place in range(start, len(code)):
        depth += {"{": 1, "}": -1}.get(code[place], 0)
        if depth == 0:
            return place
    return len(code)


def table_at(code, mark):
    """The part of the code that a mark speaks of, as (start, end)."""
    start = code.rfind("\n", 0, mark) + 1
    line = code[start:mark]
    if not line.strip():
        return mark, block_end(code, mark)
    if line.count("{") > line.count("}"):
        return mark, block_end(code, mark)
    return start + max(0, line.find("{")), mark


def numbers_asked_for(text):
    """Returns the (line number, word number) of every word that a source text asks for."""

    def replaced(match):
        if match.group()[0] == '"':
            return '""'
        return MARK if re.fullmatch(r"//\s*words\s*", match.group()) else ""

    code = TEXT_OR_COMMENT.sub(replaced, text)
    found = set()

    def note(match, offset=0):
        found.add((code.count("\n", 0, offset + match.start(1)) + 1, int(match.group(1))))

    for call in CALL.finditer(code):
        for match in CALL_NUMBER.finditer(call.group(1)):
            note(match, call.start(1))
    for match in CONSTANT.finditer(code):
        note(match)
    for call in CAPTIONS.finditer(code):
        end = block_end(code, call.end())
        for match in CAPTION_NUMBER.finditer(code[call.end() : end]):
            note(match, call.end())
    for mark in re.finditer(MARK, code):
        start, end = table_at(code, mark.start())
        for match in NUMBER.finditer(code[start:end]):
            if int(match.group(1)) >= SMALLEST_IN_TABLES:
                note(match, start)
    return sorted(found)


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
    complaints = compare(languages)
    asked = set()
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for line_number, number in numbers_asked_for(path.read_text(encoding="utf-8")):
            asked.add(number)
            for language in languages:
                if f"{number}s" not in language.texts:
                    place = f"{path.relative_to(root)}:{line_number}"
                    complaints.append(f"{place}: word {number} is missing in {language.suffix}")
    return complaints, len(languages), len(asked)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    complaints, languages, asked = check(root)
    for complaint in complaints:
        print(complaint)
    print(f"{languages} languages, {asked} numbers asked for, {len(complaints)} faults")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
