#!/usr/bin/env python3
"""Hosts that hang, dawdle, lie and die, each towards a real module. Whatever they do, the module
ends with a told reason or goes on, soon, and without spinning or growing. Half of the modules have a
screen (Xvfb) and are driven by keys (xdotool)."""
import collections
import os
import pathlib
import queue
import random
import shutil
import socket
import struct
import sys
import threading
import time
import xml.etree.ElementTree

from jeepney import MessageType, new_error, new_method_call, new_method_return
from jeepney import DBusAddress
from jeepney.low_level import Parser

from suite import Place, Report, arguments, carried, memory, plain, processor_seconds, until

WORKERS = 12          # modules at a time
CALL = 5.0            # seconds after which the module gives a call up
FIRST = 8 * CALL      # until a module shows something or ends: it makes six calls before
QUIET = CALL + 1.5    # seconds without a call after which it waits for nobody
LAST = 60.0           # seconds within which it ends when it is left by Escape, while calls time out
IDLE = 0.25           # seconds of processor time in a second of waiting
WORK = 6.0            # seconds of processor time in all, and a tenth of the time that it ran
BULK = 8 << 20        # bytes of the biggest answer
MEMORY = 260          # megabytes at most, beside 16 times the biggest answer
USERS = [["anna", "Muster", "Anna", "1"], ["unbekannt"], ["bea", "%1 %2 <&\"", "", ""],
         ["ä" * 200]]
SCREEN = ("Xvfb", "openbox", "xdotool")
MESSAGES = ("Melvora 2000", "Achtung", "Warnung")
MODULE = DBusAddress("/Host", bus_name="org.melvora.Module", interface="org.melvora.Host1")
EXAM = b"""<?xml version="1.0" encoding="ISO-8859-1" ?>
<test><basic><modul>VESHNA</modul><type>1</type></basic><setting>
<control title="Tempo#var"><cname>temp_Combo</cname><value>9</value></control>
</setting></test>"""


def truth(key, argument, records):
    """What an honest host answers: (carried out?, variant)."""
    if key == "STORE":
        records[argument[1]] = argument[2]
    # Whether there is a training to go on with is asked for the other branch, too.
    record = key == "READ" and (records.get(argument[1]) or records.get(argument[1] + "b"))
    return True, carried({
        "APP": ["melvora.exe", "zepha9.exe"], "MIDI": "-1", "LANG": "English", "LOGIN": USERS[0],
        "READ": record or ["", "NIL"],
    }.get(key) or "")


def nested(depth):
    variant = ("s", "deep")
    for _ in range(depth):
        variant = ("av", [variant])
    return variant


#: Values that no request asks for, as (signature, value).
ODD = [
    ("s", ""), ("s", "%1%2%n"), ("s", "\x01\x02\x7f"), ("s", "../../../etc/passwd"), ("s", "NIL"),
    ("s", "99999999999999999999"), ("s", "-40000"), ("s", "1e309"), ("s", "𝄞\u202e\ufeff"),
    ("b", True), ("y", 0), ("y", 255), ("n", -32768), ("q", 65535), ("i", -1), ("u", 2**32 - 1),
    ("x", -2**63), ("t", 2**64 - 1), ("d", float("nan")), ("d", float("inf")), ("o", "/a/b"),
    ("g", "a{sv}"), ("as", []), ("av", []), ("as", [""] * 50), ("ay", b"abc"), ("ai", [1, 2, 3]),
    ("(sv)", ("a", ("s", "b"))), ("a{sv}", {"a": ("s", "b")}), ("v", ("v", ("s", "in"))),
    ("aas", [["a"], []]), ("av", [("s", "melvora.exe"), ("i", 9)]), ("as", ["", "NIL"]),
    ("as", ["melvora.exe", "zepha8.exe"]), ("as", ["true"] * 90), ("as", ["true"] + ["-1"] * 88),
    ("as", ["True"] + ["99999999"] * 300), ("as", ["0"] * 9), ("as", ["0"] * 11 + ["500"]),
    ("av", [("b", True)] + [("x", 2**62)] * 88), ("av", [("av", [])] * 90),
]


