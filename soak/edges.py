#!/usr/bin/env python3
"""Strangers, full memories, hanging neighbours, odd files: each attack once, with what it cost.

The rows say what was measured, so that two versions can be laid side by side: edges.py --bin DIR.
"""
import os
import pathlib
import resource
import shutil
import signal
import socket
import sqlite3
import stat
import subprocess
import time
import traceback

import suite
from suite import Caller, Place, until

RECORD = """<?xml version="1.0" encoding="{}"?>
<exercise><properties programm="ZEPHA9" ukey="jörg" exercise="bestimmen"/><settings/>
<lessons/></exercise>"""
NOBODY = 65534  # a user without rights, whom root becomes: nothing is read-only for root


def timed(call):
    """(what it gave or the fault's class, seconds)"""
    began = time.monotonic()
    try:
        result = call()
    except (OSError, TimeoutError, ConnectionError) as fault:
        result = type(fault).__name__
    return result, time.monotonic() - began


def state_of(process, patience):
    """Its exit status, or "runs" when it has not ended by then."""
    until(lambda: process.poll() is not None, patience)
    return "runs" if process.poll() is None else process.returncode


def told(place, words):
    """Whether the log says so."""
    with sqlite3.connect(f"file:{place.store}?mode=ro", uri=True) as store:
        return any(words in line for (line,) in store.execute("SELECT content FROM log"))


def open_window(place):
    """Width of the host's window."""
    found = until(lambda: place.tool("search", "--onlyvisible", "--name", "^Melvora$"))
    shape = place.tool("getwindowgeometry", "--shell", found.splitlines()[0])
    return int(dict(line.split("=") for line in shape.splitlines())["WIDTH"])


def press(place, *steps):
    """Waits for each window and presses a key in it."""
    for name, key in steps:
        found = until(lambda n=name: place.tool("search", "--onlyvisible", "--name", n))
        place.tool("windowactivate", "--sync", found.splitlines()[0])
        place.tool("key", key)


# What a user meets first.

def message_of_a_training_that_was_not_kept(place):
    place.screen()
    file = place.home / "training.mvs"
    file.write_text("""<?xml version="1.0" encoding="ISO-8859-1" ?>
<test><basic><modul>VESHNA</modul><type>1</type></basic><setting>
<control title="a"><cname>training_Combo</cname><value>1</value></control>
</setting></test>""")
    place.host("--language", "English", str(file))
    press(place, ("Identify scales: Setup", "Return"), ("^Identify scales$", "Return"))
    time.sleep(13)  # the first task sounds
    place.tool("key", *"1234567")
    other = sqlite3.connect(place.store, isolation_level=None)
    other.execute("BEGIN EXCLUSIVE")
    place.tool("key", "Escape")
    press(place, ("Save training", "Return"))
    shown = until(lambda: place.tool("search", "--onlyvisible", "--name", "Identify scales: Setup"))
    time.sleep(1)
    name = place.tool("getactivewindow", "getwindowname")
    return shown and "Setup" not in name, f"in front: {name!r}"


def long_notice(place):
    place.screen()
    place.host()
    before = open_window(place)
    folder = place.home / ("d" * 250) / ("e" * 250) / ("f" * 250)
    folder.mkdir(parents=True)
    place.caller().request("RAISE", ["zepha9", str(folder)])
    time.sleep(0.5)
    after = open_window(place)
    return after <= before + 10, f"window {before} -> {after} pixels wide"


def path_of_50_megabytes(place):
    host = place.host()
    _, seconds = timed(lambda: place.caller().request(
        "RAISE", ["zepha9", "/" + "x" * 50_000_000], patience=120))
    place.caller().request("LANG", patience=120)
    most = suite.memory(host.pid)[1]
    return seconds < 5 and most < 150, f"{seconds:.1f} s, {most:.0f} MB"


def second_host_takes_a_free_place(place):
    first = place.host()
    first.send_signal(signal.SIGSTOP)
    second = place.start("melvora", "--data", str(place.data))
    time.sleep(1)
    first.kill()
    serves, seconds = timed(lambda: until(place.answers, 15))
    return serves and second.poll() is None, \
        f"serves after {seconds:.1f} s" if serves else f"status {state_of(second, 0)}"


def second_host_beside_one_that_hangs(place):
    place.host().send_signal(signal.SIGSTOP)
    second = place.start("melvora", "--data", str(place.data))
    status, seconds = timed(lambda: state_of(second, 30))
    return status == 2 and seconds < 15, f"status {status} after {seconds:.1f} s"


