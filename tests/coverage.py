#!/usr/bin/env python3
"""What the tests reach: lines and branches of all that decides, by the unit tests and the headless sessions.

    python3 tests/coverage.py [--build] [--run]

builds the preset `coverage`, runs the tests on it and prints a table. Without options it does all three; with --build or
--run only that, and the table from what was measured last with --table. Ends with 1 where a line was not reached, or a
branch not taken that branches.txt does not name with its reason, or where branches.txt names one that is taken.
"""

import argparse
import collections
import json
import os
import pathlib
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent
BUILD = ROOT / "build/coverage"
PROFILES = BUILD / "profiles"
BINARIES = [BUILD / "bin/unit-tests", BUILD / "bin/brindlex-drive"]

sys.path.append(str(HERE / "mutate"))
from decides import FILES  # pylint: disable=wrong-import-position


def run(*command, **more):
    subprocess.run([str(part) for part in command], cwd=ROOT, check=True, **more)


def build():
    run("cmake", "--preset", "coverage", stdout=subprocess.DEVNULL)
    run("cmake", "--build", "--preset", "coverage", "--target", "unit-tests", "brindlex-drive", "--", "--quiet")


def measure():
    shutil.rmtree(PROFILES, ignore_errors=True)
    PROFILES.mkdir(parents=True)
    environment = dict(os.environ, LLVM_PROFILE_FILE=str(PROFILES / "%m.profraw"))
    environment.pop("COUNTS", None)
    run(sys.executable, HERE / "run_unit.py", BINARIES[0], env=environment)
    run(sys.executable, HERE / "run_scripts.py", "--drive", BINARIES[1], "--runtime", "headless", env=environment)
    raw = sorted(PROFILES.glob("*.profraw"))
    run("llvm-profdata-14", "merge", "-sparse", "-o", PROFILES / "all.profdata", *raw)


def export(form):
    command = ["llvm-cov-14", "export", f"-format={form}", f"-instr-profile={PROFILES / 'all.profdata'}",
               BINARIES[0], f"-object={BINARIES[1]}"]
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          check=True, text=True).stdout


def source_name(name):
    """A file's name from the top of the project; the compiler may have told it from the folder of the build."""
    return os.path.relpath(BUILD / name, ROOT)


def lines_of(report):
    """{file: {line: how often}}"""
    found, name = {}, ""
    for row in report.splitlines():
        if row.startswith("SF:"):
            name = source_name(row[3:])
        elif row.startswith("DA:"):
            line, count = row[3:].split(",")[:2]
            here = found.setdefault(name, {})
            here[int(line)] = here.get(int(line), 0) + int(count)
    return found


def branches_of(report):
    """{file: {(line, column, end line, end column): [how often true, how often false]}}, all instances together"""
    found = collections.defaultdict(dict)
    for function in json.loads(report)["data"][0]["functions"]:
        name = source_name(function["filenames"][0])
        for *place, yes, no, _, _, _ in function["branches"]:
            counts = found[name].setdefault(tuple(place), [0, 0])
            counts[0] += yes
            counts[1] += no
    return found


def text_of(source, place):
    first, left, last, right = place
    lines = source[first - 1:last]
    lines[-1] = lines[-1][:right - 1]
    lines[0] = lines[0][left - 1:]
    return " ".join(" ".join(lines).split())


def named_branches():
    """{key: reason}"""
    found = {}
    for line in (HERE / "branches.txt").read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            key, _, why = line.rpartition(" :: ")
            found[key.strip()] = why.strip()
    return found


def table():
    lines, branches, named = lines_of(export("lcov")), branches_of(export("text")), named_branches()
    used, faults, total = set(), [], [0] * 5
    print("| file | lines | reached | branches | taken | named |\n|---|---|---|---|---|---|")
    for name in FILES:
        source = (ROOT / name).read_text(encoding="utf-8").splitlines()
        missed = [line for line, count in sorted(lines.get(name, {}).items()) if count == 0]
        faults += [f"{name}:{line}: not reached    {source[line - 1].strip()}" for line in missed]
        row = [len(lines.get(name, {})), len(lines.get(name, {})) - len(missed), 0, 0, 0]
        seen = collections.Counter()
        for place, counts in sorted(branches[name].items()):
            for count, way in zip(counts, ("true", "false")):
                row[2] += 1
                if count:
                    row[3] += 1
                    continue
                key = f"{name} | {text_of(source, place)} | never {way}"
                seen[key] += 1
                key += f" #{seen[key]}" if seen[key] > 1 else ""
                if key in named:
                    row[4] += 1
                    used.add(key)
                else:
                    faults.append(f"{name}:{place[0]}: a branch without a name    {key}")
        total = [a + b for a, b in zip(total, row)]
        print(f"| {name} |", " | ".join(map(str, row)), "|")
    print("| together |", " | ".join(map(str, total)), "|")
    faults += [f"branches.txt names what is taken or gone: {key}" for key in named if key not in used]
    print("\n".join(faults))
    return not faults


def main():
    parser = argparse.ArgumentParser(description="Lines and branches that the tests reach.")
    for name in ("build", "run", "table"):
        parser.add_argument(f"--{name}", action="store_true")
    options = parser.parse_args()
    everything = not (options.build or options.run or options.table)
    if options.build or everything:
        build()
    if options.run or everything:
        measure()
    if options.table or everything:
        sys.exit(0 if table() else 1)


main()
