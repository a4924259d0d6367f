#!/usr/bin/env python3
"""Kills the host and the module at random moments, and looks at what they have left. Every kill is
followed by a start, which must find everything that was acknowledged."""
import collections
import ctypes
import os
import pathlib
import random
import signal
import sqlite3
import statistics
import sys
import time

from ledger import Gate, Reader, Results, ResultWriter, Storer, Stores
from suite import Caller, Place, Report, arguments, children, until

RESTART = 10.0      # seconds within which a host that was started answers
SETTLED = 10.0      # seconds within which it has taken what lies in its spool
GONE = 5.0          # seconds within which a program that was told to end has ended
CROWD = 30.0        # seconds within which of many hosts only one is left
LIVES = 60          # kills in one place, whose store grows with them
USERS = [("anna", "Muster", "Anna", "1"), ("bea", "Größer", "Bea", "")]
LANGUAGES = ["Deutsch", "English", "Español", "Français"]
EXAM = b"""<?xml version="1.0" encoding="ISO-8859-1" ?>
<test><basic><modul>VESHNA</modul><type>1</type></basic><setting>
<control title="Tempo#var"><cname>temp_Combo</cname><value>9</value></control>
</setting></test>"""


def lives(process):
    """Whether it runs still: a process that has ended waits as a zombie."""
    try:
        about = pathlib.Path(f"/proc/{process}/stat").read_text()
        return about.rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


def kill(process, chance):
    """@return the signal that ended it, as the one who waits for it is told"""
    how = chance.choice(("kill", "kill", "term", "stop"))
    if how == "stop":
        os.kill(process, signal.SIGSTOP)
        time.sleep(chance.random() * 0.1)
    number = signal.SIGTERM if how == "term" else signal.SIGKILL
    os.kill(process, number)
    return int(number)