def odd_files_in_the_spool(place):
    place.spool.mkdir(parents=True)
    os.mkfifo(place.spool / "pipe")
    (place.spool / "RSX1.xml").symlink_to("pipe")
    (place.spool / "RSX2.xml").symlink_to("/dev/zero")
    with open(place.spool / "RSX3.xml", "wb") as huge:
        huge.truncate(40 << 30)
    (place.spool / "RSX4.xml").write_text(RECORD.format("utf-8"))
    host = place.start("melvora", "--data", str(place.data))
    resource.prlimit(host.pid, resource.RLIMIT_AS, (4 << 30, 4 << 30))
    taken, seconds = timed(lambda: until(lambda: not (place.spool / "RSX4.xml").exists(), 10))
    alive = host.poll() is None and place.answers()
    return taken and alive, f"good record taken: {bool(taken)} after {seconds:.1f} s, " \
        f"host {'answers' if alive else 'is gone or deaf'}"


def module_that_does_not_end(place):
    modules = place.home / "modules"
    modules.mkdir()
    (modules / "zepha9").write_text(f"""#!/bin/sh
trap '' TERM
/usr/bin/python3 -c 'import sys; sys.path.insert(0, "{pathlib.Path(__file__).parent}"); import suite
suite.Caller("{place.socket}").request("MENUE")'
while :; do sleep 1; done
""")
    (modules / "zepha9").chmod(0o755)
    place.host("--start", "zepha9", MELVORA_MODULE_PATH=str(modules))
    caller = place.caller()
    ended, seconds = timed(lambda: until(lambda: caller.request("APP")[1][1] == "", 15))
    return ended, f"ended after {seconds:.1f} s" if ended else "still runs after 15 s"


def soundfont_that_is_a_pipe(place):
    place.screen()
    os.mkfifo(place.home / "font.sf2")
    place.host("--start", "zepha9", "--language", "English",
               MELVORA_SOUNDFONT=str(place.home / "font.sf2"), MELVORA_AUDIO_DRIVER="file",
               MELVORA_AUDIO_FILE=str(place.home / "sound.wav"))
    start, setup, sheet = "Scales: Basic settings", "Identify scales: Setup", "^Identify scales$"
    press(place, (start, "Return"), (setup, "Return"), (sheet, "Return"))
    time.sleep(2)
    press(place, (sheet, "Escape"), (setup, "Escape"), (start, "Escape"))
    caller = place.caller()
    ended, seconds = timed(lambda: until(lambda: caller.request("APP")[1][1] == "", 15))
    return ended, f"the module ended after {seconds:.1f} s" if ended else "still runs after 15 s"


def spool_that_is_a_file(place):
    place.data.mkdir()
    place.spool.write_text("")
    place.host()
    said = until(lambda: told(place, str(place.spool)), 3)
    return said, "told with its path" if said else "not told"


# Strangers and rights.

def link_in_the_folder_for_temporary_files(place):
    temporary, victim = place.home / "tmp", place.home / "victim"
    temporary.mkdir()
    temporary.chmod(0o1777)
    victim.mkdir(mode=0o755)
    (victim / "host").write_text("precious")
    (temporary / f"melvora-{os.getuid()}").symlink_to(victim)
    host = place.start("melvora", "--data", str(place.data), XDG_RUNTIME_DIR="",
                       TMPDIR=str(temporary))
    status = state_of(host, 3)
    whole = (victim / "host").is_file() and (victim / "host").read_text() == "precious"
    return whole and status == 2, f"file {'whole' if whole else 'REPLACED'}, status {status}"


def folder_that_others_write(place):
    temporary = place.home / "tmp"
    temporary.mkdir()
    temporary.chmod(0o1777)
    folder = temporary / f"melvora-{os.getuid()}"
    folder.mkdir()
    folder.chmod(0o777)
    host = place.start("melvora", "--data", str(place.data), XDG_RUNTIME_DIR="",
                       TMPDIR=str(temporary))
    status = state_of(host, 3)
    mode = stat.S_IMODE(folder.stat().st_mode)
    return status == 2 or mode & 0o22 == 0, f"folder {mode:o}, status {status}"


