"""What the soaks share: the two programs in a place of their own, callers of the host, measures of a
process, and the row that each part prints."""
import argparse
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

from jeepney import DBusAddress, HeaderFields, MessageType, new_method_call
from jeepney.io.blocking import DBusConnectionBase, prep_socket

# Between peers nobody looks at the name of the bus; the library wants one.
HOST = DBusAddress("/Host", bus_name="org.melvora.Host", interface="org.melvora.Host1")
FONT = "/usr/share/sounds/sf2/TimGM6mb.sf2"


def until(true, patience=30.0, pause=0.02):
    """What `true` gives as soon as it is not false; None when that does not come in time."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        if found := true():
            return found
        time.sleep(pause)
    return None


def carried(value):
    """A Python value as the (signature, value) of a D-Bus variant."""
    if isinstance(value, bool):
        return "b", value
    if isinstance(value, int):
        return "x", value
    if isinstance(value, float):
        return "d", value
    if isinstance(value, str):
        return "s", value
    return "av", [carried(item) for item in value]


def plain(variant):
    """The other way: a variant that has come, without its signatures."""
    signature, value = variant
    return [plain(item) for item in value] if signature == "av" else value


class Caller(DBusConnectionBase):
    """One connection to a host, as a module has it. Ends with `close`."""

    def __init__(self, socket, patience=10.0):
        super().__init__(prep_socket(str(socket), timeout=patience))
        self.sock.settimeout(patience)  # a host that hangs takes nothing off the line

    def send(self, key, argument="", standard=""):
        """Asks and does not wait. @return the call's serial number"""
        call = new_method_call(HOST, "Request", "svv", (key, carried(argument), carried(standard)))
        serial = next(self.outgoing_serial)
        self.sock.sendall(call.serialise(serial=serial))
        return serial

    def request(self, key, argument="", standard="", patience=10.0):
        """@return (carried out?, result)  @raise TimeoutError, ConnectionError"""
        return self.answer(self.send(key, argument, standard), patience)

    def answer(self, serial, patience=10.0):
        """What was answered to a call that was sent; answers to earlier calls are passed over."""
        end = time.monotonic() + patience
        while True:
            message = self._receive(end)
            if message.header.fields.get(HeaderFields.reply_serial) == serial:
                break
        if message.header.message_type is MessageType.error:
            raise ConnectionError(str(message.body))
        answer, result = message.body
        return answer, plain(result)


class Place:
    """A home, a socket and a data folder that nobody else uses. A context: what was started in it
    ends with it."""

    prefix = ()  # command that starts a program, for example with fewer rights

    def __init__(self, binaries, **environment):
        self.binaries = pathlib.Path(binaries).resolve()
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="soak-"))
        self.data = self.home / "data"
        self.spool = self.data / "spool"
        self.store = self.data / "melvora.sqlite"
        self.socket = self.home / "run" / "melvora" / "host"
        self.socket.parent.parent.mkdir(mode=0o700)
        self.environment = {
            **{name: value for name, value in os.environ.items()
               if name not in ("DISPLAY", "MELVORA_HOST_ADDRESS", "XDG_DATA_HOME")},
            "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home / "run"),
            "QT_QPA_PLATFORM": "offscreen", "MELVORA_AUDIO_DRIVER": "none",
            "MELVORA_SOUNDFONT": FONT, "LC_ALL": "C.UTF-8", **environment}
        self.started = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for program in reversed(self.started):
            if program.poll() is None:
                program.kill()
            program.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    def start(self, program, *arguments, **environment):
        """Starts one of the project's programs; its output goes to the file `output`."""
        output = open(self.home / "output", "ab")
        self.started.append(subprocess.Popen(
            [*self.prefix, str(self.binaries / program), *arguments],
            env={**self.environment, **environment}, stdin=subprocess.DEVNULL, stdout=output,
            stderr=output))
        output.close()
        return self.started[-1]

    def screen(self, size="1024x768"):
        """A screen of its own with a window manager, for programs that are started from here on."""
        told, teller = os.pipe()
        self.started.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(teller), "-screen", "0", f"{size}x24", "-noreset"],
            pass_fds=[teller], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(teller)
        with os.fdopen(told) as number:
            display = ":" + number.readline().strip()
        self.environment.update(DISPLAY=display, QT_QPA_PLATFORM="xcb")
        self.started.append(subprocess.Popen(
            ["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL))
        until(lambda: self.tool("get_num_desktops"))  # before it is there, windows may get lost

    def tool(self, *arguments):
        """What xdotool says; "" when it fails."""
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment,
                              capture_output=True, text=True, check=False)
        return done.stdout.strip() if done.returncode == 0 else ""

    def host(self, *arguments, patience=30.0, **environment):
        """A host that answers."""
        host = self.start("melvora", "--data", str(self.data), *arguments, **environment)
        assert until(lambda: host.poll() is None and self.answers(), patience), self.output()
        return host

    def answers(self):
        try:
            caller = Caller(self.socket)
            try:
                return caller.request("LANG")[0]
            finally:
                caller.close()
        except (OSError, TimeoutError):
            return False

    def caller(self):
        return Caller(self.socket)

    def output(self):
        """What the programs have written."""
        try:
            return (self.home / "output").read_text(errors="replace")
        except FileNotFoundError:
            return ""


def memory(process):
    """Megabytes of memory in use: (now, the most so far)."""
    status = pathlib.Path(f"/proc/{process}/status").read_text()
    fields = dict(line.split(":", 1) for line in status.splitlines())
    return tuple(int(fields[name].split()[0]) / 1024 for name in ("VmRSS", "VmHWM"))


def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def descriptors(process):
    return len(os.listdir(f"/proc/{process}/fd"))


def children(process):
    """The processes that it has started, or adopted, and that have not been waited for."""
    try:
        return [int(child) for thread in pathlib.Path(f"/proc/{process}/task").glob("*/children")
                for child in thread.read_text().split()]
    except OSError:  # it has ended meanwhile
        return []


def arguments(description, extend=lambda options: None):
    """What the command line says; chance begins with its seed. @param extend adds what only one part
    has"""
    options = argparse.ArgumentParser(description=description)
    options.add_argument("--bin", required=True, help="folder of the programs")
    options.add_argument("--seconds", type=float, default=10, help="how long (default 10)")
    options.add_argument("--seed", type=int, default=int(time.time()),
                         help="the same seed makes the same choices (default: the time)")
    extend(options)
    given = options.parse_args()
    random.seed(given.seed)
    return given


class Report:
    """Rows of the table of script/soak, one to a thing that was tried. The program's exit status is
    1 when one of them did not hold."""

    def __init__(self):
        self.held = True

    def row(self, what, tried, held, figures=""):
        """@param tried how often, with its unit  @param figures what was measured"""
        self.held = self.held and bool(held)
        print(what, tried, "held" if held else "FAILED", figures, sep="\t", flush=True)

    def end(self):
        sys.exit(0 if self.held else 1)
