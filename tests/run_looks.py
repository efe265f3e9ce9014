#!/usr/bin/env python3
"""Checks in pictures of the real windows, light and dark, what people with weak eyes or without a mouse depend on: the
ring of the focus, outlines and words that stand out from their ground, and texts that are not cut unnoticed.

    run_looks.py --drive build/release/bin/brindlex-drive

Contrast is that of the Web Content Accessibility Guidelines: 3 for what shows a control, 4.5 for words. Wants Xvfb; ends
with 77 where it is missing.
"""

import argparse
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

import harness
from pictures import desktop_of

PIXEL = 15  # twips
RINGS = {"light": (48, 140, 198), "dark": (61, 174, 233)}
CONTROL, WORDS = 3, 4.5

# Form, how to get there, what is around the control, the control.
FOCUSED = [("Form11", "", ["Frame1"], "Command2"),
           ("Form1", "press Form11.Command1", [], "Combo1"),
           ("Form1", "press Form11.Command1", ["Frame1"], "Text1"),
           ("Form1", "press Form11.Command1", [], "Command1"),
           ("Form1", "press Form11.Command1\nchoose Form1.Combo1 \"Angle B and side a\"", [], "Check1"),
           ("Form12", "press Form11.Command4", ["Frame2"], "Option1"),
           ("Form12", "press Form11.Command4", ["Frame1"], "Combo1"),
           ("Form19", "press Form11.Command7", ["Frame4"], "Text9")]
NOTES = "\n".join(["press Form11.Command3", *(f'type Form8.Text{box} "12"' for box in (1, 2, 3, 4, 5)),
                   "press Form8.Command1", "focus Form8.Text6"])
OUTLINED = [("Form1", "press Form11.Command1", [], "Combo1"),
            ("Form1", "press Form11.Command1", ["Frame1"], "Text2"),
            ("Form12", "press Form11.Command4", ["Frame1"], "Combo1"),
            ("Form8", "press Form11.Command3", [], "Text6"),
            ("Form8", "press Form11.Command3", [], "Check1")]
# Form, how to get there, and labels of it, each behind the frame that it is in. All of them have words of many letters.
CAPTIONS = [("Form1", "press Form11.Command1", ["Frame1/InputLabel1", "Frame1/InputLabel2"]),
            ("Form2", "press Form11.Command2", ["Frame1/Label1", "Frame1/Label2", "Frame1/Label3"]),
            ("Form8", "press Form11.Command3", ["Label1", "Label2", "Label3", "Label4", "Label5"]),
            ("Form12", "press Form11.Command4\npress Form12.Option2\ntype Form12.Text1 \"45\"\n"
                       "type Form12.Text2 \"60\"\npress Form12.Command1", ["Label1", "Label2", "Label3", "Label5"]),
            ("Form16", "press Form11.Command6", ["Label2", "Label4"]),
            ("Form17", "press Form11.Command8", ["Label20", "Label25", "Label26", "Label11", "Label12", "Label15"])]
SPEEDS = ["Frame2/Label1", "Frame2/Label3", "Frame2/Label4", "Frame2/Label5", "Frame2/Label6", "Frame1/Label7",
          "Frame1/Label8", "Frame1/Label9", "Frame1/Label10", "Frame4/Label13", "Frame3/Label11", "Frame3/Label12",
          "Frame6/Label14", "Frame6/Label15", "Frame5/Label18", "Frame5/Label19", "Frame5/Label20"]


