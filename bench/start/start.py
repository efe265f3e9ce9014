#!/usr/bin/env python3
"""Starts the program's menu and a bare Qt window by turns and compares time and peak memory: start.py BIN [RUNS]

BIN is the folder of the built programs. The display is the one that is there (xvfb-run for a private one).
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time


def start(program, folder):
    """Seconds from the start of the process to its end, and its peak memory in MiB."""
    begun = time.perf_counter()
    process = subprocess.Popen([program], cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    if status != 0:
        sys.exit(f"{program} ended with {status}")
    return time.perf_counter() - begun, usage.ru_maxrss / 1024


def main():
    folder = sys.argv[1]
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 40
    programs = {name: os.path.join(os.path.abspath(folder), name) for name in ("start_bare", "start_menu")}
    figures = {name: [] for name in programs}
    with tempfile.TemporaryDirectory() as work:
        for turn in range(runs + 2):
            for name, program in programs.items():
                figure = start(program, work)
                if turn >= 2:
                    figures[name].append(figure)
    medians = {}
    for name, rows in figures.items():
        medians[name] = [statistics.median(column) for column in zip(*rows)]
        print(f"{name:12} {medians[name][0] * 1000:7.1f} ms  {medians[name][1]:6.1f} MiB  (median of {runs})")
    ratios = [menu / bare for menu, bare in zip(medians["start_menu"], medians["start_bare"])]
    print(f"{'ratio':12} {ratios[0]:7.2f}     {ratios[1]:6.2f}")


main()
