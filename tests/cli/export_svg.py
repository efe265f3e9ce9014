"""Pictures at scale 1:1: the values in them, their pages as PDF, and the ink on the page."""

import re
import subprocess
import xml.etree.ElementTree

from export_tools import any_drawing, expect, expect_near

SVG = "{http://www.w3.org/2000/svg}"
PER_INCH = {"in": 1, "mm": 25.4}
POINTS = 72
DOTS = 254  # an inch: ten a millimetre
INK = 128


def read(bench, name):
    """The root, after what must hold for any such file: one unit of its coordinates is one inch or millimetre."""
    root = xml.etree.ElementTree.parse(bench.path(name)).getroot()
    left, top, width, height = map(float, root.get("viewBox").split())
    unit = root.get("width")[-2:]
    expect(root.get("width") == f"{root.get('viewBox').split()[2]}{unit}", "the width is not 1:1")
    expect(root.get("height") == f"{root.get('viewBox').split()[3]}{unit}", "the height is not 1:1")
    return root, unit, (left, top, width, height)


def page_of(bench, name):
    """Turns a picture into PDF; the size of the page in points."""
    pdf = bench.path("page.pdf")
    subprocess.run(["rsvg-convert", "-f", "pdf", "-o", pdf, bench.path(name)], check=True)
    told = subprocess.run(["pdfinfo", pdf], check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout
    width, height = re.search(r"Page size: +([0-9.]+) x ([0-9.]+) pts", told).groups()
    return pdf, float(width), float(height)


def ink_of(bench, pdf):
    """The dark dots of a page, as (column, row) from the left top corner."""
    subprocess.run(["pdftoppm", "-r", str(DOTS), "-gray", "-singlefile", pdf, bench.path("page")], check=True)
    data = bench.path("page.pgm").read_bytes()
    magic, width, height, _, dots = data.split(maxsplit=4)
    width, height = int(width), int(height)
    dots = data[-width * height:]
    expect(magic == b"P5", magic)
    return {(i % width, i // width) for i, dot in enumerate(dots) if dot < INK}


def test_values(bench):
    for seed, unit in ((1, "I"), (2, "M")):
        entities = any_drawing(seed)
        bench.drawing("a.geo", unit, entities)
        bench.export("a.geo", "a.svg", "--force")
        root, word, (left, top, width, height) = read(bench, "a.svg")
        expect(word == {"I": "in", "M": "mm"}[unit], word)
        found = {SVG + "circle": [], SVG + "line": [], SVG + "path": [], SVG + "text": []}
        for element in root.iter():
            if element.tag in found:
                found[element.tag].append(element)
        wanted = {kind: [list(map(float, texts)) for _, k, *texts in entities if k == kind]
                  for kind in ("Circle", "Line", "Point")}
        circles = [[2 * float(c.get("r")), float(c.get("cx")), -float(c.get("cy"))] for c in found[SVG + "circle"]]
        expect(circles == wanted["Circle"], circles, wanted["Circle"])
        lines = [[float(e.get("x1")), -float(e.get("y1")), float(e.get("x2")), -float(e.get("y2"))]
                 for e in found[SVG + "line"]]
        expect(lines == wanted["Line"], lines, wanted["Line"])
        points = [re.match(r"M(\S+) (\S+?)m", e.get("d")).groups() for e in found[SVG + "path"]]
        expect([[float(x), -float(y)] for x, y in points] == wanted["Point"], points, wanted["Point"])
        expect([e.text for e in found[SVG + "text"]] == [str(number) for number, *_ in entities], "the numbers")
        for diameter, x, y in wanted["Circle"]:
            expect(left < x - diameter / 2 and x + diameter / 2 < left + width, "a circle leaves the page")
            expect(top < -y - diameter / 2 and -y + diameter / 2 < top + height, "a circle leaves the page")


def test_the_page_has_its_true_size(bench):
    # A circle of 40 and 10 mm on each side; a line of 3 by 1 inches and 10 mm on each side.
    bench.drawing("a.geo", "M", [(1, "Circle", "40", "5", "-7")])
    bench.drawing("b.geo", "I", [(1, "Line", "0", "0", "3", "-1")])
    for name, width, height in (("a", 60 / 25.4, 60 / 25.4), ("b", 3 + 20 / 25.4, 1 + 20 / 25.4)):
        bench.export(f"{name}.geo", f"{name}.svg")
        _, found_width, found_height = page_of(bench, f"{name}.svg")
        expect_near(found_width, width * POINTS, 0.01, "the page's width")
        expect_near(found_height, height * POINTS, 0.01, "the page's height")


def test_ink_stands_where_it_should(bench):
    # A circle of 40 at the middle, and a point 10 above it, on the page 15 from the top; 60 by 60 mm.
    bench.drawing("a.geo", "M", [(1, "Circle", "40", "0", "0"), (2, "Point", "0", "15")])
    bench.export("a.geo", "a.svg")
    pdf, *_ = page_of(bench, "a.svg")
    ink = ink_of(bench, pdf)
    row = [column for column, line in ink if line == 300 and 90 < column < 510]
    expect_near(min(row), 100, 2, "the circle's left edge")
    expect_near(max(row), 500, 2, "the circle's right edge")
    column = [line for place, line in ink if place == 300]
    expect_near(min(column), 100, 2, "the circle's upper edge")
    expect_near(max(column), 500, 2, "the circle's lower edge")
    expect((300, 150) in ink and (290, 150) in ink, "the point's cross is not above the middle")
    expect((300, 450) not in ink and (290, 450) not in ink, "the picture is upside down")
    expect((300, 300) not in ink, "the circle is filled")
    expect(any(70 < column < 95 and 275 < line < 305 for column, line in ink), "the circle's number is missing")


def test_holes(bench):
    bench.bolt_circle("b.bcf", "0", "0", "80", "4", "0")
    bench.export("b.bcf", "b.svg", "--unit", "mm", "--hole-diameter", "6.5")
    root, unit, box = read(bench, "b.svg")
    circles = [(float(c.get("cx")), -float(c.get("cy")), float(c.get("r"))) for c in root.iter(SVG + "circle")]
    wanted = [(0, 0, 40), (40, 0, 3.25), (0, 40, 3.25), (-40, 0, 3.25), (0, -40, 3.25)]
    expect(unit == "mm" and len(circles) == 5, unit, circles)
    for found, want in zip(circles, wanted):
        for value, number in zip(found, want):
            expect_near(value, number, 1e-12, "a circle")
    expect_near(box[2], 80 + 6.5 + 20, 1e-12, "the page's width")
    expect([e.text for e in root.iter(SVG + "text")] == ["1", "2", "3", "4"], "the numbers of the holes")
