#!/usr/bin/env python3
"""Takes from the host what it stands on, while callers store and results come: room on the disk,
the right to write, the store's file, the spool. Afterwards everything is given back, and nothing
that was acknowledged, and no result, may be missing."""
import collections
import ctypes
import errno
import os
import random
import shutil
import signal
import subprocess
import sys
import time

from ledger import GONE, Gate, Reader, Results, ResultWriter, Storer, Stores
from suite import Caller, Place, Report, arguments, until

ANSWER = 10.0       # seconds within which a host answers, whatever is the matter
RESTART = 10.0      # seconds within which a host that was started answers or has ended
ACCEPTED = 3.0      # seconds within which it stores again when all is well again
TAKEN = 3.0         # seconds within which it takes then what waited, without being asked to
INSIDE = "SOAK_MOUNTS"  # set for the process that may mount
DROP = ["setpriv", "--bounding-set=-all", "--inh-caps=-all"]  # root without root's rights


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False)


def go_inside():
    """Becomes a process that may mount where nobody sees it. @return why that is not possible"""
    if not shutil.which("unshare"):
        return "there is no unshare"
    for way in ("-m", "-rm"):
        command = ["unshare", way, "--propagation", "private"]
        probe = run(*command, "mount", "-t", "tmpfs", "none", "/mnt")
        if probe.returncode == 0:
            os.environ[INSIDE] = way
            os.execvp("unshare", [*command, sys.executable, *sys.argv])
    return probe.stderr.strip().replace("\n", " ")


class Disk:
    """A small disk of its own at a folder."""

    def __init__(self, folder, kilobytes):
        self.folder, self.kilobytes = folder, kilobytes
        folder.mkdir(mode=0o700, parents=True, exist_ok=True)
        made = run("mount", "-t", "tmpfs", "-o", f"size={kilobytes}k,mode=700", "soak", str(folder))
        assert made.returncode == 0, made.stderr

    def fill(self, left):
        """@param left kilobytes that stay free"""
        size = (shutil.disk_usage(self.folder).free >> 10) - left
        try:
            with open(self.folder / "filler", "ab", buffering=0) as file:
                file.write(bytes(max(0, size) << 10))
        except OSError:
            pass

    def empty(self):
        (self.folder / "filler").unlink(missing_ok=True)
        self.resize(self.kilobytes + 20_000)

    def shrink(self):
        """To its old size; it keeps its size when what lies on it needs that."""
        self.resize(self.kilobytes)

    def resize(self, kilobytes):
        """The program mount would hand on the owner, which has another number in here."""
        MS_REMOUNT = 32
        ctypes.CDLL(None).mount(b"soak", bytes(self.folder), b"tmpfs", MS_REMOUNT,
                                f"size={kilobytes}k".encode())


