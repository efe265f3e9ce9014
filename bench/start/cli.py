#!/usr/bin/env python3
"""Starts brindlex-cli and a bare C++ program by turns, from start to printed answer: cli.py BIN [RUNS]

BIN is the folder of the built programs. A start of one is followed by a start of the other, so that whatever else the
machine does falls on both. Then it times a batch of triangles from standard input.
"""

import os
import random
import statistics
import subprocess
import sys
import time

TRIANGLES = 100000
BATCHES = 5


def seconds(command, given=None):
    """Seconds from the start of the process until its output has ended, and the processor time that it took."""
    begun = time.perf_counter()
    process = subprocess.Popen(command, stdin=given or subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    if status != 0:
        sys.exit(f"{command} ended with {status}")
    return time.perf_counter() - begun, usage.ru_utime + usage.ru_stime


def starts(folder, runs):
    commands = {"start_line": [os.path.join(folder, "start_line")],
                "brindlex-cli": [os.path.join(folder, "brindlex-cli"), "right", "--side-a", "5", "--angle-b", "30"]}
    figures = {name: [] for name in commands}
    for turn in range(runs + 5):
        for name, command in commands.items():
            figure = seconds(command)
            if turn >= 5:
                figures[name].append(figure)
    medians = {}
    for name, rows in figures.items():
        medians[name] = [statistics.median(column) * 1000 for column in zip(*rows)]
        print(f"{name:12} {medians[name][0]:6.3f} ms, {medians[name][1]:6.3f} ms of the processor (median of {runs})")
    ratios = [cli / bare for cli, bare in zip(medians["brindlex-cli"], medians["start_line"])]
    print(f"{'ratio':12} {ratios[0]:6.2f}     {ratios[1]:6.2f}")


def batches(folder):
    random.seed(1)
    rows = "".join(f"{random.uniform(.1, 100):.4f},{random.uniform(.1, 89):.4f}\n" for _ in range(TRIANGLES))
    with open(os.memfd_create("triangles"), "w+", encoding="ascii") as csv:
        csv.write("side-a,angle-b\n" + rows)
        csv.flush()
        figures = []
        for _ in range(BATCHES):
            os.lseek(csv.fileno(), 0, os.SEEK_SET)
            figures.append(seconds([os.path.join(folder, "brindlex-cli"), "right", "--batch"], csv))
    wall, processor = (min(column) for column in zip(*figures))
    print(f"{TRIANGLES} triangles: {wall:.2f} s, {processor:.2f} s of the processor (best of {BATCHES})")


def main():
    folder = os.path.abspath(sys.argv[1])
    starts(folder, int(sys.argv[2]) if len(sys.argv) > 2 else 400)
    batches(folder)


main()
