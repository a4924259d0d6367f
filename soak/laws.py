#!/usr/bin/env python3
"""Random exercises through the simulator; what the drill must do with each is computed anew from
the tables of music and held against its trace, its summary and its record."""
import collections
import concurrent.futures
import itertools
import json
import math
import os
import pathlib
import random
import re
import subprocess
import tempfile
import time
import xml.etree.ElementTree as ElementTree

import suite

# Semitones above the first tone. A rotating category is one pattern that each scale begins on
# another degree of; the others have one pattern for each scale.
ROTATING = {0: (0, 2, 4, 5, 7, 9, 11), 1: (0, 2, 3, 5, 7, 9, 11), 4: (0, 2, 4, 7, 9)}
OWN = {
    2: ("0 2 3 5 7 8 10 12", "0 2 3 5 7 8 11 12", "0 1 4 5 7 8 10 12", "0 2 4 5 7 8 11 12",
        "0 2 3 5 7 9 11 12", "0 1 3 5 7 8 10 12", "0 2 3 6 7 8 11 12", "0 1 4 5 7 8 11 12"),
    3: ("0 1 3 4 5 7 8 10 12", "0 1 3 4 6 8 9 11 12", "0 2 3 5 6 8 9 11 12",
        "0 1 3 4 6 7 9 10 12", "0 2 4 5 7 9 10 11 12", "0 2 4 5 7 8 9 11 12",
        "0 1 2 5 6 7 8 11 12", "0 2 4 5 6 8 10 11 12"),
    5: ("0 3 5 6 7 10 12", "0 2 4 6 8 10 12", "0 1 5 6 7 11 12", "0 1 3 5 8 10 12",
        "0 3 5 7 8 10 12", "0 2 3 5 7 10 12", "0 2 5 7 9 10 12", "0 2 4 5 9 9 12",
        "0 2 4 7 9 11 12"),
    6: ("0 2 4 5", "0 1 4 5", "0 1 3 5", "0 1 2 5", "0 3 4 5", "0 2 3 5", "0 2 4 6", "0 2 5 6",
        "0 3 4 6", "0 3 5 6"),
}
WORDS = {0: (344, 203, 435, 377, 402, 115, 375), 1: (386, 204, 378, 403, 404, 376, 528),
         2: (460, 314, 315, 313, 386, 406, 637, 636), 3: (241, 242, 264, 309, 147, 148, 387, 389),
         5: (163, 266, 388, 441, 444, 442, 440, 443, 445)}
NAMES = {typ: tuple(f"W{word}" for word in words) for typ, words in WORDS.items()}
NAMES |= {typ: tuple(f"W426 {i + 1}" for i in range(count)) for typ, count in ((4, 5), (6, 10))}
# Tunings, in steps of the upper seven bits of a bend: by degree, and by pitch class.
PYTHAGOREAN = {0: (-2, -1, 1, -3, -1, 0, 1), 1: (-2, -1, 4, -3, -1, 0, 1)}
MEANTONE = (5, 2, 6, 3, 1, 4, 2, 6, 9, 0, 4, 1)
QUARTERS = (2000, 1500, 1000, 750, 600, 500, 428, 375, 333, 300)  # milliseconds
# Exams by their number: (tempo, direction).
EXAMS = {1: (3, 0), 2: (3, 1), 3: (3, 2), 4: (5, 2), 5: (7, 2)}
C = 15  # on the line of fifths
TRY, TRAINING, CONTINUED, TEST, EXAM = range(5)
AUTOMATIC = 1800  # milliseconds between two tasks that follow by themselves
GLANCE = 500  # milliseconds after which the learner goes on
BREATH = 50  # milliseconds of silence between what is said to the device
PATIENCE = 60  # seconds for the runs of one set-up
RUNS = (5, 40)  # of one set-up
MEAN_RUNS = sum(RUNS) // 2
PATCHES = "".join(
    f'{{"e":"midi","t":@,"status":{192 + i},"data1":0,"data2":0,"time":-1}}\n' for i in range(9))


def semitones(typ, scale):
    """The steps of a scale above its first tone."""
    if typ in OWN:
        return tuple(map(int, OWN[typ][scale].split()))
    base = ROTATING[typ]
    return (*((tone - base[scale]) % 12 for tone in base[scale:] + base[:scale]), 12)


STEPS = {typ: tuple(semitones(typ, i) for i in range(len(NAMES[typ]))) for typ in NAMES}
# Each degree of the major scale on the line of fifths, above the first.
FIFTHS = (0, 2, 4, -1, 1, 3, 5)
# By place on the line of fifths modulo 7 (F, C, G, D, A, E, B): diatonic steps above C.
LETTER = (3, 0, 4, 1, 5, 2, 6)


def half_even(value):
    return round(value)


def bad_leap(a, b):
    return abs(b - a) in (6, 9, 10, 11) or b - a == 8


def height(midi, fifths, bass):
    """Where a note lies on its staff, in pixels from the top."""
    steps = LETTER[fifths % 7] + (7 if fifths in (1, 8) else -7 if fifths in (27, 34) else 0)
    octave = midi // 12
    y = 144 - ((octave - 2) * 28 + 20 if bass else (octave - 5) * 28 + 40) - 4 * steps
    return y + 28 if not bass and y < 20 else y


class Broken(Exception):
    """A law does not hold."""


class Laws:
    """Which laws were looked at and how often, and what broke one."""

    def __init__(self):
        self.looked = collections.Counter()

    def __call__(self, law, holds, *seen):
        self.looked[law] += 1
        if not holds:
            raise Broken(f"{law}: " + ", ".join(map(str, seen)))


