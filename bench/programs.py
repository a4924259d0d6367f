"""Start, memory, idle and record times of the real programs, on a display of their own."""

import os
import shutil
import signal
import socket
import sqlite3
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

TICKS = os.sysconf("SC_CLK_TCK")


class Display:
    """A black screen that lives as long as this."""

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1600x1200x24", "-br", "-noreset"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.name = ":" + pipe.readline().strip()
        if self.name == ":":
            raise RuntimeError("Xvfb does not start")
        return self

    def __exit__(self, *_):
        end(self.server)


def stat_fields(pid):
    """Fields of /proc/PID/stat from the state on; none when the process is gone."""
    try:
        return Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    except FileNotFoundError:
        return None


def alive(pid):
    fields = stat_fields(pid)
    return fields is not None and fields[0] != "Z"


def ticks(pid):
    fields = stat_fields(pid)
    return int(fields[11]) + int(fields[12])


def resident(pid):
    """Resident memory, MB: all of it, and with what is shared divided among its users."""
    memory = dict(line.split(":") for line in Path(f"/proc/{pid}/smaps_rollup").read_text()
                  .splitlines()[1:])
    return [int(memory[key].split()[0]) / 1024 for key in ("Rss", "Pss")]


def end_softly(pid):
    """Ends a process that is no child, by force when it does not follow."""
    os.kill(pid, signal.SIGTERM)
    limit = time.monotonic() + 5
    while alive(pid) and time.monotonic() < limit:
        time.sleep(0.01)
    if alive(pid):
        os.kill(pid, signal.SIGKILL)


class Program:
    """A started program and when its window came, milliseconds from its start."""

    def __init__(self, build, command, env):
        self.pid = None
        waiting = subprocess.Popen([build / "bin/window_time", *command], env=env, text=True,
                                   stdout=subprocess.PIPE)
        words = waiting.stdout.readline().split()
        waiting.wait()
        if words:
            self.pid = int(words[0])
        if len(words) != 3:
            self.end()
            raise RuntimeError(f"{command[0]}: no window")
        self.mapped, self.painted = map(float, words[1:])

    def end(self):
        if self.pid is not None:
            end_softly(self.pid)


