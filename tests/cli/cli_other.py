"""Bolt circles, sine plates, polygons, speeds and feeds: the numbers of the desktop program."""

import re

from cli_bench import same, shown


def numbers_of(line):
    """The numbers behind the signs of a line of the report."""
    return [part.strip() for part in re.findall(r"=\s*(-?[\d.E+-]+)", line)]


def blanks(text):
    return re.sub(r"\s+", " ", text.strip())


BOLTS = [("0", "0", "5", "6", ""), ("3", "2", "4.5", "6", "30"), ("-1.25", ".5", "120", "7", "12.5"),
         ("0", "0", ".1", "1", "0"), ("10", "-20", "99.999", "13", "359.9")]


def bolt_words(entries):
    x, y, diameter, holes, start = entries
    return ["bolt", "--center-x", x, "--center-y", y, "--diameter", diameter, "--holes", holes,
            *(["--start-angle", start] if start else [])]


def check_bolt(bench, places):
    (bench.folder / "boltcirc.ini").write_text(f"Rounding={places}\r\n", newline="")
    for entries in BOLTS:
        with bench.desktop() as desktop:
            desktop.do("start")
            desktop.do("press Form11.Command3")
            for box, text in zip(("Text1", "Text2", "Text3", "Text4", "Text5"), entries):
                desktop.set("Form8." + box, text)
            desktop.do("press Form8.Command1")
            report = desktop.show("Form8.Text6.Text").split("\r\n")
            desktop.do("press Form8.Check1")
            angles = desktop.show("Form8.Text6.Text").split("\r\n")
        words = [*bolt_words(entries), "--places", places]
        rows = bench.rows(*words)
        same([[row["x"], row["y"]] for row in rows], [numbers_of(line) for line in report if line.startswith("Hole ")],
             words)
        head = bench.json(*words)
        for name, line, sign in (("chord", report[1], ":"), ("angle_spacing", report[2], ":"), ("diameter", report[3], ":")):
            same(head[name], float(shown(line.split(sign)[1])), (words, name))
        minutes = bench.rows(*words, "--angles-only", "--dms")
        same([blanks(row["angle"]) for row in minutes],
             [blanks(line.split("=")[1]) for line in angles if line.startswith("Hole ")], words)


def test_bolt_4_places(bench):
    check_bolt(bench, 4)


def test_bolt_12_places(bench):
    check_bolt(bench, 12)


def test_all_angles_of_a_bolt_circle_in_minutes(bench):
    # 360 / 7 = 51.428571...: 51 degrees, 25.714285... minutes, 42.857142... seconds.
    for more in ([], ["--angles-only"]):
        answer = bench.json("bolt", "--diameter", "5", "--holes", "7", "--start-angle", "30:15", "--dms", *more)
        same([answer["start_angle"], answer["angle_spacing"], answer["hole_positions"][0]["angle"]],
             ["30\u00b0  15'", "51\u00b0  25'  42.8571\"", "30\u00b0  15'"], more)


def test_angles_of_a_sine_plate_in_minutes(bench):
    # .345678 x 60 = 20.74068; .74068 x 60 = 44.4408.
    same(bench.ok("sine", "--angle", "12.345678", "--dms").splitlines()[0], "angle    12\u00b0  20'  44.4408\"      given",
         "regular")
    row = bench.rows("sine", "--bottom-angle", "12.345678", "--top-angle", "30:15:30", "--dms", "--places", "1")[0]
    same([row["bottom_angle"], row["top_angle"]], ["12\u00b0  20'  44.4\"", "30\u00b0  15'  30\""], "compound")


def test_sine_plates(bench):
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command4")
        for option, top in (("Option1", None), ("Option2", "15"), ("Option2", "89.5"), ("Option2", ".25")):
            desktop.do(f"set Form12.{option}.Value", -1)
            for angle in ("30", "0.5", "90", "12.3456789"):
                for spacing in ("5", "10", "3.5"):
                    desktop.set("Form12.Combo1", spacing + '"')
                    desktop.set("Form12.Text1", "")
                    desktop.set("Form12.Text1", angle)
                    if top:
                        desktop.set("Form12.Text2", top)
                    desktop.do("press Form12.Command1")
                    compare_sine(bench, desktop, angle, top, spacing, "in")
                    desktop.do("menu Form12.Inches2Millimeters")
                    compare_sine(bench, desktop, angle, top, spacing, "mm")


