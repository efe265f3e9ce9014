#!/usr/bin/env python3
"""Takes the guide's pictures of the windows anew, each by the example beside which it stands; printing.png, which shows
paper, is not among them.

    guide_pictures.py --drive build/release/bin/brindlex-drive docs/guide

Wants Xvfb.
"""

import argparse
import os
import pathlib

import harness
from pictures import MISSES, take

GUSSET = """
start
press Form11.Command1
choose Form1.Combo1 "Angle B and side c"
type Form1.Text1 ".875"
type Form1.Text2 "32"
press Form1.Check1
type Form3.Text2 "15"
"""

CAM = """
start
press Form11.Command2
choose Form2.Combo1 "Angle A, side a, side b"
type Form2.Text1 "30"
type Form2.Text2 "6"
type Form2.Text3 "10"
press Form2.Command1
"""


def holes(x, y, diameter, number, angle):
    return f"""
start
press Form11.Command3
type Form8.Text1 "{x}"
type Form8.Text2 "{y}"
type Form8.Text3 "{diameter}"
type Form8.Text4 "{number}"
type Form8.Text5 "{angle}"
press Form8.Command1
"""


LEVER = """
start
press Form11.Command8
type Form17.Text1 "0"
type Form17.Text2 "0"
type Form17.Text3 "2"
press Form17.Command1
tool Form17.Toolbar1 "Line"
type Form17.Text6 "-1.5"
type Form17.Text7 "-.8"
type Form17.Text8 "1.2"
type Form17.Text9 ".9"
press Form17.Command1
tool Form17.Toolbar1 "Point"
type Form17.Text10 "1.5"
type Form17.Text11 "-.5"
press Form17.Command1
"""

SESSIONS = {
    "menu": """
start
shot Form11 "menu.png"
press Form11.Command9
shot Form7 "about.png"
""",
    "gusset": GUSSET + """
shot Form3 "minutes-and-seconds.png"
press Form3.Command1
press Form1.Command1
expect Form1.Text2.Text "32.25"
shot Form1 "right-triangles.png"
menu Form1.TextOn
shot Form1 "right-triangles-text-off.png"
menu Form1.RN
shot Form5 "round-numbers.png"
""",
    "cam": CAM + """
shot Form2 "oblique-triangles.png"
press Form2.Check3
shot Form2 "oblique-triangles-second.png"
menu Form2.DIDMSO
menu Form2.TextOn
shot Form2 "oblique-triangles-text-off.png"
""",
    "flange": holes("3", "2", "4.5", "6", "30") + """
shot Form8 "bolt-circles-flange.png"
press Form8.Check2
shot Form15 "bolt-circles-minutes.png"
press Form15.Command2
menu Form8.Inches2Millimeters
shot Form8 "bolt-circles-millimeters.png"
""",
    "dividing": holes("0", "0", "10", "7", "0") + """
press Form8.Check1
shot Form8 "bolt-circles-angles.png"
""",
    "bar": """
start
press Form11.Command4
type Form12.Text1 "30"
press Form12.Command1
shot Form12 "sine-plates.png"
menu Form12.Inches2Millimeters
shot Form12 "sine-plates-millimeters.png"
press Form12.Check1
type Form13.Text2 "30"
shot Form13 "sine-plates-minutes.png"
""",
    "plates": """
start
press Form11.Command4
press Form12.Option2
type Form12.Text1 "25"
type Form12.Text2 "15"
press Form12.Command1
shot Form12 "sine-plates-compound.png"
""",
    "hexagon": """
start
press Form11.Command6
type Form16.Text1 ".75"
press Form16.Command1
shot Form16 "polygons.png"
""",
    "triangle": """
start
press Form11.Command6
press Form16.Option5
choose Form16.Combo1 " 3"
press Form16.Option3
type Form16.Text1 "3"
press Form16.Command1
shot Form16 "polygons-triangle.png"
""",
    "seven": """
start
press Form11.Command6
press Form16.Option5
choose Form16.Combo1 " 7"
press Form16.Option2
type Form16.Text1 "1"
press Form16.Command1
menu Form16.Inch2MM
shot Form16 "polygons-millimeters.png"
""",
    "lever": LEVER + """
mouse Form17.Picture1 move 3.2375 -1.1958
shot Form17 "geometry-hover.png"
mouse Form17.Picture1 down 1 3.4 -1.35
mouse Form17.Picture1 move 4.2 -2.05 1
shot Form17 "geometry-pick-box.png"
mouse Form17.Picture1 up 1 4.2 -2.05
press Form17.Command3
maximize Form17
press Form17.Command9
shot Form17 "geometry-enlarged.png"
""",
    "belt": """
start
press Form11.Command8
type Form17.Text1 "-1"
type Form17.Text2 "0"
type Form17.Text3 "1"
press Form17.Command1
set Form17.Text1.Text ""
type Form17.Text1 "1"
set Form17.Text3.Text ""
type Form17.Text3 ".5"
press Form17.Command1
tool Form17.Toolbar1 "Connect"
press Form17.Option1
type Form17.Text12 "1"
press Form17.Option4
type Form17.Text15 "2"
press Form17.Command1
shot Form17 "geometry-belt.png"
""",
    "fillet": """
start
press Form11.Command8
tool Form17.Toolbar1 "Line"
type Form17.Text6 "0"
type Form17.Text7 "0"
type Form17.Text8 "1"
type Form17.Text9 "1"
press Form17.Command1
set Form17.Text9.Text "-1"
press Form17.Command1
tool Form17.Toolbar1 "CircTan"
press Form17.Option8
type Form17.Text4 ".25"
press Form17.Command1
shot Form17 "geometry-fillet.png"
""",
    "miss": MISSES + """
shot Form17 "geometry-not-every-line.png"
""",
    "mill": """
start
press Form11.Command7
menu Form19.DataOp
type Form19.Text17 "End Mill"
type Form19.Text18 "High Speed"
type Form19.Text19 "Tool Steel-D2"
type Form19.Text1 "80-120"
type Form19.Text2 ".001-.004"
type Form19.Text9 ".8"
press Form19.Command1
menu Form19.DataOp
choose Form19.Combo2 "End Mill"
choose Form19.Combo3 "High Speed"
choose Form19.Combo4 "Tool Steel-D2"
type Form19.Text5 ".5"
type Form19.Text6 "4"
set Form19.Text3.Text "100"
set Form19.Text4.Text ".002"
type Form19.Text7 ".25"
type Form19.Text8 ".5"
type Form19.Text14 "10"
type Form19.Text15 "2"
press Form19.Command1
shot Form19 "speeds-feeds.png"
""",
}


def main():
    parser = argparse.ArgumentParser(description="Takes the guide's pictures of the windows.")
    parser.add_argument("--drive", required=True)
    parser.add_argument("--only", action="append", choices=tuple(SESSIONS))
    parser.add_argument("outdir")
    options = parser.parse_args()
    sessions = {name: SESSIONS[name] for name in SESSIONS if name in (options.only or SESSIONS)}
    passed, failed = take(os.path.abspath(options.drive), "light", "1", sessions, pathlib.Path(options.outdir), "1024x768")
    harness.finish("guide pictures", passed, failed)


main()
