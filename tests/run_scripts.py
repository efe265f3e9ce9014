#!/usr/bin/env python3
"""Runs sessions of the whole program, each in a fresh empty working directory, one a processor at a time.

    run_scripts.py --drive build/release/bin/brindlex-drive --runtime headless|desktop [SCRIPT or FOLDER...]

Without a name it runs all of tests/scripts. Comment lines at the head of a script may say how it is to be run:

    # screen: 1024x600        the size of the screen in pixels
    # runtime: desktop        only on this runtime (say why in the line below)

A script that fails is shown with all that the driver said. Ends with 77 where all that was asked for is skipped.
"""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

import harness

HERE = pathlib.Path(__file__).resolve().parent
SECONDS = 120


def head_of(script):
    """The settings in the comment lines that a script begins with."""
    settings = {}
    for line in script.read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            break
        name, colon, value = line[1:].partition(":")
        if colon and value.split() and name.strip() in ("screen", "runtime"):
            settings[name.strip()] = value.split()[0]
    return settings


def scripts_of(names):
    found = []
    for name in names or [HERE / "scripts"]:
        path = pathlib.Path(name).resolve()
        found += sorted(path.rglob("*.script")) if path.is_dir() else [path]
    return found


def environment_of(home, runtime):
    """The user's own folders and look stay out of the test: settings kept there would carry over."""
    environment = {name: value for name, value in os.environ.items()
                   if not name.startswith(("XDG_", "QT_", "DISPLAY", "WAYLAND_"))}
    environment.update(HOME=str(home), XDG_RUNTIME_DIR=str(home), LC_ALL="C.UTF-8")
    if runtime == "desktop":
        environment["QT_QPA_PLATFORM"] = "offscreen"
    return environment


def run_script(drive, runtime, script):
    """True, False, or None for a script that is not meant for this runtime."""
    settings = head_of(script)
    if settings.get("runtime", runtime) != runtime:
        return None
    with tempfile.TemporaryDirectory(prefix="brindlex-script-") as folder:
        home, working = pathlib.Path(folder, "home"), pathlib.Path(folder, "work")
        home.mkdir(mode=0o700)
        working.mkdir()
        command = [drive, "--dir", str(working)]
        command += ["--desktop"] if runtime == "desktop" else []
        command += ["--screen", settings["screen"]] if "screen" in settings else []
        command.append(str(script))
        title = f"{script.relative_to(HERE) if script.is_relative_to(HERE) else script} ({runtime})"
        try:
            done = subprocess.run(command, cwd=working, env=environment_of(home, runtime), stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=SECONDS, check=False)
        except subprocess.TimeoutExpired as expired:
            harness.tell_failure(title, f"not done after {SECONDS} s", expired.stdout or b"", expired.stderr or b"")
            return False
        if done.returncode != 0:
            harness.tell_failure(title, f"ended with {done.returncode}", done.stdout, done.stderr)
        return done.returncode == 0


def main():
    parser = argparse.ArgumentParser(description="Runs sessions of the whole program.")
    parser.add_argument("--drive", required=True)
    parser.add_argument("--runtime", required=True, choices=["headless", "desktop"])
    parser.add_argument("scripts", nargs="*")
    options = parser.parse_args()
    drive = os.path.abspath(options.drive)
    scripts = scripts_of(options.scripts)
    if not os.access(drive, os.X_OK):
        sys.exit(f"There is no {drive}: build it first.")
    results = harness.in_parallel(lambda script: run_script(drive, options.runtime, script), scripts)
    if options.scripts and scripts and all(result is None for result in results):
        sys.exit(77)
    harness.finish(f"scripts, {options.runtime}", results.count(True), results.count(False), results.count(None))


if __name__ == "__main__":
    main()