def compare_sine(bench, desktop, angle, top, spacing, unit):
    same(desktop.show("boxes"), [], (angle, top))
    words = ["sine", *(["--bottom-angle", angle, "--top-angle", top] if top else ["--angle", angle]),
             "--spacing", spacing, "--unit", unit]
    row = bench.rows(*words)[0]
    if top:
        same([row["bottom_buildup"], row["top_buildup"], row["buildup"]], [*desktop.texts("Form12", ["Text3", "Text4"]), ""],
             words)
    else:
        same([row["buildup"], row["bottom_buildup"]], [*desktop.texts("Form12", ["Text3"]), ""], words)


def test_polygons(bench):
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command6")
        for sides in range(3, 37):
            across = ("Option2", "--flat-to-corner") if sides % 2 else ("Option1", "--across-flats")
            for circle, word in (("Option4", "--inscribed"), ("Option5", "--circumscribed")):
                for option, name in (across, ("Option3", "--one-flat")):
                    dimension = "1.75" if sides % 3 else ".001"
                    desktop.set("Form16.Combo1", str(sides))
                    desktop.do(f"set Form16.{circle}.Value", -1)
                    desktop.do(f"set Form16.{option}.Value", -1)
                    desktop.set("Form16.Text1", dimension)
                    desktop.do("press Form16.Command1")
                    row = bench.rows("polygon", "--sides", sides, name, dimension, word)[0]
                    same([row["diameter"], "Area= " + row["area"]],
                         [desktop.show("Form16.Text2.Text"), desktop.show("Form16.Label1.Caption")],
                         (sides, name, word))


# Surface speed, feed, diameter, teeth, depth, width, power factor, length, cuts.
CUTS = [("100", ".002", ".5", "4", ".1", ".5", ".6", "10", "2"), ("350", ".15", "12", "2", "3", "8", "1.2", "1000", "40"),
        ("25", ".0005", "3", "1", ".01", ".02", ".123456", ".5", "1")]
SPEED_OPTIONS = ["--surface-speed", "--feed", "--diameter", "--teeth", "--depth", "--width", "--power-factor", "--length",
                 "--cuts"]
SPEED_BOXES = ["Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9", "Text14", "Text15"]


def test_speeds_and_feeds(bench):
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command7")
        desktop.do("additem Form19.Combo1", "Lathe")
        for machine in ("Mill", "Lathe"):
            desktop.do("choose Form19.Combo1", machine)
            for unit, item in (("in", "Form19.InchTo"), ("mm", "Form19.MMTo")):
                if desktop.show(item + ".Checked") == 0:
                    desktop.do("menu " + item)
                for cut in CUTS:
                    compare_speeds(bench, desktop, machine, unit, cut)


def compare_speeds(bench, desktop, machine, unit, cut):
    words = ["speeds", "--machine", machine.lower(), "--unit", unit]
    for option, box, text in zip(SPEED_OPTIONS, SPEED_BOXES, cut):
        if machine == "Mill" or option not in ("--teeth", "--width"):
            desktop.set("Form19." + box, text)
            words += [option, text]
    desktop.do("press Form19.Command1")
    same(desktop.show("boxes"), [], words)
    row = bench.rows(*words)[0]
    names = ["spindle_speed", "feed_rate", "removal_rate", "time_in_cut", "power", "power_factor"]
    boxes = ["Text10", "Text11", "Text12", "Text13", "Text16", "Text9"]
    same([row[name] for name in names], desktop.texts("Form19", boxes), words)


def test_the_very_largest_number_is_no_json(bench):
    # Its fifteen digits are 1.79769313486232E+308, which is more than the largest double.
    words = ["sine", "--angle", "30", "--spacing", "1.7976931348623157e308"]
    same(bench.rows(*words)[0]["spacing"], "1.79769313486232E+308", "CSV")
    bench.refuses(4, "the spacing is beyond the range of numbers", *words, "--json")
    bench.refuses(4, "line 2: the spacing is beyond the range of numbers", *words[:1], *words[3:], "--batch", "--json",
                  given=b"angle\n30\n")


