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
OUTLINED = [("Form1", "press Form11.Command1", [], "Combo1"),
            ("Form1", "press Form11.Command1", ["Frame1"], "Text2"),
            ("Form12", "press Form11.Command4", ["Frame1"], "Combo1"),
            ("Form8", "press Form11.Command3", [], "Text6"),
            ("Form8", "press Form11.Command3", [], "Check1")]


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
        """A picture of the form after the steps, its ground, and the places of the controls in it, in pixels."""
        asked = [f"{form}.{name}.{side}" for name in (*around, *controls) for side in ("Left", "Top", "Width", "Height")]
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
        places = [[round(value / pixel) for value in answers[at:at + 4]] for at in range(1, len(answers), 4)]
        left = sum(place[0] for place in places[:len(around)])
        top = sum(place[1] for place in places[:len(around)]) + menu
        return picture, picture.at(2, picture.height - 3), [(left + x, top + y, w, h)
                                                           for x, y, w, h in places[len(around):]]


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


def larger(windows):
    """A label that fits its place fits it at every size of the form."""
    for width, height in ((8070, 4515), (8900, 4980), (9700, 5430), (12096, 6354)):
        picture, ground, [place] = windows.shot("Form19", "press Form11.Command7\nmenu Form19.MMTo\n"
                                                f"size Form19 {width} {height}", ["Frame4"], "Label13")
        left, top, wide, high = place
        ink = strongest(picture.within(place), ground)
        at_least(contrast(ink, ground), WORDS, "words")
        last = picture.within((left + wide - 1, top, 1, high))
        assert contrast(strongest(last, ground), ground) < CONTROL, f"a label is cut on a form of {width} twips"


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


CHECKS = [rings, link, outlines, disabled, tools, larger, cut]


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
