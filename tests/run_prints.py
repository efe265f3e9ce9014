#!/usr/bin/env python3
"""Prints every print item as a PDF file on the real windows, and looks at the pages: their number, way up and size, the
words and where they stand, the face, and the ink, which fills the page as it should and stays off its edges.

    run_prints.py --drive build/release/bin/brindlex-drive

Wants pdftotext, pdftoppm and pdffonts; ends with 77 where they are missing. Places are in points, from the page's left
top corner; a page is Letter, 612 by 792, with a quarter of an inch left free around it.
"""

import argparse
import collections
import html
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import harness

TOOLS = ("pdftotext", "pdftoppm", "pdffonts")
EDGE = 18
TALL = (612, 792)
WIDE = (792, 612)
DOTS = 72  # an inch: a dot of a rasterised page is a point
INK = 250  # of 255: darker than paper

RIGHT = ["start", "press Form11.Command1", 'type Form1.Text1 "5"', 'type Form1.Text2 "4"', "press Form1.Command1"]
OBLIQUE = ["start", "press Form11.Command2", 'type Form2.Text1 "40"', 'type Form2.Text2 "60"', 'type Form2.Text3 "10"',
           "key Form2.Text3 13"]
SINE = ["start", "press Form11.Command4", 'type Form12.Text1 "30"', "press Form12.Command1"]
POLYGON = ["start", "press Form11.Command6", 'type Form16.Text1 "1"', "press Form16.Command1"]


BOARD = ["start", "press Form11.Command8", 'type Form17.Text1 "0"', 'type Form17.Text2 "0"', 'type Form17.Text3 "1"',
         "press Form17.Command1"]


def bolts(holes):
    return ["start", "press Form11.Command3", 'type Form8.Text1 "0"', 'type Form8.Text2 "0"', 'type Form8.Text3 "10"',
            f'type Form8.Text4 "{holes}"', 'type Form8.Text5 "0"', "press Form8.Command1"]


Page = collections.namedtuple("Page", "size words ink")
Word = collections.namedtuple("Word", "text left top right bottom")
Ink = collections.namedtuple("Ink", "left top right bottom")


def words_of(pdf):
    """Sizes and words of each page."""
    # It complains of a page without words, such as a window's picture.
    told = subprocess.run(["pdftotext", "-bbox", pdf, "-"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          check=True, text=True).stdout
    pages = []
    for page in re.finditer(r'<page width="([\d.]+)" height="([\d.]+)">(.*?)</page>', told, re.S):
        places = re.findall(r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)</word>',
                            page[3])
        pages.append(((round(float(page[1])), round(float(page[2]))),
                      [Word(html.unescape(text), *map(float, place)) for *place, text in places]))
    return pages


def ink_of(picture):
    """The smallest rectangle around all that is not paper, of a picture of grey dots."""
    kind, width, height, _, dots = pathlib.Path(picture).read_bytes().split(maxsplit=4)
    width, height = int(width), int(height)
    assert kind == b"P5" and len(dots) == width * height
    rows = [dots[row * width:(row + 1) * width] for row in range(height)]
    inked = [row for row in range(height) if min(rows[row]) < INK]
    columns = [column for column in range(width) if any(rows[row][column] < INK for row in inked)]
    return Ink(columns[0], inked[0], columns[-1] + 1, inked[-1] + 1)


def printed(drive, lines, folder):
    """The pages of the document that the lines print."""
    working, prints = pathlib.Path(folder, "work"), pathlib.Path(folder, "prints")
    for place in (working, prints):
        place.mkdir()
    environment = {name: value for name, value in os.environ.items()
                   if not name.startswith(("XDG_", "QT_", "DISPLAY", "WAYLAND_"))}
    environment.update(HOME=folder, XDG_RUNTIME_DIR=folder, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8",
                       BRINDLEX_PRINTS=str(prints))
    script = pathlib.Path(folder, "script")
    script.write_text("\n".join(lines) + "\n", encoding="utf-8")
    subprocess.run([drive, "--desktop", "--dir", str(working), str(script)], env=environment, timeout=120, check=True,
                   stdout=subprocess.DEVNULL)
    assert not list(working.glob("*.pdf")), "the working directory holds a print"
    assert [entry.name for entry in prints.iterdir()] == ["print-1.pdf"]
    pdf = str(prints / "print-1.pdf")
    subprocess.run(["pdftoppm", "-r", str(DOTS), "-gray", pdf, str(prints / "page")], check=True)
    fonts = subprocess.run(["pdffonts", pdf], stdout=subprocess.PIPE, check=True, text=True).stdout
    pictures = sorted(prints.glob("page*.pgm"))
    return [Page(*told, ink_of(picture)) for told, picture in zip(words_of(pdf), pictures)], fonts


