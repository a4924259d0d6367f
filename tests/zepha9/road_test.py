#!/usr/bin/env python3
"""The road of a user through both programs, in real windows: usage road_test.py BINARIES

Needs Xvfb and xdotool. Every test has a screen, a data folder and a socket of its own.
"""
import ctypes
import json
import os
import pathlib
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest
import wave

BINARIES = pathlib.Path(sys.argv.pop(1))
FONT = "/usr/share/sounds/sf2/TimGM6mb.sf2"  # whatever other instruments the machine has
PATIENCE = 60  # seconds until something that must happen counts as missing


def until(what, true, patience=PATIENCE):
    end = time.monotonic() + patience
    while time.monotonic() < end:
        found = true()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"{what}: not within {patience} s")


def children(process):
    """The processes that it has started, or adopted, and that have not been waited for."""
    return [int(child) for thread in pathlib.Path(f"/proc/{process}/task").glob("*/children")
            for child in thread.read_text().split()]


class Road(unittest.TestCase):
    display = 90 + os.getpid() % 400

    def setUp(self):
        Road.display += 1
        self.folder = tempfile.TemporaryDirectory()
        self.home = pathlib.Path(self.folder.name)
        self.data = self.home / "data"
        self.wav = self.home / "sound.wav"
        self.environment = dict(
            os.environ, DISPLAY=f":{self.display}", HOME=str(self.home), QT_QPA_PLATFORM="xcb",
            XDG_RUNTIME_DIR=str(self.home), MELVORA_HOST_ADDRESS=f"unix:path={self.home}/host",
            MELVORA_AUDIO_DRIVER="file", MELVORA_AUDIO_FILE=str(self.wav), MELVORA_SOUNDFONT=FONT)
        self.programs = []
        self.start("Xvfb", f":{self.display}", "-screen", "0", "1024x768x24", "-noreset")
        until("a screen", lambda: self.tool("getmouselocation") is not None)

    def tearDown(self):
        for module in [m for p in self.programs for m in children(p.pid)]:
            os.kill(module, signal.SIGKILL)
        for program in reversed(self.programs):
            program.kill()
            program.wait()
        for orphan in children(os.getpid()):
            os.kill(orphan, signal.SIGKILL)
            os.waitpid(orphan, 0)
        self.folder.cleanup()

    def start(self, program, *arguments):
        path = BINARIES / program
        command = [str(path) if path.exists() else program, *arguments]
        self.programs.append(subprocess.Popen(
            command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        return self.programs[-1]

    def tool(self, *arguments):
        done = subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True,
                              text=True, check=False)
        return done.stdout if done.returncode == 0 else None

    def window(self, name):
        """Waits for a window and gives it the keys."""
        found = until(name, lambda: self.tool("search", "--onlyvisible", "--name", name)).split()[0]
        self.tool("windowfocus", "--sync", found)
        return found

    def key(self, *keys):
        for key in keys:
            self.tool("key", key)
            time.sleep(0.15)

    def rows(self, query):
        with sqlite3.connect(self.data / "melvora.sqlite") as store:
            return store.execute(query).fetchall()

    def host(self, *arguments):
        return self.start("melvora", "--data", str(self.data), "--language", "English", *arguments)

    def play_a_task(self):
        """From the start form to a worksheet whose first task has sounded."""
        self.window("Scales: Basic settings")
        self.key("Return")
        self.window("Identify scales: Setup")
        self.key("Return")
        self.window("^Identify scales$")
        self.key("Return")
        time.sleep(12.8)

    def test_from_the_menu_to_a_kept_result(self):
        self.host("--start", "zepha9")
        self.play_a_task()
        self.key("1", "2", "3", "4", "5", "6", "7")  # four wrong ones close it, if none is right
        self.key("Escape")
        self.window("Identify scales: Setup")
        self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        self.window("Melvora")
        results = until("a result", lambda: self.rows("SELECT exercise, answered, content FROM results"))
        self.assertEqual(len(results), 1)
        self.assertEqual(results[0][:2], ("identify", 1))
        self.assertIn('programm="ZEPHA9"', results[0][2])
        self.assertEqual(list((self.data / "spool").iterdir()), [])
        log = [row[0] for row in self.rows("SELECT content FROM log WHERE kind = 'message'")]
        self.assertIn("zepha9; uebungs_typ=1", log)
        self.assertEqual(self.rows("SELECT content FROM log WHERE kind = 'error'"), [])
        with wave.open(str(self.wav)) as sound:
            frames = sound.readframes(sound.getnframes())
        self.assertGreater(max(frames), 0, "the task was heard")
        until("the module's end", lambda: not any(children(p.pid) for p in self.programs))
        self.key("Return")  # back in the menu the way on has the focus again
        self.window("Scales: Basic settings")

    def train(self, mode):
        """From the start form through one task of a training, which is saved. mode: 1 new, 2 goes on."""
        self.window("Scales: Basic settings")
        self.key("Return")
        setup = self.window("Identify scales: Setup")
        self.tool("mousemove", "--window", setup, "820", "62", "click", "1")
        time.sleep(0.5)
        self.key(*["Down"] * mode, "Return", "Return")
        self.window("^Identify scales$")
        self.key("Return")
        time.sleep(12.8)
        self.key("1", "2", "3", "4", "5", "6", "7", "Escape")
        self.window("Save training")
        self.key("Return")
        self.window("Identify scales: Setup")
        self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        self.window("Melvora")
        records = dict(self.rows("SELECT record_key, content FROM records"))
        return json.loads(records["A1"])

    def test_a_training_goes_on_after_a_restart_of_both_programs(self):
        host = self.host("--start", "zepha9")
        state = self.train(1)
        self.assertEqual((state[0], len(state)), ("true", 6 * 14 + 4))
        host.terminate()
        host.wait()
        self.host("--start", "zepha9")
        later = self.train(2)
        tasks = [sum(float(t) for t in s[30:-3:4]) for s in (state, later)]
        self.assertEqual(tasks, [1, 2], "the second start took up the table of the first")

    def choose(self, theory, write):
        """From the start form to the set-up form of a branch and kind: its window, its kind."""
        start = self.window("Scales: Basic settings")
        for wanted, x in ((theory, 104), (write, 370)):
            self.tool("mousemove", "--window", start, str(x), "224" if wanted else "192", "click", "1")
            time.sleep(0.2)
        self.key("Return")
        kind = "Write scales" if write else "Identify scales"
        return self.window(f"{kind}: Setup"), kind

    def drag(self, window, source, target):
        self.tool("mousemove", "--window", window, *map(str, source))
        self.tool("mousedown", "1")
        for step in range(1, 6):
            self.tool("mousemove", "--window", window, *(
                str(int(a + (b - a) * step / 5)) for a, b in zip(source, target)))
            time.sleep(0.04)
        time.sleep(0.1)
        self.tool("mouseup", "1")
        time.sleep(0.2)

    def test_a_dragged_accidental_changes_the_note_and_can_be_handed_in(self):
        self.host("--start", "zepha9")
        _, kind = self.choose(False, True)
        self.key("Return")
        sheet = self.window(f"^{kind}$")
        self.key("Return")
        time.sleep(13)
        heights = range(150, 340, 25)  # some of them lie between the limits of the task
        for height in heights:
            self.drag(sheet, (762, 60), (623, height))  # a double sharp is never right
        self.key("Return", "Return")  # wrong; a second time nothing happens
        for height in heights:
            self.drag(sheet, (659, 60), (623, height))
        self.key("Return", "Escape")
        self.window(f"{kind}: Setup")
        self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        results = until("a result", lambda: self.rows("SELECT content FROM results"))
        self.assertEqual(results[0][0].count('key="Antwort"'), 2, results[0][0])

    def test_music_theory_from_the_menu_to_its_results_and_back(self):
        self.host("--start", "zepha9")
        for write in (False, True):
            setup, kind = self.choose(True, write)
            self.tool("mousemove", "--window", setup, "820", "62", "click", "1")
            time.sleep(0.5)
            self.key("Down", "Return", "Return")
            self.window(f"^{'Write' if write else 'Identify'} scales$")
            self.key("Return")
            for _ in range(60):  # until the training is lost
                if write:
                    for change in ("Up", "Up", "Down", "Down"):
                        self.tool("key", "--delay", "40", change, "Return")
                else:
                    self.tool("key", "--delay", "25", *"7654321")
                self.tool("key", "--delay", "40", "Return")  # on, or to the result
                time.sleep(0.6)
                if self.tool("search", "--onlyvisible", "--name", "scales: Result"):
                    break
            self.window("scales: Result")
            self.key("Return")
            self.window(f"{kind}: Setup")
            self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        self.window("Melvora")
        results = until("both results", lambda: self.rows("SELECT exercise FROM results")[1:])
        self.assertEqual(len(results), 1)
        self.assertFalse(self.wav.exists(), "nothing sounded")

    def test_a_settings_file_leads_to_its_form(self):
        file = self.home / "exam.mvs"
        file.write_bytes(b"""<?xml version="1.0" encoding="ISO-8859-1" ?>
<test><basic><modul>VESHNA</modul><type>1</type></basic><setting>
<control title="Tempo#var"><cname>temp_Combo</cname><value>9</value></control>
</setting></test>""")
        self.host("--teacher", str(file))
        self.window("Identify scales: Setup")

    def test_a_run_outlives_its_host(self):
        host = self.host("--start", "zepha9")
        self.play_a_task()
        host.send_signal(signal.SIGKILL)
        host.wait()
        self.key("1", "2", "3", "4", "5", "6", "7", "Escape")
        self.window("Identify scales: Setup")
        kept = list((self.data / "spool").glob("RSX*.xml"))
        self.assertEqual(len(kept), 1, "the record waits for the next host")
        self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        self.host()
        until("the record", lambda: self.rows("SELECT 1 FROM results"))
        self.assertFalse(kept[0].exists())

    def test_the_menu_returns_when_the_module_dies(self):
        host = self.host("--start", "zepha9")
        self.window("Scales: Basic settings")
        [module] = children(host.pid)
        os.kill(module, signal.SIGKILL)
        self.window("Melvora")

    def test_without_the_sound_library_the_module_is_silent_and_says_so(self):
        modules = self.home / "modules"
        modules.mkdir()
        shutil.copy(BINARIES / "zepha9", modules)
        self.environment.update(MELVORA_MODULE_PATH=str(modules),
                                MELVORA_I18N=str(BINARIES / "../share/melvora/i18n"))
        self.host("--start", "zepha9")
        self.window("Scales: Basic settings")
        self.key("Return")
        self.window("Identify scales: Setup")
        self.key("Return")
        self.window("^Identify scales$")
        self.key("Return", "Escape")
        self.window("Identify scales: Setup")
        self.key("Escape")
        self.window("Scales: Basic settings")
        self.key("Escape")
        until("a result", lambda: self.rows("SELECT 1 FROM results"))
        log = [row[0] for row in self.rows("SELECT content FROM log")]
        self.assertEqual(sum("libmelvora-synth.so" in line for line in log), 1, log)

    def test_without_a_host_the_module_says_so_and_ends(self):
        module = self.start("zepha9")
        self.window("Melvora 2000")
        self.key("Return")
        self.assertEqual(module.wait(PATIENCE), 9)


if __name__ == "__main__":
    # A module whose host was killed comes to this process, which ends it.
    PR_SET_CHILD_SUBREAPER = 36
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    unittest.main()