def odd(chance, answer):
    """A value to lie with: any, a big or deep one, or the right one with elements changed."""
    kind = chance.random()
    if kind < 0.45:
        return chance.choice(ODD)
    if kind < 0.5:
        return nested(chance.choice((5, 29, 31, 60)))
    if kind < 0.56:
        size = chance.choice((1000, 100_000, BULK))
        return chance.choice((("s", "x" * size), ("as", ["y"] * (size // 8)),
                              ("av", [("x", 1)] * (size // 32))))
    signature, items = answer
    if signature != "av" or not items:
        return chance.choice(ODD)
    items = list(items)
    for _ in range(chance.choice((1, 1, 3))):
        where = chance.randrange(len(items))
        change = chance.random()
        if change < 0.6:
            items[where] = chance.choice(ODD)
        elif change < 0.8:
            del items[where:]
            items.append(("s", "1"))
        else:
            items[where:where] = [items[where]] * chance.choice((1, 40))
    return "av", items


class Ends(Exception):
    """The connection is over."""


class Liar:
    """Ways to answer a call. Each is given the connection, the call and the right answer."""

    def __init__(self, chance):
        self.chance = chance

    def honest(self, line, call, answer):
        line.reply(call, "bv", answer)

    def silent(self, line, call, answer):
        pass

    def slow(self, line, call, answer):
        line.host.ended.wait(self.chance.uniform(0.1, 6))
        line.reply(call, "bv", answer)

    def drips(self, line, call, answer):
        data = line.reply_bytes(call, "bv", answer)
        for at in range(0, len(data), 1 + len(data) // 40):
            line.send(data[at:at + 1 + len(data) // 40])
            time.sleep(0.01)

    def refuses(self, line, call, answer):
        line.reply(call, "bv", (False, self.chance.choice((answer[1], ("s", "no"), ("s", "")))))

    def error(self, line, call, answer):
        signature, body = self.chance.choice(((None, ()), ("s", ("a reason",)), ("bv", answer)))
        line.send(new_error(call, "org.melvora.Error", signature, body).serialise(line.serial()))

    def wrong_type(self, line, call, answer):
        line.reply(call, "bv", (self.chance.random() < 0.85, odd(self.chance, answer[1])))

    def wrong_signature(self, line, call, answer):
        signature, body = self.chance.choice((
            (None, ()), ("b", (True,)), ("v", (answer[1],)), ("vb", answer[::-1]),
            ("ss", ("a", "b")), ("bvv", (True, answer[1], answer[1])),
            ("bs", (True, "a")), ("iv", (1, answer[1])),
            ("av", ([answer[1]] * 3,)), ("(bv)", (answer,)), ("h" * 2, None)))
        if body is None:
            data = bytearray(line.reply_bytes(call, "uu", (0, 1)))
            line.send(bytes(data).replace(b"uu\0", b"hh\0"))
        else:
            line.reply(call, signature, body)

    def twice(self, line, call, answer):
        line.reply(call, "bv", answer)
        line.reply(call, "bv", (True, odd(self.chance, answer[1])))

    def unasked(self, line, call, answer):
        number = call.header.serial
        for other in (0, number - 1, number + 1, 2**32 - 1):
            call.header.serial = other
            line.reply(call, "bv", (True, odd(self.chance, answer[1])))
        call.header.serial = number
        for member in ("Request", "Nothing"):
            line.send(new_method_call(MODULE, member, "s", ("a",)).serialise(line.serial()))
        line.reply(call, "bv", answer)

    def half(self, line, call, answer):
        data = line.reply_bytes(call, "bv", answer)
        line.send(data[:self.chance.randrange(len(data))])
        if self.chance.random() < 0.7:
            raise Ends

    def garbage(self, line, call, answer):
        line.send(self.chance.randbytes(self.chance.choice((1, 16, 400, 100_000))))
        if self.chance.random() < 0.5:
            line.reply(call, "bv", answer)

    def giant(self, line, call, answer):
        """A header that announces more than may come."""
        size = self.chance.choice((2**27 + 1, 2**31, 2**32 - 1, 2**26))
        line.send(struct.pack("<cBBBIII", b"l", 2, 1, 1, size, line.serial(), 8) + bytes(5000))

    def mutated(self, line, call, answer):
        data = bytearray(line.reply_bytes(call, "bv", answer))
        first = 0 if self.chance.random() < 0.3 else len(data) // 2
        for _ in range(self.chance.choice((1, 1, 2, 8))):
            at = self.chance.randrange(first, len(data))
            how = self.chance.random()
            if how < 0.8:
                flipped = data[at] ^ 1 << self.chance.randrange(8)
                data[at] = self.chance.choice((0, 1, 0x7f, 0xff, flipped))
            elif how < 0.9:
                del data[at]
            else:
                data.insert(at, self.chance.randrange(256))
        line.send(bytes(data))

    def another_user(self, line, call, answer):
        if call.body[0] == "LOGIN":
            answer = True, carried(self.chance.choice(USERS))
        elif call.body[0] == "LANG":
            answer = True, ("s", self.chance.choice(("Deutsch", "Français", "Klingon", "")))
        line.reply(call, "bv", answer)

    def hangs_up(self, line, call, answer):
        raise Ends

    def dies(self, line, call, answer):
        line.host.die()
        raise Ends


#: What a host of a kind does once it has ceased to be honest.
KINDS = {
    "hangs": ["silent"],
    "is slow": ["slow", "slow", "drips"],
    "lies": ["refuses", "error", "wrong_type", "wrong_type", "wrong_type", "wrong_type",
             "wrong_signature", "twice", "unasked", "half", "garbage", "giant",
             "mutated", "mutated", "mutated",
             "another_user", "drips", "hangs_up"],
    "dies": ["dies", "dies", "hangs_up"],
}
#: How a host hangs before the first call. One that hangs with thirty callers in its queue is not
#: among them: the library waits without end until it may join the queue.
DEAF = ["no accept", "no word", "half a word", "rejects", "babbles"]


class Line:
    """One connection of the module."""

    def __init__(self, host, connection):
        self.host, self.connection = host, connection
        self.count = 0

    def serial(self):
        self.count += 1
        return self.count

    def reply_bytes(self, call, signature, body):
        return new_method_return(call, signature, body).serialise(self.serial())

    def reply(self, call, signature, body):
        self.send(self.reply_bytes(call, signature, body))

    def send(self, data):
        self.host.biggest = max(self.host.biggest, len(data))
        self.connection.sendall(data)

    def serve(self):
        try:
            if self.authenticate():
                parser = Parser()
                while data := self.connection.recv(65536):
                    for message in parser.feed(data):
                        if message.header.message_type is MessageType.method_call:
                            self.host.answer(self, message)
        except (OSError, Ends, ValueError):
            pass
        finally:
            self.connection.close()

    def read_line(self):
        line = b""
        while not line.endswith(b"\r\n"):
            byte = self.connection.recv(1)
            if not byte:
                raise Ends
            line += byte
        return line.lstrip(b"\0")

    def authenticate(self):
        deaf = self.host.deaf
        while True:
            line = self.read_line()
            if deaf == "no word":
                self.host.ended.wait()
            elif deaf == "half a word":
                self.connection.sendall(b"OK 0123")
                self.host.ended.wait()
            elif deaf == "babbles":
                while not self.host.ended.is_set():
                    self.connection.sendall(b"DATA" + b"x" * 4000)
            elif deaf == "rejects":
                self.connection.sendall(b"REJECTED EXTERNAL\r\n")
            elif line.startswith(b"AUTH EXTERNAL"):
                self.connection.sendall(b"OK " + b"1234567890abcdef" * 2 + b"\r\n")
            elif line.startswith(b"BEGIN"):
                return True
            else:
                self.connection.sendall(b"ERROR\r\n")


class PretendedHost:
    """Serves one module from its start to its end. A context."""

    def __init__(self, path, kind, chance, records, calls):
        self.path, self.kind, self.records = str(path), kind, records
        self.liar = Liar(chance)
        self.chance = chance
        # Most are honest for some of the `calls` that the module may make.
        self.honest = chance.choice((0, chance.randrange(7), chance.randrange(calls)))
        self.share = chance.choice((0.2, 0.6, 1.0))
        self.deaf = chance.choice(DEAF) if kind == "hangs" and chance.random() < 0.4 else None
        if kind is None:
            self.honest = 10**9
        self.asked, self.lies = [], []
        self.last = time.monotonic()
        self.biggest = 0
        self.ended = threading.Event()
        self.crowd = []

    def __enter__(self):
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(self.path)
        self.listener.listen(30)
        if self.deaf != "no accept":
            threading.Thread(target=self.serve, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.ended.set()
        self.die()
        for line in self.crowd:
            line.close()

    def serve(self):
        while True:
            try:
                connection, _ = self.listener.accept()
            except OSError:
                return
            self.crowd.append(connection)
            threading.Thread(target=Line(self, connection).serve, daemon=True).start()

    def die(self):
        try:
            os.unlink(self.path)
            self.listener.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass
        self.listener.close()

    def answer(self, line, call):
        self.last = time.monotonic()
        key = call.body[0]
        answer = truth(key, plain(call.body[1]), self.records)
        self.asked.append(key if key != "LOGMESS" else plain(call.body[1]))
        lies = len(self.asked) > self.honest and self.chance.random() < self.share
        way = self.chance.choice(KINDS[self.kind]) if lies else "honest"
        if lies:
            self.lies.append(f"{len(self.asked)}:{key}:{way}")
        getattr(self.liar, way)(line, call, answer)
        self.last = time.monotonic()


class Screen:
    """What a user sees and does on the screen of a place."""

    def __init__(self, place):
        place.screen()
        self.tool = place.tool

    def top(self):
        """The window that takes keys and its title: a message, or the one that came last."""
        shown = [(window, self.tool("getwindowname", window))
                 for window in self.tool("search", "--onlyvisible", "--name", ".").split()]
        titled = [(window, title) for window, title in shown if title and title not in ("openbox",)]
        return ([pair for pair in titled if pair[1] in MESSAGES] or titled or [("", "")])[-1]

    def keys(self, *keys):
        window, title = self.top()
        if title in MESSAGES or self.tool("getactivewindow") != window:
            self.tool("windowactivate", window)
        if window:
            self.tool("key", "--delay", "30", *keys)

    def answer(self):
        """Gives a box that is open the answer that is not its own proposal."""
        window = self.top()[0]
        place = self.tool("getwindowgeometry", "--shell", window) if window else ""
        height = [int(line[7:]) for line in (place or "").splitlines() if line.startswith("HEIGHT=")]
        if height and height[0] < 250:
            self.keys("Tab", "Return")

    def click(self, x, y):
        if window := self.top()[0]:
            self.tool("mousemove", "--window", window, x, y, "click", "1")


#: From the start form through a training of music theory, which is saved, and back. A pause in
#: seconds stands behind each step; the first step chooses the branch, the second the mode.
ROAD = [
    (("click", 104, 224), 0.2), (("keys", "Return"), 0.7), (("click", 820, 62), 0.5),
    (("keys", "Down", "Return"), 0.3), (("keys", "Return"), 0.8), (("keys", "Return"), 0.4),
    (("keys", *"7654321"), 0.3), (("keys", "Return"), 0.3), (("keys", *"7654321"), 0.3),
    (("keys", "Escape"), 0.5), (("keys", "Return"), 0.7),
]
#: The same again, going on with the saved training.
AGAIN = [(step, pause) if step != ("keys", "Down", "Return") else
         (("keys", "Down", "Down", "Return"), pause) for step, pause in ROAD[2:]]
KEYS = ["Return", "Return", "Escape", "Down", "Up", "Tab", "space", "1", "4", "7", "BackSpace"]


class Run:
    """One module and its host."""

    def __init__(self, number, given, worker):
        self.number = number
        self.chance = random.Random(f"{given.seed}/{number}")
        kinds = list(KINDS)
        self.kind = None if number == 0 else self.chance.choice(kinds + ["lies"] * 3)
        self.driven = worker.screen is not None and (number == 0 or self.chance.random() < 0.5)
        self.worker = worker
        self.faults = []
        self.status = self.title = None
        self.seconds = self.processor = self.idle = self.peak = 0.0

    def fault(self, text):
        self.faults.append(text)

    def run(self):
        place = self.worker.place
        place.spool.mkdir(parents=True, exist_ok=True)
        for left in place.spool.iterdir():
            left.unlink()
        environment = dict(MELVORA_HOST_ADDRESS=str(place.socket), temp=str(place.spool))
        if not self.driven:
            environment["QT_QPA_PLATFORM"] = "offscreen"
        # Then it begins at another form, and the honest host is to see the whole road.
        with_file = self.chance.random() < 0.25 and self.kind is not None
        file = ["--settings", str(place.home / "exam.mvs")] if with_file else []
        with PretendedHost(place.socket, self.kind, self.chance, self.worker.records,
                           calls=25 if self.driven else 7) as self.host:
            begun = time.monotonic()
            self.module = place.start("zepha9", *file, **environment)
            (self.drive if self.driven else self.watch)()
            self.seconds = time.monotonic() - begun
            self.measure()
            self.end()
        place.started.remove(self.module)
        self.look_at_results(place)
        return self

    def ended(self):
        return self.module.poll() is not None

    def watch(self):
        """Without a screen: until it waits for nobody."""
        def waits():
            return self.ended() or time.monotonic() - max(self.host.last, begun) > QUIET
        begun = time.monotonic()
        if not until(waits, 4 * FIRST, 0.1):
            self.fault("asks and asks")

    def drive(self):
        screen = self.worker.screen
        self.title = until(lambda: "ended" if self.ended() else screen.top()[1], FIRST, 0.1)
        if not self.title:
            self.fault(f"shows nothing within {FIRST} s")
        road = [*ROAD, *AGAIN] if self.chance.random() < 0.6 or self.kind is None else [
            (("keys", *self.chance.choices(KEYS, k=3)), 0.3) for _ in range(15)]
        for (kind, *what), pause in road:
            if self.ended():
                break
            getattr(screen, kind)(*what)
            time.sleep(pause if self.kind else 2 * pause)

    def turns(self):
        """Whether its event loop turns: it waits for events, not for a host."""
        waits_in = pathlib.Path(f"/proc/{self.module.pid}/wchan").read_text()
        return "poll" in waits_in or waits_in in ("", "0")

    def measure(self):
        """While it waits it does nothing, and it has not grown."""
        try:
            if not until(self.turns, 3 * CALL):
                self.fault("hangs")
            quiet = CALL + 0.5 if self.kind else 0.5
            until(lambda: time.monotonic() - self.host.last > quiet, 30)
            before = processor_seconds(self.module.pid)
            time.sleep(1)
            self.processor = processor_seconds(self.module.pid)
            self.idle = self.processor - before
            self.peak = memory(self.module.pid)[1]
        except (OSError, KeyError):
            return  # it has ended
        if self.idle > IDLE:
            self.fault(f"{self.idle:.2f} s of processor time in a second of waiting")
        if self.processor > WORK + self.seconds / 10:
            self.fault(f"{self.processor:.1f} s of processor time in {self.seconds:.1f} s")
        if self.peak > MEMORY + 16 * self.host.biggest / 2**20:
            self.fault(f"{self.peak:.0f} MB after {self.host.biggest} bytes in an answer")

    def end(self):
        if self.driven:
            def leaves():
                self.worker.screen.keys("Escape")
                self.worker.screen.answer()
                return self.ended()
            if not until(leaves, LAST, 0.4):
                self.fault(f"does not end; shows {self.worker.screen.top()[1]!r}")
        asked = not self.ended()
        if asked:
            self.module.terminate()
            if not until(self.ended, 5):
                self.fault("is not even ended by a signal")
                self.module.kill()
        self.status = self.module.wait()
        if self.status not in ((-15, 143) if asked else (0, 1, 3, 9)):
            self.fault(f"ended with {self.status}")
        stored = self.host.asked.count("STORE")
        if self.kind is None and self.driven and (self.status != 0 or stored < 3):
            self.fault(f"an honest host was not served: status {self.status}, {self.host.asked}")

    def look_at_results(self, place):
        """What it has written is whole."""
        for file in place.spool.iterdir():
            try:
                xml.etree.ElementTree.parse(file)
            except xml.etree.ElementTree.ParseError as error:
                self.fault(f"{file.name}: {error}")


class Worker(threading.Thread):
    """Runs one module after the other on a screen and in a place of its own."""

    def __init__(self, given, numbers, records, runs, end):
        super().__init__(daemon=True)
        self.given, self.numbers, self.records = given, numbers, records
        self.runs, self.end = runs, end
        self.screen = None

    def run(self):
        with Place(self.given.bin) as self.place:
            self.place.socket.parent.mkdir()
            (self.place.home / "exam.mvs").write_bytes(EXAM)
            if all(map(shutil.which, SCREEN)):
                self.screen = Screen(self.place)
            while time.monotonic() < self.end or self.given.only is not None:
                try:
                    number = self.numbers.get_nowait()
                except queue.Empty:
                    return
                self.run_one(number)

    def run_one(self, number):
        run = Run(number, self.given, self)
        try:
            run.run()
        except Exception as error:  # told with what is needed to repeat it
            run.fault(f"the soak itself: {error!r}")
            if run.module.poll() is None:
                run.module.kill()
        for fault in run.faults:
            print(f"hosts: --seed {self.given.seed} --only {number} ({run.kind}, {run.host.deaf}, "
                  f"driven {run.driven}, {run.seconds:.0f} s, asked {run.host.asked[-12:]}, "
                  f"lies {run.host.lies[-12:]}): {fault}", file=sys.stderr, flush=True)
        self.runs.append(run)


def main():
    given = arguments(__doc__, lambda parser: parser.add_argument(
        "--only", type=int, help="repeats the run of this number"))
    numbers = queue.Queue()
    for number in [given.only] if given.only is not None else range(100_000):
        numbers.put(number)
    end = time.monotonic() + given.seconds
    runs, records = [], {}
    workers = [Worker(given, numbers, records, runs, end) for _ in range(WORKERS)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    report = Report()
    if not all(map(shutil.which, SCREEN)):
        report.row("not tried: modules on a screen", "0 modules", True,
                   f"needs {', '.join(SCREEN)}")
    for kind in [None, *KINDS]:
        mine = [run for run in runs if run.kind == kind]
        if not mine:
            continue
        ends = collections.Counter(run.status for run in mine if run.status != -15)
        report.row(f"a host that {kind or 'is honest'}", f"{len(mine)} modules",
                   not any(run.faults for run in mine),
                   f"{sum(run.driven for run in mine)} on a screen, "
                   f"{sum(len(run.host.asked) for run in mine)} calls, "
                   f"{sum(len(run.host.lies) for run in mine)} of them ill answered; ended by "
                   f"themselves with {dict(sorted(ends.items()))}; at most "
                   f"{max(r.seconds for r in mine):.0f} s, "
                   f"{max(r.processor for r in mine):.1f} s of processor time, "
                   f"{max(r.peak for r in mine):.0f} MB, "
                   f"{max(r.idle for r in mine):.2f} s while waiting; "
                   f"{sum(len(r.faults) for r in mine)} faults")
    report.end()


if __name__ == "__main__":
    main()
