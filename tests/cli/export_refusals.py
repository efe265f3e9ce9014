"""What is refused: wrong words, wrong documents, places that can't be written; and that nothing is left behind then."""

import os
import random

from export_tools import MILLING, expect, record

BOLTS = ("0", "0", "100", "6", "0")


def documents(bench):
    bench.drawing("a.geo", "I", [(1, "Circle", "1", "0", "0"), (2, "Line", "0", "0", "1", "1")])
    bench.bolt_circle("b.bcf", *BOLTS)


def files(bench):
    return sorted(path.name for path in bench.folder.iterdir())


def without(option):
    place = MILLING.index(option)
    return MILLING[:place] + MILLING[place + 2:]


def with_other(option, text):
    return [*without(option), option, text]


def test_words(bench):
    documents(bench)
    before = files(bench)
    nc = ["b.bcf", "b.nc", "--unit", "mm"]
    for part, words in [
        ("OUT is missing", ["a.geo"]), ("one word too many", ["a.geo", "a.dxf", "x"]), ("no ending", ["a.geo", "out"]),
        (".pdf is no ending of an export", ["a.geo", "a.pdf"]), (".geo is no ending", ["a.geo", "b.geo"]),
        ("it has no holes", ["a.geo", "a.nc"]), ("neither a drawing", ["a.txt", "a.dxf"]),
        ("--unit is missing: a bolt circle", ["b.bcf", "b.dxf"]),
        ("--unit cm: this must be in or mm", ["b.bcf", "b.dxf", "--unit", "cm"]),
        ("--unit is mm, but the drawing is in inches", ["a.geo", "a.dxf", "--unit", "mm"]),
        ("more than once", ["b.bcf", "b.dxf", "--unit", "mm", "--unit", "in"]),
        ("--pairs has no meaning for this .dxf", ["a.geo", "a.dxf", "--pairs"]),
        ("--depth has no meaning for this .csv", ["b.bcf", "b.csv", "--unit", "mm", "--depth", "-1"]),
        ("--hole-diameter 0: this must be above 0", ["b.bcf", "b.dxf", "--unit", "mm", "--hole-diameter", "0"]),
        ("--hole-diameter 1,5: this is no length", ["b.bcf", "b.dxf", "--unit", "mm", "--hole-diameter", "1,5"]),
        *[(f"{option} is missing: a drilling program has no default", nc + without(option)) for option in MILLING[::2]],
        *[(f"{option} x: this is no number", nc + with_other(option, "x")) for option in MILLING[::2]],
        *[(f"{option} inf: this is no number", nc + with_other(option, "inf")) for option in MILLING[::2]],
        *[(f"{option} 1e999: this is out of range", nc + with_other(option, "1e999")) for option in MILLING[::2]],
        ("--depth -.5in: the unit here is mm", nc + with_other("--depth", "-.5in")),
        ("must be below 0, not 12.5", nc + with_other("--depth", "12.5")),
        ("must be below 0, not 0", nc + with_other("--depth", "0")),
        ("above the work, that is above 0, not -2", nc + with_other("--retract", "-2")),
        ("--safe-height must not be below --retract, not 1", nc + with_other("--safe-height", "1")),
        ("--safe-height must be above the work", nc + with_other("--safe-height", "-25")),
        ("--feed 0: this must be above 0", nc + with_other("--feed", "0")),
        ("--spindle -900: this must be from 1", nc + with_other("--spindle", "-900")),
        ("--peck must be above 0, not 0", nc + MILLING + ["--peck", "0"]),
        ("--tool 1.5: this must be a whole number", nc + MILLING + ["--tool", "1.5"]),
        ("--places 9: this must be from 1 to 6", nc + MILLING + ["--places", "9"]),
    ]:
        bench.refused(2, part, *words)
        expect(files(bench) == before, "something was left behind by", words, files(bench))


