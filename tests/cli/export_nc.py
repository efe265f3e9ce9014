"""Drilling programs: read word by word, and run by an interpreter for machine programs where one is installed."""

import json
import math
import os
import re
import shutil
import subprocess
import sys

from cli_runner import Missing
from export_tools import MILLING, SECONDS, expect, expect_near, holes_of

WITHIN = 0.00005  # millimetres
PER_UNIT = {"mm": 1, "in": 25.4}
ALLOWED = re.compile(r"\([A-Z0-9 .,:=+/-]*\)|[A-Z]-?\d+(\.\d+)?( [A-Z]-?\d+(\.\d+)?)*")
WORD = re.compile(r"([A-Z])(-?\d+(?:\.\d+)?)")
INCHES = ["--safe-height", "1", "--retract", ".1", "--depth", "-.5", "--feed", "4.5", "--spindle", "1200"]
PATTERNS = [(0, 0, 100, 6, 0), (10, -5, 63.5, 17, 12.3456), (-2.71828, 3.14159, 1.41421, 5, 301.7), (1, 2, 8, 1, 45)]
READER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "export_interpreter.py")


def lines_of(text):
    """The lines, after what must hold for every program."""
    lines = text.decode("ascii").split("\n")
    expect(lines.pop() == "", "the last line is not ended")
    for line in lines:
        expect(ALLOWED.fullmatch(line), "a line that a control may not understand:", line)
        expect(len(line) <= 80, "a long line:", line)
        if line.startswith("("):
            continue
        for letter, number in WORD.findall(line):
            # A length without a point is a count of the smallest step on older controls.
            expect(("." in number) == (letter in "XYZRQF"), "a point too few or too many:", line)
    return lines


def read(text):
    """What a program does, by its words: its modes and the holes as (x, y, bottom, retract, safe height, peck)."""
    lines = lines_of(text)
    modes, place, holes, drilling = set(), {}, [], False
    for line in lines:
        if line.startswith("("):
            continue
        words = WORD.findall(line)
        codes = {letter + number for letter, number in words if letter in "GM"}
        values = {letter: float(number) for letter, number in words if letter not in "GM"}
        modes |= codes
        drilling = (drilling or bool(codes & {"G81", "G83"})) and "G80" not in codes
        if "Z" in values and not drilling:
            values["safe"] = values.pop("Z")
        place.update(values)
        if drilling:
            holes.append((place["X"], place["Y"], place["Z"], place["R"], place["safe"], place.get("Q")))
    expect(lines[-1] == "M2" and lines[-2] == "M5", "the end", lines[-2:])
    expect("G80" in lines, "the cycle is not cancelled")
    return modes, holes


def test_words(bench):
    for unit, options in (("mm", MILLING), ("in", INCHES)):
        safe, retract, bottom = float(options[1]), float(options[3]), float(options[5])
        for peck in (None, 3 if unit == "mm" else 0.125):
            for x, y, diameter, count, start in PATTERNS:
                bench.bolt_circle("b.bcf", x, y, diameter, count, start)
                text = bench.export("b.bcf", "-", "--as", "nc", "--unit", unit, *options,
                                    *(["--peck", peck] if peck else []))
                modes, holes = read(text)
                expect({"G20" if unit == "in" else "G21", "G17", "G40", "G80", "G90", "G94", "G98",
                        "G83" if peck else "G81"} == {mode for mode in modes if mode[0] == "G"} - {"G0"}, modes)
                wanted = holes_of(x, y, diameter, count, start)
                expect(len(holes) == len(wanted), len(holes), "holes instead of", len(wanted))
                for hole, place in zip(holes, wanted):
                    for found, want in zip(hole, place):
                        expect_near(found * PER_UNIT[unit], want * PER_UNIT[unit], WITHIN + 1e-12, "a hole")
                    expect(hole[2:] == (bottom, retract, safe, peck), hole)


def test_no_number_of_the_head_is_cut_short(bench):
    bench.bolt_circle("b.bcf", "-32744.481234", "10888.835678", "19170.678123", 4, "123.456789")
    text = bench.export("b.bcf", "-", "--as", "nc", "--unit", "in", "--safe-height", "12345.678901", "--retract",
                        "2345.678901", "--depth", "-12345.678901", "--peck", "1234.567891", "--feed", "1", "--spindle", "9")
    expect(text.decode().split("\n")[3:8] == ["(CENTER X-32744.481234 Y10888.835678, DIAMETER 19170.678123)",
                                   "(START ANGLE 123.456789)", "(PECKS OF 1234.567891 TO Z-12345.678901)",
                                   "(FEED FROM Z2345.678901, WAYS AT Z12345.678901)", "G20 G17 G40 G80 G90 G94"], text)


def test_heads_and_file(bench):
    bench.bolt_circle("odd (name); no_2.bcf", 0, 0, 50, 3, 0)
    bench.export("odd (name); no_2.bcf", "b.nc", "--unit", "mm", *MILLING)
    lines = lines_of(bench.path("b.nc").read_bytes())
    expect(lines[0] == "(BRINDLEX: 3 HOLES ON A BOLT CIRCLE, FROM ODD  NAME   NO 2.BC)", lines[0])
    expect(lines[1] == "(CHECK THIS PROGRAM BEFORE IT IS RUN ON A MACHINE)", lines[1])


