"""What the export tests share: documents made by hand, runs of the program, places of holes worked out anew."""

import json
import math
import os
import pathlib
import random
import subprocess

SECONDS = 60
LINE_END = "\r\n"
# Column by column, as the board writes its records: the number, up to four values, the kind two zones on.
COLUMNS = {"Circle": (15, 43, 71, 99), "Line": (15, 43, 71, 99, 127), "Point": (15, 43, 71)}

MILLING = ["--safe-height", "25", "--retract", "2", "--depth", "-12.5", "--feed", "120", "--spindle", "900"]


class Fault(AssertionError):
    """What a test has found to be wrong."""


def expect(truth, *what):
    if not truth:
        raise Fault(" ".join(str(part) for part in what))


def expect_near(found, wanted, tolerance, what):
    expect(abs(found - wanted) <= tolerance, f"{what}: {found!r} instead of {wanted!r}")


class Bench:
    """A folder of one test and the programs that it may run there."""

    def __init__(self, folder, cli, drive):
        self.folder = pathlib.Path(folder)
        self.cli = cli
        self.drive = drive

    def path(self, name):
        return self.folder / name

    def run(self, *words, program=None, **settings):
        environment = dict(os.environ, **settings)
        return subprocess.run([program or self.cli, *map(str, words)], cwd=self.folder, env=environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=SECONDS,
                              check=False)

    def export(self, *words, **settings):
        """A run that must end well and say nothing."""
        done = self.run("export", *words, **settings)
        expect(done.returncode == 0 and not done.stderr, "export", *words, "ended with", done.returncode, done.stderr)
        return done.stdout

    def refused(self, code, part, *words):
        """A run that must end with this code and one line that holds this part, and print nothing."""
        done = self.run("export", *words)
        text = done.stderr.decode()
        expect(done.returncode == code, "export", *words, "ended with", done.returncode, "instead of", code, text)
        expect(not done.stdout, "printed as if it were a result:", done.stdout)
        expect(text.count("\n") == 1 and text.startswith("brindlex-cli export: ") and part in text,
               "not the words that were expected:", text, "instead of", part)

    def write(self, name, lines):
        self.path(name).write_bytes("".join(line + LINE_END for line in lines).encode("cp1252"))

    def drawing(self, name, unit, entities):
        """entities: (number, kind, value texts...)."""
        self.write(name, ([unit] if unit else []) + [record(*entity) for entity in entities])

    def bolt_circle(self, name, *texts):
        self.write(name, [*map(str, texts), " 0 "])

    def play(self, *lines):
        """A session of the desktop program; what its show commands answered."""
        script = self.path("session.script")
        script.write_text("\n".join(lines) + "\n", encoding="utf-8")
        done = self.run("--dir", self.folder, script, program=self.drive)
        expect(done.returncode == 0, "the session failed:", done.stdout, done.stderr)
        return [json.loads(line[3:]) for line in done.stdout.decode().splitlines() if line.startswith("ok ")]


def record(number, kind, *values):
    line = f" {number}"
    for column, text in zip(COLUMNS[kind], [*values, kind]):
        line = line.ljust(column - 1) + text
    return line


def any_drawing(seed):
    """Entities whose texts need all the digits of a double, and typed ones."""
    dice = random.Random(seed)

    def value(low=-100.0):
        return repr(dice.choice([dice.uniform(low, 100), round(dice.uniform(low, 100), 3), dice.uniform(low, 100) / 1e4]))

    entities = [(1 + i, "Circle", value(0.1), value(), value()) for i in range(12)]
    entities += [(13 + i, "Line", value(), value(), value(), value()) for i in range(14)]
    entities += [(27 + i, "Point", value(), value()) for i in range(14)]
    dice.shuffle(entities)
    return [entity for entity in entities if not any("e" in text for text in entity[2:])]


def holes_of(x, y, diameter, count, start):
    """By products and not by sums of the angle, and with the angle brought into the turn first."""
    places = []
    for i in range(count):
        angle = math.radians(math.fmod(start + 360 * i / count, 360))
        places.append((x + diameter / 2 * math.cos(angle), y + diameter / 2 * math.sin(angle)))
    return places