class Picture:
    """A PNG file of eight bits a channel, as Qt writes them."""

    def __init__(self, path):
        data, at, packed = path.read_bytes(), 8, b""
        while at < len(data):
            length, kind = struct.unpack(">I4s", data[at:at + 8])
            part = data[at + 8:at + 8 + length]
            if kind == b"IHDR":
                self.width, self.height, depth, colours, _, _, laced = struct.unpack(">IIBBBBB", part)
                assert depth == 8 and colours in (2, 6) and not laced
                self.step = 3 if colours == 2 else 4
            elif kind == b"IDAT":
                packed += part
            at += 12 + length
        self.rows = []
        raw, stride = zlib.decompress(packed), self.width * self.step
        above = bytearray(stride)
        for start in range(0, len(raw), stride + 1):
            above = self.unfiltered(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above)
            self.rows.append(above)

    def unfiltered(self, kind, row, above):
        for at, value in enumerate(row):
            left = row[at - self.step] if at >= self.step else 0
            corner = above[at - self.step] if at >= self.step else 0
            guess = left + above[at] - corner
            paeth = min((left, above[at], corner), key=lambda near: abs(guess - near))
            row[at] = (value + (0, left, above[at], (left + above[at]) // 2, paeth)[kind]) & 255
        return row

    def at(self, x, y):
        return tuple(self.rows[y][x * self.step:x * self.step + 3])

    def within(self, place):
        left, top, width, height = place
        return [self.at(x, y) for y in range(top, top + height) for x in range(left, left + width)]


def luminance(colour):
    shares = [share / 255 / 12.92 if share <= 10 else ((share / 255 + 0.055) / 1.055) ** 2.4 for share in colour]
    return 0.2126 * shares[0] + 0.7152 * shares[1] + 0.0722 * shares[2]


def contrast(one, other):
    low, high = sorted((luminance(one), luminance(other)))
    return (high + 0.05) / (low + 0.05)


def strongest(colours, ground):
    return max(colours, key=lambda colour: contrast(colour, ground))


class Windows:
    """Pictures from sessions under a theme."""

    def __init__(self, drive, theme, home):
        self.drive, self.theme, self.home = drive, theme, home
        self.environment = dict(desktop_of(theme, "1", home), DISPLAY=os.environ["DISPLAY"])

    def shot(self, form, steps, around, *controls):
        """A picture of the form after the steps, its ground, and the places of the controls in it, in pixels. What is
        around all controls comes first; a control may name a frame of its own as FRAME/CONTROL."""
        paths = [[*around, *name.split("/")] for name in controls]
        names = sorted({name for path in paths for name in path})
        asked = [f"{form}.{name}.{side}" for name in names for side in ("Left", "Top", "Width", "Height")]
        script = self.home / "looks.script"
        script.write_text("\n".join(["start", steps, f'shot {form} "looks.png"', f"show {form}.ScaleHeight"] +
                                    [f"show {what}" for what in asked]), encoding="latin-1")
        run = subprocess.run([self.drive, "--desktop", "--screen", "1280x1024", "--dir", str(self.home), str(script)],
                             env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120,
                             check=False)
        assert run.returncode == 0, run.stderr.decode()
        picture = Picture(self.home / "looks.png")
        answers = [float(line.split()[1]) for line in run.stdout.decode().splitlines()[-1 - len(asked):]]
        # A form that counts in inches has a height of few.
        pixel = PIXEL if answers[0] > 100 else PIXEL / 1440
        menu = picture.height - round(answers[0] / pixel)
        places = {name: [round(value / pixel) for value in answers[1 + 4 * at:5 + 4 * at]]
                  for at, name in enumerate(names)}
        found = [(sum(places[name][0] for name in path), menu + sum(places[name][1] for name in path),
                  *places[path[-1]][2:]) for path in paths]
        return picture, picture.at(2, picture.height - 3), found


def at_least(value, least, what):
    assert value >= least, f"{what}: {value:.2f}, not {least}"


def rings(windows):
    """Twice the longer side of the control in the colour of the ring, at least; of a caption, its words' side."""
    ring = RINGS[windows.theme]
    for form, steps, around, name in FOCUSED:
        picture, ground, [place] = windows.shot(form, f"{steps}\nfocus {form}.{name}", around, name)
        at_least(picture.within(place).count(ring), 60 if name in ("Check1", "Option1") else 2 * place[2] - 16,
                 f"pixels of the ring of {form}.{name}")
        at_least(contrast(ring, ground), CONTROL, "the ring")


def notes(windows):
    """That of a text of several lines is as wide as the others, beside its scroll bars too."""
    picture, _, [place] = windows.shot("Form8", NOTES, [], "Text6")
    left, top, width, height = place
    # What is selected has the colour too.
    inside = (left + 2, top + 2, width - 4, height - 4)
    ring = sum(picture.within(where).count(RINGS[windows.theme]) * sign for where, sign in ((place, 1), (inside, -1)))
    at_least(ring, 3 * (width + height), "pixels of the ring of notes")


def link(windows):
    """The ring of a link goes around its words and not across the form."""
    picture, _, [place] = windows.shot("Form7", "press Form11.Command9\ntab", [], "Label4")
    ring = RINGS[windows.theme]
    left, top, width, height = place
    at_least(picture.within(place).count(ring), 100, "pixels of the ring of a link")
    assert picture.within((left, top, width // 8, height)).count(ring) == 0, "a ring across the form"


def outlines(windows):
    for form, steps, around, name in OUTLINED:
        picture, ground, [place] = windows.shot(form, f"{steps}\ntab\ntab\ntab", around, name)
        left, top, width, height = place
        middle = left + (6 if name == "Check1" else width // 2)
        # A check box is centered in its place.
        found = max(contrast(picture.at(middle, y), ground) for y in range(top, top + height // 2)
                    if picture.at(middle, y) != RINGS[windows.theme])
        at_least(found, CONTROL, f"the outline of {form}.{name}")


def disabled(windows):
    """Words of what is disabled can be read, and are fainter than the others."""
    picture, ground, [place] = windows.shot("Form1", "press Form11.Command1", [], "Check1")
    words = (place[0] + 20, place[1], place[2] - 20, place[3])
    off = contrast(strongest(picture.within(words), ground), ground)
    at_least(off, CONTROL, "disabled words")
    picture, ground, _ = windows.shot("Form1", FOCUSED[4][1], [], "Check1")
    at_least(contrast(strongest(picture.within(words), ground), ground), 2 * off, "enabled words")


def tools(windows):
    """The accent of the pictures on the tools."""
    picture, ground, [place] = windows.shot("Form17", "press Form11.Command8", [], "Toolbar1")
    left, top, _, height = place
    # The third tool is a blue dot, pressed by nobody.
    dot = picture.at(left + 2 * height + height // 2, top + height // 2)
    assert dot[2] > dot[0] + 60, f"{dot} is not blue"
    at_least(contrast(dot, ground), 4, "the accent of the tools")


def inked(picture, place, ground):
    """The rows that have ink, of each column of the place that has any, by columns that touch. Below the line on which
    letters stand the box of the next row may begin."""
    left, top, width, height = place
    islands = [[]]
    for x in range(left, left + width):
        rows = [y for y in range(top, top + height * 4 // 5) if contrast(picture.at(x, y), ground) > CONTROL]
        if rows:
            islands[-1].append(rows)
        elif islands[-1]:
            islands.append([])
    return [island for island in islands if island]


def ends_in_dots(islands):
    """Whether the last three that touch nothing are dots of one line."""
    heights = [{y for rows in island for y in rows} for island in islands[-3:]]
    return len(heights) == 3 and all(len(rows) <= 2 for rows in heights) and heights[0] == heights[1] == heights[2]


def whole(picture, ground, place, name):
    left, top, width, height = place
    islands = inked(picture, place, ground)
    at_least(len(islands), 3, f"letters of {name}")
    assert not ends_in_dots(islands), f"{name} is too narrow for its caption"
    last = picture.within((left + width - 1, top, 1, height * 4 // 5))
    assert contrast(strongest(last, ground), ground) < CONTROL, f"{name} is cut"


def captions(windows):
    """Labels have room for their words, at every size of the form that grows; a number that has none says so."""
    shots = [(form, steps, names) for form, steps, names in CAPTIONS]
    shots += [("Form19", f"press Form11.Command7\nmenu Form19.MMTo\nsize Form19 {width} {height}", SPEEDS)
              for width, height in ((8070, 4515), (8900, 4980), (9700, 5430), (12096, 6354))]
    for form, steps, names in shots:
        picture, ground, places = windows.shot(form, steps, [], *names)
        for name, place in zip(names, places):
            whole(picture, ground, place, f"{form}.{name}")
    steps = 'press Form11.Command6\ntype Form16.Text1 "{}"\npress Form16.Command1'
    for dimension, dots in (("123456789012345", True), ("1.25", False)):
        picture, ground, [place] = windows.shot("Form16", steps.format(dimension), [], "Label1")
        assert ends_in_dots(inked(picture, place, ground)) == dots, f"the area for {dimension}"


def cut(windows):
    """A number that is longer than its box ends in three dots, on the line on which the figures stand."""
    steps = ('press Form11.Command2\ntype Form2.Text1 "40"\ntype Form2.Text2 "60"\ntype Form2.Text3 "{}"\n'
             "press Form2.Command1")
    for side, dots in (("12345678901234", True), ("10", False)):
        picture, _, [place] = windows.shot("Form2", steps.format(side), ["Picture1"], "Text9")
        left, top, width, height = place
        end = (left + width - 13, top + 3, 10, height - 6)
        paper = (255, 255, 255)
        rows = [y for y in range(end[1], end[1] + end[3])
                if contrast(strongest(picture.within((end[0], y, end[2], 1)), paper), paper) > CONTROL]
        at_least(len(rows), 1 if dots else 0, "rows of ink at the end")
        assert len(rows) <= (2 if dots else 0), f"{side}: ink in {len(rows)} rows at the end of the box"


CHECKS = [rings, notes, link, outlines, disabled, tools, captions, cut]


def main():
    parser = argparse.ArgumentParser(description="Checks pictures of the real windows.")
    parser.add_argument("--drive", required=True)
    drive = os.path.abspath(parser.parse_args().drive)
    if shutil.which("Xvfb") is None:
        print("Missing: Xvfb")
        sys.exit(77)
    passed = failed = 0
    with harness.screen():
        for theme in RINGS:
            for check in CHECKS:
                with tempfile.TemporaryDirectory(prefix="brindlex-looks-") as home:
                    try:
                        check(Windows(drive, theme, pathlib.Path(home)))
                        passed += 1
                    except AssertionError as fault:
                        failed += 1
                        harness.tell_failure(f"{theme} {check.__name__}", str(fault))
    harness.finish("looks", passed, failed)


main()
