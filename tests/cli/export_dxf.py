"""Drawings for CAD, read back by ezdxf."""

import collections

import ezdxf

from export_tools import any_drawing, expect, expect_near, holes_of

NEAR = 1e-12
UNITS = {"I": (1, 0), "M": (4, 1)}


def read(bench, name, unit):
    """The model space, after what must hold for any such file."""
    drawing = ezdxf.readfile(bench.path(name))
    expect((drawing.header["$INSUNITS"], drawing.header["$MEASUREMENT"]) == UNITS[unit], "the unit is wrong")
    expect(drawing.dxfversion == "AC1015", drawing.dxfversion)
    audit = drawing.audit()
    expect(not audit.errors, "ezdxf finds faults:", [error.message for error in audit.errors])
    names = {layer.dxf.name for layer in drawing.layers}
    entities = list(drawing.modelspace())
    for entity in entities:
        expect(entity.dxf.layer in names, "no such layer:", entity.dxf.layer)
    return entities


def values_of(entity):
    kind = entity.dxftype()
    if kind == "CIRCLE":
        return kind, (2 * entity.dxf.radius, *entity.dxf.center)
    if kind == "LINE":
        return kind, (*entity.dxf.start, *entity.dxf.end)
    return kind, tuple(entity.dxf.location)


def wanted_of(kind, texts):
    numbers = [float(text) for text in texts]
    if kind == "Circle":
        return "CIRCLE", (numbers[0], numbers[1], numbers[2], 0)
    if kind == "Line":
        return "LINE", (numbers[0], numbers[1], 0, numbers[2], numbers[3], 0)
    return "POINT", (*numbers, 0)


def test_every_coordinate_comes_back(bench):
    for seed in range(10):
        unit = "IM"[seed % 2]
        entities = any_drawing(seed)
        bench.drawing("a.geo", unit, entities)
        bench.export("a.geo", "a.dxf", "--force")
        found = read(bench, "a.dxf", unit)
        expect(len(found) == len(entities), len(found), "entities instead of", len(entities))
        for entity, (number, kind, *texts) in zip(found, entities):
            word, numbers = values_of(entity)
            wanted_word, wanted = wanted_of(kind, texts)
            expect(word == wanted_word, word, wanted_word)
            expect(entity.dxf.layer == kind.upper() + "S", entity.dxf.layer)
            for value, want in zip(numbers, wanted):
                expect_near(value, want, NEAR, f"entity {number}")


def test_large_and_small_numbers(bench):
    bench.drawing("a.geo", "M", [(1, "Point", "123456789012345", "-.000000123456789"), (2, "Circle", "1E15", "0", "0")])
    bench.export("a.geo", "a.dxf")
    point, circle = read(bench, "a.dxf", "M")
    expect(tuple(point.dxf.location) == (123456789012345, -1.23456789e-7, 0), point.dxf.location)
    expect(circle.dxf.radius == 5e14, circle.dxf.radius)


def test_a_bolt_circle(bench):
    bench.bolt_circle("b.bcf", "1.25", "-3", "4.5", "7", "12.5")
    wanted = holes_of(1.25, -3, 4.5, 7, 12.5)
    for diameter in (None, 0.375):
        bench.export("b.bcf", "b.dxf", "--unit", "in", "--force", *(["--hole-diameter", diameter] if diameter else []))
        circle, *holes = read(bench, "b.dxf", "I")
        expect(circle.dxf.layer == "BOLT_CIRCLE" and circle.dxf.radius == 2.25, circle.dxfattribs())
        expect(tuple(circle.dxf.center) == (1.25, -3, 0), circle.dxf.center)
        expect(collections.Counter(hole.dxf.layer for hole in holes) == {"HOLES": 7}, "not all are holes")
        for hole, (x, y) in zip(holes, wanted):
            place = hole.dxf.center if diameter else hole.dxf.location
            expect(not diameter or hole.dxf.radius == diameter / 2, "the hole's radius")
            expect_near(place[0], x, NEAR, "X")
            expect_near(place[1], y, NEAR, "Y")


def test_the_most_holes(bench):
    bench.bolt_circle("b.bcf", "0", "0", "1000", "32767", "0")
    bench.export("b.bcf", "b.dxf", "--unit", "mm")
    circle, *holes = read(bench, "b.dxf", "M")
    expect(circle.dxf.radius == 500 and len(holes) == 32767, len(holes))
    # The calculator adds the angle up hole by hole; after as many additions the last places are off a little.
    x, y = holes_of(0, 0, 1000, 32767, 0)[-1]
    expect_near(holes[-1].dxf.location[0], x, 1e-7, "X")
    expect_near(holes[-1].dxf.location[1], y, 1e-7, "Y")
