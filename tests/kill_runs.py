#!/usr/bin/env python3
"""Kills the program at random moments while it places, converts, saves and deletes on the drawing board.

    kill_runs.py --drive build/release/bin/brindlex-drive [--kills 1000] [--seed 1]

A slow walk first notes every state that the drawing and the saved file may be found in. After each kill both files must
stand in one of them, so that each is the old one or the new one, whole; and the next run must save the drawing that was
left over, say so, and leave nothing else behind.
"""

import argparse
import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

import harness

DRAWING = "geometry.dat"
SAVED = "out.geo"
RECOVERED = "recovered.geo"
OLD = b"old\r\n"
ROUNDS = 200  # more than the program gets through before it is killed

BEGIN = ["start", "press Form11.Command8"]
TYPED = ["set Form17.Text1.Text \"1.50\"", "set Form17.Text2.Text \"-2\"", "set Form17.Text3.Text \".5\"",
         "set Form17.Text6.Text \"0\"", "set Form17.Text7.Text \"0\"", "set Form17.Text8.Text \"1\"",
         "set Form17.Text9.Text \"2.250\"", "set Form17.Text10.Text \".25\"", "set Form17.Text11.Text \"3\""]
PLACE = [command for tool in ("Circle", "Line", "Point") for command in
         (f'tool Form17.Toolbar1 "{tool}"', *["press Form17.Command1"] * 4)]
SAVE = [f'dialog "{SAVED}"', "menu Form17.SaveAs"]
BLANKS = " " * 15
# All but the lines, two at a time.
DELETE = ['tool Form17.Toolbar1 "ID"', "press Form17.Option11"] + [
    command for circle, point in zip(range(1, 5), range(9, 13)) for command in
    (f'choose Form17.Combo3 " {circle}{BLANKS}/Circle"', f'choose Form17.Combo8 " {point}{BLANKS}/Point"',
     "press Form17.Command1")]
ROUND = TYPED + PLACE + SAVE + ["menu Form17.MM"] + SAVE + DELETE + SAVE + ["menu Form17.InchTo", "menu Form17.NewGeo"]


def answers(drive, folder, commands):
    run = subprocess.run([drive, "--dir", folder], input="\n".join(commands) + "\n", capture_output=True, text=True,
                         check=False)
    return run.stdout.splitlines()


def bytes_of(path):
    return path.read_bytes() if path.exists() else None


def states_of(drive, folder):
    """The states of the drawing and of the saved file in the order they come."""
    (folder / SAVED).write_bytes(OLD)
    commands = list(BEGIN)
    for command in ROUND:
        commands += [command, f'show file "{DRAWING}"', f'show file "{SAVED}"']
    told = answers(drive, folder, commands)[len(BEGIN):]
    refused = [(command, told[3 * i]) for i, command in enumerate(ROUND) if told[3 * i] != "ok"]
    if refused:
        sys.exit(f"The walk itself fails: {refused[0]}")
    texts = [json.loads(answer[3:]).encode("latin-1") for i, answer in enumerate(told) if i % 3]
    return set(texts[::2]), set(texts[1::2]) | {OLD}


def clear(folder):
    for entry in os.scandir(folder):
        os.remove(entry)


def killed_run(drive, folder, after):
    """Starts the endless walk and kills it after so many seconds."""
    walk = "\n".join(BEGIN + ROUND * ROUNDS) + "\n"
    with tempfile.TemporaryFile(dir=folder.parent) as script:
        script.write(walk.encode())
        script.seek(0)
        with subprocess.Popen([drive, "--dir", folder], stdin=script, stdout=subprocess.DEVNULL) as run:
            time.sleep(after)
            ended = run.poll() is not None
            run.kill()
    return not ended


def fault_after(drive, folder, drawings, saves):
    """What is wrong with what a killed run has left; and whether a drawing was recovered."""
    drawing, saved = bytes_of(folder / DRAWING), bytes_of(folder / SAVED)
    if saved not in saves:
        return f"the saved file is neither old nor new: {saved!r}", False
    # Without a drawing before the board has begun, and between two drawings.
    if drawing and drawing not in drawings:
        return f"the drawing is neither old nor new: {drawing!r}", False
    told = answers(drive, folder, BEGIN + ["show boxes", "close Form17"])
    box = [[64, "Brindlex", f"A drawing of an earlier run was saved as {RECOVERED}"]] if drawing else []
    if json.loads(told[2][3:]) != box:
        return f"the next run says {told[2]}", False
    if bytes_of(folder / RECOVERED) != (b"I\r\n" + drawing if drawing else None):
        return "the drawing was not recovered whole", False
    left = set(os.listdir(folder)) - {SAVED, RECOVERED}
    return f"files are left over: {sorted(left)}" if left else None, bool(drawing)


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--drive", required=True, type=os.path.abspath)
    options.add_argument("--kills", type=int, default=1000)
    options.add_argument("--seed", type=int, default=1)
    options = options.parse_args()
    chance = random.Random(options.seed)
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    good = bad = recovered = 0
    with tempfile.TemporaryDirectory(dir=memory) as scratch:
        folder = pathlib.Path(scratch) / "run"
        folder.mkdir()
        drawings, saves = states_of(options.drive, folder)
        while good + bad < options.kills:
            clear(folder)
            (folder / SAVED).write_bytes(OLD)
            if not killed_run(options.drive, folder, chance.uniform(0.003, 0.08)):
                sys.exit("The walk ended before it was killed.")
            fault, kept = fault_after(options.drive, folder, drawings, saves)
            recovered += kept
            if fault:
                bad += 1
                harness.tell_failure(f"kill {good + bad}", fault)
            else:
                good += 1
    print(f"{recovered} of {good + bad} kills left a drawing, and it was recovered")
    harness.finish("kills", good, bad)


if __name__ == "__main__":
    main()