def test_documents(bench):
    before = []
    for name, lines, part in [
        ("empty.geo", ["I"], "empty.geo: the drawing is empty"), ("note.geo", ["M", "a note"], "the drawing is empty"),
        ("text.geo", ["a note"], "text.geo: this is no drawing"), ("none.geo", [], "none.geo: this is no drawing"),
        ("flat.geo", ["M", record(3, "Circle", "0", "1", "1")], "circle 3 has no diameter"),
        ("huge.geo", ["M", record(1, "Line", "-1E308", "0", "1E308", "0")], "a value is too large"),
    ]:
        bench.write(name, lines)
        before.append(name)
        bench.refused(3, part, name, "out.svg")
    for texts, part in [
        (("0", "0", "100", "0", "0"), "there are no holes: 0"), (("0", "0", "100", "2.5", "0"), "no whole number: 2.5"),
        (("0", "0", "100", "40000", "0"), "more than 32767 holes"), (("0", "0", "0.0", "4", "0"), "not above 0: 0.0"),
        (("0", "0", "1e999", "4", "0"), "the diameter is no number"), (("", "", "", "", ""), "the center's X is missing"),
        (("0", "0", "1E6", "4", "0"), "hole 1 is too far away for a machine"),
    ]:
        bench.bolt_circle("bad.bcf", *texts)
        bench.refused(3, part, "bad.bcf", "out.nc", "--unit", "mm", *MILLING)
    bench.write("bare.geo", [record(1, "Point", "1", "2")])
    bench.refused(2, "--unit is missing: the drawing names none", "bare.geo", "out.csv")
    expect(bench.export("bare.geo", "-", "--as", "csv", "--unit", "mm").endswith(b"1,point,1,2,,,,mm\r\n"), "the unit")
    expect(files(bench) == sorted([*before, "bad.bcf", "bare.geo"]), files(bench))


def test_places(bench):
    documents(bench)
    bench.path("old.dxf").write_bytes(b"old")
    bench.path("folder.dxf").mkdir()
    bench.refused(5, "old.dxf exists already; --force replaces it", "a.geo", "old.dxf")
    expect(bench.path("old.dxf").read_bytes() == b"old", "the old file was touched")
    bench.refused(2, "must be below 0", "b.bcf", "old.dxf", "--as", "nc", "--force", "--unit", "mm",
                  *with_other("--depth", "1"))
    expect(bench.path("old.dxf").read_bytes() == b"old", "the old file was touched")
    bench.refused(5, "folder.dxf", "a.geo", "folder.dxf", "--force")
    bench.refused(5, "none/a.dxf can't be written", "a.geo", "none/a.dxf")
    bench.refused(5, "none.geo can't be read", "none.geo", "a.dxf")
    bench.refused(5, "/dev/full can't be written", "a.geo", "/dev/full", "--as", "csv", "--force")
    drawing = bench.path("a.geo").read_bytes()
    os.symlink("a.geo", bench.path("same.csv"))
    os.link(bench.path("a.geo"), bench.path("hard.csv"))
    for out in ("a.geo", "./a.geo", "same.csv", "hard.csv"):
        bench.refused(2, f"{out} is the document itself", "a.geo", out, "--as", "csv", "--force")
        expect(bench.path("a.geo").read_bytes() == drawing, "the drawing was replaced by way of", out)
    os.remove(bench.path("same.csv"))
    os.remove(bench.path("hard.csv"))
    bench.export("a.geo", "old.dxf", "--force")
    expect(bench.path("old.dxf").read_bytes().endswith(b"EOF\n"), "the new file is not whole")
    os.symlink("nowhere", bench.path("link.csv"))
    bench.refused(5, "link.csv exists already", "a.geo", "link.csv")
    expect(files(bench) == ["a.geo", "b.bcf", "folder.dxf", "link.csv", "old.dxf"], files(bench))


def test_endings(bench):
    documents(bench)
    bench.export("a.geo", "A.DXF")
    expect(bench.path("A.DXF").read_bytes() == bench.export("a.geo", "-", "--as", "dxf"), "A.DXF is no DXF")
    os.rename(bench.path("a.geo"), bench.path("geometry.dat"))
    expect(bench.export("geometry.dat", "-", "--as", "csv").startswith(b"number,"), "the live drawing")


def test_rubbish(bench):
    """Any bytes at all end in a result or in a refusal of one line, never otherwise."""
    documents(bench)
    dice = random.Random(11)
    sound = {name: bench.path(name).read_bytes() for name in ("a.geo", "b.bcf")}
    for turn in range(60):
        name = ("a.geo", "b.bcf")[turn % 2]
        data = bytearray(sound[name] if turn % 3 else bytes(dice.randrange(256) for _ in range(200)))
        for _ in range(dice.randrange(1, 6)):
            data[dice.randrange(len(data))] = dice.choice(b"0123456789.-eE ,\r\n\0\xff\xb0IM")
        bench.path(name).write_bytes(data)
        ending = ("dxf", "svg", "csv", "json", "nc")[dice.randrange(5 if name == "b.bcf" else 4)]
        done = bench.run("export", name, "-", "--as", ending, *(["--unit", "mm"] if name == "b.bcf" else []),
                         *(MILLING if ending == "nc" else []))
        expect(done.returncode in (0, 2, 3), turn, done.returncode, done.stderr)
        expect(bool(done.stdout) == (done.returncode == 0), turn, "partly printed")
        expect(done.stderr.count(b"\n") == (done.returncode != 0), turn, done.stderr)
        expect(b"nan" not in done.stdout.lower() and b"inf" not in done.stdout.replace(b"AcDb", b"").lower(), turn)