def test_fewer_places(bench):
    bench.bolt_circle("b.bcf", 0, 0, 33.33333, 7, 11)
    for places in range(1, 7):
        _, holes = read(bench.export("b.bcf", "-", "--as", "nc", "--unit", "mm", "--places", places, *MILLING))
        for hole, place in zip(holes, holes_of(0, 0, 33.33333, 7, 11), strict=True):
            for found, want in zip(hole, place):
                expect_near(found, want, 0.5 * 10 ** -places + 1e-12, f"a hole with {places} places")


CANON = re.compile(r"([A-Z_]+)\(([^)]*)\)")


def interpreted(bench, name):
    """The calls that the stand-alone interpreter makes of a program: (name, [numbers])."""
    if not shutil.which("rs274"):
        raise Missing("rs274")
    table = bench.path("tool.tbl")
    table.write_text("T7 P7 Z0 D5\n", encoding="ascii")
    done = subprocess.run(["rs274", "-g", "-t", table, "-v", bench.path("rs274.var"), bench.path(name)],
                          cwd=bench.folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          encoding="utf-8", timeout=SECONDS, check=False)
    expect(done.returncode == 0 and "PROGRAM_END" in done.stdout, "the interpreter refuses the program:", done.stdout)
    calls = []
    for call, rest in CANON.findall(done.stdout):
        if call.startswith("STRAIGHT_"):
            calls.append((call, [float(number) for number in rest.split(",")[:3]]))
        else:
            calls.append((call, rest))
    return calls


def check_moves(moves, wanted, options, tolerance):
    """moves: (feeds, (x, y, z)). Only the feed goes into the work, at the holes alone and to the bottom; every way across
    is at the safe height."""
    safe, retract, bottom = float(options[1]), float(options[3]), float(options[5])
    bottoms, before = [], None
    for feeds, (x, y, z) in moves:
        expect(feeds or before is None or z > 0 or z > before[2] or z >= deepest(bottoms, before) - tolerance,
               "a rapid into the work:", before, (x, y, z))
        if feeds:
            expect_near(x, before[0], 0, "a feed across, X")
            expect_near(y, before[1], 0, "a feed across, Y")
            if not bottoms or bottoms[-1][:2] != (x, y):
                expect_near(before[2], retract, tolerance, "where the feed begins")
                bottoms.append((x, y, z))
            else:
                expect(z < bottoms[-1][2], "a peck that goes no deeper")
                bottoms[-1] = (x, y, z)
        elif before is not None and (x, y) != before[:2]:
            expect_near(z, safe, tolerance, "a way across at another height")
            expect_near(before[2], safe, tolerance, "a way across from another height")
        before = (x, y, z)
    expect(len(bottoms) == len(wanted), len(bottoms), "holes instead of", len(wanted))
    for (x, y, z), (want_x, want_y) in zip(bottoms, wanted):
        expect_near(x, want_x, tolerance, "X of a hole")
        expect_near(y, want_y, tolerance, "Y of a hole")
        expect_near(z, bottom, tolerance, "the bottom of a hole")


def deepest(bottoms, before):
    """How deep the hole at hand has been drilled."""
    return bottoms[-1][2] if bottoms and bottoms[-1][:2] == before[:2] else math.inf


def test_interpreter(bench):
    for unit, options in (("mm", MILLING), ("in", INCHES)):
        for extra in ([], ["--peck", "3" if unit == "mm" else ".125"], ["--tool", "7"]):
            for x, y, diameter, count, start in PATTERNS:
                bench.bolt_circle("b.bcf", x, y, diameter, count, start)
                bench.export("b.bcf", "b.nc", "--unit", unit, "--force", *options, *extra)
                calls = interpreted(bench, "b.nc")
                units = [rest for call, rest in calls if call == "USE_LENGTH_UNITS"]
                expect(units[-1] == {"mm": "CANON_UNITS_MM", "in": "CANON_UNITS_INCHES"}[unit], units)
                moves = [(call == "STRAIGHT_FEED", tuple(rest)) for call, rest in calls if call.startswith("STRAIGHT_")]
                # It prints four decimals, which is half of 0.0001 off at most, besides the program's own rounding.
                check_moves(moves, holes_of(x, y, diameter, count, start), options, 0.0001 + 1e-9)
                feeds = [float(rest) for call, rest in calls if call == "SET_FEED_RATE"]
                expect(float(options[7]) in feeds, "the feed", feeds)
                names = [call for call, _ in calls]
                expect((("SELECT_TOOL", "7") in calls and "CHANGE_TOOL" in names) == ("--tool" in extra), "the tool")
                expect(("START_SPINDLE_CLOCKWISE", "0") in calls, "the spindle stands still")
                expect(("SET_SPINDLE_SPEED", f"0, {float(options[9]):.4f}") in calls, "the spindle's speed")


def test_interpreter_to_the_last_digit(bench):
    """The interpreter's module for previews tells whole doubles, in inches."""
    if not shutil.which("rs274"):
        raise Missing("rs274")
    for unit, options in (("mm", MILLING), ("in", INCHES)):
        for x, y, diameter, count, start in PATTERNS:
            bench.bolt_circle("b.bcf", x, y, diameter, count, start)
            bench.export("b.bcf", "b.nc", "--unit", unit, "--force", *options)
            done = bench.run(READER, bench.path("b.nc"), program=sys.executable)
            expect(done.returncode == 0, "the interpreter's module failed:", done.stderr)
            scale = 25.4 / PER_UNIT[unit]
            moves = [(feeds, tuple(value * scale for value in place)) for feeds, place in json.loads(done.stdout)]
            check_moves(moves, holes_of(x, y, diameter, count, start), options, WITHIN / PER_UNIT[unit] + 1e-9)
