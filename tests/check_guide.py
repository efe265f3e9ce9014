#!/usr/bin/env python3
"""Checks that the guide keeps up with the program.

Every message box that a script of tests/scripts expects must stand, with what to do about it, in the message table of
its calculator's page ("..." in a table stands for what varies). Every link and picture of the documentation must be
there, and every page and picture of the guide must be linked.
"""

import json
import pathlib
import re

import harness

ROOT = pathlib.Path(__file__).resolve().parent.parent
GUIDE = ROOT / "docs" / "guide"

# Which page answers for the messages of a folder of scripts; a folder that is not named here must have none.
PAGES = {
    "access": "README.md", "boltcircle": "bolt-circles.md", "connect": "geometry.md", "extend": "geometry.md",
    "geofiles": "geometry.md", "geometry": "geometry.md", "menu": "README.md", "oblique": "oblique-triangles.md",
    "polygon": "polygons.md", "printing": "printing.md", "report": "geometry.md", "righttri": "right-triangles.md",
    "showhide": "geometry.md", "sineplate": "sine-plates.md", "speedsfeeds": "speeds-feeds.md", "tangent": "geometry.md",
}


def one_line(text):
    return " ".join(text.split())


def told(page):
    """Patterns of the messages in the tables of a page whose head begins with Message."""
    patterns, inside = [], False
    for line in page.read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")] if line.startswith("|") else []
        if not cells:
            inside = False
        elif cells[0].lower() == "message":
            inside = True
        elif inside and len(cells) == 2 and cells[1]:
            for message in cells[0].split(" (in the title)")[0].split(" / "):
                parts = [re.escape(one_line(part)) for part in message.split("...")]
                patterns.append(re.compile(r"\s*.*\s*".join(parts), re.DOTALL))
    return patterns


def boxes(script):
    """The texts of the message boxes that a script expects."""
    for line in script.read_text(encoding="latin-1").splitlines():
        if line.startswith("expect boxes "):
            for _, caption, text in json.loads(line.removeprefix("expect boxes ")):
                yield one_line(text if caption == "Brindlex" else caption)


def check_messages():
    everywhere = told(GUIDE / "printing.md")
    wrong = set()
    for script in sorted((ROOT / "tests" / "scripts").rglob("*.script")):
        folder = script.parent.name
        page = PAGES.get(folder)
        patterns = everywhere + (told(GUIDE / page) if page else [])
        for text in boxes(script):
            if not any(pattern.fullmatch(text) for pattern in patterns):
                wrong.add(f'docs/guide/{page}: what to do about "{text}"? ({folder}/{script.name})')
    return sorted(wrong)


def check_links():
    wrong, linked = [], set()
    pages = [ROOT / "README.md", *sorted((ROOT / "docs").rglob("*.md"))]
    for page in pages:
        for target in re.findall(r"\]\(([^)#:]+)(?:#[^)]*)?\)", page.read_text(encoding="utf-8")):
            place = (page.parent / target).resolve()
            linked.add(place)
            if not place.exists():
                wrong.append(f"{page.relative_to(ROOT)}: there is no {target}")
    for file in sorted(GUIDE.iterdir()):
        if file.resolve() not in linked:
            wrong.append(f"docs/guide/{file.name}: no page leads to it")
    return wrong


def main():
    wrong = check_messages() + check_links()
    for line in wrong:
        harness.tell_failure("guide", line)
    raise SystemExit(1 if wrong else 0)


main()
