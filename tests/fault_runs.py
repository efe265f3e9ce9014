#!/usr/bin/env python3
"""Lets the disk fail at every single open, write, sync, rename and close of every kind of save, one after the other.

    fault_runs.py --drive build/release/bin/brindlex-drive --disk build/release/bin/failing.so [--quick]

A save is run once for its first call, once for its second, and so on until it has no more; with each error, and with a
disk that fails once, from then on, or in the middle of a write. After each run every file is the old one or the new
one, whole; where the old one stayed the program has said so, or not a word where that is its way; it goes on, saves the
same again on a disk that is well, and the next run starts, finds the files and leaves nothing else behind. With --quick
a full disk fails once at each call.
"""

import argparse
import errno
import json
import os
import pathlib
import subprocess
import sys
import tempfile

import harness
import saves

ERRORS = (errno.ENOSPC, errno.EIO, errno.EDQUOT)
WAYS = ("once", "onwards", "half")
LEFT_OVER = "geometry.dat"
RECOVERED = "recovered.geo"


class Runner:
    def __init__(self, drive, disk, scratch):
        self.drive, self.disk, self.scratch = drive, disk, scratch
        self.folder = scratch / "run"
        self.count = scratch / "count"
        self.folder.mkdir()

    def fill(self, save):
        for entry in os.scandir(self.folder):
            os.remove(entry)
        for name, content in save.files.items():
            (self.folder / name).write_bytes(content)

    def answers(self, commands, call=None, error=0, way="once"):
        environment = dict(os.environ)
        if call is not None:
            environment.update(LD_PRELOAD=self.disk, FAILING_FOLDER=str(self.folder), FAILING_COUNT=str(self.count),
                               FAILING_CALL=str(call), FAILING_ERROR=str(error), FAILING_WAY=way)
        run = subprocess.run([self.drive, "--dir", self.folder], input="\n".join(commands) + "\n", env=environment,
                             capture_output=True, text=True, timeout=120, check=False)
        return run.returncode, run.stdout.splitlines()

    def bytes_of(self, name):
        path = self.folder / name
        return path.read_bytes() if path.exists() else None


def begin_of(save):
    return ["start", f"press Form11.{save.opens}", *save.begin]


def shown(answer):
    """The bytes of a file as the driver tells them; None where there is none."""
    return json.loads(answer[3:]).encode("latin-1") if answer.startswith("ok ") else None