def near(found, wanted, by=1.5):
    assert abs(found - wanted) <= by, f"{found} is not near {wanted}"


def the(page, text):
    found = [word for word in page.words if word.text == text]
    assert len(found) == 1, f"{text} stands {len(found)} times among {[word.text for word in page.words]}"
    return found[0]


def expect_on_paper(pages, size):
    for page in pages:
        assert page.size == size, f"{page.size} is not {size}"
        for word in page.words:
            assert word.left >= EDGE - 1 and word.right <= size[0] - EDGE + 1, word
            assert word.top >= EDGE - 6 and word.bottom <= size[1] - EDGE + 6, word
        ink = page.ink
        assert ink.left >= EDGE - 1 and ink.top >= EDGE - 1, ink
        assert ink.right <= size[0] - EDGE + 1 and ink.bottom <= size[1] - EDGE + 1, ink


def window(form_width, form_height):
    """A window as wide as a page in landscape, from the corner on; its grey ground is the ink."""

    def check(pages, _fonts):
        assert len(pages) == 1
        expect_on_paper(pages, WIDE)
        ink = pages[0].ink
        for found, wanted in zip(ink, (EDGE, EDGE, WIDE[0] - EDGE, EDGE + 756 * form_height / form_width)):
            near(found, wanted, 2)

    return check


def picture(heading, texts, width, height):
    """A heading in a serif face, and below it the picture's texts, within its part of the page."""

    def check(pages, fonts):
        assert len(pages) == 1
        expect_on_paper(pages, TALL)
        page = pages[0]
        assert "Serif-Bold" in fonts or "Times" in fonts or "Roman" in fonts, fonts
        title = the(page, heading)
        # In the third of five lines of 16 points; 5 lines of 18.4 points are 92.
        assert EDGE + 36 < title.top < title.bottom < EDGE + 60, title
        for text in texts:
            word = the(page, text)
            assert EDGE + 92 <= word.top and word.bottom <= EDGE + 92 + 576 * height / width, word

    return check


def bolt_picture(pages, fonts):
    assert len(pages) == 1
    expect_on_paper(pages, TALL)
    page = pages[0]
    assert "Serif-Bold" in fonts or "Times" in fonts or "Roman" in fonts, fonts
    # The third line of 18 points, on the empty margin of the picture.
    title = the(page, "Report")
    assert EDGE + 40 < title.top < title.bottom < EDGE + 66, title
    # 3612 twips of the picture are 576 points. From its middle, at 1806, hole 1 reaches 1500 far, the circle 1400.
    near(page.ink.right, EDGE + 576 * (1806 + 1500) / 3612, 2)
    near(page.ink.bottom, EDGE + 576 * (1806 + 1400) / 3612, 2)
    for number in "23456":
        the(page, number)


