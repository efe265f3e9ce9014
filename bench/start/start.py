#!/usr/bin/env python3
"""Starts programs by turns and compares time to the painted window, processor time and memory.

    start.py BIN [RUNS] [NAME=COMMAND...]

BIN is the folder of the built programs: a bare Qt window (start_bare) and the program itself are always in the run; any
other program can be named. The display is the one that is there (xvfb-run for a private one, with no window manager).

A start is over when a window of the program stands on the screen and has been painted: rows of it show several colours.
Then the memory is read, and the program killed; its processor time (user and system) is that up to there, without
processes that it started.
"""

import os
import shlex
import signal
import statistics
import subprocess
import sys
import tempfile
import time

import screen

SECONDS = 30
WARMUPS = 2


def memory_of(process):
    """Peak resident and proportional memory in MiB."""
    figures = {}
    for name, key in (("status", "VmHWM:"), ("smaps_rollup", "Pss:")):
        with open(f"/proc/{process}/{name}", encoding="ascii", errors="replace") as lines:
            figures[key] = next(int(line.split()[1]) / 1024 for line in lines if line.startswith(key))
    return figures["VmHWM:"], figures["Pss:"]


def start(command, display):
    """Milliseconds to the painted window, milliseconds of processor time, peak and proportional memory in MiB."""
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_RUNTIME_DIR=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home)
        display.forget_windows()
        begun = time.perf_counter()
        process = subprocess.Popen(command, cwd=home, env=environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        painted = display.wait_for_painted(begun + SECONDS)
        took = time.perf_counter() - begun
        if painted:
            memory = memory_of(process.pid)
        process.send_signal(signal.SIGKILL)
        _, _, usage = os.wait4(process.pid, 0)
        process.returncode = 0
        display.wait_for_none()
    if not painted:
        sys.exit(f"{command[0]} shows no window")
    return took * 1000, (usage.ru_utime + usage.ru_stime) * 1000, *memory


def main():
    folder = os.path.abspath(sys.argv[1])
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    programs = {"bare window": [os.path.join(folder, "start_bare"), "stay"],
                "brindlex": [os.path.join(folder, "brindlex")]}
    for named in sys.argv[3:]:
        name, _, command = named.partition("=")
        programs[name] = shlex.split(command or name)
    display = screen.Screen()
    figures = {name: [] for name in programs}
    for turn in range(runs + WARMUPS):
        for name, command in programs.items():
            figure = start(command, display)
            if turn >= WARMUPS:
                figures[name].append(figure)
    medians = {name: [statistics.median(column) for column in zip(*rows)] for name, rows in figures.items()}
    bare = medians["bare window"]
    print(f"medians of {runs}; load of the machine {os.getloadavg()[0]:.1f} on {os.cpu_count()} processors")
    print(f"{'':14}{'painted':>12}{'processor':>12}{'peak memory':>14}{'proportional':>14}   times a bare window")
    for name, (took, used, peak, share) in medians.items():
        ratios = "  ".join(f"{mine / its:.2f}" for mine, its in zip(medians[name], bare))
        print(f"{name:14}{took:9.1f} ms{used:9.1f} ms{peak:10.1f} MiB{share:10.1f} MiB   {ratios}")


main()
