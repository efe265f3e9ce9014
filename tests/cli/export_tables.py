"""CSV and JSON, read by Python's own readers, and held against what the desktop program says."""

import csv
import io
import json
import math
import re

from export_tools import any_drawing, expect, expect_near, holes_of


def rows_of(data):
    """The rows as dictionaries, after what RFC 4180 wants: every line ended, all with as many fields."""
    text = data.decode("ascii")
    expect(text.endswith("\r\n") and "\n" not in text.replace("\r\n", ""), "the line ends")
    rows = list(csv.reader(io.StringIO(text, newline=""), strict=True))
    expect(len({len(row) for row in rows}) == 1, "rows of different lengths")
    return [dict(zip(rows[0], row)) for row in rows[1:]]


def test_entities(bench):
    entities = any_drawing(5)
    bench.drawing("a.geo", "M", entities)
    # A country whose decimal sign is the comma.
    rows = rows_of(bench.export("a.geo", "-", "--as", "csv", LC_ALL="de_DE.UTF-8", LANG="de_DE.UTF-8"))
    items = json.loads(bench.export("a.geo", "-", "--as", "json"))
    expect(items["unit"] == "mm" and len(rows) == len(entities) == len(items["entities"]), "the count")
    fields = {"Circle": ("diameter", "x", "y"), "Line": ("x", "y", "x2", "y2"), "Point": ("x", "y")}
    for row, item, (number, kind, *texts) in zip(rows, items["entities"], entities):
        expect(row["number"] == str(number) and row["kind"] == kind.lower() and row["unit"] == "mm", row)
        expect(item["number"] == number and item["kind"] == kind.lower(), item)
        for field, text in zip(fields[kind], texts):
            expect(float(row[field]) == float(text) == item[field], field, row, item)
        for field in set(row) - {"number", "kind", "unit", *fields[kind]}:
            expect(row[field] == "" and field not in item, field, "does not apply")


def test_pairs_as_the_board_lists_them(bench):
    bench.drawing("a.geo", "I", [(1, "Line", "-1.5", "-.8", "1.2", ".9"), (2, "Line", "-1.5", "1", "1.25", "-.75"),
                                 (3, "Line", "2", "1", "2", "1.5"), (4, "Circle", "1", "0", "0"),
                                 (5, "Line", "2", "3", "2", "9")])
    crossing, extended = bench.play("start", "press Form11.Command8", 'dialog "a.geo"', "menu Form17.OpenIt",
                                    "show Form17.Combo1.List", "show Form17.Combo2.List")
    rows = rows_of(bench.export("a.geo", "-", "--as", "csv", "--pairs"))
    expect([(row["first"], row["second"], row["meet"]) for row in rows] ==
           [("1", "2", "crossing"), ("1", "3", "extended"), ("1", "5", "extended"), ("2", "3", "extended"),
            ("2", "5", "extended")], rows)
    told = [re.fullmatch(r" *(\d+) *, *(\d+) */ *(\S+)\\ *(\S+)", item).groups() for item in crossing + extended]
    expect([(row["first"], row["second"], float(row["x"]), float(row["y"])) for row in rows] ==
           [(first, second, float(x), float(y)) for first, second, x, y in told], rows, told)
    # By the slopes: y = -.8 + 17/27 (x + 1.5) and y = 1 - 7/11 (x + 1.5).
    x = 1.8 / (17 / 27 + 7 / 11) - 1.5
    expect_near(float(rows[0]["x"]), x, 1e-14, "X")
    expect_near(float(rows[0]["y"]), -0.8 + 17 / 27 * (x + 1.5), 1e-14, "Y")
    expect_near(float(rows[0]["angle"]), math.degrees(math.atan(17 / 27) + math.atan(7 / 11)), 1e-12, "the angle")
    expect_near(float(rows[1]["angle"]), 90 - math.degrees(math.atan(17 / 27)), 1e-12, "the angle to an upright line")
    pairs = json.loads(bench.export("a.geo", "-", "--as", "json"))["pairs"]
    for pair, row in zip(pairs, rows, strict=True):
        expect(all(str(pair[name]) == row[name] for name in ("first", "second", "meet")), pair, row)
        expect(all(pair[name] == float(row[name]) for name in ("x", "y", "angle")), pair, row)


def test_what_the_board_has_saved(bench):
    bench.play("start", "press Form11.Command8", 'set Form17.Text1.Text "-1"', 'set Form17.Text2.Text "0"',
               'set Form17.Text3.Text "1"', "press Form17.Command1", 'set Form17.Text1.Text "1"',
               'set Form17.Text3.Text ".5"', "press Form17.Command1", 'dialog "belt.geo"', "menu Form17.SaveAs")
    rows = rows_of(bench.export("belt.geo", "-", "--as", "csv"))
    expect([(row["number"], row["kind"], row["x"], row["y"], row["diameter"], row["unit"]) for row in rows] ==
           [("1", "circle", "-1", "0", "1", "in"), ("2", "circle", "1", "0", "0.5", "in")], rows)


def test_holes_as_the_calculator_reports_them(bench):
    text, = bench.play("start", "press Form11.Command3", 'type Form8.Text1 "1.5"', 'type Form8.Text2 "-2"',
                       'type Form8.Text3 "10"', 'type Form8.Text4 "7"', 'type Form8.Text5 "30"',
                       "press Form8.Command1", 'dialog "flange.bcf"', "menu Form8.SaveFileAs", "show Form8.Text6.Text")
    report = re.findall(r"Hole ?(\d+): X= +(\S+) , Y= +(\S+)", text)
    expect(len(report) == 7, "the report was not understood:", text)
    rows = rows_of(bench.export("flange.bcf", "-", "--as", "csv", "--unit", "mm"))
    items = json.loads(bench.export("flange.bcf", "-", "--as", "json", "--unit", "mm"))
    expect((items["unit"], items["center"], items["diameter"], items["startAngle"]) ==
           ("mm", {"x": 1.5, "y": -2}, 10, 30), items)
    wanted = holes_of(1.5, -2, 10, 7, 30)
    for row, item, told, (x, y) in zip(rows, items["holes"], report, wanted, strict=True):
        expect(row["hole"] == told[0] == str(item["hole"]), row, told, item)
        expect_near(float(row["x"]), float(told[1]), 0.00005001, "X against the report")
        expect_near(float(row["y"]), float(told[2]), 0.00005001, "Y against the report")
        expect_near(float(row["x"]), x, 1e-12, "X")
        expect_near(float(row["y"]), y, 1e-12, "Y")
        expect((item["x"], item["y"]) == (float(row["x"]), float(row["y"])), item, row)
    expect_near(float(rows[6]["angle"]), 30 + 6 * 360 / 7, 1e-12, "the angle")