class Night:
    """One place after the other, and what was counted in all of them."""

    def __init__(self, given):
        self.given = given
        self.chance = random.Random(given.seed)
        self.place = None
        self.host = None
        self.restarts = []
        self.trial, self.faults = "host", collections.Counter()
        self.host_kills = self.early = self.module_kills = self.crowds = self.handed_over = 0
        self.takeovers = self.left_modules = 0
        self.acknowledged = self.collected = self.put_aside = 0
        self.slowest = 0.0

    # A place and its threads.

    def run(self):
        end = time.monotonic() + self.given.seconds
        while self.goes_on(end):
            with Place(self.given.bin) as self.place:
                self.prepare()
                try:
                    self.live(end)
                except (AssertionError, OSError, EOFError, sqlite3.Error) as error:
                    self.fault(f"this place is given up: {error!r}")
                finally:
                    self.wind_up()

    def goes_on(self, end):
        kills = self.host_kills + self.module_kills
        return kills < self.given.kills if self.given.kills else time.monotonic() < end

    def prepare(self):
        """A store with users and choices, as it is to be found ever after."""
        self.place.host("--language", "English").kill()
        self.place.started[-1].wait()
        with sqlite3.connect(self.place.store) as store:
            store.executemany("INSERT INTO users VALUES (?, ?, ?, ?)", USERS)
        store.close()
        self.exam = self.place.home / "exam.mvs"
        self.exam.write_bytes(EXAM)
        self.language = {"English"}
        self.user = ["--user", "anna"]
        self.stores, self.results = Stores(), Results(self.place)
        self.gate = Gate()
        seed = self.chance.random()
        self.writer = ResultWriter(self.results, self.gate, seed)
        self.storers = [Storer(i, self.place, self.stores, self.gate, seed) for i in range(3)]
        for worker in [self.writer, *self.storers]:
            worker.start()

    def live(self, end):
        for _ in range(LIVES):
            if not self.goes_on(end):
                break
            self.restart()
            self.trial = "module"
            for _ in range(self.chance.choice((0, 0, 1, 2))):
                self.kill_module()
            self.trial = "crowd"
            if self.chance.random() < 0.04:
                self.crowd()
            self.trial = "host"
            self.kill_host()
        self.restart()
        self.gate.end()
        self.end_processes([self.host.pid, *children(self.host.pid)])

    def wind_up(self):
        self.gate.end()
        for worker in [self.writer, *self.storers]:
            worker.join(30)
            if worker.is_alive():
                self.fault("a caller has hung")
        self.end_processes(children(os.getpid()))
        for ledger in (self.stores, self.results):
            for fault in ledger.faults:
                self.fault(fault)
        self.acknowledged += self.stores.acknowledged
        self.collected += self.results.collected
        self.put_aside += self.results.put_aside
        self.slowest = max([self.slowest, *(storer.slowest for storer in self.storers)])

    def fault(self, text):
        self.faults[self.trial] += 1
        print(f"kills: seed {self.given.seed}, host kill {self.host_kills}, module kill "
              f"{self.module_kills}: {text}", file=sys.stderr, flush=True)

    # Hosts.

    def begin(self, *more):
        """Starts a host, half of the time with another language."""
        choice = self.chance.choice(LANGUAGES)
        language = ["--language", choice] if self.chance.random() < 0.5 else []
        if language:
            self.language = self.language | {choice}
        host = self.place.start("melvora", "--data", str(self.place.data), *language, *self.user,
                                *more)
        return host, choice if language else None

    def restart(self):
        """A host that answers, and has what it must have. Some are killed before they answer."""
        while self.chance.random() < 0.2:
            for _ in range(self.chance.choice((0, 0, 0, 8))):
                self.results.write(self.chance, dies=True)
            host, _ = self.begin(*self.chance.choice(((), ("--start", "zepha9"))))
            time.sleep(self.chance.random() * 0.12)
            kill(host.pid, self.chance)
            host.wait()
            self.host_kills += 1
            self.early += 1
            self.leave_modules()
        module = self.chance.random() < 0.6
        start = ["--start", "zepha9"] if module else []
        if module and self.chance.random() < 0.5:
            start = [str(self.exam)]
        begun = time.monotonic()
        self.host, language = self.begin(*start)
        self.user = []
        if language:
            self.language = {language}
        if not until(lambda: self.host.poll() is None and self.place.answers(), RESTART, 0.002):
            raise AssertionError(f"no answer within {RESTART} s (status {self.host.poll()}): "
                                 + self.place.output()[-500:])
        self.restarts.append(time.monotonic() - begun)
        self.check()
        self.writer.beside = not module
        self.gate.open()

    def check(self, module_gone=False):
        """Everything that was acknowledged is there, and everything in the spool is taken."""
        left = [] if module_gone or not children(self.host.pid) else [".part"]
        pending = lambda: [n for n in self.results.waiting() if not left or n.endswith(".xml")]
        if not until(lambda: not pending(), SETTLED, 0.005):
            self.fault(f"still in the spool: {pending()[:5]}")
            return
        try:
            caller = Caller(self.place.socket)
            self.stores.check(caller)
            language, user = caller.request("LANG")[1], caller.request("LOGIN")[1]
            caller.close()
        except (OSError, EOFError) as gone:
            self.fault(f"no answer at the check: {gone!r}")
            return
        if language not in self.language:
            self.fault(f"the language is {language}, not {self.language}")
        self.language = {language}
        if user != list(USERS[0]):
            self.fault(f"logged in is {user}")
        with Reader(self.place.store) as reader:
            if damage := reader.damage():
                self.fault(f"the database is damaged: {damage}")
            if sorted(reader.rows("SELECT * FROM users")) != USERS:
                self.fault("the users are others")
            begun = self.results.begun
            if left:  # a module runs that could go on with them
                self.results.begun = []
            # What is put aside is told behind it.
            names = [name for name, _, _ in self.results.begun]
            until(lambda: all(name in reader.log() for name in names), 2, 0.01)
            self.results.check(reader.rows, reader.log())
            if left:
                self.results.begun = begun

    def kill_host(self):
        time.sleep(self.chance.choice((0.03, 0.3)) * self.chance.random())
        if self.host.poll() is not None:
            self.fault(f"the host has ended with {self.host.returncode}: "
                       + self.place.output()[-500:])
        else:
            kill(self.host.pid, self.chance)
        self.host.wait()
        self.host_kills += 1
        self.gate.close()
        self.leave_modules()

    # Modules.

    def leave_modules(self):
        """A module outlives its host, but nothing else does; it ends when it is told to."""
        left = children(os.getpid())
        self.left_modules += len(left)
        until(lambda: all(self.program(p) in ("zepha9", "") for p in left), 1, 0.005)
        for process in left:
            if self.program(process) not in ("zepha9", ""):
                self.fault(f"an orphan is left: {self.program(process)}")
        self.end_processes(left)

    @staticmethod
    def program(process):
        """What it is; "" when it has ended."""
        try:
            return pathlib.Path(os.readlink(f"/proc/{process}/exe")).name
        except OSError:
            return ""

    def end_processes(self, processes):
        known = {program.pid: program for program in self.place.started}
        for process in processes:
            if lives(process):
                os.kill(process, signal.SIGTERM)
            if not until(lambda: not lives(process), GONE, 0.003):
                self.fault(f"{self.program(process)} does not end")
                os.kill(process, signal.SIGKILL)
            if process in known:
                known[process].wait()
            else:
                try:
                    os.waitpid(process, 0)
                except ChildProcessError:  # another than this one's
                    pass

    def kill_module(self):
        """The host tells of it, goes on, and starts the next."""
        self.gate.open()
        wish = self.chance.choice(["zepha9", ["zepha9", str(self.exam)]])
        try:
            caller = Caller(self.place.socket)
            answer, _ = caller.request("RAISE", wish)
            caller.close()
        except (OSError, EOFError) as gone:
            self.fault(f"no answer to RAISE: {gone!r}")
            return
        modules = until(lambda: children(self.host.pid), 5, 0.001)
        if not answer or not modules or len(modules) != 1:
            self.fault(f"RAISE {wish}: {answer}, modules {modules}")
            return
        self.writer.beside = False
        time.sleep(self.chance.choice((0.002, 0.02, 0.4)) * self.chance.random())
        with Reader(self.place.store) as reader:
            last = reader.rows("SELECT COALESCE(MAX(id), 0) FROM log")[0][0]
            status = kill(modules[0], self.chance)
            told = "SELECT 1 FROM log WHERE kind = 'error' AND content LIKE ? AND id > ?"
            self.module_kills += 1
            self.gate.close()
            self.writer.beside = True
            if not until(lambda: not children(self.host.pid), GONE, 0.003):
                self.fault("the killed module is not waited for")
            if not until(lambda: reader.rows(told, f"%-{status}%", last), GONE, 0.003):
                self.fault(f"nothing tells that the module ended with {-status}: "
                           + reader.log()[-300:])
        self.check(module_gone=True)
        self.gate.open()

    # Many at once.

    def crowd(self):
        """Many hosts at once beside one that runs, hangs, or has just been killed: one serves."""
        case = self.chance.choice(("runs", "hangs", "gone"))
        if case != "runs":
            os.kill(self.host.pid, signal.SIGSTOP if case == "hangs" else signal.SIGKILL)
        if case == "gone":
            self.host.wait()
            self.host_kills += 1
        output = len(self.place.output())
        crowd = [self.host, *(self.place.start("melvora", "--data", str(self.place.data))
                              for _ in range(5))]
        if case == "hangs":
            time.sleep(0.3 + self.chance.random())
            self.host.kill()
            self.host.wait()
            self.host_kills += 1
        self.crowds += 1
        if not until(lambda: sum(h.poll() is None for h in crowd) <= 1, CROWD, 0.01):
            self.fault(f"{case}: hosts beside each other: {[h.poll() for h in crowd]}")
        remaining = [h for h in crowd if h.poll() is None]
        statuses = [h.returncode for h in crowd[1:] if h.poll() is not None]
        self.handed_over += statuses.count(0)
        lines = self.place.output()[output:].count("melvora: ")
        if len(remaining) != 1 or not until(self.place.answers, RESTART, 0.01):
            self.fault(f"{case}: {len(remaining)} hosts serve: {self.place.output()[output:]}")
        if any(s not in (0, 2) for s in statuses) or lines < statuses.count(2):
            self.fault(f"{case}: ended with {statuses}: {self.place.output()[output:]}")
        if remaining:
            self.takeovers += remaining[0] is not self.host
            self.host = remaining[0]