def end(process):
    """Ends a process started here, by force when it does not follow."""
    process.terminate()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Bench:
    def __init__(self, build, display, folder):
        self.build = build
        self.folder = folder
        runtime = folder / "run"
        runtime.mkdir(mode=0o700)
        # The host believes that this is the module: then a module may be started from outside.
        modules = folder / "modules"
        modules.mkdir()
        idler = modules / "zepha9"
        idler.write_text("#!/bin/sh\nexec tail --pid=$PPID -f /dev/null >/dev/null 2>&1\n")
        idler.chmod(0o755)
        self.env = {**os.environ, "DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb",
                    "XDG_RUNTIME_DIR": str(runtime), "XDG_DATA_HOME": str(folder / "data"),
                    "XDG_CONFIG_HOME": str(folder / "config"), "temp": str(folder),
                    "MELVORA_MODULE_PATH": str(modules), "MELVORA_AUDIO_DRIVER": "none",
                    "MELVORA_SOUNDFONT": "/usr/share/sounds/sf2/TimGM6mb.sf2"}
        self.env.pop("MELVORA_HOST_ADDRESS", None)
        self.address = runtime / "melvora/host"

    def program(self, name):
        return str(self.build / "bin" / name)

    def start(self, name):
        return Program(self.build, [self.program(name)], self.env)

    def hidden_host(self, data):
        """A host that has started its module and shows no window."""
        host = subprocess.Popen(
            [self.program("melvora"), "--data", str(data), "--start", "zepha9"], env=self.env)
        limit = time.monotonic() + 10
        while not self.listening():
            if host.poll() is not None or time.monotonic() > limit:
                raise RuntimeError("melvora does not start")
            time.sleep(0.01)
        return host

    def listening(self):
        with socket.socket(socket.AF_UNIX) as link:
            return link.connect_ex(str(self.address)) == 0

    def rows(self, runs, idle):
        starts = {"empty_window": [], "melvora": [], "zepha9": []}
        memory = {name: [] for name in starts}

        def measure(name):
            program = self.start(name)
            starts[name].append((program.mapped, program.painted))
            time.sleep(0.5)
            memory[name].append(resident(program.pid))
            program.end()

        # The first start of each only fills the caches.
        for _ in range(runs + 1):
            measure("empty_window")
            measure("melvora")
        host = self.hidden_host(self.folder / "idle")
        try:
            for _ in range(runs + 1):
                measure("zepha9")
            module = self.start("zepha9")
            empty = self.start("empty_window")
            pids = {"melvora": host.pid, "zepha9": module.pid, "empty_window": empty.pid}
            time.sleep(2)
            before = {name: ticks(pid) for name, pid in pids.items()}
            time.sleep(idle)
            used = {name: ticks(pid) - before[name] for name, pid in pids.items()}
            module.end()
            empty.end()
        finally:
            end(host)

        titles = {"empty_window": "empty window", "melvora": "melvora",
                  "zepha9": "zepha9, host running"}
        base = statistics.median(painted for _, painted in starts["empty_window"][1:])
        for name, title in titles.items():
            mapped, painted = (statistics.median(column) for column in zip(*starts[name][1:]))
            yield (f"start of {title}", f"{painted:.0f} ms",
                   f"median of {runs}, until the window is painted ({mapped:.0f} ms until it is "
                   f"mapped); empty window {painted - base:+.0f} ms")
        for name, title in titles.items():
            rss, pss = (statistics.median(column) for column in zip(*memory[name][1:]))
            yield f"memory of {title}", f"{rss:.0f} MB", f"resident; {pss:.0f} MB proportional"
        for name, title in titles.items():
            yield (f"idle of {title}", f"{used[name]} ticks",
                   f"of {1000 // TICKS} ms, processor time in {idle} s")

    def tool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.env, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout

    def enter(self, title):
        """Waits for a window, and presses Enter in it."""
        limit = time.monotonic() + 20
        while not (found := self.tool("search", "--onlyvisible", "--name", title).split()):
            if time.monotonic() > limit:
                raise RuntimeError(f"no window {title}")
            time.sleep(0.05)
        self.tool("windowfocus", "--sync", found[0])
        time.sleep(0.3)
        self.tool("key", "Return")

    def playing_row(self):
        host = subprocess.Popen(
            [self.program("melvora"), "--data", str(self.folder / "playing"), "--language",
             "English", "--start", "zepha9"],
            env={**self.env, "MELVORA_MODULE_PATH": str(self.build / "bin")})
        try:
            for title in ("Scales: Basic settings", "Identify scales: Setup", "^Identify scales$"):
                self.enter(title)
            time.sleep(3)
            module, = Path(f"/proc/{host.pid}/task/{host.pid}/children").read_text().split()
            rss, pss = resident(module)
            end_softly(int(module))
        finally:
            end(host)
        return ("memory of zepha9, playing on the worksheet", f"{rss:.0f} MB",
                f"resident; {pss:.0f} MB proportional")

    def record_rows(self, calls, many):
        for count in (1, many):
            data = self.folder / f"records{count}"
            for round_ in ("fill", "measure"):
                host = self.hidden_host(data)
                try:
                    output = subprocess.run(
                        [self.program("record_times"), "1" if round_ == "fill" else str(calls)],
                        env=self.env, text=True, stdout=subprocess.PIPE, check=True,
                        timeout=300).stdout
                finally:
                    end(host)
                if round_ == "fill":
                    self.multiply(data, count)
            for what, line in zip(("STORE", "READ"), output.splitlines()):
                median, late = map(float, line.split())
                yield (f"{what} through D-Bus, {count:,} record{'s' if count > 1 else ''}",
                       f"{median:.2f} ms", f"median of {calls}; 99 of 100 within {late:.2f} ms")

    @staticmethod
    def multiply(data, count):
        """Makes the one record of a host that has ended `count` records."""
        with sqlite3.connect(data / "melvora.sqlite") as database:
            database.execute(
                "WITH RECURSIVE n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
                " INSERT INTO records (user_key, executable, record_key, content, stored_at)"
                " SELECT 'user' || i, executable, record_key, content, stored_at"
                " FROM n, (SELECT * FROM records LIMIT 1) WHERE i <= ?", (count, count))
            held, = database.execute("SELECT count(*) FROM records").fetchone()
        database.close()
        if held != count:
            raise RuntimeError(f"{held} records in place of {count}")


def rows(build, quick):
    if shutil.which("Xvfb") is None:
        yield "programs", "not measured", "Xvfb is not installed"
        return
    with tempfile.TemporaryDirectory(prefix="melvora-bench") as folder, Display() as display:
        bench = Bench(Path(build).resolve(), display, Path(folder))
        yield from bench.rows(3 if quick else 9, 3 if quick else 10)
        if shutil.which("xdotool"):
            yield bench.playing_row()
        yield from bench.record_rows(100 if quick else 500, 1000 if quick else 100000)
