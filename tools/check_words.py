#!/usr/bin/env python3
"""Checks the word files of all languages against each other and against the code.

A word is asked for by its number, as `Wort(354)`, `Wort(671 + i)` or `Wort(a ? 419 : 420)`, or
stands in a table: every whole number on a line that ends in the comment `// words`, from its first
brace on, and, when that brace closes further down, every whole number up to there. 0 stands for no
word. All .h and .cpp files below src are read.

Usage: check_words.py ROOT        ROOT holds src/ and i18n/. Exit status 1 if anything is wrong.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

# Texts that are put in front of a value: their last character is a blank in every language.
ENDING_IN_BLANK = {"394s", "461s", "489s", "547s", "700s"}
# Texts that the host and the program need although no number asks for them.
ALWAYS = {"name"}

CALL = re.compile(r"\b[Ww]ort\s*\(([^()]*(?:\([^()]*\)[^()]*)*)\)")
CALL_NUMBER = re.compile(r"(?:^|[?:])\s*(\d+)")
NUMBER = re.compile(r"(?<![\w.\"])(\d+)(?![\w.\"])")
TEXT_OR_COMMENT = re.compile(r'"(?:[^"\\]|\\.)*"|//.*$')
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


def numbers_asked_for(text):
    """Yields (line number, word number) for every word that a source text asks for."""
    depth = 0
    for line_number, line in enumerate(text.splitlines(), 1):
        code = TEXT_OR_COMMENT.sub(lambda m: '""' if m.group()[0] == '"' else "", line)
        for call in CALL.finditer(code):
            for match in CALL_NUMBER.finditer(call.group(1)):
                yield line_number, int(match.group(1))
        if depth == 0 and not re.search(r"//\s*words\s*$", line):
            continue
        values = code[code.find("{") + 1 :] if depth == 0 else code
        for match in NUMBER.finditer(values):
            if int(match.group(1)) != 0:
                yield line_number, int(match.group(1))
        depth = max(0, depth + code.count("{") - code.count("}"))


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