class SetUp:
    """One exercise that the drill's forms could have set up, as the command line asks for it."""

    def __init__(self, chance):
        self.form = chance.choice(("arbeitsblatt1", "arbeitsblatt1", "arbeitsblatt1b",
                                   "arbeitsblatt4", "arbeitsblatt4b"))
        self.theory = self.form.endswith("b")
        self.writes = "4" in self.form
        self.sounds = not self.theory
        self.through = chance.random() < 0.3
        self.keep = False
        self.mode = mode = chance.choices((TRY, TRAINING, TEST, EXAM), (1, 4, 2, 2))[0]
        spelled = self.theory or self.writes
        typ = 0 if spelled else chance.randrange(7)
        melody = int(typ < 2 and chance.random() < 0.25)
        f = self.fields = {"skal_typ": typ, "uebungsmodus": mode, "abfolge": melody}
        f["abfrage"] = 1 if mode == TEST else chance.randrange(2)
        f["richtung"] = 0 if melody else chance.randrange(3)
        f["final"] = 2 if spelled else chance.choice((0, 1, 2) if typ in ROTATING else (1, 2))
        f["oktAnz"] = chance.randrange(4)
        octave = chance.randrange(4 - f["oktAnz"])
        f["FrquMinAkt"] = 36 + 12 * octave
        f["FrquMaxAkt"] = f["FrquMinAkt"] + 12 * (f["oktAnz"] + (1 if self.theory else 2))
        f["tempoIdx"] = chance.randrange(10) if self.sounds else 1
        f["frequenz"] = chance.randrange(2) if self.sounds else 0
        f["stimmung"] = chance.randrange(3) if self.sounds and typ < 2 else 0
        f["an_zeig"] = int(self.theory) or (
            chance.randrange(2) if typ not in (4, 6) and not self.writes else 0)
        f["ska_ausw"] = 0
        f["prfNr"] = 1
        preset = mode == EXAM and (self.through or chance.random() < 0.5)
        if preset:
            f["prfNr"] = chance.randint(1, 5)
            f["tempoIdx"], f["richtung"] = EXAMS[f["prfNr"]]
            f["abfrage"], f["final"] = 1, 2
            if self.through:
                f["abfolge"] = 0  # locked before it could be chosen
        self.chosen = None
        if not preset and chance.random() < 0.4:
            f["ska_ausw"] = 1
            self.chosen = self.choice(chance)
        f["zufallsNr"] = chance.randint(1, 32767) if (
            mode == EXAM and not self.through and chance.random() < 0.2) else 0
        self.learn(chance)

    def choice(self, chance):
        """Scales chosen as the set-up form allows it: enough of them, and alike in number."""
        f = self.fields
        scales = len(NAMES[f["skal_typ"]])
        both = f["richtung"] == 2
        all_codes = [i * sign for i in range(1, scales + 1)
                     for sign in ((1, -1) if both else (-1,) if f["richtung"] == 1 else (1,))]
        more = f["final"] == 1
        while True:
            codes = sorted(chance.sample(all_codes, chance.randint(2, min(15, len(all_codes)))),
                           key=lambda code: (abs(code), -code))
            up = sum(code > 0 for code in codes)
            down = len(codes) - up
            if not both:
                enough = len(codes) >= 2 + more
            elif len(codes) < 4 + 2 * more:
                enough = False
            elif any(2 + more <= count <= 4 for count in (up, down)):
                enough = up == down
            else:
                enough = up >= 5 and down >= 5
            if enough:
                return codes

    def learn(self, chance):
        scales = len(NAMES[self.fields["skal_typ"]])
        kind = chance.choice(("perfect", "wrong", "random", "random", "random", "confuse", "slow",
                              "enharmonic"))
        self.think = 1000
        self.right = None  # chance of a right first answer
        if kind == "random":
            self.right = chance.choice((0.2, 0.5, 0.7, 0.8, 0.9, 0.95))
            self.learner = f"random:{self.right}"
        elif kind == "confuse":
            self.pair = chance.sample(range(scales), 2)
            self.learner = "confuse:{}:{}".format(*self.pair)
        elif kind == "slow":
            self.think = chance.choice((0, 1500, 2600, 3500, 4700, 7000, 12300, 30000))
            self.learner = f"slow:{self.think / 1000}"
            self.think = max(1, self.think)
        else:
            self.learner = kind
            self.right = {"perfect": 1.0, "wrong": 0.0, "enharmonic": None}[kind]
            if kind == "enharmonic" and not self.writes:
                self.right = 1.0
        surely_ends = self.right is not None and (self.right > 0.6 or self.right == 0)
        if self.mode == TRY or (self.mode == TRAINING and (
                not surely_ends or chance.random() < 0.5)):
            self.tasks = chance.randint(1, 60)
        else:
            self.tasks = chance.randint(1, 30) if chance.random() < 0.1 else 0
        self.keep = self.mode == TRAINING and self.tasks > 0 and chance.random() < 0.5
        self.runs = chance.randint(*RUNS)

    def arguments(self):
        """What a user of the simulator would write."""
        f = dict(self.fields)
        if self.through:
            for derived in ("FrquMaxAkt", "zufallsNr"):
                del f[derived]
            if self.mode != EXAM:
                del f["prfNr"]
            else:
                for locked in ("tempoIdx", "richtung", "abfrage", "final"):
                    del f[locked]
            if self.theory:
                for absent in ("tempoIdx", "frequenz", "stimmung", "an_zeig"):
                    f.pop(absent, None)
            if self.writes or self.theory:
                f.pop("final", None)
            if self.writes:
                f.pop("an_zeig", None)
            if f["abfolge"] == 1:
                f.pop("richtung", None)
            if self.mode == TEST:
                del f["abfrage"]
        if self.chosen:
            f["einzel_wahl"] = ",".join(map(str, self.chosen))
        self.given = f
        line = ["--form", self.form, "--learner", self.learner, "--tasks", str(self.tasks)]
        for field, value in f.items():
            line += ["--set", f"{field}={value}"]
        return line + ["--through-setup"] * self.through + ["--keep"] * self.keep


