#!/usr/bin/env python3
"""Kills the program at random moments of every kind of save and rewrite.

    kill_runs.py --drive build/release/bin/brindlex-drive [--kills 1000] [--seed 1]

Each walk saves over and over: the live drawing is placed on, converted, saved, deleted from and given up, each
calculator saves its document over the old one, keeps its settings, records of cutting data come and go. A slow walk
first notes every state that a file may be found in. A kill comes at a random moment behind a random answer of the
driver, so that it finds the program anywhere in its walk however busy the machine is. After it each file must stand in
one of its states, so that it is the old one or the new one, whole; and the next run must save a drawing that was left
over, say so, and leave nothing else behind.
"""

import argparse
import dataclasses
import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

import harness
import saves

DRAWING = "geometry.dat"
SAVED = "out.geo"
RECOVERED = "recovered.geo"
COMMANDS = 20000  # more than the program gets through before it is killed
LONGEST_WAIT = 0.002  # seconds behind an answer, longer than any save takes

BOARD = ["start", "press Form11.Command8"]


@dataclasses.dataclass
class Walk:
    """What a run does before and in every round, and the files that it writes."""
    name: str
    begin: list
    round: list
    watched: tuple
    files: dict = dataclasses.field(default_factory=dict)


def set_to(form, **texts):
    return [f'set {form}.{name}.Text "{text}"' for name, text in texts.items()]


def drawing():
    typed = set_to("Form17", Text1="1.50", Text2="-2", Text3=".5", Text6="0", Text7="0", Text8="1", Text9="2.250",
                   Text10=".25", Text11="3")
    place = [command for tool in ("Circle", "Line", "Point") for command in
             (f'tool Form17.Toolbar1 "{tool}"', *["press Form17.Command1"] * 4)]
    save = saves.dialog(SAVED, "menu Form17.SaveAs")
    # All but the lines, two at a time.
    delete = ['tool Form17.Toolbar1 "ID"', "press Form17.Option11"] + [
        command for circle, point in zip(range(1, 5), range(9, 13)) for command in
        (f'choose Form17.Combo3 " {circle}{saves.BLANKS}/Circle"', f'choose Form17.Combo8 " {point}{saves.BLANKS}/Point"',
         "press Form17.Command1")]
    return Walk("drawing", BOARD, typed + place + save + ["menu Form17.MM"] + save + delete + save +
                ["menu Form17.InchTo", "menu Form17.NewGeo"], (DRAWING, SAVED), {SAVED: saves.OLD})


def documents():
    """Two documents of a calculator by turns, over an old file."""
    for save in saves.documents():
        if save.files and save.watched != (SAVED,):
            form = save.act[-1].split()[1].split(".")[0]
            turns = [command for value in ("12", "13.5") for command in
                     (*set_to(form, Text1=value), f"press {form}.Command1", *save.act)]
            yield Walk(save.name.split(",", maxsplit=1)[0], ["start", f"press Form11.{save.opens}", *save.begin], turns,
                       save.watched, save.files)


def settings():
    for save in saves.settings():
        form = save.act[-1].split()[1].split(".")[0]
        again = f"press Form11.{save.opens}"
        turns = [*save.begin, *save.act, again]
        if form == "Form8":
            turns += [command.replace('"11"', '"12"') for command in turns]
        yield Walk(save.name, ["start", again], turns, save.watched, save.files)


def cutting_data():
    tools = ("Reamer", "Tap")
    enter = [command for tool in tools for command in
             (*set_to("Form19", Text17=tool, Text18="M", Text19="W", Text1="30-40", Text2=".004-.008"),
              "press Form19.Command1")]
    delete = [command for tool in tools for command in
              (f'choose Form19.Combo2 "{tool}"', 'choose Form19.Combo3 "M"', 'choose Form19.Combo4 "W"', "answer yes",
               "menu Form19.DelDat")]
    return Walk("cutting data", ["start", "press Form11.Command7", "menu Form19.DataOp"], enter + delete,
                ("Mill.dat",), {"Mill.dat": saves.MILL.encode()})


def bytes_of(path):
    return path.read_bytes() if path.exists() else None