def main():
    given = arguments(__doc__, lambda parser: parser.add_argument(
        "--kills", type=int, default=0, help="so many instead of --seconds (a night: 2000)"))
    PR_SET_CHILD_SUBREAPER = 36  # a module whose host was killed comes to this process
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    night = Night(given)
    begun = time.monotonic()
    night.run()
    report = Report()
    times, faults = night.restarts or [0], night.faults
    report.row("host killed at random moments, and started again", f"{night.host_kills} kills",
               not faults["host"],
               f"{night.early} before it answered; {night.acknowledged} stores acknowledged, "
               f"{night.collected} records collected, {night.put_aside} unfinished ones put aside "
               f"and told, {faults['host']} lost, doubled, damaged or other faults; answers again "
               f"after {statistics.median(times) * 1000:.0f} ms (median), "
               f"{max(times) * 1000:.0f} ms (most); "
               f"slowest store {night.slowest:.2f} s")
    report.row("module killed at random moments", f"{night.module_kills} kills",
               not faults["module"],
               f"{night.left_modules} left by killed hosts, all ended when told; "
               f"{faults['module']} faults")
    report.row("six hosts at once", f"{night.crowds} times", not faults["crowd"],
               f"{night.handed_over} handed over, {night.takeovers} took the place of a dead one; "
               f"{faults['crowd']} faults; {time.monotonic() - begun:.0f} s in all")
    report.end()


if __name__ == "__main__":
    main()