class Exercise:
    """What follows from a set-up, the same for each of its runs."""

    def __init__(self, setup):
        f = self.f = setup.fields
        self.setup = setup
        self.mode = setup.mode
        self.typ = f["skal_typ"]
        self.names = NAMES[self.typ]
        self.scales = len(self.names)
        self.tones = len(STEPS[self.typ][0])
        self.quarter = QUARTERS[f["tempoIdx"]]
        self.length = self.quarter * self.tones
        # Codes of the run in the order in which a training and an exam lay them out.
        both = f["richtung"] == 2
        sign = -1 if f["richtung"] == 1 else 1
        ordered = range(1, self.scales + 1)
        if setup.chosen:
            self.training = self.exam = setup.chosen
        elif both:
            self.training = [i * s for i in ordered for s in (-1, 1)]
            self.exam = [-i for i in ordered] + list(ordered)
        else:
            self.training = self.exam = [i * sign for i in ordered]
        self.codes = set(self.training)
        self.n = len(self.training)
        self.start_weight = 30 // self.n if 4 * self.n < 30 else 4
        self.limit = self.start_weight * self.n * 2
        self.errors = 4
        if setup.chosen and not setup.writes:
            different = len({abs(code) for code in setup.chosen})
            up = sum(code > 0 for code in setup.chosen)
            if not both:
                self.errors = min(4, different - 1)
            else:
                self.errors = 4 if up > 4 and self.n - up > 4 else up - 1
        self.basis = self.errors * 0.5
        self.free_time = 20 if setup.form == "arbeitsblatt1" else 35  # tenths of a second
        self.tasks, self.seconds, self.kept_scores = 0, 0, 4
        if self.mode >= TEST:
            self.tasks = 4 * self.n
            if self.duration(self.tasks) > 600:
                self.tasks = half_even(self.tasks * 3 / 4)
                self.tasks += self.tasks % 2
                self.kept_scores = 3
            if self.duration(self.tasks) < 180:
                self.tasks = half_even(self.tasks * 6 / 4)
            self.seconds = self.duration(self.tasks)

    def duration(self, tasks):
        """Seconds for an exam, in whole tens."""
        t = self.length * tasks // 1000 if self.setup.sounds else 0
        t += AUTOMATIC * tasks // 1000
        t = half_even(t + self.free_time * tasks / 10)
        return math.floor((t - 1) / 10 + 1) * 10

    def slot(self, code):
        return code if code > 0 else -code + self.scales