class Killer:
    """Kills one walk over and over."""

    def __init__(self, drive, folder, walk):
        self.drive, self.folder, self.walk = drive, folder, walk
        self.commands = walk.begin + walk.round * (COMMANDS // len(walk.round))
        # Not right from the start, where nothing is written yet, and up to the end of the second round.
        self.first, self.last = 1, len(walk.begin) + 2 * len(walk.round)
        self.states = self.states_of_walk()

    def fill(self):
        for entry in os.scandir(self.folder):
            os.remove(entry)
        for name, content in self.walk.files.items():
            (self.folder / name).write_bytes(content)

    def answers(self, commands):
        run = subprocess.run([self.drive, "--dir", self.folder], input="\n".join(commands) + "\n", capture_output=True,
                             text=True, check=False)
        return run.stdout.splitlines()

    def states_of_walk(self):
        """For each file the states that it may be found in."""
        self.fill()
        commands = []
        looks = [f'show file "{name}"' for name in self.walk.watched]
        for command in self.walk.begin + self.walk.round * 3:
            commands += [command, *looks]
        told = self.answers(commands)
        step = 1 + len(looks)
        refused = [(command, answer) for command, answer in zip(commands[::step], told[::step]) if answer != "ok"]
        if refused or len(told) != len(commands):
            sys.exit(f"The walk '{self.walk.name}' itself fails: {refused[:1]}")
        states = []
        for place, name in enumerate(self.walk.watched):
            seen = {json.loads(answer[3:]).encode("latin-1") for answer in told[place + 1::step]
                    if answer.startswith("ok ")}
            states.append(seen | {self.walk.files.get(name)})
        return states

    def kill(self, chance):
        """Starts the endless walk and kills it; whether it was still running."""
        behind = chance.randint(self.first, self.last)
        wait = chance.uniform(0, LONGEST_WAIT)
        with tempfile.TemporaryFile(dir=self.folder.parent) as script:
            script.write(("\n".join(self.commands) + "\n").encode())
            script.seek(0)
            with subprocess.Popen([self.drive, "--dir", self.folder], stdin=script, stdout=subprocess.PIPE) as run:
                for _ in range(behind):
                    run.stdout.readline()
                time.sleep(wait)
                alive = run.poll() is None
                run.kill()
        return alive

    def fault(self):
        """What is wrong with what a killed run has left; None where nothing is."""
        found = [bytes_of(self.folder / name) for name in self.walk.watched]
        for name, content, states in zip(self.walk.watched, found, self.states):
            # The live drawing is deleted before an empty one begins.
            if content not in states and not (name == DRAWING and not content):
                return f"{name} is neither old nor new: {content!r}"
        drawn = bytes_of(self.folder / DRAWING)
        told = self.answers([*BOARD, "show boxes", "close Form17"])
        box = [[64, "Brindlex", f"A drawing of an earlier run was saved as {RECOVERED}"]] if drawn else []
        if json.loads(told[2][3:]) != box:
            return f"the next run says {told[2]}"
        if bytes_of(self.folder / RECOVERED) != (b"I\r\n" + drawn if drawn else None):
            return "the drawing was not recovered whole"
        for name, content in zip(self.walk.watched, found):
            if name != DRAWING and bytes_of(self.folder / name) != content:
                return f"the next run has changed {name}"
        left = set(os.listdir(self.folder)) - set(self.walk.watched) - set(self.walk.files) - {RECOVERED, "brindr.ini",
                                                                                               "brindo.ini",
                                                                                               "boltcirc.ini"}
        return f"files are left over: {sorted(left)}" if left else None


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--drive", required=True, type=os.path.abspath)
    options.add_argument("--kills", type=int, default=1000)
    options.add_argument("--seed", type=int, default=1)
    options = options.parse_args()
    chance = random.Random(options.seed)
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    good = bad = within = recovered = 0
    with tempfile.TemporaryDirectory(dir=memory) as scratch:
        folder = pathlib.Path(scratch) / "run"
        folder.mkdir()
        walks = [drawing(), *documents(), *settings(), cutting_data()]
        killers = [Killer(options.drive, folder, walk) for walk in walks]
        # The drawing has most to write, so every second kill is its.
        turns = [killers[0] if kill % 2 == 0 else killers[1 + kill // 2 % (len(killers) - 1)]
                 for kill in range(options.kills)]
        for killer in turns:
            killer.fill()
            if not killer.kill(chance):
                sys.exit(f"The walk '{killer.walk.name}' ended before it was killed.")
            within += any(name.startswith(".brindlex-") for name in os.listdir(folder))
            recovered += bool(bytes_of(folder / DRAWING))
            fault = killer.fault()
            good, bad = good + (not fault), bad + bool(fault)
            if fault:
                harness.tell_failure(f"kill {good + bad}, {killer.walk.name}", fault)
    print(f"{within} of {good + bad} kills came within a rewrite; {recovered} left a drawing, and it was recovered")
    harness.finish("kills", good, bad)


if __name__ == "__main__":
    main()