def report(pages, _fonts):
    # A hundred holes: 4 lines of heading, 6 of facts, 100 of holes; a page of 756 points takes 36 lines of 20.7.
    assert len(pages) == 4, len(pages)
    expect_on_paper(pages, TALL)
    for hole in range(1, 101):
        lines = 10 + hole
        the(pages[(lines - 1) // 36], f"{hole}:")


def both(pages, _fonts):
    # The report begins below the picture, 576 points high. 8 lines of it have room there; the rest goes on.
    assert len(pages) == 2, len(pages)
    expect_on_paper(pages, TALL)
    near(the(pages[0], "Holes:").top, EDGE + 576, 4)
    assert the(pages[0], "Report").bottom < EDGE + 66
    the(pages[0], "2:")
    the(pages[1], "3:")
    the(pages[1], "6:")


def board_window(pages, _fonts):
    # 7452 by 6672 is higher than the page's own shape: as high as a page in landscape.
    assert len(pages) == 1
    expect_on_paper(pages, WIDE)
    near(pages[0].ink.right, EDGE + 576 * 7452 / 6672, 2)
    near(pages[0].ink.bottom, WIDE[1] - EDGE, 2)


def board_picture(pages, fonts):
    # The sheet lies across like the drawing, which begins at 75 and 50 points and goes to the edge, not over it.
    assert len(pages) == 1
    expect_on_paper(pages, WIDE)
    assert "Serif-Bold" in fonts or "Times" in fonts or "Roman" in fonts, fonts
    assert EDGE + 40 < the(pages[0], "Geometry").top < EDGE + 66
    near(pages[0].ink.left, EDGE + 34, 20)
    near(pages[0].ink.right, WIDE[0] - EDGE, 3)
    near(pages[0].ink.bottom, EDGE + 50 + (756 - 75) * 3444 / 6444, 3)


def long_heading(pages, fonts):
    picture("day.rgt", [], 6612, 3612)(pages, fonts)
    assert the(pages[0], "Brindlex").left < 60


LONG = "a very long name of a document that somebody keeps in a folder of his disk for the customer of the day.rgt"
CASES = {
    "window of Right Triangles": (RIGHT + ["printer 1", "menu Form1.PrntWin"], window(7296, 5436)),
    "picture of Right Triangles": (RIGHT + ["printer 1", "menu Form1.PrntPic"],
                                   picture("Right", ["53.1301\u00b0", "36.8699\u00b0", "5", "4", "3", "6.00000"], 6612,
                                           3612)),
    "values on the picture": (RIGHT + ["menu Form1.TextOn", "printer 1", "menu Form1.PrntPic"],
                              picture("Right", ["53.1301\u00b0", "36.8699\u00b0", "a=", "b=", "c=", "6.00000"], 6612,
                                      3612)),
    "long heading": (RIGHT + [f'dialog "{LONG}"', "menu Form1.SaveFileAs", "press Form1.Command1", "printer 1",
                              "menu Form1.PrntPic"], long_heading),
    "window of Oblique Triangles": (OBLIQUE + ["printer 1", "menu Form2.PrntWin"], window(7392, 5352)),
    "picture of Oblique Triangles": (OBLIQUE + ["printer 1", "menu Form2.PrntPic"],
                                     picture("Oblique", ["40\u00b0", "60\u00b0", "80\u00b0", "10", "66.34157"], 6852,
                                             3132)),
    "picture of Bolt Circles": (bolts(6) + ["printer 1", "menu Form8.EntFrm"], bolt_picture),
    "report of Bolt Circles": (bolts(100) + ["printer 1", "menu Form8.TextOnly"], report),
    "picture and report of Bolt Circles": (bolts(6) + ["printer 1", "menu Form8.Both"], both),
    "window of Sine Plates": (SINE + ["printer 1", "menu Form12.PrintSine"], window(7008, 3672)),
    "window of Polygons": (POLYGON + ["printer 1", "menu Form16.Print"], window(8328, 4416)),
    "window of Geometry": (BOARD + ["printer 1", "menu Form17.PrntWin"], board_window),
    "picture of Geometry": (BOARD + ["printer 1", "menu Form17.PrntPic"], board_picture),
}


def run_case(drive, name):
    lines, check = CASES[name]
    with tempfile.TemporaryDirectory(prefix="brindlex-print-") as folder:
        try:
            check(*printed(drive, lines, folder))
        except (AssertionError, subprocess.SubprocessError) as failure:
            harness.tell_failure(name, f"{type(failure).__name__}: {failure}")
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description="Looks at what every print item prints.")
    parser.add_argument("--drive", required=True)
    drive = os.path.abspath(parser.parse_args().drive)
    missing = [tool for tool in TOOLS if shutil.which(tool) is None]
    if missing:
        print(f"Missing: {', '.join(missing)}")
        sys.exit(77)
    results = harness.in_parallel(lambda name: run_case(drive, name), list(CASES))
    harness.finish("printed pages", results.count(True), results.count(False))


main()
