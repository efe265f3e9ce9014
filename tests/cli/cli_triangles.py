"""Triangles: every case of both calculators gives the texts that the desktop program shows for the same entries."""

import itertools

from cli_bench import same

RIGHT_CASES = {"Side a and side b": ("--side-a", "--side-b"), "Side a and side c": ("--side-a", "--side-c"),
               "Side b and side c": ("--side-b", "--side-c"), "Angle B and side a": ("--side-a", "--angle-b"),
               "Angle B and side b": ("--side-b", "--angle-b"), "Angle B and side c": ("--side-c", "--angle-b"),
               "Angle C and side a": ("--side-a", "--angle-c"), "Angle C and side b": ("--side-b", "--angle-c"),
               "Angle C and side c": ("--side-c", "--angle-c")}
SIDE_PAIRS = [("5", "3"), (".75", ".1"), ("12345.678", "0.0004"), ("1e3", "999.9999"), ("2", "1.99999999")]
ANGLE_PAIRS = [("5", "30"), (".001", "89.99999"), ("17.25", "0.01"), ("1e6", "45"), ("3", "36.869897645844")]

OBLIQUE_CASES = ["Angle A, Angle B, side a", "Angle A, Angle C, side a", "Angle B, Angle C, side a",
                 "Angle A, Angle B, side b", "Angle A, Angle C, side b", "Angle B, Angle C, side b",
                 "Angle A, Angle B, side c", "Angle A, Angle C, side c", "Angle B, Angle C, side c",
                 "Angle A, side a, side b", "Angle A, side a, side c", "Angle A, side b, side c",
                 "Angle B, side a, side b", "Angle B, side a, side c", "Angle B, side b, side c",
                 "Angle C, side a, side b", "Angle C, side a, side c", "Angle C, side b, side c",
                 "Side a, side b, side c"]
ENTRIES = {2: [("40", "60", "5"), ("1.5", "170.25", ".0625")], 1: [("42", "9", "11"), ("28", "6", "10"), ("95", "10", "3")],
           0: [("3", "4", "6"), ("2.5", "2.5", "2.5"), ("100", "99.5", "1")]}
SETTINGS = [(4, False), (1, False), (10, True), (15, False), (15, True)]


def settings(keys, places, dms):
    """A settings file: results in boxes, that many places, angles as wanted."""
    values = {"DMS=": -1 if dms else 0, "Text=": -1, "Shape=": 0, "Rounding=": places}
    return "".join(f"{key}{values[key]}\r\n" for key in keys)


def options(places, dms):
    return ["--places", str(places), *(["--dms"] if dms else [])]


def compare(bench, desktop, form, boxes, area, words, names):
    """The desktop's boxes against one run; where the desktop refused, the run must refuse."""
    texts = desktop.texts(form, boxes)
    if desktop.show("boxes"):
        bench.refuses(4, "", *words)
        return False
    row = bench.rows(*words)[0]
    same([row[name] for name in names], texts, words)
    same("Area= " + row["area"], desktop.show(f"{form}.{area}.Caption"), words)
    return True


def check_right(bench, places, dms):
    (bench.folder / "brindr.ini").write_text(settings(["DMS=", "Shape=", "Text=", "Rounding="], places, dms), newline="")
    solved = 0
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command1")
        for case, (first, second) in RIGHT_CASES.items():
            desktop.do("choose Form1.Combo1", case)
            for entries in ANGLE_PAIRS if "angle" in second else SIDE_PAIRS:
                desktop.set("Form1.Text1", entries[0])
                desktop.set("Form1.Text2", entries[1])
                desktop.do("press Form1.Command1")
                words = ["right", first, entries[0], second, entries[1], *options(places, dms)]
                solved += compare(bench, desktop, "Form1", ["Text6", "Text7", "Text8", "Text4", "Text5"], "Label2", words,
                                  ["side_a", "side_b", "side_c", "angle_b", "angle_c"])
    same(solved, 45, "triangles that were solved")


def check_oblique(bench, places, dms):
    keys = ["DMS=", "Shape=", "Text=", "Rounding="]
    (bench.folder / "brindo.ini").write_text(settings(keys, places, dms), newline="")
    solved = 0
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command2")
        for case in OBLIQUE_CASES:
            desktop.do("choose Form2.Combo1", case)
            names = ["--" + name.strip().lower().replace(" ", "-") for name in case.split(",")]
            for entries in ENTRIES[case.count("Angle")]:
                for second in (0, 1):
                    if second and desktop.show("Form2.Check3.Enabled") == 0:
                        continue
                    desktop.set("Form2.Text1", "")
                    if desktop.show("Form2.Check3.Value") != second:
                        desktop.do("press Form2.Check3")
                    for box, text in zip(("Text1", "Text2", "Text3"), entries):
                        desktop.set("Form2." + box, text)
                    desktop.do("press Form2.Command1")
                    words = ["oblique", *itertools.chain(*zip(names, entries)), *(["--second"] if second else []),
                             *options(places, dms)]
                    solved += compare(bench, desktop, "Form2", ["Text8", "Text4", "Text6", "Text5", "Text7", "Text9"],
                                      "Label5", words,
                                      ["angle_a", "angle_b", "angle_c", "side_a", "side_b", "side_c"])
    assert solved >= 45, solved


