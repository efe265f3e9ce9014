#!/usr/bin/env python3
"""Runs sessions on the real windows under valgrind's memcheck, in a fresh empty working directory each.

    run_valgrind.py --drive build/release/bin/brindlex-drive-desktop [--each 20] [SCRIPT or FOLDER...]

Without a name it takes so many sessions of every folder of tests/scripts, evenly spread, the first of every folder
first; 0 takes them all. A session counts as clean with no error and no block definitely lost; valgrind.supp beside
this file names what is the system's own.
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


def spread(scripts, most):
    """At most so many of them, evenly spread."""
    if most == 0 or len(scripts) <= most:
        return scripts
    return [scripts[i * len(scripts) // most] for i in range(most)]


def choice(each):
    folders = sorted(path for path in (run_scripts.HERE / "scripts").iterdir() if path.is_dir())
    chosen = [spread(run_scripts.scripts_of([folder]), each) for folder in folders]
    return [script for turn in itertools.zip_longest(*chosen) for script in turn if script]


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
    options.add_argument("scripts", nargs="*")
    options = options.parse_args()
    scripts = run_scripts.scripts_of(options.scripts) if options.scripts else choice(options.each)
    results = [is_clean(options.drive, script) for script in scripts]
    harness.finish("valgrind", results.count(True), results.count(False), results.count(None))


main()