class Episode:
    """A place, a host, callers, and troubles one after the other."""

    def __init__(self, night, mounts):
        self.night, self.chance = night, night.chance
        self.mounts = mounts
        self.undo = []
        self.trouble = ""

    def fault(self, text):
        self.night.fault(f"{self.trouble}: {text}", self.trouble)

    def run(self, end):
        with Place(self.night.given.bin) as self.place:
            self.place.prefix = self.night.prefix
            self.disks = []
            if self.mounts:
                self.disks.append(Disk(self.place.data, self.chance.choice((400, 1500, 7000))))
                if self.chance.random() < 0.5:
                    self.disks.append(Disk(self.place.spool, self.chance.choice((150, 600))))
            self.serve()
            self.stores = Stores(self.chance.choice((4_000, 60_000)))
            self.results = Results(self.place, 20_000)
            self.gate, seed = Gate(), self.chance.random()
            self.workers = [ResultWriter(self.results, self.gate, seed),
                            *(Storer(i, self.place, self.stores, self.gate, seed)
                              for i in range(2))]
            for worker in self.workers:
                worker.start()
            try:
                for _ in range(6):
                    if time.monotonic() < end:
                        self.round()
            except AssertionError as error:
                self.fault(f"no host can be started any more: {error}")
            finally:
                self.give_back()
                self.gate.end()
                for worker in self.workers:
                    worker.join(30)
                self.host.kill()
                self.host.wait()
                for disk in reversed(self.disks):
                    run("umount", "-l", str(disk.folder))
            self.night.count(self)

    def serve(self):
        self.host = self.place.host()

    # One trouble, and its end.

    def round(self):
        troubles = [self.store_away, self.store_replaced, self.spool_away, self.spool_replaced]
        if self.mounts:
            troubles += [self.disk_full] * 6 + [self.read_only] * 2
        if self.night.prefix or os.getuid():
            troubles += [self.rights_gone] * 2
        trouble = self.chance.choice(troubles)
        self.trouble = trouble.__name__.replace("_", " ")
        self.night.tried[self.trouble] += 1
        refused, waited = self.stores.refused, 0
        self.gate.open()
        time.sleep(self.chance.random() * 0.3)
        self.can_start, self.spool_bad = True, False
        try:
            trouble()
        except OSError as fault:
            if fault.errno != errno.ENOSPC:  # on a disk that is full already
                raise
        if self.can_start and self.chance.random() < 0.25:
            self.start_in_trouble()
        end = time.monotonic() + self.chance.choice((0.1, 1.0)) * self.chance.random()
        while time.monotonic() < end:
            time.sleep(0.05)
            waited = max(waited, len(self.results.waiting()))
        self.lives()
        self.gate.close()
        # Callers were given the reason; whoever looks after the machine finds it, too.
        line = f"melvora: {self.place.store}: "
        if self.stores.refused > refused and line not in self.place.output():
            self.fault("stores are refused, and no line says so")
        self.give_back()
        self.all_is_well()
        self.night.refused[self.trouble] += self.stores.refused - refused
        self.night.waited[self.trouble] += waited

    def lives(self):
        if self.host.poll() is not None:
            self.fault(f"the host has ended with {self.host.returncode}: "
                       + self.place.output()[-400:])
            return False
        begun = time.monotonic()
        if not until(self.place.answers, ANSWER, 0.02):
            self.fault("the host does not answer")
        self.night.slowest = max(self.night.slowest, time.monotonic() - begun)
        return True

    def start_in_trouble(self):
        """Ends the host and starts it while things are bad: it serves, or says what is wrong."""
        self.host.send_signal(self.chance.choice((signal.SIGKILL, signal.SIGTERM)))
        self.host.wait()
        output = len(self.place.output())
        self.host = self.place.start("melvora", "--data", str(self.place.data))
        self.night.starts += 1
        if not until(lambda: self.host.poll() is not None or self.place.answers(), RESTART, 0.01):
            self.fault(f"a host that was started neither answers nor ends within {RESTART} s")
        if self.host.poll() is None:
            if self.spool_bad and not until(lambda: str(self.place.spool) in self.log(), 2):
                self.fault("the spool cannot be used, and the log does not say so")
            return
        self.night.refused_starts += 1
        told = self.place.output()[output:]
        if self.host.returncode != 2 or "melvora: " not in told:
            self.fault(f"a start ended with {self.host.returncode}, told: {told[-300:]!r}")
        self.gate.close()
        self.give_back()
        self.serve()

    def all_is_well(self):
        """Everything has been given back: it stores, it takes what waited, nothing is missing."""
        if not self.lives():
            self.serve()
        begun = time.monotonic()
        if not until(lambda: self.stores_one()[0], ACCEPTED, 0.05):
            self.fault(f"does not store again within {ACCEPTED} s: {self.refusal}")
            self.host.kill()  # what the next start finds is looked at all the same
            self.host.wait()
            self.serve()
        if not until(lambda: not self.results.waiting(), TAKEN, 0.02):
            self.fault(f"{len(self.results.waiting())} results are not taken within {TAKEN} s")
            self.ask("MENUE")
            if not until(lambda: not self.results.waiting(), TAKEN, 0.02):
                self.fault("results are not even taken when a module hands over")
                self.host.kill()
                self.host.wait()
                self.serve()
                until(lambda: not self.results.waiting(), TAKEN, 0.02)
        self.night.slowest_return = max(self.night.slowest_return, time.monotonic() - begun)
        if self.chance.random() < 0.4:
            self.host.send_signal(self.chance.choice((signal.SIGKILL, signal.SIGTERM)))
            self.host.wait()
            self.serve()
        caller = Caller(self.place.socket, ANSWER)
        self.stores.check(caller)
        caller.close()
        with Reader(self.place.store) as reader:
            if damage := reader.damage():
                self.fault(f"the database is damaged: {damage}")
            self.results.check(reader.rows, reader.log())
        for ledger in (self.stores, self.results):
            for fault in ledger.faults:
                self.fault(fault)
            ledger.faults.clear()
        for disk in self.disks:
            disk.shrink()

    def log(self):
        with Reader(self.place.store) as reader:
            return reader.log()

    def ask(self, key, argument=""):
        try:
            caller = Caller(self.place.socket, ANSWER)
            try:
                return caller.request(key, argument, patience=ANSWER)
            finally:
                caller.close()
        except GONE as gone:
            return False, repr(gone)

    def stores_one(self):
        answer, self.refusal = self.ask("STORE", ["soak", "probe", ["x"]])
        return answer, self.refusal

    # Troubles. Each leaves in `undo` how it ends.

    def give_back(self):
        while self.undo:
            self.undo.pop()()
        for disk in self.disks:  # what came meanwhile may have filled it, too
            disk.empty()

    def disk_full(self):
        disk = self.chance.choice(self.disks)
        disk.fill(int(self.chance.choice((0, 5, 60)) * self.chance.random()))
        if self.chance.random() < 0.3:
            time.sleep(0.1)
            disk.fill(0)

    def read_only(self):
        """The folder becomes one that nobody may write in; what is open stays open."""
        folder = str(self.chance.choice((self.place.data, self.place.spool)))
        # With what is mounted in it, which would be hidden otherwise.
        if run("mount", "--rbind", folder, folder).returncode != 0:
            raise AssertionError("the folder cannot be mounted")
        until(lambda: run("mount", "-o", "remount,bind,ro", folder).returncode == 0, 5)
        self.undo.append(lambda: until(lambda: run("umount", "-R", folder).returncode == 0, 10)
                         or run("umount", "-lR", folder))

    def move(self, *paths):
        """Out of the way, to where it comes back from. Nothing is copied."""
        for path in paths:
            away = path.with_name("away-" + path.name)
            os.rename(path, away)
            self.undo.append(lambda path=path, away=away: put_back(away, path))

    def store_away(self):
        """The file alone, or with those beside it. A host that is started then makes a new one, so
        none is."""
        self.can_start = False
        names = self.chance.choice((("",), ("", "-wal", "-shm")))
        files = [self.place.store.with_name(self.place.store.name + name) for name in names]
        self.move(*(file for file in files if file.exists()))
        return len(files) == 3

    def store_replaced(self):
        whole = self.store_away()
        content = self.chance.choice((b"", b"no database" * 100, bytes(8192)))
        self.place.store.write_bytes(content)
        self.can_start = whole and content != b""

    def on_its_own_disk(self):
        return len(self.disks) == 2

    def spool_away(self):
        if self.on_its_own_disk():  # a place where something is mounted stays
            return self.disk_full()
        return self.move(self.place.spool)

    def spool_replaced(self):
        if self.on_its_own_disk():
            return self.disk_full()
        self.move(self.place.spool)
        how = self.chance.choice(("file", "nowhere", "folder"))
        if how == "file":
            self.place.spool.write_text("in the way")
        elif how == "nowhere":
            self.place.spool.symlink_to(self.place.home / "nowhere")
        self.spool_bad = how != "folder"
        return None

    def rights_gone(self):
        path = self.chance.choice((self.place.data, self.place.spool, self.place.store))
        mode = path.stat().st_mode & 0o777
        path.chmod(self.chance.choice((0, 0o500 if path.is_dir() else 0o400)))
        self.undo.append(lambda: path.chmod(mode))


