#!/usr/bin/env python3
"""Checks who includes whom in src/ and prints each line that breaks a rule: check_includes.py [SRC]

  - a room includes only the rooms that it may look into (ROOMS)
  - Qt stands in desktop and app alone, nlohmann's JSON in headless, cli and app alone, CLI11 and dxflib in cli alone
  - files that only think (THINKING), and all of cli, reach no header of the form surface, of a form or of a runtime,
    by any way; nor does the program brindlex-cli
  - no header reaches itself
"""

import pathlib
import re
import sys

CALCULATORS = ["righttri", "oblique", "boltcircle", "sineplate", "polygon", "geometry", "speedsfeeds"]

# Whom a room may include besides itself.
ROOMS = {
    "frame": [],
    "services": ["frame"],
    **{calculator: ["services", "frame"] for calculator in CALCULATORS},
    "desktop": ["frame"],
    "headless": ["frame"],
    "cli": ["frame", "services", *CALCULATORS],
    "app": ["frame", "services", *CALCULATORS, "desktop", "headless", "cli"],
}

# Files that think and show nothing, by the first word of their names.
THINKING = {"solver", "record", "records", "rules", "store", "calculation", "connect", "crossings", "tangentcircles",
            "extend", "checked", "fault", "text", "textfile", "answer", "document", "report", "unit", "words"}

# The roots of the form surface in frame: what a thinking file may not reach. All else of the surface includes one.
SURFACE = {"commondialog", "control", "dispatch", "drawing", "event", "form", "menuitem", "printer", "program",
           "runtime", "snapshot"}

# Rooms and programs that know no form at all.
FORMLESS = ("cli/", "app/cli.cpp")

# Words in the names of headers that belong to forms and runtimes, in any other room.
SHOWING = ("form", "panel", "dialog", "runtime", "control", "diagram", "drawpass", "viewport")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def read_includes(source):
    """{file: [(line number, line, quote, name)]} of every source file, by its path below src."""
    files = {}
    for path in sorted(source.rglob("*")):
        if path.suffix in (".h", ".cpp"):
            lines = path.read_text(encoding="utf-8", errors="replace").splitlines()
            files[path.relative_to(source).as_posix()] = [
                (number, line.strip(), *match.groups())
                for number, line in enumerate(lines, 1) if (match := INCLUDE.match(line))]
    return files


def target(file, name, files):
    """The path below src that an include in quotes means."""
    beside = (pathlib.PurePosixPath(file).parent / name).as_posix()
    return name if name in files or "/" in name else beside


def word(file):
    return pathlib.PurePosixPath(file).stem.split("_")[0]


def shows(header):
    room = header.partition("/")[0]
    stem = pathlib.PurePosixPath(header).stem
    if room == "frame":
        return stem in SURFACE
    return word(header) not in THINKING and any(part in stem for part in SHOWING)


def arrow_fault(file, quote, name, files):
    """Why this include breaks the rule of rooms, or None."""
    room = file.partition("/")[0]
    if room not in ROOMS:
        return f"{room} is no room"
    if re.match(r"Q[A-Z]|Qt|q[a-z]+platform", name) and "." not in name.split("/")[0]:
        return None if room in ("desktop", "app") else "Qt stands in desktop and app alone"
    if name.startswith("nlohmann/"):
        return None if room in ("headless", "cli", "app") else "JSON stands in headless, cli and app alone"
    if name.startswith(("CLI/", "dxflib/")):
        return None if room == "cli" else "CLI11 and dxflib stand in cli alone"
    if quote == "<":
        return None
    goal = target(file, name, files)
    if goal not in files:
        return "there is no such header below src"
    goal_room = goal.partition("/")[0]
    if goal_room != room and goal_room not in ROOMS[room]:
        return f"{room} may not look into {goal_room}"
    return None


def way_to_showing(start, files):
    """The shortest way of includes from a thinking file to a header that shows, with the first line, or None."""
    ways, seen = [(start, [])], {start}
    for file, way in ways:
        for number, line, quote, name in files.get(file, []):
            goal = target(file, name, files)
            if quote == "<" or goal in seen or goal not in files:
                continue
            seen.add(goal)
            step = [*way, (file, number, line, goal)]
            if shows(goal):
                return step
            ways.append((goal, step))
    return None


def circle(start, files):
    """Whether a header reaches itself."""
    pending, seen = [start], set()
    while pending:
        file = pending.pop()
        for _, _, quote, name in files.get(file, []):
            goal = target(file, name, files)
            if quote == "<" or goal in seen:
                continue
            if goal == start:
                return True
            seen.add(goal)
            pending.append(goal)
    return False


def faults_of(files):
    for file, includes in files.items():
        for number, line, quote, name in includes:
            if fault := arrow_fault(file, quote, name, files):
                yield f"src/{file}:{number}: {line}    {fault}"
        room = file.partition("/")[0]
        if file.startswith(FORMLESS) or word(file) in THINKING and room not in ("desktop", "headless", "app"):
            if way := way_to_showing(file, files):
                number, line, goal = way[0][1], way[0][2], way[-1][3]
                yield f"src/{file}:{number}: {line}    a file that knows no form reaches {goal}"
        if file.endswith(".h") and circle(file, files):
            yield f"src/{file}:1: the header includes itself by a circle"


def main():
    source = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent / "src")
    files = read_includes(source)
    faults = list(faults_of(files))
    print("\n".join(faults) if faults else f"{len(files)} files include whom they may")
    sys.exit(1 if faults else 0)


main()
