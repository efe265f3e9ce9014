#!/usr/bin/env python3
"""Runs sessions on the real windows under valgrind's memcheck, in a fresh empty working directory each.

    run_valgrind.py --drive build/release/bin/brindlex-drive-desktop [--each 20 | --most N] [--jobs N]
                    [SCRIPT or FOLDER...]

Without a name it takes so many sessions of every folder of tests/scripts, evenly spread, the first of every folder
first; 0 takes them all. With --most it takes N sessions that between them come to every form and do as many different
things as they can, a command on a control each, and tells how many of all. A session counts as clean with no error and
no block definitely lost; valgrind.supp beside this file names what is the system's own.
"""

import argparse
import itertools
import os
import pathlib
import subprocess
import tempfile

import harness
import run_scripts

SUPPRESSIONS = run_scripts.HERE / "valgrind.supp"
ERROR = 99
SECONDS = 3600
LOOKS = ("start", "expect", "near", "show", "write", "quit", "wait", "shot")


def spread(scripts, most):
    """At most so many of them, evenly spread."""
    if most == 0 or len(scripts) <= most:
        return scripts
    return [scripts[i * len(scripts) // most] for i in range(most)]


def choice(each):
    folders = sorted(path for path in (run_scripts.HERE / "scripts").iterdir() if path.is_dir())
    chosen = [spread(run_scripts.scripts_of([folder]), each) for folder in folders]
    return [script for turn in itertools.zip_longest(*chosen) for script in turn if script]


def deeds_of(script):
    """What a session does: commands with their controls, tools and menu items with their names."""
    deeds = set()
    for line in script.read_text(encoding="utf-8").splitlines():
        word, _, rest = line.partition(" ")
        if word in LOOKS or not word.isalpha():
            continue
        target = rest if word == "tool" else rest.split(" ")[0]
        deeds.add((word, "" if target.startswith('"') else target))
    return deeds


def places_of(deeds):
    """The forms that they are done on; what has no form, as each answer to a dialog, is a place of its own."""
    return {target.split(".")[0] or word for word, target in deeds}


def most_different(number):
    """That many sessions: first those that come to all places, then those that add most."""
    left = {script: deeds_of(script) for script in run_scripts.scripts_of([])
            if run_scripts.head_of(script).get("runtime", "desktop") == "desktop"}
    everything = set().union(*left.values())
    chosen, done = [], set()
    while len(chosen) < number and done != everything:
        best = max(left, key=lambda script: (len(places_of(left[script]) - places_of(done)), len(left[script] - done)))
        chosen.append(best)
        done |= left.pop(best)
    forms = [sum(place.startswith("Form") for place in places_of(deeds)) for deeds in (done, everything)]
    print(f"{len(chosen)} sessions: {len(done)} of {len(everything)} different deeds, {forms[0]} of {forms[1]} forms",
          flush=True)
    return chosen


def is_clean(drive, script):
    """Runs one session; None where it is not meant for the windows."""
    settings = run_scripts.head_of(script)
    if settings.get("runtime", "desktop") != "desktop":
        return None
    name = script.relative_to(run_scripts.HERE / "scripts")
    with tempfile.TemporaryDirectory(prefix="brindlex-valgrind-") as folder:
        home, working, log = (pathlib.Path(folder, part) for part in ("home", "work", "log"))
        home.mkdir(mode=0o700)
        working.mkdir()
        command = ["valgrind", "--quiet", "--leak-check=full", "--show-leak-kinds=definite",
                   "--errors-for-leak-kinds=definite", f"--error-exitcode={ERROR}", f"--log-file={log}",
                   f"--suppressions={SUPPRESSIONS}", "--num-callers=25", drive, "--dir", str(working)]
        command += ["--screen", settings["screen"]] if "screen" in settings else []
        try:
            done = subprocess.run([*command, str(script)], cwd=working, stdin=subprocess.DEVNULL,
                                  env=run_scripts.environment_of(home, "desktop"), stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, timeout=SECONDS, check=False)
        except subprocess.TimeoutExpired:
            harness.tell_failure(name, f"not done after {SECONDS} s")
            return False
        if done.returncode != 0:
            harness.tell_failure(name, f"ended with {done.returncode}", log.read_bytes(), done.stderr)
        else:
            print(f"{name}: clean", flush=True)
        return done.returncode == 0


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--drive", required=True, type=os.path.abspath)
    options.add_argument("--each", type=int, default=20)
    options.add_argument("--most", type=int, default=0)
    options.add_argument("--jobs", type=int, help="so many at a time, not one for each processor")
    options.add_argument("scripts", nargs="*")
    options = options.parse_args()
    if options.scripts:
        scripts = run_scripts.scripts_of(options.scripts)
    else:
        scripts = most_different(options.most) if options.most else choice(options.each)
    results = harness.in_parallel(lambda script: is_clean(options.drive, script), scripts, options.jobs)
    harness.finish("valgrind", results.count(True), results.count(False), results.count(None))


main()
