#!/usr/bin/python3
"""Runs the fuzzers of this folder one after the other and prints one row for each.

A folder that is named on failure keeps the inputs that something did not hold for; such an input is
tried again with `BIN/fuzz_TARGET INPUT`.
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

FOLDER = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(FOLDER.parent))
from suite import Report  # noqa: E402

# Longest input in bytes. What is longer is slower, and finds little more.
TARGETS = {"request": 2000, "record": 4000, "settings": 6000, "training": 3000, "hint": 2000,
           "values": 1000}
# Fuzzers that write their first inputs themselves, with --seeds.
MADE = ("settings", "training")
# Texts of the program that are inputs as they are.
TEXTS = {"hint": "hints/*/*.rtf"}


def seeded(target, binary, corpus, environment):
    """Fills the folder with what the program itself would write, and with what lies here."""
    if target in MADE:
        subprocess.run([binary, "--seeds", corpus], check=True, timeout=60, env=environment)
    files = [*(FOLDER / "seeds" / target).glob("*"), *FOLDER.parents[1].glob(TEXTS.get(target, "-"))]
    for file in files:
        shutil.copy(file, corpus)
    return len(os.listdir(corpus))


def last(pattern, text, otherwise="?"):
    found = re.findall(pattern, text, re.MULTILINE)
    return found[-1] if found else otherwise


def fuzz(target, given, report):
    """One target for so many seconds, in folders of its own."""
    binary = str(given.bin.resolve() / f"fuzz_{target}")
    place = pathlib.Path(tempfile.mkdtemp(prefix=f"fuzz-{target}-", dir=given.memory))
    artifacts = given.artifacts / target
    artifacts.mkdir(parents=True, exist_ok=True)
    corpus = place / "corpus"
    corpus.mkdir()
    environment = {**os.environ, "TMPDIR": str(place), "HOME": str(place),
                   "XDG_RUNTIME_DIR": str(place), "LC_ALL": "C.UTF-8",
                   "ASAN_OPTIONS": "malloc_context_size=2"}
    seeds = seeded(target, binary, corpus, environment)
    words = FOLDER / f"{target}.dict"
    command = [binary, f"-max_total_time={given.seconds:.0f}", f"-seed={given.seed}",
               "-rss_limit_mb=2048", "-timeout=20", f"-max_len={TARGETS[target]}",
               "-print_final_stats=1", f"-artifact_prefix={artifacts}/",
               *([f"-dict={words}"] if words.exists() else []), str(corpus)]
    started = time.monotonic()
    # The output of a night is long; what counts stands at its end.
    with open(place / "output", "w+b") as output:
        status = subprocess.run(command, env=environment, cwd=place, stdin=subprocess.DEVNULL,
                                stdout=output, stderr=output).returncode
        output.seek(max(0, output.tell() - 60000))
        told = output.read().decode(errors="replace")
    passed = time.monotonic() - started
    # A fuzzer that stops at a fault leaves no sums, but the line of its last news.
    runs = int(last(r"(?:^#|number_of_executed_units: )(\d+)", told, "0"))
    edges, features, corpus_size = (last(rf"{name}: (\d+)", told) for name in ("cov", "ft", "corp"))
    megabytes = last(r"(?:peak_rss_mb|rss): +(\d+)", told)
    report.row(f"fuzz {target}", f"{runs} inputs", status == 0,
               f"{runs / passed:.0f} a second, {edges} edges, {features} features, corpus "
               f"{corpus_size} from {seeds} seeds, {megabytes} MB at most, {passed:.0f} s")
    if status != 0:
        print(f"{target}: seed {given.seed}; inputs in {artifacts}", told[-6000:], sep="\n",
              file=sys.stderr)
    shutil.rmtree(place, ignore_errors=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--bin", required=True, type=pathlib.Path, help="folder of the fuzzers")
    parser.add_argument("--seconds", type=float, default=10, help="how long each (default 10)")
    parser.add_argument("--seed", type=int, default=int(time.time()) % 2**31,
                        help="the same seed makes the same choices (default: the time)")
    parser.add_argument("--artifacts", type=pathlib.Path,
                        help="folder for what is found (default: a new one)")
    parser.add_argument("target", nargs="*", help="default: all")
    given = parser.parse_args()
    given.memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    given.artifacts = (given.artifacts or pathlib.Path(tempfile.mkdtemp(prefix="fuzz-"))).resolve()
    report = Report()
    for target in given.target or TARGETS:
        fuzz(target, given, report)
    if report.held:
        shutil.rmtree(given.artifacts, ignore_errors=True)
    report.end()


if __name__ == "__main__":
    main()