def add_tests(scope):
    """A test for each setting, so that they run beside one another."""
    for places, dms in SETTINGS:
        for name, check in (("right", check_right), ("oblique", check_oblique)):
            def test(bench, check=check, places=places, dms=dms):
                check(bench, places, dms)
            scope[f"test_{name}_{places}_{'dms' if dms else 'degrees'}"] = test


add_tests(globals())


def test_angles_in_minutes_are_read_as_the_desktop_reads_them(bench):
    # 30 + 15 / 60 + 20 / 3600 = 30.2555...; the degrees text of the desktop's box.
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command1")
        desktop.do("choose Form1.Combo1", "Angle B and side a")
        desktop.set("Form1.Text1", "7.5")
        desktop.set("Form1.Text2", " 30\u00b0  15'  20\"")
        desktop.do("press Form1.Command1")
        texts = desktop.texts("Form1", ["Text7", "Text8"])
    for angle in ("30:15:20", "30d15m20s", "30\u00b015'20\"", "30 deg 15 min 20 sec"):
        row = bench.rows("right", "--side-a", "7.5", "--angle-b", angle)[0]
        same([row["side_b"], row["side_c"]], texts, angle)


def test_what_makes_no_oblique_triangle(bench):
    for words in ("--side-a 1 --side-b 2 --side-c 3", "--side-a 1 --side-b 2 --side-c 4", "--angle-a 30 --side-a 3 --side-b 10",
                  "--angle-a 100 --angle-b 90 --side-a 10"):
        bench.refuses(4, "brindlex-cli oblique: these values make no triangle", "oblique", *words.split())
    # B is 55.15 degrees; the other would be 124.85, and with the 80 of A that leaves nothing for C.
    words = "--angle-a 80 --side-a 6 --side-b 5".split()
    bench.ok("oblique", *words)
    bench.refuses(4, "these values make no triangle by the second solution", "oblique", *words, "--second")
    bench.refuses(4, "OVERFLOW", "oblique", "--side-a", "1e300", "--side-b", "1e300", "--side-c", "1e300")


def test_a_batch_gives_the_rows_of_single_runs(bench):
    rows = [("5", "", "30"), ("13", "5", ""), ("1", ".5", "")]
    given = "side_a,side-b,--angle-b\r\n" + "".join(",".join(row) + "\r\n" for row in rows)
    singles = []
    for a, b, angle in rows:
        words = ["--side-a", a, *(["--side-b", b] if b else []), *(["--angle-b", angle] if angle else [])]
        singles += bench.rows("right", *words, "--places", "7")
    same(bench.rows("right", "--batch", "--places", "7", given=given.encode()), singles, "batch")
    same(bench.rows("right", "--batch", "--places", "7", given=given.replace(",", ", ").encode()), singles, "with blanks")
    same([row["side_b"] for row in bench.json("right", "--batch", given=given.encode())], [2.5, 5, 0.5], "batch as JSON")


def test_a_batch_is_refused_whole(bench):
    for code, message, given in [
            (3, "line 3: --side-a 0: this must be above 0", "side-a,side-b\n5,3\n0,3\n5,4\n"),
            (4, "line 2: these values make no right triangle", "side-a,side-b\n3,5\n"),
            (3, "line 2: --side-b x: this is no number", "side-a,side-b\n3,x\n"),
            (3, "line 2: 1 fields, where the head has 2", "side-a,side-b\n3\n"),
            (3, "line 2: --side-b 3mm: the unit here is in", "side-a,side-b\n5,3mm\n"),
            (3, "line 1: size is no option with a value", "side-a,size\n3,4\n"),
            (3, "line 1: --dms is no option with a value", "side-a,--dms\n3,4\n"),
            (3, "line 1: --side-a stands there more than once", "side-a,side_a\n3,4\n"),
            (3, "line 2: a quote is not ended", 'side-a,side-b\n3,"4\n'),
            (3, "line 2: there is text behind a quoted one", 'side-a,side-b\n3,"4"5\n'),
            (3, "the standard input is empty", ""),
            (3, "line 2: two of the sides and angles are needed", "side-a,side-b\n5,\n")]:
        bench.refuses(code, message, "right", "--batch", given=given.encode())
    bench.refuses(2, "--side-a stands in the command and in the input", "right", "--side-a", "5", "--batch",
                  given=b"side-a,side-b\n5,3\n")