def test_speeds_beyond_the_range_of_numbers(bench):
    words = ["speeds", "--surface-speed", "1e300", "--feed", "1", "--teeth", "1", "--diameter"]
    bench.refuses(4, "a result is beyond the range of numbers", *words, "1e-300")
    bench.refuses(4, "a result is beyond the range of numbers", *words, "1", "--depth", "1e300", "--width", "1")


def test_speeds_with_more_decimals(bench):
    # 1000 x 120 / (10 pi) = 3819.71863; x .05 x 4 / 1000 = .763943; 2 x 3 x 763.943 / 60000 = .076394; x .5 = .038197.
    words = ["speeds", "--unit", "mm", "--surface-speed", "120", "--feed", ".05", "--diameter", "10", "--teeth", "4",
             "--depth", "2", "--width", "3", "--power-factor", ".5"]
    names = ["spindle_speed", "feed_rate", "removal_rate", "power"]
    for places, texts in (("4", ["3819.7186", ".7639", ".0764", ".0382"]), ("1", ["3819.7", ".8", ".1", ".0"])):
        row = bench.rows(*words, "--places", places)[0]
        same([row[name] for name in names], texts, places)
    same(bench.rows(*words), bench.rows(*words, "--places", "1"), "without it there is one")


DATA = ("I_End mill!Carbide@Aluminum#500-1000$.002-.006%.33^\r\nM_End mill!Carbide@Aluminum#150-300$.05-.15%.9^\r\n"
        "I_Drill!HSS@Steel#80$.004%^\r\n")


def test_speeds_from_cutting_data(bench):
    (bench.folder / "Mill.dat").write_text(DATA, newline="")
    base = ["speeds", "--data", "Mill.dat", "--tool", "End mill", "--tool-material", "Carbide", "--work-material",
            "Aluminum", "--teeth", "4"]
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command7")
        desktop.do("choose Form19.Combo2", "Drill")
        desktop.do("choose Form19.Combo3", "HSS")
        desktop.do("choose Form19.Combo4", "Steel")
        desktop.set("Form19.Text5", ".25")
        desktop.set("Form19.Text6", "2")
        desktop.do("press Form19.Command1")
        texts = desktop.texts("Form19", ["Text3", "Text4", "Text10", "Text11"])
    row = bench.rows("speeds", "--data", "Mill.dat", "--tool", "Drill", "--tool-material", "HSS", "--work-material", "Steel",
                     "--diameter", ".25", "--teeth", "2")[0]
    same([row["surface_speed"], row["feed"], row["spindle_speed"], row["feed_rate"]], texts, "from data")
    # The lower ends: 500 ft/min and .002; in millimeters 150 m/min and .05.
    row = bench.rows(*base, "--diameter", ".5")[0]
    same([row["surface_speed"], row["feed"], row["power_factor"]], ["500", ".002", ".33"], "inch data")
    row = bench.rows(*base, "--diameter", "12", "--unit", "mm")[0]
    same([row["surface_speed"], row["feed"]], ["150", ".05"], "metric data")
    bench.refuses(4, "Range of 500-1000", *base, "--diameter", ".5", "--surface-speed", "499")
    (bench.folder / "Bad.dat").write_bytes(b"I_a!b@speed#x$.005%^\r\nI_a!b@feed#100$.05x-.1%^\r\nI_a!b@factor#100$.1%2\xb0^\r\n"
                                           b"I_a!b@zero#0$.1%^\r\nI_a!b@range#0-100$.1%^\r\n")
    bad = ["speeds", "--data", "Bad.dat", "--tool", "a", "--tool-material", "b", "--diameter", "1", "--teeth", "2",
           "--work-material"]
    bench.refuses(3, "the surface speed of these data is no number above 0: x", *bad, "speed")
    bench.refuses(3, "the feed of these data is no number above 0: .05x", *bad, "feed")
    bench.refuses(3, "the power factor of these data is no number above 0: 2\u00b0", *bad, "factor")
    bench.refuses(3, "the surface speed of these data is no number above 0: 0", *bad, "zero")
    bench.refuses(4, "Contains an Illegal Value", *bad, "range")
    bench.refuses(3, "no data in this unit", "speeds", "--data", "Mill.dat", "--tool", "Drill", "--tool-material", "HSS",
                  "--work-material", "Steel", "--diameter", "6", "--teeth", "2", "--unit", "mm")
