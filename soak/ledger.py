"""What was given to a host to keep, and whether it has it: records that callers store, and result
files that arrive in the spool."""
import itertools
import os
import random
import sqlite3
import threading
import time

from jeepney.auth import AuthenticationError

from suite import Caller

EXECUTABLE = "soak"
#: What a caller meets whose host ends, or does not come.
GONE = (OSError, EOFError, AuthenticationError)
PATIENCE = 10.0  # seconds within which a host answers


def value(key, number, largest):
    """The record that is the `number`th under `key`: every value differs from every other, and a
    half of one or a mixture of two is seen."""
    chance = random.Random(f"{key}/{number}")
    size = int(chance.choice((100, 1_000, 4_000, largest)) * chance.random())
    text = (f"{key}/{number}:" * (1 + size // 8))[:size]
    return [number, text, chance.random(), bool(number % 2), [key, [f"ä€{number}"]], number]


class Stores:
    """What callers sent under their keys, and what of it was acknowledged."""

    def __init__(self, largest=100_000):
        self.largest = largest
        self.keys = {}  # key: [number of the last that is known to be kept, number sent last]
        self.acknowledged = self.refused = 0
        self.faults = []

    def next(self, key):
        """@return a new record for the key, noted as sent"""
        known = self.keys.setdefault(key, [0, 0])
        known[1] += 1
        return known[1], value(key, known[1], self.largest)

    def told(self, key, number, answer, result):
        """The host's answer to a STORE."""
        if answer:
            self.acknowledged += 1
            self.keys[key][0] = number
        else:
            self.refused += 1
            if not (isinstance(result, str) and result):
                self.faults.append(f"{key}/{number}: refused without a reason: {result!r}")

    def check(self, caller):
        """Reads every key back: the last acknowledged value or one that was sent after it."""
        for key, known in self.keys.items():
            answer, found = caller.request("READ", [EXECUTABLE, key])
            number = 0 if found == ["", "NIL"] else found[0] if found else None
            if not answer or not isinstance(number, int) or not known[0] <= number <= known[1]:
                self.faults.append(f"{key}: {number} for {known}")
                known[0] = number if isinstance(number, int) else known[1]
            elif number and found != value(key, number, self.largest):
                self.faults.append(f"{key}/{number}: damaged: {str(found)[:200]}")
            else:
                known[0] = number


class Gate:
    """Lets workers work, or waits until all of them stand still."""

    def __init__(self):
        self.opened = threading.Event()
        self.ended = False
        self.condition = threading.Condition()
        self.working = 0

    def enter(self):
        """@return False when it is time to end"""
        while not self.ended:
            if not self.opened.wait(0.1):
                continue
            with self.condition:
                if self.opened.is_set():
                    self.working += 1
                    return True
        return False

    def leave(self):
        with self.condition:
            self.working -= 1
            self.condition.notify_all()

    def open(self):
        self.opened.set()

    def close(self):
        with self.condition:
            self.opened.clear()
            if not self.condition.wait_for(lambda: self.working == 0, 3 * PATIENCE):
                raise AssertionError("a caller has hung")

    def end(self):
        self.ended = True
        self.opened.clear()


class Storer(threading.Thread):
    """A caller that stores as long as the gate is open, some calls one behind the other without
    waiting, and comes again when its host is gone."""

    def __init__(self, number, place, stores, gate, seed):
        super().__init__(daemon=True)
        self.place, self.stores, self.gate = place, stores, gate
        self.chance = random.Random(f"{seed}/{number}")
        self.keys = [f"k{number}.{i}" for i in range(6)]
        self.slowest = 0.0
        self.caller = None

    def run(self):
        while self.gate.enter():
            try:
                self.store()
            except GONE as gone:
                if isinstance(gone, TimeoutError) and self.gate.opened.is_set():
                    self.stores.faults.append(f"no answer within {PATIENCE} s")
                self.hang_up()
                time.sleep(0.003)
            finally:
                self.gate.leave()
        self.hang_up()

    def hang_up(self):
        if self.caller:
            self.caller.close()
        self.caller = None

    def store(self):
        self.caller = self.caller or Caller(self.place.socket, PATIENCE)
        begun = time.monotonic()
        sent = []
        for _ in range(self.chance.choice((1, 1, 1, 4))):
            key = self.chance.choice(self.keys)
            number, record = self.stores.next(key)
            sent.append((self.caller.send("STORE", [EXECUTABLE, key, record]), key, number))
        for serial, key, number in sent:
            self.stores.told(key, number, *self.caller.answer(serial, PATIENCE))
        self.slowest = max(self.slowest, time.monotonic() - begun)


def record_text(name, largest):
    """A result file's text."""
    chance = random.Random(name)
    lessons = "".join(
        f'<lesson><properties><property key="Tonskala" value="{name} {i} äß"/></properties>'
        f'<answers><answer lfd="1"><property key="Antwort" value="true"/></answer></answers>'
        "</lesson>" for i in range(int(largest * chance.random() ** 3 / 150)))
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n<exercise><properties programm="ZEPHA9" '
            f'ukey="anna" exercise="{name}" timestamp="1.1.2026" description="soak"/>'
            f"<settings/><lessons>{lessons}</lessons></exercise>\n").encode()


class Results:
    """Result files that a module hands over, and where each of them is."""
    numbers = itertools.count(1)

    def __init__(self, place, largest=60_000):
        self.place, self.largest = place, largest
        self.arrived = []   # complete files that have been put in the spool
        self.begun = []     # files whose writer has died, or whose name was taken from it
        self.collected = self.put_aside = 0
        self.faults = []

    def write(self, chance, beside=False, dies=False):
        """Writes one as the module does, and gives it its name when it is whole; with `beside` it
        is written in a folder that the host does not look into; its writer `dies` in the middle.
        @raise OSError: it was not written"""
        name = f"RSX26{next(self.numbers):010d}.xml"
        text = record_text(name, self.largest)
        folder = self.place.spool / "beside" if beside else self.place.spool
        folder.mkdir(parents=True, exist_ok=True)
        part = folder / (name + ".part")
        try:
            with open(part, "wb", buffering=0) as file:
                half = chance.randrange(1, len(text))
                write_all(file, text[:half])
                if dies:
                    self.begun.append((name, text, False))
                    return
                time.sleep(chance.choice((0, 0, 0.005)))
                write_all(file, text[half:])
                os.fsync(file.fileno())
            os.rename(part, self.place.spool / name)
            self.arrived.append((name, text))
        except OSError as error:
            if isinstance(error, FileNotFoundError) and not beside:
                self.begun.append((name, text, True))
                return
            part.unlink(missing_ok=True)
            raise

    def waiting(self):
        """Names in the spool that the host is to take or to put aside."""
        try:
            return [name for name in os.listdir(self.place.spool) if name.startswith("RSX")]
        except OSError:
            return []

    def check(self, rows, log):
        """@param rows query of the store  @param log the store's log as one text
        What waits in the spool is looked at the next time; what was found right is forgotten."""
        waiting = set(self.waiting())
        waits = [pair for pair in self.arrived if pair[0] in waiting]
        self.arrived = [pair for pair in self.arrived if pair[0] not in waiting]
        kept = dict(((name, text.encode()) for name, text in
                     rows("SELECT file_name, content FROM results")))
        for name, text in self.arrived:
            self.collected += name in kept
            if name not in kept:
                self.faults.append(f"{name}: lost")
            elif kept[name] != text:
                self.faults.append(f"{name}: damaged")
        for name, times in rows(
                "SELECT file_name, COUNT(*) FROM results GROUP BY 1 HAVING COUNT(*) > 1"):
            self.faults.append(f"{name}: {times} times")
        self.arrived = waits
        if (count := len(kept.keys() - waiting)) != self.collected:
            self.faults.append(f"{count} results are kept, {self.collected} have come")
            self.collected = count
        for name, text, whole in self.begun:
            aside = list(self.place.spool.glob(f"unfinished-*{name}"))
            if len(aside) != 1:
                self.faults.append(f"{name}: put aside as {aside}")
                continue
            found = aside[0].read_bytes()
            if found != text and (whole or not text.startswith(found)):
                self.faults.append(f"{name}: damaged when put aside")
            if aside[0].name not in log:
                self.faults.append(f"{name}: put aside and not told")
            aside[0].unlink()
            self.put_aside += 1
        self.begun.clear()


def write_all(file, data):
    while data:
        data = data[file.write(data):]


class ResultWriter(threading.Thread):
    """Result files that arrive as long as the gate is open."""

    def __init__(self, results, gate, seed):
        super().__init__(daemon=True)
        self.results, self.gate = results, gate
        self.chance = random.Random(f"{seed}/results")
        self.beside = True  # no module runs that could be writing in the spool
        self.not_written = 0

    def run(self):
        while self.gate.enter():
            try:
                self.results.write(self.chance, self.beside,
                                   dies=not self.beside and self.chance.random() < 0.1)
            except OSError:
                self.not_written += 1
            finally:
                self.gate.leave()
            time.sleep(self.chance.random() ** 2 * 0.06)


class Reader:
    """Looks into a store beside its host, which must run. A context."""

    def __init__(self, store):
        self.connection = sqlite3.connect(f"file:{store}?mode=ro", uri=True, timeout=10)
        self.connection.text_factory = lambda text: text.decode(errors="replace")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.connection.close()

    def rows(self, query, *values):
        return self.connection.execute(query, values).fetchall()

    def log(self):
        return "\n".join(row[0] for row in self.rows("SELECT content FROM log"))

    def damage(self):
        """@return what is wrong with the database, "" when nothing is"""
        found = self.rows("PRAGMA integrity_check")
        return "" if found == [("ok",)] else str(found)[:500]
