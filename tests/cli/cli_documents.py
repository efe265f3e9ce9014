"""Documents and drawings: every file that the desktop's sessions and fuzzers hold gives what the desktop shows."""

import re

from cli_bench import corpus, same, seeds, shown, written_by_scripts
from cli_triangles import ENTRIES, OBLIQUE_CASES, RIGHT_CASES

# Ending: calculator's button on the menu, form, item that opens, boxes with results, their names in CSV.
KINDS = {
    ".rgt": ("Command1", "Form1", "OPenFile", ["Text6", "Text7", "Text8", "Text4", "Text5"],
             ["side_a", "side_b", "side_c", "angle_b", "angle_c"]),
    ".obl": ("Command2", "Form2", "OPenFile", ["Text8", "Text4", "Text6", "Text5", "Text7", "Text9"],
             ["angle_a", "angle_b", "angle_c", "side_a", "side_b", "side_c"]),
    ".sin": ("Command4", "Form12", "OPenFile", ["Text3", "Text4"], ["buildup", "bottom_buildup", "top_buildup"]),
    ".pgf": ("Command6", "Form16", "OpenFile", ["Text2"], ["diameter"]),
    ".bcf": ("Command3", "Form8", "OpenFile", ["Text6"], []),
}
TITLES = {".rgt": "right", ".obl": "oblique", ".sin": "sine", ".pgf": "polygon", ".bcf": "bolt"}


def values_of(bench, name):
    rows = bench.rows("solve", name)
    same({row["calculation"] for row in rows}, {TITLES[name[-4:]]}, name)
    return {(row["name"], row["number"]): row["value"] for row in rows}


def holes_of(report):
    """{(name, number): value} of the lines of holes."""
    found = {}
    for line in report.split("\r\n"):
        match = re.match(r"Hole ?\s*(\d+)\s*: X=\s*(\S+) , Y=\s*(\S+)", line)
        if match:
            found[("x", match[1])], found[("y", match[1])] = match[2], match[3]
    return found


def compare(bench, desktop, name, ending):
    """True where the document has a result, on the desktop as here."""
    button, form, item, boxes, names = KINDS[ending]
    desktop.do("press Form11." + button)
    desktop.do("dialog", name)
    desktop.do(f"menu {form}.{item}")
    messages = [text for _, _, text in desktop.show("boxes")]
    texts = [shown(desktop.show(f"{form}.{box}.Text")) for box in boxes]
    if not any(texts) or messages:
        done = bench.run("solve", name)
        assert done.returncode in (3, 4) and done.stdout == b"", (name, messages, texts, done)
        same(done.stderr.count(b"\n"), 1, name)
        return False
    values = values_of(bench, name)
    if ending == ".bcf":
        found = holes_of(desktop.show("Form8.Text6.Text"))
        same({key: value for key, value in values.items() if key[0] in ("x", "y")}, found, name)
    else:
        same([values[key, ""] for key in names if (key, "") in values], [text for text in texts if text], name)
    return True


def documents(cases, entries, ending):
    """A document of every case, with the entries of its kind."""
    return {f"case-{number:02}{ending}": "".join(line + "\r\n" for line in (case, *entries(case))).encode("latin-1")
            for number, case in enumerate(cases)}


def check_documents(bench, ending, least, more=None):
    files = {**written_by_scripts(ending), **corpus(ending[1:] + "_fuzz", ending), **(more or {})}
    for name, content in files.items():
        (bench.folder / name).write_bytes(content)
    solved = 0
    for name in files:
        # A fresh program for each, so that no entry of another document is left.
        with bench.desktop() as desktop:
            desktop.do("start")
            solved += compare(bench, desktop, name, ending)
    assert solved >= least, f"{solved} of {len(files)} {ending} have a result"


def test_right_triangles(bench):
    cases = documents(RIGHT_CASES, lambda case: ("5", " 30\xb0  15'  0\"" if "Angle" in case else "3"), ".rgt")
    check_documents(bench, ".rgt", 5 + len(cases), cases)


def test_oblique_triangles(bench):
    cases = documents(OBLIQUE_CASES, lambda case: ENTRIES[case.count("Angle")][0], ".obl")
    check_documents(bench, ".obl", 4 + len(cases), cases)


def test_sine_plates(bench):
    check_documents(bench, ".sin", 8)


def test_polygons(bench):
    check_documents(bench, ".pgf", 8)


def test_bolt_circles(bench):
    check_documents(bench, ".bcf", 4)


