#!/usr/bin/env python3
"""Checks what the build cannot see of the includes below src/, tests/ and bench/.

The layers themselves need no check: a folder finds the headers of those that it links, and no
others (cmake/Module.cmake).

Usage: check_layers.py ROOT        ROOT holds src/. Exit status 1 if anything is wrong.

Faults, each told with file and line:
  src/ includes a library where it may not be; many lie on the compiler's own path
  an include of the project is not written "folder/file.h"; tests may name a file of their own
  folder alone
  files include each other in a circle
"""
import pathlib
import re
import sys

# Libraries by their headers, and the folders that may include them.
LIBRARIES = [
    (re.compile(r"Q[A-Z]\w*(/Q\w+)?|Qt\w*|q\w+\.h"), {"hostlink", "suite", "qt", "melvora", "zepha9"}),
    (re.compile(r"fluidsynth(/.*)?\.h"), {"synth", "soundfont"}),
    (re.compile(r"xxhash\.h"), {"soundfont"}),
    (re.compile(r"(rtmidi/)?RtMidi\.h"), {"ports"}),
    (re.compile(r"dbus/dbus\.h"), {"melvora"}),
    (re.compile(r"fontconfig(/.*)?\.h"), {"suite"}),
    (re.compile(r"pugi\w*\.hpp"), {"results", "setup", "sim", "melvora"}),
    (re.compile(r"expat\.h"), {"settingsfile"}),
    (re.compile(r"unistd\.h"), {"base", "ports", "soundfont", "synth", "hostlink", "qt", "sim",
                                "melvora", "zepha9"}),
    # The operating system: headers of C that the standard library has under another name are
    # meant too.
    (re.compile(r"[\w/]+\.h"), {"ports", "soundfont", "synth", "hostlink", "qt", "sim", "melvora", "zepha9"}),
]
STANDARD = re.compile(r"[a-z_]+")
GENERATED = re.compile(r"moc_\w+\.cpp|\w+\.moc|ui_\w+\.h")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]*)"|<([^>]*)>)')
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)


class Include:
    """One line of one file. `file` is below ROOT, `name` as written."""

    def __init__(self, file, line, name, quoted):
        self.file, self.line, self.name, self.quoted = file, line, name, quoted
        self.folder = file.parts[1]

    def fault(self, text):
        return f"{self.file}:{self.line}: {text}"


def sources(root, top):
    files = (root / top).rglob("*") if (root / top).is_dir() else []
    return sorted(f.relative_to(root) for f in files if f.suffix in (".h", ".cpp"))


def includes(root, file):
    text = (root / file).read_text(encoding="utf-8")
    text = COMMENT.sub(lambda match: "\n" * match[0].count("\n"), text)
    for number, line in enumerate(text.splitlines(), 1):
        if match := INCLUDE.match(line):
            yield Include(file, number, match[1] or match[2], match[1] is not None)


def form_fault(root, include):
    """How an include of the project is written."""
    if GENERATED.fullmatch(include.name) or re.fullmatch(r"\w+/[\w/]+\.h", include.name):
        return None
    if include.file.parts[0] != "src" and (root / include.file.parent / include.name).is_file():
        return None
    return f'"{include.name}" is not of the form "folder/file.h"'


def target_of(root, include):
    """The file that an include leads to, as text; None when the build makes it."""
    places = [pathlib.Path("src"), include.file.parent, pathlib.Path("tests")]
    return next((str(place / include.name) for place in places
                 if (root / place / include.name).is_file()), None)


def library_fault(include):
    """Whether a folder of src may include that library."""
    if STANDARD.fullmatch(include.name):
        return None
    for pattern, folders in LIBRARIES:
        if pattern.fullmatch(include.name):
            return (None if include.folder in folders
                    else f"{include.folder} may not include <{include.name}>")
    return f"<{include.name}> belongs to no library that is known; see LIBRARIES"


def circles(graph):
    """Each circle once, as a list that begins with its first file by name."""
    found, path, done = set(), [], set()

    def visit(file):
        if file in path:
            circle = path[path.index(file):]
            first = circle.index(min(circle))
            found.add(tuple(circle[first:] + circle[:first]))
        elif file not in done:
            path.append(file)
            for target in graph.get(file, ()):
                visit(target)
            path.pop()
            done.add(file)

    for file in sorted(graph):
        visit(file)
    return sorted(found)


def check(root):
    """All faults below ROOT and the number of files read."""
    faults, graph = [], {}
    files = [f for top in ("src", "tests", "bench") for f in sources(root, top)]
    for file in files:
        for include in includes(root, file):
            fault = form_fault(root, include) if include.quoted else None
            if not include.quoted and file.parts[0] == "src":
                fault = library_fault(include)
            if fault:
                faults.append(include.fault(fault))
            elif include.quoted and (target := target_of(root, include)):
                graph.setdefault(str(file), []).append(target)
    for circle in circles(graph):
        faults.append(f"{circle[0]}:1: a circle: {' -> '.join((*circle, circle[0]))}")
    return faults, len(files)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    faults, count = check(pathlib.Path(sys.argv[1]))
    print("\n".join(faults + [f"{count} files read, {len(faults)} faults"]))
    sys.exit(1 if faults or not count else 0)


if __name__ == "__main__":
    main()