class Run:
    """One run, followed line by line."""

    def __init__(self, exercise, law, before):
        self.x = exercise
        self.law = law
        self.setup = exercise.setup
        self.f = exercise.f
        self.mode = exercise.mode if before is None else CONTINUED
        self.weights = [[code, exercise.start_weight] for code in exercise.training]
        self.bookings = collections.defaultdict(list)
        self.restored = before is not None
        if before:
            self.weights = [list(row) for row in before.weights]
            self.bookings = before.bookings
        self.box = None if self.restored else self.laid_out(0)
        self.bag = None
        self.left = exercise.tasks
        self.bar = None
        self.clocks = 0
        self.tasks = 0
        self.right_first = 0
        self.last = None  # scale and first note of the task before
        self.final = None
        self.lessons = []
        self.task = None
        self.closed = True
        self.ended = None  # what the run has come to
        self.result = None
        self.reason = None
        self.drawn_codes = []
        self.at = 0
        self.heavy = []

    # A training's box.

    def laid_out(self, shift):
        return [code for code, weight in self.weights for _ in range(weight + shift)]

    def sort_weights(self):
        rows = self.weights
        for i in range(len(rows)):
            for j in range(i + 1, len(rows)):
                if rows[j][1] > rows[i][1]:
                    rows[i], rows[j] = rows[j], rows[i]
        total = sum(itertools.takewhile(lambda weight: weight > 0, (row[1] for row in rows)))
        if 0 < total < self.x.n * 8 - 1:
            least = rows[-1][1]
            self.box = self.laid_out(abs(least) + 1 if least < 1 else 0)
        return total

    # The lines.

    def begin(self, e):
        law, x = self.law, self.x
        for field, value in self.f.items():
            if field == "prfNr" and not self.setup.through and self.mode != EXAM:
                continue
            wanted = self.mode if field == "uebungsmodus" else value
            law("fields of the run", e[field] == wanted, field, e[field], wanted)
        law("scales, tones and codes",
            (e["skal_anz"], e["tonAnz"], e["n"]) == (x.scales - 1, x.tones, x.n), e)
        law("chosen scales", e.get("einzel_wahl") == self.setup.chosen, e.get("einzel_wahl"))
        law("exam: tasks and time", (e["pruefAufgaben"], e["restZeit"]) == (x.tasks, x.seconds), e,
            x.tasks, x.seconds)
        if self.restored:
            self.sort_weights()

    def draw_task(self, e):
        law, x, f = self.law, self.x, self.f
        self.task = e
        law("a task follows a closed one", self.closed and self.ended is None)
        if self.tasks:
            pause = AUTOMATIC if f["abfrage"] else GLANCE
            law("when the next task comes", e["t"] == self.at + pause, e["t"], self.at)
        else:
            self.start = e["t"] - (AUTOMATIC if f["abfrage"] else GLANCE)
        self.tasks += 1
        self.closed = False
        scale, direction = e["skala_nr"], e["akt_richtung"]
        self.code = code = (scale + 1) * direction
        self.drawn_codes.append((code, e["noten"][0]))
        law("a scale of the choice", code in x.codes and direction in (1, -1), code)
        law("category", e["skal_typ"] == x.typ)
        self.draw_from_box(e)
        notes = e["noten"]
        law("steps of the scale",
            tuple(note - notes[0] for note in notes) == STEPS[x.typ][scale], notes, scale)
        if "SchlZ" in e:
            self.check_spelling(e, scale, notes)
        else:
            self.check_key(e, scale, notes)
        self.check_tuning(e, scale, notes)
        law("not the same twice", self.last != (scale, notes[0]), self.last)
        self.last = (scale, notes[0])
        if f["abfolge"] == 1:
            self.check_melody(notes, e["ton_abfolg"], scale)
            self.order = e["ton_abfolg"]
        else:
            self.order = range(x.tones) if direction == 1 else range(x.tones - 1, -1, -1)
        self.staff = {}
        self.shown = 0
        self.tries = self.repeats = self.spent = 0
        self.wrong = []
        self.plays = 0
        self.fine = None
        self.open_at = None if self.setup.sounds else e["t"]
        self.since = self.open_at
        self.at = e["t"]
        self.answers = []
        self.lessons.append((x.names[scale], self.answers))

    def draw_from_box(self, e):
        law, x = self.law, self.x
        box = e["matbox"]
        if self.mode == TRY:
            return
        law("rows of the box", e["matboxanz"] == len(box), e["matboxanz"], len(box))
        if self.mode <= CONTINUED:
            if self.box is None:
                self.box = box
            law("the box follows from the weights", box == self.box, box, self.box)
            law("each weight has its place", set(box) <= x.codes)
            if (self.bar or 50) >= 20 and self.f["final"] == 2:
                counts = collections.Counter(box)
                size = len(box)
                squares = sum(count * count for count in counts.values()) / size
                cubes = sum(count ** 3 for count in counts.values()) / size
                self.heavy.append((counts[self.code] - squares, cubes - squares ** 2, squares,
                                   size / len(counts)))
            return
        half = x.tasks // 2
        law("size of the bag", len(box) == half, len(box), half)
        if self.bag is None:
            wanted = list(x.exam)
            wanted[wanted.index(self.code)] = 0
            law("each half begins with every scale", box[:x.n] == wanted, box, wanted)
            law("what fills the bag up", set(box[x.n:]) <= x.codes, box)
        else:
            wanted = list(self.bag)
            if self.code in wanted:
                wanted[wanted.index(self.code)] = 0
            law("what is drawn is out of the bag", box == wanted, box, wanted)
        self.bag = box

    def check_key(self, e, scale, notes):
        """A sounding scale takes any transposition."""
        law, f, x = self.law, self.f, self.x
        key, first = e["transp"], notes[0]
        base = ROTATING[x.typ][scale] if x.typ in ROTATING else 0
        law("first note of the key", (first - key - base) % 12 == 0, first, key)
        if f["final"] == 2:
            law("a key of its own", 1 <= key <= 11, key)
        else:
            fixed = first % 12 if f["final"] == 1 else key
            self.final = self.final or fixed
            law("one final, or one signature", fixed == self.final and fixed, fixed, self.final)
        lowest = f["FrquMinAkt"]
        law("limits of the octaves",
            lowest <= first <= lowest + 12 * f["oktAnz"] + 11 and notes[-1] <= f["FrquMaxAkt"],
            notes)

    def check_spelling(self, e, scale, notes):
        """A spelled scale stands in a key of the circle of fifths."""
        law, f = self.law, self.f
        key = e["quintLage"] if self.setup.writes else e["vzAnz"]
        spelled = e["notenQz"] if self.setup.writes else e["tonPos"]
        if self.setup.writes:
            law("keys that are written", 1 <= abs(key) <= 6, key)
        else:
            law("keys that are shown", -7 <= key <= 7, key)
        law("notes of the key", all(-1 <= q - key - C <= 5 for q in spelled), spelled, key)
        law("the scale's place in its key", spelled[0] == key + C + FIFTHS[scale], spelled, scale)
        letters = [LETTER[q % 7] for q in spelled]
        law("letter by letter",
            all((b - a) % 7 == 1 for a, b in itertools.pairwise(letters)), letters)
        law("spelling and sound",
            all((7 * q + 3) % 12 == note % 12 for q, note in zip(spelled, notes)), spelled, notes)
        law("pitch class of the key", e["transp"] == notes[0] % 12, e["transp"])
        first = spelled[0]
        if self.setup.writes:
            high = letters[0] == 6
        else:
            high = first in (1, 8) or (letters[0] > 3 and first not in (27, 34))
        octave = notes[0] - notes[0] % 12 - f["FrquMinAkt"] + 12 * high
        law("limits of the octaves", octave % 12 == 0 and 0 <= octave // 12 <= f["oktAnz"], notes)
        law("clef", e["SchlZ"] == (1 if notes[-1] < 67 else 0), notes)
        if self.setup.writes:
            inside = range(1, len(notes) - 1)
            law("what stands there at first",
                all(e["zeigQz"][k] == (q if k not in inside else q % 7 + 14)
                    and e["zeigNoten"][k] == notes[k] + (e["zeigQz"][k] - q) // 7
                    for k, q in enumerate(spelled)), e["zeigQz"], e["zeigNoten"])
            self.expected = list(zip(notes, spelled))
            self.first_shown = list(zip(e["zeigNoten"], e["zeigQz"]))
            tonic = FIFTHS[scale] + key  # of the mode, in fifths from C
            natural = -1 <= tonic <= 5
            if -1 <= key <= 5:
                self.signs = abs(key) - (not natural)
            else:
                self.signs = abs(key) - 1 + natural
            self.signs = self.signs or 1
        else:
            self.expected = self.first_shown = list(zip(notes, spelled))

    def check_tuning(self, e, scale, notes):
        f, typ = self.f, self.x.typ
        if f["stimmung"] == 0:
            wanted = [0] * len(notes)
        elif f["stimmung"] == 1:
            wanted = [PYTHAGOREAN[typ][(scale + j) % 7] for j in range(len(notes))]
        else:
            wanted = [MEANTONE[note % 12] for note in notes]
        self.law("tuning of the degrees", e["stimmWert"] == wanted, e["stimmWert"], wanted)

    def check_melody(self, notes, order, scale):
        law = self.law
        law("a melody has each degree",
            sorted(degree % 7 for degree in order[:7]) == list(range(7)), order)
        law("where a melody begins",
            order[0] in (0, 7) or (order[0] == 4 and scale != 6), order, scale)
        law("no leap that cannot be sung", not any(
            bad_leap(notes[a], notes[b]) for a, b in itertools.pairwise(order[:7])), order, notes)
        last = notes[order[6]]
        to_low, to_high = notes[0] - last, notes[7] - last
        if to_low == 0:
            ends = (7,)
        elif to_high == 0:
            ends = (0,)
        else:
            ends = tuple(degree for degree, leap in ((0, to_low), (7, to_high))
                         if not bad_leap(0, leap)) or (0,)
        law("where a melody ends", order[7] in ends and abs(to_low) != 6, order, notes)

    def sound(self, block):
        """What went to the device in one go."""
        law, x, f = self.law, self.x, self.f
        t = int(block[0][16:block[0].index(",", 16)])
        patches = PATCHES.replace("@", str(t))
        if len(block) == 9:
            law("the device is left in order", "".join(block) == patches, block)
            return
        law("who sounds", self.setup.sounds and self.task is not None and not self.closed)
        if self.plays:
            # The learner has asked for a repetition.
            self.spent += self.setup.think + BREATH
            self.repeats += 1
            law("when a repetition sounds",
                t == self.since + self.setup.think + 2 * BREATH, t, self.since)
        else:
            law("when a task sounds", t == self.task["t"] + 2 * BREATH, t)
        self.plays += 1
        bends = self.task["stimmWert"]
        if f["frequenz"] == 1:
            bend = json.loads(block[9])
            own = bends[self.order[0]] if f["stimmung"] else 0
            fine = bend["data2"] - 64 - own
            law("reference pitch", abs(fine) <= 15 and self.fine in (None, fine), fine, self.fine)
            self.fine = fine
        fine = self.fine or 0
        lines = [patches]
        head = f'{{"e":"midi","t":{t},"status":'
        if f["frequenz"] == 1 and f["stimmung"] == 0:
            lines.append(f'{head}224,"data1":0,"data2":{64 + fine},"time":-1}}\n')
        quarter = self.x.quarter
        sounding = half_even(quarter * 9 / 10)
        notes = self.task["noten"]
        for i in range(x.tones):
            k = self.order[i]
            channel = k + 1 if f["stimmung"] else 0
            if f["stimmung"]:
                lines.append(f'{head}{224 + channel},"data1":0,"data2":{64 + fine + bends[k]},'
                             '"time":-1}\n')
            lines.append(f'{head}{144 + channel},"data1":{notes[k]},"data2":100,'
                         f'"time":{quarter * i}}}\n'
                         f'{head}{128 + channel},"data1":{notes[k]},"data2":100,'
                         f'"time":{quarter * i + sounding}}}\n')
        law("what sounds, bend by bend and note by note", "".join(block) == "".join(lines),
            "".join(block), "".join(lines))
        self.open_at = self.since = t + BREATH + x.length

    def draw(self, e):
        """A note is put on the staff."""
        law, c = self.law, e["c"]
        note = (e["midi"], e["qz"])
        bass = self.task["SchlZ"]
        wanted = self.expected[self.order[c]]
        if self.shown < self.x.tones:
            law("column by column", c == self.shown and note == self.first_shown[self.order[c]]
                and e["colour"] == 0, e)
            self.shown += 1
            if c == 0:
                self.left_edge = e["x"]
        elif self.closed:
            law("the solution", note == wanted
                and e["colour"] == (0 if self.staff[c] == wanted else 12), e, wanted)
        else:
            law("what a learner can write", 1 <= c <= 6 and e["colour"] == 0
                and e["qz"] % 7 == wanted[1] % 7, e)
        law("spelling and sound on the staff", (7 * e["qz"] + 3) % 12 == e["midi"] % 12, e)
        law("place on the staff", e["y"] == height(*note, bass)
            and e["x"] == self.left_edge + 40 * c, e)
        if self.setup.writes:
            # The nearest note before on the same line decides whether the sign still holds.
            same = next((q for q in (self.staff[j][1] for j in range(c - 1, -1, -1))
                         if q % 7 == e["qz"] % 7), None) if c == self.x.tones - 1 else None
            glyphs = (e["qz"] // 7 + 5,) if same is None else (e["qz"] // 7 + 5, 10)
            law("sign of the note", e["glyph"] in glyphs, e)
        self.staff[c] = note

    def answer_with(self, e, drawn):
        """An answer, and what was put on the staff before it was told. What stands there after the
        last wrong one is the solution."""
        solution = self.x.tones - 2 if not e["right"] and e["aufgZustand"] != 3 else 0
        for note in drawn[:len(drawn) - solution]:
            self.draw(note)
        self.answer(e)
        for note in drawn[len(drawn) - solution:] if solution else ():
            self.draw(note)

    def answer(self, e):
        law, x, setup = self.law, self.x, self.setup
        law("an answer to an open task", not self.closed and self.open_at is not None)
        law("when an answer comes", e["t"] == self.since + setup.think, e["t"], self.since)
        spent = self.spent + e["t"] - self.since
        # The clock is a 32-bit float of seconds.
        grain = 2 * 2.0 ** (math.frexp(36000 + e["t"] / 1000)[1] - 24) * 1000 * (1 + self.repeats)
        low, high = ((spent + shift) / 100 + 0.5 for shift in (-grain, grain))
        law("time of an answer", math.floor(low) <= e["AntwDau"] <= math.floor(high),
            e["AntwDau"], spent)
        self.spent = 0
        self.since = self.at = e["t"]
        scale = self.task["skala_nr"]
        if setup.writes:
            right = all(self.staff[c] == self.expected[self.order[c]]
                        for c in range(1, x.tones - 1))
        else:
            right = e["index"] == scale
            law("an answer of the choice", e["index"] + 1 in {abs(code) for code in x.codes}
                and e["index"] not in self.wrong, e["index"])
        law("right is right", e["right"] == right, e)
        if self.tries == 0:
            self.right_first += right
            if setup.right in (0.0, 1.0):
                law("what the learner is", right == bool(setup.right), setup.learner)
            if setup.learner.startswith("slow"):
                law("what the learner is", right)
            if setup.learner.startswith("confuse"):
                confused = scale in setup.pair and (
                    setup.writes or setup.pair[scale == setup.pair[0]] + 1 in
                    {abs(code) for code in x.codes})
                law("what the learner is", right != confused, scale, setup.learner)
        self.tries += 1
        first = right and self.tries == 1
        if not right:
            self.wrong.append(e["index"])
        points = 2 * len(self.wrong)
        if first and self.mode > TRY:
            points = -4
        lost = len(self.wrong) == x.errors and not right
        finished = right or lost
        self.answers.append((e["AntwDau"], self.repeats, right, e["index"]))
        if not finished:
            law("points of an answer", (e["punkte"], e["aufgZustand"]) == (points, 3), e, points)
            return
        self.close(e, points)

    def close(self, e, points):
        """What the end of a task must have brought; the line `closed` tells what it did."""
        law, x, mode = self.law, self.x, self.mode
        repeats = self.repeats
        penalty = 0.0
        if points == -4:
            free = self.signs * 35 if self.setup.writes else x.free_time
            if e["AntwDau"] > free:
                penalty = (math.floor(e["AntwDau"] - free) // 2) / 10 + 1
            points = min(0.0, repeats - 4 + penalty)
            worth = x.basis * points
        elif points > 0:
            if mode > TRY:
                points = min(points + repeats, 2 * x.errors)
            worth = points
        else:
            worth = 0
        self.closed = True
        self.points, self.worth = points, worth
        state = 1
        self.total = 0
        if mode in (TRAINING, CONTINUED):
            self.weigh(points)
            self.total = self.sort_weights()
            if self.total < 1:
                self.total, state, self.ended = 0, 4, "goal"
            elif self.total > x.limit - 1:
                self.total, state, self.ended = x.limit, 4, "failed"
            self.bar = half_even(self.total / x.limit * 100)
        elif mode >= TEST:
            self.left -= 1
            if self.left == 0:
                state, self.ended = 5, "count"
            elif self.left == x.tasks // 2:
                self.bag = None
        if mode > TRY:
            self.bookings[x.slot(self.code)].append(worth - 4 * x.basis)
            law("points of a task", abs(e["punkte"] - points) < 1e-5, e["punkte"], points)
        law("state of a task", e["aufgZustand"] == state, e["aufgZustand"], state)

    def weigh(self, points):
        """A scale that was not known comes more often, and so does what it was taken for."""
        if not points:
            return
        row = {code: row for row in self.weights for code in row[:1]}
        row[self.code][1] += half_even(points)
        if points < 0 or self.setup.writes:
            return
        for index in self.wrong:
            taken = 0
            if not self.setup.chosen:
                taken = (index + 1) * self.task["akt_richtung"]
            for code in self.setup.chosen or ():
                if abs(code) == index + 1:
                    taken = code
                    if (1 if code > 0 else -1) == self.code:
                        break
            if taken in row:
                row[taken][1] += 1

    def close_line(self, e):
        law, x = self.law, self.x
        law("a task is closed once", self.closed and self.task is not None)
        if self.mode == TRY:
            law("nothing is booked in trying out", e["booked"] is None)
            return
        law("worth of a task", abs(e["w"] - self.worth) < 1e-4, e["w"], self.worth)
        law("what is booked", abs(e["booked"] - self.worth + 4 * x.basis) < 1e-4, e["booked"])
        law("tasks that are left", e["restAufgaben"] == self.left, e["restAufgaben"], self.left)
        if self.mode <= CONTINUED:
            law("weights", e["weights"] == self.weights, e["weights"], self.weights)
            law("sum of the weights and bar",
                (e["matbox_zahl"], e["FloodPercent"]) == (self.total, self.bar), e, self.total)

    def clock(self, e):
        self.clocks += 1
        self.law("exam clock", self.mode >= TEST
                 and e["restZeit"] == self.x.seconds - 10 * self.clocks, e["restZeit"])
        if e["restZeit"] <= 0:
            self.ended = "clock"

    def on_time(self, t):
        if self.mode >= TEST and self.tasks and self.ended != "clock":
            self.law("the clock goes every ten seconds",
                     10000 * self.clocks <= t - self.start <= 10000 * (self.clocks + 1), t,
                     self.clocks)

    def results(self, e):
        law, x = self.law, self.x
        self.result = e
        slots = list(range(1, x.scales + 1))
        if self.f["richtung"] == 1:
            slots = [slot + x.scales for slot in slots]
        elif self.f["richtung"] == 2:
            slots = list(range(1, 2 * x.scales + 1))
        law("rows of the result", [row[0] for row in e["rows"]]
            == [x.names[(slot - 1) % x.scales] for slot in slots], e["rows"])
        shares = []
        present = {x.slot(code) for code in x.codes}
        for slot, (_, text) in zip(slots, e["rows"]):
            share = self.share(self.bookings.get(slot, []), slot in present)
            if share is None:
                law("what was not asked does not count", text == "0.0 %", text)
                continue
            shares.append(share)
            law("percentage of a scale", abs(float(text.removesuffix("%")) - 100 * share) < 0.0502
                and not text.startswith("-"), text, share)
        total = 100 * sum(shares) / len(shares) if shares else 0
        law("percentage of the run",
            abs(float(e["total"].rstrip("%")) - total) < 0.0502, e["total"], total)

    def share(self, booked, present):
        """Of what the best answers would have booked; None for a scale that does not count."""
        x = self.x
        best = x.basis * -8
        if self.mode <= CONTINUED:
            if not booked or not best:
                return None
            return min(0, half_even(sum(booked))) / half_even(best * len(booked))
        if not self.setup.writes:
            if not present or not best:
                return None
            return half_even(sum(sorted([0, 0, *booked])[:2])) / half_even(best * 2)
        count = min(len(booked), x.kept_scores)
        if not count:
            return None
        kept = sorted(min(0, value) for value in booked)[:count]
        return sum(map(half_even, kept)) / half_even(best * count)

    def end(self, e):
        law = self.law
        self.reason = e["reason"]
        law("how a run ends", self.reason == (self.ended or "left"), self.reason, self.ended)
        law("a run that ends has its result", (self.result is not None) == (
            self.reason in ("goal", "failed", "count", "clock")), self.reason)
        if self.reason == "left":
            law("it is left when that was asked for", self.tasks == self.setup.tasks, self.tasks)

    def record(self, root):
        """The record of this run."""
        law, setup, x = self.law, self.setup, self.x
        lessons = root.find("lessons").findall("lesson")
        law("record: a lesson to a task", len(lessons) == len(self.lessons), len(lessons),
            len(self.lessons))
        for lesson, (name, answers) in zip(lessons, self.lessons):
            law("record: the scale", properties(lesson.find("properties")) ==
                {"Tonskala": name}, ElementTree.tostring(lesson))
            written = [(answer.get("lfd"), properties(answer))
                       for answer in lesson.find("answers")]
            law("record: answers counted", [lfd for lfd, _ in written]
                == [str(i + 1) for i in range(len(written))], written)
            written = [answer for _, answer in written if "Antwort" in answer]
            law("record: an answer to an answer", len(written) == len(answers), written, answers)
            repeats = 0
            for told, (duration, repeated, right, index) in zip(written, answers):
                law("record: what an answer was", told["Antwort"] == str(right).lower()
                    and float(told["Dauer Antwort"]) == duration
                    and int(told["Anz Whlg"]) in (repeated, repeated - repeats), told)
                repeats = repeated
                if not setup.writes:
                    law("record: what was answered", told["Skala"] == x.names[index], told)


def properties(node):
    return {item.get("key"): item.get("value") for item in node.findall("property")}


def check_record(law, setup, text):
    """What holds for every record."""
    root = ElementTree.fromstring(text)
    law("record: its parts", root.tag == "exercise"
        and [child.tag for child in root] == ["properties", "settings", "lessons"], root)
    about = root.find("properties").attrib
    law("record: what it is about", list(about) == [
        "programm", "ukey", "exercise", "timestamp", "description"]
        and about["programm"] == "ZEPHA9"
        and about["exercise"] == ("W690" if setup.writes else "W154"), about)
    settings = [(item.get("key"), item.get("value")) for item in root.find("settings")]
    if setup.through:
        keys = [key for key, _ in settings]
        law("record: settings", keys[0] == "Übungsmodus"
            and ("Nr.:" in keys) == (setup.mode == EXAM)
            and ("Ska-Richtung" in keys) == (setup.fields["abfolge"] == 0)
            and ("Klangfarbe" in keys) == setup.sounds, settings)
        if setup.chosen:
            law("record: chosen scales", dict(settings)["Einzel-Auswahl Anzahl"]
                == str(len(setup.chosen)), settings)
    else:
        law("record: settings",
            settings == [(key, str(value)) for key, value in setup.given.items()], settings)
    for lesson in root.find("lessons"):
        law("record: a lesson's parts",
            [child.tag for child in lesson] == ["properties", "answers"])
    return root


def follow(law, exercise, lines):
    """@return the runs that a trace tells of."""
    runs, block, drawn = [], [], []
    run = None
    for line in lines:
        if line.startswith('{"e":"midi"'):
            block.append(line)
            continue
        if block:
            if run is None or run.reason is not None:
                law("before a run nothing sounds",
                    all(192 <= json.loads(told)["status"] <= 200 for told in block), block)
            else:
                run.sound(block)
            block = []
        e = json.loads(line)
        kind = e["e"]
        if kind == "draw":
            drawn.append(e)
            continue
        if kind == "answer" and exercise.setup.writes:
            run.answer_with(e, drawn)
            run.on_time(e["t"])
            drawn = []
            continue
        for note in drawn:
            run.draw(note)
        drawn = []
        if kind == "task":
            run.draw_task(e)
            run.on_time(e["t"])
        elif kind == "answer":
            run.answer(e)
            run.on_time(e["t"])
        elif kind == "closed":
            run.close_line(e)
        elif kind == "clock":
            run.clock(e)
        elif kind == "result":
            run.results(e)
        elif kind == "end":
            run.end(e)
        else:
            law("every line is known", kind == "run", kind)
            kept = run if exercise.setup.keep and run and run.reason == "left" else None
            run = Run(exercise, law, kept)
            runs.append(run)
            run.begin(e)
    law("nothing is left over", not block and run is not None and run.reason is not None)
    return runs


def check_summary(law, setup, exercise, text, runs):
    """The table at the end. @return tasks of all runs"""
    told = dict(re.split(r"\s{2,}", line, maxsplit=1) for line in text.splitlines() if line)
    law("summary: runs", int(told["runs"]) == setup.runs, told)
    least, most = map(int, re.search(r"(\d+)(?: a run \((\d+) to (\d+)\))?$",
                                     told["tasks"]).group(2, 3))
    endings = {name: int(count) for name, count in
               re.findall(r"(\w+) (\d+)", told["ended by"])}
    law("summary: each run has an end", sum(endings.values()) == setup.runs, told)
    first, = re.match(r"(\d+)", told["right at first"]).groups()
    if runs is not None:
        tasks = [run.tasks for run in runs]
        law("summary: tasks", (least, most) == (min(tasks), max(tasks)), told, tasks)
        law("summary: right at first", int(first) == sum(run.right_first for run in runs), told)
        law("summary: ends", endings == collections.Counter(run.reason for run in runs), told)
        return sum(tasks), least, most
    tasks = int(re.match(r"(\d+)", told["tasks"])[1]) * setup.runs
    possible = {TRY: {"left"}, TRAINING: {"goal", "failed", "left"},
                TEST: {"count", "clock", "left"}}[min(setup.mode, TEST)]
    if not setup.tasks:
        possible -= {"left"}
    law("summary: how a run may end", set(endings) <= possible, told)
    if setup.tasks:
        law("summary: no run goes on", most <= setup.tasks, told)
    if setup.right == 1.0:
        law("summary: a perfect learner", int(first) > 0 and "failed" not in endings
            and "100.0%" in told["right at first"], told)
    if setup.right == 0.0:
        law("summary: a learner who knows nothing", int(first) == 0 and "goal" not in endings, told)
    if "count" in endings:
        law("summary: tasks of an exam", most == exercise.tasks, told)
    if setup.mode == TRY:
        law("summary: trying out", least == most == setup.tasks, told)
    return tasks, least, most


Tried = collections.namedtuple("Tried", "runs tasks traced looked fault endings learned heavy")


def simulate(line):
    return subprocess.run(line, capture_output=True, text=True, check=False, timeout=PATIENCE)


def batch(binary, seed, number):
    """One set-up, some runs. @return Tried"""
    chance = random.Random(f"{seed}:{number}")
    setup = SetUp(chance)
    traced = chance.random() < 0.4
    law = Laws()
    with tempfile.TemporaryDirectory(prefix="laws-") as folder:
        record = pathlib.Path(folder) / "record.xml"
        line = [binary, *setup.arguments(), "--runs", str(setup.runs), "--seed",
                str(chance.randrange(1 << 40)), "--record", str(record)]
        if traced:
            line += ["--trace", "-"]
        runs, tasks, fault = None, 0, ""
        learned = heavy = endings = None
        try:
            done = simulate(line)
            law("the simulator's own word", done.returncode == 0, done.returncode, done.stderr)
            exercise = Exercise(setup)
            if traced:
                runs = follow(law, exercise, done.stdout.splitlines(keepends=True))
                law("every run is told", len(runs) == setup.runs)
                same = [run.drawn_codes[:min(map(len, (r.drawn_codes for r in runs)))]
                        for run in runs]
                if setup.fields["zufallsNr"]:
                    law("an exam with a number is the same for all",
                        all(drawn == same[0] for drawn in same))
                learned = (setup.right, sum(run.right_first for run in runs),
                           sum(len(run.lessons) - (not run.closed) for run in runs))
                heavy = [sum(column) for column in zip(*(
                    drawn for run in runs for drawn in run.heavy))] or None
                endings = collections.Counter(run.reason for run in runs)
            tasks, least, most = check_summary(
                law, setup, exercise, done.stderr if traced else done.stdout, runs)
            written = record.read_text(encoding="utf-8")
            root = check_record(law, setup, written)
            if not traced and chance.random() < 0.1:
                law("the same twice", simulate(line).stdout == done.stdout
                    and record.read_text(encoding="utf-8") == written)
            if traced:
                runs[-1].record(root)
            else:
                law("record: as many lessons as tasks",
                    least <= len(root.find("lessons")) <= most)
        except (Broken, ElementTree.ParseError, OSError, LookupError, ValueError, TypeError,
                AttributeError, subprocess.SubprocessError) as broken:
            where = broken.__traceback__
            while where.tb_next:
                where = where.tb_next
            fault = f"{type(broken).__name__} (line {where.tb_lineno}): {broken}\n  " + " ".join(
                line)
    return Tried(setup.runs, tasks, setup.runs if traced else 0, law.looked, fault, endings,
                 learned, heavy)


class Sums:
    """What only many tasks together can show."""

    def __init__(self):
        self.surplus = self.spread = 0.0
        self.heavy = [0.0] * 4
        self.learned = 0

    def add(self, tried):
        if tried.learned and tried.learned[0] is not None and 0 < tried.learned[0] < 1:
            chance, right, count = tried.learned
            self.surplus += right - chance * count
            self.spread += chance * (1 - chance) * count
            self.learned += count
        if tried.heavy:
            self.heavy = [a + b for a, b in zip(self.heavy, tried.heavy)]

    def faults(self):
        if abs(self.surplus) > 6 * math.sqrt(self.spread) + 3:
            yield f"learners are right {self.surplus:+.0f} times of {self.learned} too often"
        surplus, spread, expected, even = self.heavy
        if abs(surplus) > 6 * math.sqrt(spread) + 0.03 * expected:
            yield f"heavy scales come {surplus:+.0f} of {expected:.0f} too often"
        if expected and expected <= even:
            yield "no weights in any training"

    def figures(self):
        surplus, _, expected, even = self.heavy
        return (f"weak scales drawn x{(expected + surplus) / even:.3f} of even chance"
                if even else "")


def extend(parser):
    parser.add_argument("--runs", type=int, help="so many runs, however long they take")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1,
                        help="runs at a time (default: as many as processors)")
    parser.add_argument("--batch", type=int, help="only this batch, to see a failure again")


def main():
    given = suite.arguments(__doc__, extend)
    binary = str(pathlib.Path(given.bin) / "zepha9-sim")
    report, sums = suite.Report(), Sums()
    looked, endings = collections.Counter(), collections.Counter()
    runs = tasks = traced = faults = 0
    begin = time.monotonic()
    numbers = itertools.count() if given.batch is None else iter([given.batch])

    def more():
        if given.runs:
            # How many are under way shows only when they are done.
            return runs + MEAN_RUNS * len(pending) < given.runs
        return time.monotonic() - begin < given.seconds

    with concurrent.futures.ProcessPoolExecutor(given.jobs) as pool:
        pending = {}
        while True:
            while len(pending) < 4 * given.jobs and more():
                number = next(numbers, None)
                if number is None:
                    break
                pending[pool.submit(batch, binary, given.seed, number)] = number
            if not pending:
                break
            finished, _ = concurrent.futures.wait(
                pending, return_when=concurrent.futures.FIRST_COMPLETED)
            for future in finished:
                number = pending.pop(future)
                tried = future.result()
                runs += tried.runs
                tasks += tried.tasks
                traced += tried.traced
                looked += tried.looked
                endings += tried.endings or collections.Counter()
                sums.add(tried)
                if tried.fault:
                    faults += 1
                    if faults <= 20:
                        print(f"--seed {given.seed} --batch {number}: {tried.fault}",
                              file=suite.sys.stderr, flush=True)
    together = list(sums.faults())
    for fault in together:
        print(f"--seed {given.seed}: {fault}", file=suite.sys.stderr)
    seconds = time.monotonic() - begin
    ends = ", ".join(f"{name} {count}" for name, count in endings.most_common())
    report.row("laws of the drill", f"{runs} runs", not faults and not together,
               f"{tasks} tasks, {tasks / seconds:.0f}/s; {runs / seconds * 60:.0f} runs/min; "
               f"{len(looked)} laws, {sum(looked.values())} times; {traced} runs traced ({ends}); "
               f"{faults} set-ups broke a law; {sums.figures()}")
    report.end()


if __name__ == "__main__":
    main()