def put_back(away, path):
    """Gives a thing its name back; what lies in its place goes, and results in it come along."""
    if path.is_dir() and not path.is_symlink():
        for result in path.glob("RSX*"):
            try:
                os.rename(result, away / result.name)
            except FileNotFoundError:  # the host has taken it
                pass
        shutil.rmtree(path)
    else:
        path.unlink(missing_ok=True)
    os.rename(away, path)


class Night:
    def __init__(self, given, prefix):
        self.given, self.prefix = given, prefix
        self.chance = random.Random(given.seed)
        self.tried, self.refused, self.waited, self.faults = (
            collections.Counter() for _ in range(4))
        self.episodes = self.starts = self.refused_starts = 0
        self.acknowledged = self.collected = self.not_written = 0
        self.slowest = self.slowest_return = self.slowest_store = 0.0

    def fault(self, text, trouble):
        self.faults[trouble] += 1
        print(f"disks: seed {self.given.seed}, episode {self.episodes}: {text}", file=sys.stderr,
              flush=True)

    def count(self, episode):
        self.acknowledged += episode.stores.acknowledged
        self.collected += episode.results.collected
        writer, *storers = episode.workers
        self.not_written += writer.not_written
        self.slowest_store = max([self.slowest_store, *(storer.slowest for storer in storers)])

    def run(self, mounts):
        end = time.monotonic() + self.given.seconds
        while time.monotonic() < end:
            self.episodes += 1
            Episode(self, mounts).run(end)


def main():
    given = arguments(__doc__)
    why_not = "" if INSIDE in os.environ else go_inside()
    prefix = DROP if os.getuid() == 0 and shutil.which("setpriv") else []
    night = Night(given, prefix)
    night.run(not why_not)
    report = Report()
    if why_not:
        report.row("not tried: small disks, read-only folders", "0 times", True, why_not)
    if os.getuid() == 0 and not prefix:
        report.row("not tried: rights taken away", "0 times", True, "root keeps its rights here")
    for trouble, times in sorted(night.tried.items()):
        report.row(trouble, f"{times} times", not night.faults[trouble],
                   f"{night.refused[trouble]} stores refused with a reason, "
                   f"{night.waited[trouble]} results waited, {night.faults[trouble]} faults")
    report.row("everything given back", f"{sum(night.tried.values())} times", not night.faults,
               f"{night.acknowledged} stores acknowledged, {night.collected} results collected, "
               f"{sum(night.faults.values())} lost or other faults; "
               f"{night.starts} starts in trouble, {night.refused_starts} refused with a "
               f"line; answers after {night.slowest:.2f} s, stores "
               f"after {night.slowest_store:.2f} s, takes what waited after "
               f"{night.slowest_return:.2f} s (most)")
    report.end()


if __name__ == "__main__":
    main()
