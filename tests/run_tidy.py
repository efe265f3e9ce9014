#!/usr/bin/env python3
"""Runs clang-tidy over src/, one file a processor: run_tidy.py BUILD_FOLDER [SOURCE...]

BUILD_FOLDER holds compile_commands.json. A file that was clean is not read again until it, a header of ours that it
reaches, its compile command, .clang-tidy or clang-tidy itself changes; the memory of that is build/tidy.
"""

import hashlib
import json
import pathlib
import re
import subprocess
import sys

import harness

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"
MEMORY = ROOT / "build" / "tidy"
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def reached(path, seen):
    """The path and the headers of ours that it reaches, in seen with their bytes."""
    if path in seen or not path.is_file():
        return
    seen[path] = path.read_bytes()
    for name in INCLUDE.findall(seen[path]):
        for folder in (SOURCES, path.parent):
            reached(folder / name.decode(), seen)


def fingerprint(entry, general):
    seen = {}
    reached(pathlib.Path(entry["file"]), seen)
    digest = hashlib.sha256(general)
    digest.update(entry.get("command", "").encode())
    for path in sorted(seen):
        digest.update(str(path).encode() + b"\0" + seen[path] + b"\0")
    return digest.hexdigest()


def check(entry, build, general):
    """Whether the file is clean."""
    mark = MEMORY / fingerprint(entry, general)
    if mark.exists():
        mark.touch()
        return True
    done = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), entry["file"]], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    if done.returncode == 0:
        mark.touch()
        return True
    harness.tell_failure(str(pathlib.Path(entry["file"]).relative_to(ROOT)), done.stdout or done.stderr)
    return False


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    wanted = {pathlib.Path(name).resolve() for name in sys.argv[2:]}
    entries = [entry for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
               if pathlib.Path(entry["file"]).is_relative_to(SOURCES)
               and (not wanted or pathlib.Path(entry["file"]) in wanted)]
    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout
    # The processor's name in the version's text differs from machine to machine and changes nothing.
    version = b"\n".join(line for line in version.splitlines() if b"CPU" not in line)
    general = version + (ROOT / ".clang-tidy").read_bytes()
    MEMORY.mkdir(parents=True, exist_ok=True)
    results = harness.in_parallel(lambda entry: check(entry, build, general), entries)
    print(f"clang-tidy: {results.count(True)} of {len(results)} files clean")
    sys.exit(0 if all(results) else 1)


main()