def rights_under_umask_0(place):
    before = os.umask(0)
    try:
        place.host()
    finally:
        os.umask(before)
    modes = {path.name: stat.S_IMODE(path.stat().st_mode) & 0o77
             for path in (place.store, place.spool, place.socket)}
    return not any(modes.values()), ", ".join(f"{name} {mode:03o}" for name, mode in modes.items())


def anonymous(place):
    place.host()
    with socket.socket(socket.AF_UNIX) as caller:
        caller.settimeout(5)
        caller.connect(str(place.socket))
        caller.sendall(b"\0AUTH ANONYMOUS 6d65\r\n")
        caller.recv(200)
        call = suite.new_method_call(suite.HOST, "Request", "svv", ("LANG", ("s", ""), ("s", "")))
        answer, _ = timed(lambda: (caller.sendall(b"BEGIN\r\n" + call.serialise(serial=1)),
                                   caller.recv(200))[1])
    refused = not isinstance(answer, bytes) or not answer
    return refused, f"a call brings {answer!r:.40}"


# Bounds.

def callers_that_come_and_go(place, times=10_000):
    host = place.host()

    def visit(count):
        for _ in range(count):
            caller = Caller(place.socket)
            caller.request("LANG")
            caller.close()
    visit(2000)
    before = suite.memory(host.pid)[0]
    visit(times)
    each = (suite.memory(host.pid)[0] - before) * 1024 * 1024 / times
    return each < 500, f"{each:.0f} bytes each"


def callers_that_stay(place):
    host = place.host()
    callers = []
    for _ in range(200):
        try:
            callers.append(Caller(place.socket))
        except (OSError, TimeoutError):
            break
    served = sum(timed(lambda c=c: c.request("LANG", patience=2))[0] == (True, "Deutsch")
                 for c in callers)
    return served <= 64, f"{served} of 200 served, {suite.descriptors(host.pid)} descriptors"