class Faults:
    """The faults of one save."""

    def __init__(self, runner, save):
        self.runner, self.save = runner, save
        looks = [f'show file "{name}"' for name in save.watched]
        self.again = [*save.act, "show boxes", *looks] if save.repeats else []
        self.commands = [*begin_of(save), "show boxes", *looks, 'write "failing.begin" ""', *save.act,
                         'write "failing.end" ""', "show boxes", *looks, "show ended", *self.again]
        self.start = len(begin_of(save)) + 1
        self.end = self.start + len(looks) + 1 + len(save.act) + 1
        runner.fill(save)
        code, told = runner.answers(self.commands, 0)
        self.check_answers(code, told)
        self.calls = int(runner.count.read_text(encoding="ascii"))
        self.old, self.new = self.files_at(told, self.start), self.files_at(told, self.end + 1)
        self.boxes = self.boxes_in(told[self.end])
        self.next_run = self.look_at_next_run()
        if self.old == self.new or self.calls == 0:
            sys.exit(f"{save.name}: nothing is saved")

    def check_answers(self, code, told):
        bad = [(command, answer) for command, answer in zip(self.commands, told)
               if not answer.startswith("ok") and not command.startswith("show file")]
        if code != 0 or len(told) != len(self.commands) or bad:
            sys.exit(f"{self.save.name}: the save itself fails: {bad or told[-1:]}")

    def files_at(self, told, at):
        contents = [shown(answer) for answer in told[at:at + len(self.save.watched)]]
        # A live drawing that is not there is an empty one.
        return [b"" if name == LEFT_OVER and content is None else content
                for name, content in zip(self.save.watched, contents)]

    @staticmethod
    def boxes_in(answer):
        return [box[2] for box in json.loads(answer[3:])]

    def look_at_next_run(self):
        """What the next run says, and what it leaves in the folder."""
        code, told = self.runner.answers(["start", f"press Form11.{self.save.opens}", "show ended", "show boxes",
                                          "show files"])
        return code, told[:3], set(json.loads(told[4][3:])) if len(told) == 5 else told

    def fault(self, call, error, way):
        """What is wrong after that call has failed; None where nothing is."""
        self.runner.fill(self.save)
        code, told = self.runner.answers(self.commands, call, error, way)
        if code != 0 or len(told) != len(self.commands):
            return f"the program ended with {code} after {told[-1:]}"
        if told[self.end + 1 + len(self.save.watched)] != "ok 0":
            return "the program has ended"
        found = self.files_at(told, self.end + 1)
        for name, content, old, new in zip(self.save.watched, found, self.old, self.new):
            if content not in (old, new):
                return f"{name} is neither old nor new: {content!r}"
        said = [text for text in self.boxes_in(told[self.end]) if text not in self.boxes]
        wanted = [self.save.told] if self.save.told and found != self.new else []
        if [text.split("\r\n")[0] for text in said] != wanted:
            return f"it says {said} and not {wanted}"
        if self.again and found == self.old:
            at = len(told) - len(self.save.watched)
            if self.files_at(told, at) != self.new or set(self.boxes_in(told[at - 1])) - set(self.boxes):
                return f"the same again gives {told[at - 1:]}"
        return self.fault_of_next_run(found)

    def fault_of_next_run(self, found):
        left = [name for name in os.listdir(self.runner.folder) if name.startswith(".")]
        if left:
            return f"left behind: {left}"
        for name in ("failing.begin", "failing.end"):
            (self.runner.folder / name).unlink()
        code, told, files = self.look_at_next_run()
        if (code, told) != self.next_run[:2]:
            return f"the next run says {code}, {told}"
        extra = set(files) - self.next_run[2] - set(self.save.files)
        if extra:
            return f"the next run leaves {sorted(extra)}"
        if self.save.watched == (LEFT_OVER,):
            drawing = self.runner.bytes_of(RECOVERED)
            if found[0] and drawing != b"I\r\n" + found[0]:
                return f"the next run recovers {drawing!r}"
        return None


class Recovery:
    """The faults of a start after a killed run: the drawing that was left over is saved, whatever happens."""

    def __init__(self, runner):
        self.runner = runner
        self.save = saves.Save("drawing recovered", "Command8", [], [], (LEFT_OVER,),
                               files={LEFT_OVER: saves.DRAWING.encode()})
        self.commands = ["start", 'write "failing.begin" ""', "press Form11.Command8", 'write "failing.end" ""',
                         "show ended"]
        runner.fill(self.save)
        runner.answers(self.commands, 0)
        self.calls = int(runner.count.read_text(encoding="ascii"))

    def fault(self, call, error, way):
        self.runner.fill(self.save)
        code, told = self.runner.answers(self.commands, call, error, way)
        if code != 0 or told[-1:] != ["ok 0"] or not all(answer.startswith("ok") for answer in told):
            return f"the program says {told}"
        names = [name for name in os.listdir(self.runner.folder) if name.startswith("recovered")] + [LEFT_OVER]
        whole = saves.DRAWING.encode()
        contents = [self.runner.bytes_of(name) for name in names]
        if whole not in contents and b"I\r\n" + whole not in contents:
            return f"the drawing is lost: {dict(zip(names, contents))}"
        return None


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--drive", required=True, type=os.path.abspath)
    options.add_argument("--disk", required=True, type=os.path.abspath)
    options.add_argument("--quick", action="store_true")
    options = options.parse_args()
    kinds = [(errno.ENOSPC, "once")] if options.quick else [(error, way) for error in ERRORS for way in WAYS]
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    good = bad = 0
    with tempfile.TemporaryDirectory(dir=memory) as scratch:
        runner = Runner(options.drive, options.disk, pathlib.Path(scratch))
        for faults in [*(lambda save=save: Faults(runner, save) for save in saves.all_saves()),
                       lambda: Recovery(runner)]:
            faults = faults()
            for error, way in kinds:
                for call in range(1, faults.calls + 1):
                    fault = faults.fault(call, error, way)
                    if fault:
                        harness.tell_failure(f"{faults.save.name}: {errno.errorcode[error]} {way} at call {call}", fault)
                    good, bad = good + (not fault), bad + bool(fault)
            print(f"{faults.save.name}: {faults.calls} calls", flush=True)
    harness.finish("faults of the disk", good, bad)


if __name__ == "__main__":
    main()