def test_reports_of_drawings_to_the_byte(bench):
    files = {**written_by_scripts(".geo"), **seeds("record_fuzz", ".geo")}
    told = 0
    for name, content in files.items():
        (bench.folder / name).write_bytes(content)
        with bench.desktop() as desktop:
            desktop.do("start")
            desktop.do("press Form11.Command8")
            desktop.do("dialog", name)
            desktop.do("menu Form17.OpenIt")
            desktop.do("menu Form17.GeoRpt")
            report = desktop.show("Form18.Text1.Text").encode("latin-1")
        done = bench.run("report", name)
        if done.returncode == 3:
            # No record and no unit: this is no drawing, and the desktop shows an empty one.
            same(report, b"Scale: Inches\r\n\r\n", name)
            same(done.stdout, b"", name)
        else:
            same((done.returncode, done.stdout, done.stderr), (0, report, b""), name)
            told += 1
    assert told > 30, told


def test_places_unit_and_minutes_of_documents(bench):
    (bench.folder / "a.rgt").write_bytes(b"Side b and side c\r\n40\r\n30\r\n")
    answer = bench.json("solve", "a.rgt", "--unit", "mm", "--places", "1", "--dms")
    # tan B = 4/3: B = 53.13010... = 53 degrees 7 minutes 48.4 seconds.
    same([answer[0][key] for key in ("file", "unit", "side_a", "angle_b")],
         ["a.rgt", "mm", 50, "53\u00b0  7'  48.4\""], "document")
    same(bench.ok("solve", "a.rgt").splitlines()[:2], ["a.rgt:", "side a   50         in"], "table")


def test_one_bad_document_prints_nothing(bench):
    (bench.folder / "good.rgt").write_bytes(b"Side b and side c\r\n40\r\n30\r\n")
    (bench.folder / "bad.rgt").write_bytes(b"Side a and side b\r\n3\r\n5\r\n")
    (bench.folder / "none.rgt").write_bytes(b"notes\r\n")
    bench.refuses(4, "bad.rgt: these values make no right triangle", "solve", "good.rgt", "bad.rgt")
    bench.refuses(3, "none.rgt: this is no right triangle", "solve", "none.rgt", "good.rgt")
    bench.refuses(5, "gone.rgt can't be read: File not found", "solve", "good.rgt", "gone.rgt")
    bench.refuses(2, "a.txt: the ending is none of", "solve", "a.txt")
    bench.refuses(5, ". can't be read", "report", ".")
    done = bench.run("solve", "--check", "good.rgt", "none.rgt", "bad.rgt", "gone.rgt")
    same(done.returncode, 3, "check")
    same(done.stdout.decode().splitlines(),
         ["good.rgt: ok", "none.rgt: this is no right triangle", "bad.rgt: these values make no right triangle",
          "gone.rgt can't be read: File not found"], "check")
    same(done.stderr, b"brindlex-cli solve: 3 of 4 files have no result\n", "check")
    same(bench.ok("solve", "--check", "good.rgt"), "good.rgt: ok\n", "check")
    bench.refuses(2, "do not go with --check", "solve", "--check", "good.rgt", "--json")
    bench.refuses(2, "do not go with --check", "solve", "--check", "good.rgt", "--csv")


def test_drawings_are_checked_too(bench):
    (bench.folder / "board.GEO").write_bytes(b"M\r\n")
    (bench.folder / "text.geo").write_bytes(b"notes\r\n")
    (bench.folder / "good.rgt").write_bytes(b"Side b and side c\r\n40\r\n30\r\n")
    same(bench.ok("solve", "--check", "board.GEO", "good.rgt"), "board.GEO: ok\ngood.rgt: ok\n", "check")
    done = bench.run("solve", "--check", "board.GEO", "text.geo")
    same((done.returncode, done.stdout), (3, b"board.GEO: ok\ntext.geo: this is no drawing\n"), "check")
    bench.refuses(2, "board.GEO: the ending is none of", "solve", "board.GEO")


def test_names_of_any_bytes(bench):
    name = b"caf\xe9 \xce\xa9.rgt"
    with open(bytes(bench.folder) + b"/" + name, "wb") as file:
        file.write(b"Side b and side c\r\n40\r\n30\r\n")
    import subprocess
    done = subprocess.run([bench.program.encode(), b"solve", name, b"--json"], cwd=bench.folder, capture_output=True,
                          check=False)
    same(done.returncode, 0, done.stderr)
    assert b'"side_a": 50' in done.stdout