def end_of_descriptors(place):
    host = place.host()
    few = suite.descriptors(host.pid) + 30
    host.kill()
    host.wait()
    place.started.append(subprocess.Popen(
        ["prlimit", f"--nofile={few}", place.binaries / "melvora", "--data", place.data],
        env=place.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
    host = place.started[-1]
    until(place.answers)
    callers = []
    for _ in range(few + 20):
        caller = socket.socket(socket.AF_UNIX)
        caller.setblocking(False)
        timed(lambda c=caller: c.connect(str(place.socket)))
        callers.append(caller)
    time.sleep(1)
    before = suite.processor_seconds(host.pid)
    time.sleep(3)
    share = (suite.processor_seconds(host.pid) - before) / 3
    for caller in callers:
        caller.close()
    return share < 0.1 and until(place.answers, 5), f"{100 * share:.0f} % of a processor"


def caller_that_does_not_read(place, times=4000):
    host = place.host()
    place.caller().request("STORE", ["zepha9.exe", "E1", ["x" * 500_000, 1]])
    caller = place.caller()
    caller.sock.settimeout(5)
    sent = 0
    try:
        for _ in range(times):
            caller.send("READ", ["zepha9.exe", "E1"])
            sent += 1
    except OSError:
        pass
    place.caller().request("LANG", patience=60)
    most = suite.memory(host.pid)[1]
    return most < 150, f"let go after {sent} calls, {most:.0f} MB" if sent < times \
        else f"{sent} calls taken, {most:.0f} MB"


def text_of_50_megabytes(place):
    host = place.host()
    answer, seconds = timed(lambda: place.caller().request(
        "LOGMESS", "x" * 50_000_000, patience=60))
    most = suite.memory(host.pid)[1]
    return most < 150 and seconds < 5 and place.answers(), \
        f"{answer if isinstance(answer, str) else answer[0]} after {seconds:.1f} s, {most:.0f} MB"


def log_that_is_flooded(place):
    place.host()
    caller = place.caller()
    for _ in range(3000):
        caller.request("NONSENSE")
    with sqlite3.connect(place.store) as store:
        refusals, = store.execute("SELECT COUNT(*) FROM log").fetchone()
        store.execute("DELETE FROM log")
        store.executemany("INSERT INTO log (logged_at, user_key, kind, content) VALUES"
                          " ('', '', 'message', ?)", [("x" * 2000,)] * 12_000)
    for _ in range(1100):
        caller.request("LOGMESS", "y")
    with sqlite3.connect(place.store) as store:
        lines, size = store.execute("SELECT COUNT(*), SUM(LENGTH(content)) FROM log").fetchone()
    return refusals < 100 and size <= 20_000_000, \
        f"3000 equal refusals: {refusals} lines; after 24 MB: {size / 1e6:.1f} MB in {lines} lines"


def host_that_is_asked_long(place, times=30_000):
    host = place.host()
    caller = place.caller()
    sizes = []
    for i in range(times):
        match i % 8:
            case 0:
                caller.request("STORE", ["zepha9.exe", f"A{i % 40}", ["true", i, "x" * 500]])
            case 1 | 2 | 3:
                caller.request("READ", ["zepha9.exe", f"A{i % 40}"])
            case 4:
                caller.request("LOGMESS", "a line")
            case other:
                caller.request(("LANG", "MIDI", "LOGIN")[other - 5])
        if i in (times // 10, times - 1):
            sizes.append(suite.memory(host.pid)[0])
    return sizes[1] - sizes[0] < 5, f"{sizes[0]:.1f} MB after a tenth, {sizes[1]:.1f} MB at the end " \
        f"of {times} requests"


def simulator_that_runs_long(place, runs=30_000):
    program = subprocess.Popen([place.binaries / "zepha9-sim", "--runs", str(runs), "--tasks", "20",
                                "--set", "uebungsmodus=1"], stdout=subprocess.DEVNULL)
    place.started.append(program)
    sizes = []
    while program.poll() is None:
        try:
            sizes.append(suite.memory(program.pid)[0])
        except (OSError, KeyError):  # it has ended meanwhile
            break
        time.sleep(0.01)
    # At first it is still being loaded.
    early = max(sizes[:len(sizes) // 5 + 1])
    return program.wait() == 0 and sizes[-1] - early < 5, \
        f"{early:.1f} MB after a fifth, {sizes[-1]:.1f} MB at the end of {runs} runs"


# Data.

def records_that_lie(place):
    place.spool.mkdir(parents=True)
    text = RECORD.format
    honest = {"RSX1.xml": text("utf-8").encode()}
    lying = {"RSX2.xml": text("UTF-16").encode("utf-16"), "RSX3.xml": text("utf-8").encode("latin-1"),
             "RSX4.xml": text("ISO-8859-1").encode("latin-1"),
             "RSX5.xml": text("utf-8").encode().replace(b"programm", b"pro\xffgramm"),
             "RSX261121120000.xml.part": text("utf-8").encode()[:60]}
    for name, content in {**honest, **lying}.items():
        (place.spool / name).write_bytes(content)
    place.host()
    until(lambda: not (place.spool / "RSX1.xml").exists(), 5)
    time.sleep(0.5)
    kept = sum((place.spool / name).exists() for name in lying if not name.endswith(".part"))
    aside = len(list(place.spool.glob("unfinished-*")))
    with sqlite3.connect(place.store) as store:
        stored, = store.execute("SELECT COUNT(*) FROM results").fetchone()
    return (kept, aside, stored) == (4, 1, 1), \
        f"of 4 lying records {kept} kept, {stored - 1} stored; unfinished put aside: {aside}"


def store_that_is_held(place):
    place.host()
    caller, beside = place.caller(), place.caller()
    time.sleep(0.5)
    other = sqlite3.connect(place.store, isolation_level=None)
    other.execute("BEGIN EXCLUSIVE")
    serial = caller.send("STORE", ["zepha9.exe", "E1", ["a", 1]])
    began, longest = time.monotonic(), 0.0
    while time.monotonic() - began < 1.5:
        longest = max(longest, timed(lambda: beside.request("LANG", patience=10))[1])
    answer = caller._receive(time.monotonic() + 20).body
    refused = time.monotonic() - began
    (place.spool / "RSX1.xml").write_text(RECORD.format("utf-8"))
    time.sleep(4)
    other.execute("ROLLBACK")
    taken, seconds = timed(lambda: until(lambda: not (place.spool / "RSX1.xml").exists(), 15))
    assert serial
    return not answer[0] and refused < 3 and longest < 0.5 and taken and seconds < 3, \
        f"STORE refused after {refused:.1f} s; longest standstill {longest * 1000:.0f} ms; " \
        f"waiting record taken {f'after {seconds:.1f} s' if taken else 'never'}"


def store_that_was_removed(place):
    place.host()
    place.store.unlink()
    carried_out, _ = place.caller().request("STORE", ["zepha9.exe", "E1", ["a", 1]])
    return not carried_out, f"STORE answers {str(carried_out).lower()}"


def store_of_a_newer_program(place):
    host = place.host()
    host.terminate()
    host.wait()
    with sqlite3.connect(place.store) as store:
        store.execute("PRAGMA user_version = 99")
    host = place.start("melvora", "--data", str(place.data))
    status = state_of(host, 3)
    return status == 2, f"status {status}"


def choice_that_cannot_be_kept(place):
    host = place.host()
    with sqlite3.connect(place.store) as store:
        store.execute("INSERT INTO users VALUES ('anna', 'A', 'A', '')")
    host.terminate()
    host.wait()
    place.store.chmod(0o400)
    place.data.chmod(0o500)
    if os.getuid() == 0:
        shutil.copytree(place.binaries, place.home / "bin", symlinks=True)
        shutil.copytree(place.binaries.parent / "share", place.home / "share")
        place.binaries = place.home / "bin"
        place.prefix = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        for path in [place.home, *place.home.rglob("*")]:
            os.chown(path, NOBODY, NOBODY, follow_symlinks=False)
    host = place.start("melvora", "--data", str(place.data), "--user", "anna")
    status = state_of(host, 3)
    return status == 2, f"status {status}"


# The window while much comes in, and the simulator.

def pages_that_are_hidden(place):
    place.screen()
    host = place.host()
    window = until(lambda: place.tool("search", "--onlyvisible", "--name", "^Melvora$"))
    place.tool("windowfocus", "--sync", window)
    for _ in range(4):  # once over all pages, and back to the first
        place.tool("key", "ctrl+Tab")
        time.sleep(0.3)
    caller = place.caller()
    for _ in range(300):
        caller.request("LOGMESS", "a line")
    before = suite.processor_seconds(host.pid)
    for _ in range(300):
        caller.request("LOGMESS", "a line")
    each = (suite.processor_seconds(host.pid) - before) / 300 * 1000
    return each < 3, f"{each:.1f} ms of the processor for a line of the log"


def simulated_runs_without_end(place):
    rows = {"a million tasks": ["--tasks", "1000000"],
            "a written exam of one scale": ["--form", "arbeitsblatt4", "--set", "uebungsmodus=3",
                                            "--set", "ska_ausw=1", "--set", "einzel_wahl=1"],
            "a choice that the form refuses": ["--through-setup", "--set", "ska_ausw=1",
                                               "--set", "einzel_wahl=1", "--set", "uebungsmodus=1"]}
    ends = {}
    for name, options in rows.items():
        program = subprocess.Popen([place.binaries / "zepha9-sim", *options],
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        resource.prlimit(program.pid, resource.RLIMIT_AS, (4 << 30, 4 << 30))
        place.started.append(program)
        ends[name] = state_of(program, 10)
        program.kill()
        ends[name] = f"{ends[name]} {program.communicate()[1].strip()[-70:]}"
    return all(end.startswith(("1 ", "2 ")) for end in ends.values()), \
        "; ".join(f"{name}: {end}" for name, end in ends.items())


ATTACKS = [
    message_of_a_training_that_was_not_kept, long_notice, path_of_50_megabytes, second_host_takes_a_free_place,
    second_host_beside_one_that_hangs, odd_files_in_the_spool, module_that_does_not_end,
    soundfont_that_is_a_pipe, spool_that_is_a_file,
    link_in_the_folder_for_temporary_files, folder_that_others_write, rights_under_umask_0,
    anonymous,
    callers_that_come_and_go, callers_that_stay, end_of_descriptors, caller_that_does_not_read,
    text_of_50_megabytes, log_that_is_flooded, host_that_is_asked_long, simulator_that_runs_long,
    records_that_lie, store_that_is_held, store_that_was_removed, store_of_a_newer_program,
    choice_that_cannot_be_kept,
    pages_that_are_hidden, simulated_runs_without_end,
]


def main():
    names = ", ".join(attack.__name__ for attack in ATTACKS)
    given = suite.arguments(__doc__, lambda options: options.add_argument(
        "attacks", nargs="*", help="only these, of: " + names))
    report = suite.Report()
    for attack in ATTACKS:
        if given.attacks and attack.__name__ not in given.attacks:
            continue
        with Place(given.bin) as place:
            try:
                held, figures = attack(place)
            except Exception:  # whatever it is: the others are tried too
                held, figures = False, traceback.format_exc(limit=1).splitlines()[-1]
            report.row(attack.__name__.replace("_", " "), "once", held, figures)
    report.end()


if __name__ == "__main__":
    main()
