#!/usr/bin/env python3
"""Takes pictures of every form in its main states, at every scale and in the light and the dark system theme, for a
person to look at.

    pictures.py --drive build/release/bin/brindlex-drive OUTDIR [--theme dark] [--scale 1.5] [--only NAME]

A picture is OUTDIR/THEME-SCALE/NAME.png; OUTDIR/THEME-SCALE.png shows them all on one sheet where there is ImageMagick.
The dark theme is the way by which a KDE desktop hands its colours to the program, so no plugin is needed. Wants Xvfb;
opened menus, lists and dialogs are taken of the program itself, by keys, and want xdotool and ImageMagick besides.
"""

import argparse
import itertools
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import harness

SCALES = ("1", "1.25", "1.5", "2")

DARK = {
    "Window": ("42,46,50", "252,252,252"),
    "View": ("27,30,32", "252,252,252"),
    "Button": ("49,54,59", "252,252,252"),
    "Selection": ("61,174,233", "252,252,252"),
    "Tooltip": ("49,54,59", "252,252,252"),
}

BOARD = r"""
write "a.geo" "I\r\n 1             1                          -1                          0                           Circle\r\n 2             1                          1                           .25                         Circle\r\n 3            -1.9                       -1                          1.9                         .8                          Line\r\n 4            -1.9                        .9                         1.9                         -1                          Line\r\n 5            0                           .8                         Point\r\n 6            -.2                         -.9                        .6                           .2                         Line\r\n"
start
press Form11.Command8
dialog "a.geo"
menu Form17.OpenIt
"""

# Lines that miss their circle.
MISSES = """
start
press Form11.Command8
type Form17.Text1 "0"
type Form17.Text2 "0"
type Form17.Text3 "1"
press Form17.Command1
tool Form17.Toolbar1 "Point"
type Form17.Text10 "0"
type Form17.Text11 "1"
press Form17.Command1
tool Form17.Toolbar1 "Connect"
press Form17.Option1
type Form17.Text12 "1"
press Form17.Option6
type Form17.Text17 "2"
press Form17.Command1
"""

RIGHT = """
start
press Form11.Command1
choose Form1.Combo1 "Angle B and side a"
type Form1.Text1 "2.5"
type Form1.Text2 "33.3"
press Form1.Command1
"""

OBLIQUE = """
start
press Form11.Command2
type Form2.Text1 "40"
type Form2.Text2 "60"
type Form2.Text3 "10"
press Form2.Command1
"""

BOLTS = """
start
press Form11.Command3
type Form8.Text1 "1.5"
type Form8.Text2 "-2.25"
type Form8.Text3 "10.125"
type Form8.Text4 "12"
type Form8.Text5 "15"
press Form8.Command1
"""

SINE = """
start
press Form11.Command4
press Form12.Option2
type Form12.Text1 "45"
type Form12.Text2 "60"
press Form12.Command1
"""

SPEEDS = """
start
press Form11.Command7
type Form19.Text3 "100"
type Form19.Text4 ".002"
type Form19.Text5 ".5"
type Form19.Text6 "4"
type Form19.Text7 ".25"
type Form19.Text8 ".5"
type Form19.Text9 ".8"
type Form19.Text14 "10"
type Form19.Text15 "2"
key Form19.Text15 13
"""

# The longest names and ranges that a shop would have.
STOCK = r"""
write "Mill.dat" "I_3/4 In. 4-Flute Roughing End Mill!Solid Carbide, TiAlN@Stainless Steel 17-4 PH, H900#250-400$.0025-.0045%1.45^\r\n"
start
press Form11.Command7
choose Form19.Combo2 "3/4 In. 4-Flute Roughing End Mill"
choose Form19.Combo3 "Solid Carbide, TiAlN"
choose Form19.Combo4 "Stainless Steel 17-4 PH, H900"
"""

FAR = r"""
write "a.geo" "I\r\n 1             1234.56789012345           -2345.67890123456            987.654321098765           Circle\r\n 2             3456.78901234567            2345.67890123456            987.654321098765           Circle\r\n 3            -3456.78901234567           -1234.56789012345            3456.78901234567            2345.67890123456           Line\r\n 4            -3456.78901234567            2345.67890123456            123.456789012345            1234.56789012345           Line\r\n"
start
press Form11.Command8
dialog "a.geo"
menu Form17.OpenIt
tool Form17.Toolbar1 "Fit"
"""

# Each a run of its own; "shot" takes the pictures. Message and input boxes are taken as they come, as box-N.
SESSIONS = {
    "menu": """
start
shot Form11 "menu.png"
tab
shot Form11 "menu-focus.png"
press Form11.Command9
shot Form7 "about.png"
tab
shot Form7 "about-focus.png"
press Form7.Command1
set Form10.Visible -1
shot Form10 "blank.png"
""",
    "right-start": """
start
press Form11.Command1
shot Form1 "right-start.png"
focus Form1.Combo1
shot Form1 "right-focus-list.png"
focus Form1.Command1
shot Form1 "right-focus-button.png"
press Form1.Command1
""",
    "right": RIGHT + """
shot Form1 "right.png"
menu Form1.DIDMS
shot Form1 "right-minutes.png"
focus Form1.Check1
shot Form1 "right-focus-check.png"
menu Form1.TextOn
shot Form1 "right-text-off.png"
menu Form1.ShapeR
shot Form1 "right-shape.png"
menu Form1.RN
shot Form5 "right-round.png"
press Form5.Command2
""",
    "right-dialog": """
start
press Form11.Command1
choose Form1.Combo1 "Angle C and side b"
type Form1.Text1 "10"
type Form1.Text2 "30"
press Form1.Check1
shot Form3 "right-add-minutes.png"
tab
tab
shot Form3 "right-add-minutes-focus.png"
press Form3.Command2
""",
    "oblique": OBLIQUE + """
shot Form2 "oblique.png"
focus Form2.Combo1
shot Form2 "oblique-focus-list.png"
menu Form2.DIDMSO
shot Form2 "oblique-minutes.png"
menu Form2.TextOn
shot Form2 "oblique-text-off.png"
type Form2.Text1 "9999"
type Form2.Text2 "9999"
press Form2.Command1
""",
    "oblique-second": """
start
press Form11.Command2
shot Form2 "oblique-start.png"
choose Form2.Combo1 "Angle A, side a, side b"
type Form2.Text1 "30"
type Form2.Text2 "6"
type Form2.Text3 "10"
press Form2.Command1
press Form2.Check3
shot Form2 "oblique-second.png"
focus Form2.Check3
shot Form2 "oblique-focus-check.png"
menu Form2.RNO
shot Form6 "oblique-round.png"
press Form6.Command2
""",
    "bolt": BOLTS + """
shot Form8 "bolt.png"
focus Form8.Check1
shot Form8 "bolt-focus-check.png"
focus Form8.Text6
shot Form8 "bolt-focus-report.png"
press Form8.Check1
shot Form8 "bolt-angles.png"
""",
    "bolt-start": """
start
press Form11.Command3
shot Form8 "bolt-start.png"
type Form8.Text5 "30"
press Form8.Check2
shot Form15 "bolt-add-minutes.png"
press Form15.Command2
press Form8.Command1
""",
    "bolt-many": BOLTS.replace('Text4 "12"', 'Text4 "40"') + """
shot Form8 "bolt-many.png"
menu Form8.RoundNumbers
shot Form9 "bolt-round.png"
press Form9.Command2
""",
    "sine": """
start
press Form11.Command4
shot Form12 "sine-start.png"
type Form12.Text1 "30"
press Form12.Command1
shot Form12 "sine.png"
focus Form12.Option1
shot Form12 "sine-focus-option.png"
""",
    "sine-compound": SINE + """
shot Form12 "sine-compound.png"
press Form12.Check2
shot Form13 "sine-add-minutes.png"
press Form13.Command2
menu Form12.RoundNumbers
shot Form14 "sine-round.png"
press Form14.Command2
""",
    "polygon": """
start
press Form11.Command6
shot Form16 "polygon-start.png"
type Form16.Text1 "1.25"
press Form16.Command1
shot Form16 "polygon.png"
press Form16.Option5
choose Form16.Combo1 " 7"
press Form16.Option2
type Form16.Text1 "1"
press Form16.Command1
shot Form16 "polygon-seven.png"
focus Form16.Combo1
shot Form16 "polygon-focus-list.png"
focus Form16.Option2
shot Form16 "polygon-focus-option.png"
set Form16.Text1.Text ""
press Form16.Command1
""",
    "board-start": """
start
press Form11.Command8
shot Form17 "board-start.png"
press Form17.Command1
focus Form17.Check2
shot Form17 "board-focus-check.png"
tool Form17.Toolbar1 "Line"
shot Form17 "board-line-start.png"
tool Form17.Toolbar1 "Point"
shot Form17 "board-point-start.png"
type Form17.Text10 "1"
type Form17.Text11 "1"
press Form17.Command1
type Form17.Text10 "2"
type Form17.Text11 "1"
press Form17.Command1
tool Form17.Toolbar1 "Connect"
shot Form17 "board-connect-start.png"
""",
    "board": BOARD + """
shot Form17 "board.png"
tool Form17.Toolbar1 "Line"
shot Form17 "board-line.png"
type Form17.Text6 "-.2"
press Form17.Check1
shot Form17 "board-line-chained.png"
mouse Form17.Picture1 move 1.2375 -0.6958
shot Form17 "board-hover.png"
mouse Form17.Picture1 move 3 -2.3
tool Form17.Toolbar1 "Connect"
press Form17.Option1
type Form17.Text12 "1"
press Form17.Option4
type Form17.Text15 "2"
focus Form17.Option4
shot Form17 "board-connect-focus.png"
press Form17.Command1
shot Form17 "board-connected.png"
focus Form17.Command4
shot Form17 "board-connected-focus.png"
press Form17.Command3
tool Form17.Toolbar1 "CircTan"
shot Form17 "board-tangent.png"
type Form17.Text4 ".3"
press Form17.Command1
shot Form17 "board-tangent-placed.png"
press Form17.Command3
tool Form17.Toolbar1 "PotInt"
shot Form17 "board-extend.png"
tool Form17.Toolbar1 "ID"
shot Form17 "board-show-hide.png"
focus Form17.Combo3
shot Form17 "board-show-hide-focus.png"
menu Form17.GeoRpt
shot Form18 "report.png"
tab
shot Form18 "report-focus.png"
press Form18.Command1
focus Form17.VScroll1
shot Form17 "board-focus-scroll.png"
""",
    "board-box": BOARD + """
mouse Form17.Picture1 down 1 2.7 -0.6
mouse Form17.Picture1 move 3.9 -1.5 1
shot Form17 "board-pick-box.png"
mouse Form17.Picture1 up 1 3.9 -1.5
shot Form17 "board-picked.png"
""",
    "board-large": BOARD + """
maximize Form17
shot Form17 "board-maximized.png"
press Form17.Command9
shot Form17 "board-enlarged.png"
tool Form17.Toolbar1 "Connect"
mouse Form17.Picture1 move 1.2375 -0.6958
shot Form17 "board-enlarged-connect.png"
""",
    "board-misses": MISSES + """
shot Form17 "board-misses.png"
""",
    "right-long": """
start
press Form11.Command1
type Form1.Text1 "123456789012345"
type Form1.Text2 "98765432.1098765"
press Form1.Command1
shot Form1 "right-long.png"
menu Form1.DIDMS
shot Form1 "right-long-minutes.png"
menu Form1.TextOn
shot Form1 "right-long-text-off.png"
""",
    "oblique-long": """
start
press Form11.Command2
type Form2.Text1 "40.123456789"
type Form2.Text2 "60.987654321"
type Form2.Text3 "12345678901234"
press Form2.Command1
shot Form2 "oblique-long.png"
menu Form2.DIDMSO
menu Form2.TextOn
shot Form2 "oblique-long-text-off.png"
""",
    "bolt-long": """
start
press Form11.Command3
type Form8.Text1 "-12345678.123456"
type Form8.Text2 "-98765432.654321"
type Form8.Text3 "123456789.12345"
type Form8.Text4 "100"
type Form8.Text5 "359.999999999"
press Form8.Command1
shot Form8 "bolt-long.png"
""",
    "sine-long": """
start
press Form11.Command4
press Form12.Option2
choose Form12.Combo1 " 10\\" "
type Form12.Text1 "44.9999999999999"
type Form12.Text2 "59.1234567890123"
press Form12.Command1
shot Form12 "sine-long.png"
""",
    "polygon-long": """
start
press Form11.Command6
type Form16.Text1 "123456789012345"
press Form16.Command1
shot Form16 "polygon-long.png"
""",
    "board-long": FAR + """
shot Form17 "board-long.png"
mouse Form17.Picture1 move 1.2375 -0.6958
shot Form17 "board-long-hover.png"
tool Form17.Toolbar1 "CircTan"
shot Form17 "board-long-tangent.png"
tool Form17.Toolbar1 "PotInt"
shot Form17 "board-long-extend.png"
menu Form17.GeoRpt
shot Form18 "report-long.png"
""",
    "board-recovered": r"""
write "geometry.dat" " 1             1                          -1                          0                           Circle\r\n"
start
press Form11.Command8
shot Form17 "board-recovered.png"
""",
    "speeds-stock": STOCK + """
shot Form19 "speeds-stock.png"
type Form19.Text5 ".75"
type Form19.Text6 "4"
type Form19.Text8 "1.125"
type Form19.Text7 "1.5"
type Form19.Text9 "1.45"
type Form19.Text14 "12345.678"
type Form19.Text15 "100"
press Form19.Command1
shot Form19 "speeds-stock-results.png"
menu Form19.ConvDat
shot Form19 "speeds-stock-metric.png"
menu Form19.InchTo
menu Form19.DataOp
choose Form19.Combo2 "3/4 In. 4-Flute Roughing End Mill"
choose Form19.Combo3 "Solid Carbide, TiAlN"
choose Form19.Combo4 "Stainless Steel 17-4 PH, H900"
shot Form19 "speeds-stock-enter.png"
menu Form19.DelDat
""",
    "speeds": SPEEDS + """
shot Form19 "speeds.png"
menu Form19.ConvDat
shot Form19 "speeds-metric.png"
focus Form19.Combo2
shot Form19 "speeds-focus-list.png"
additem Form19.Combo1 "Lathe"
choose Form19.Combo1 "Lathe"
shot Form19 "speeds-lathe.png"
menu Form19.DataOp
shot Form19 "speeds-enter.png"
press Form19.Command1
size Form19 12096 6354
shot Form19 "speeds-larger.png"
maximize Form19
shot Form19 "speeds-maximized.png"
""",
}

# Of the program itself, which stands in the menu: "shot" takes what is on the screen, anything else is keys to press.
# Three Escapes lead out of any menu; "front" gives the keyboard back to the form after a dialog, as a window manager does.
OUT_OF_MENU = "Escape Escape Escape"


def menus(name, letters):
    return [step for letter in letters for step in (f"alt+{letter}", f"shot {name}-menu-{letter}", OUT_OF_MENU)]


def typed(text):
    return " ".join({".": "period", "-": "minus"}.get(letter, letter) for letter in text)


LIVE = {
    "live-right": ["alt+r", *menus("right", "fenuh"), "alt+f Down Down Right", "shot right-menu-print", OUT_OF_MENU,
                   "F4", "shot right-list", "Escape", "alt+f Return", "shot dialog-open", "Escape", "front",
                   f"Tab {typed('5')} Tab {typed('4')} Return", "alt+f Down Return", "shot dialog-save", "Escape", "front",
                   "alt+f Down Down Right Return", "shot dialog-print", "Escape"],
    "live-oblique": ["alt+o", *menus("oblique", "feu"), "F4", "shot oblique-list", "Escape"],
    "live-bolt": ["alt+b", *menus("bolt", "feu"), "alt+f Up Up Right", "shot bolt-menu-print", OUT_OF_MENU],
    "live-sine": ["alt+i", *menus("sine", "feu"), "Tab F4", "shot sine-list", "Escape"],
    "live-polygon": ["alt+g", *menus("polygon", "feu"), "F4", "shot polygon-list", "Escape"],
    "live-board": ["alt+y", *menus("board", "feu"), "alt+u Right", "shot board-menu-geometry", OUT_OF_MENU,
                   "F6", "shot board-focus-tool", "Right", "shot board-focus-next-tool", "F6", "alt",
                   "shot board-focus-menu", "Escape"],
    "live-speeds": ["alt+s", *menus("speeds", "fenuoh"), "F4", "shot speeds-list", "Escape"],
}
PAUSE = 0.5  # seconds that a window needs to come up on a busy machine
START = 4


def desktop_of(theme, scale, home):
    """The environment of a person's desktop."""
    environment = {name: value for name, value in os.environ.items()
                   if not name.startswith(("XDG_", "QT_", "KDE_", "GTK_", "DISPLAY", "WAYLAND_"))}
    environment.update(HOME=str(home), XDG_RUNTIME_DIR=str(home), LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
                       QT_SCALE_FACTOR=scale)
    if theme == "dark":
        config = home / ".config"
        config.mkdir()
        groups = [f"[Colors:{name}]\nBackgroundNormal={ground}\nForegroundNormal={ink}\n"
                  for name, (ground, ink) in DARK.items()]
        (config / "kdeglobals").write_text("".join(groups), encoding="ascii")
        environment.update(XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5")
    return environment


def take(drive, theme, scale, sessions, folder, screen="1280x1024"):
    """The pictures of sessions by their names; the number of those that went through, and of those that did not."""
    folder.mkdir(parents=True, exist_ok=True)
    passed = 0
    with tempfile.TemporaryDirectory(prefix="brindlex-pictures-") as home:
        environment = desktop_of(theme, scale, pathlib.Path(home))
        for name, session in sessions.items():
            working = pathlib.Path(home, name)
            working.mkdir()
            environment["BRINDLEX_BOXES"] = str(working / f"{name}-box")
            script = pathlib.Path(home, name + ".script")
            script.write_text(session, encoding="ascii")
            run = subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 2600x2100x24", drive, "--desktop", "--screen",
                                  screen, "--dir", str(working), str(script)], env=environment, timeout=300,
                                 stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
            if run.returncode == 0:
                passed += 1
            else:
                harness.tell_failure(f"{theme} {scale} {name}", run.stdout[-300:], run.stderr)
            for picture in sorted(working.glob("*.png")):
                shutil.move(str(picture), str(folder / picture.name))
    return passed, len(sessions) - passed


def act_out(steps, environment, folder):
    """Presses the keys of a session and takes its pictures."""
    for step in steps:
        if step.startswith("shot "):
            subprocess.run(["import", "-window", "root", "-trim", "+repage", str(folder / (step[5:] + ".png"))],
                           env=environment, check=True)
        elif step == "front":
            subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Brindlex", "windowfocus"], env=environment,
                           check=True)
            time.sleep(PAUSE)
        else:
            subprocess.run(["xdotool", "key", "--delay", "40", *step.split()], env=environment, check=True)
            time.sleep(PAUSE)


def take_live(program, theme, scale, names, out):
    """The same of the sessions of the program itself, one by one, as each wants a screen that the others leave alone."""
    folder = out / f"{theme}-{scale}"
    folder.mkdir(parents=True, exist_ok=True)
    passed = 0
    for name in names:
        with tempfile.TemporaryDirectory(prefix="brindlex-pictures-") as home, harness.screen("2600x2100"):
            environment = dict(desktop_of(theme, scale, pathlib.Path(home)), DISPLAY=os.environ["DISPLAY"])
            with subprocess.Popen([program], env=environment, cwd=home, stderr=subprocess.DEVNULL) as running:
                try:
                    time.sleep(START)
                    act_out(LIVE[name], environment, folder)
                    assert running.poll() is None, "the program has ended"
                    passed += 1
                except (AssertionError, subprocess.CalledProcessError) as fault:
                    harness.tell_failure(f"{theme} {scale} {name}", str(fault))
                finally:
                    running.terminate()
    return passed, len(names) - passed


def lay_out(theme, scale, out):
    """All pictures of a theme and scale on one sheet."""
    pictures = sorted(map(str, (out / f"{theme}-{scale}").glob("*.png")))
    if pictures and shutil.which("montage"):
        # Made small as they are read, as all of the largest at once want more memory than ImageMagick takes.
        small = [f"{picture}[640x560>]" for picture in pictures]
        subprocess.run(["montage", "-label", "", *small, "-tile", "6x", "-geometry", "640x560>+8+8", "-background",
                        "#808080", str(out / f"{theme}-{scale}.png")], check=False)


def main():
    parser = argparse.ArgumentParser(description="Takes pictures of every form.")
    parser.add_argument("--drive", required=True)
    parser.add_argument("--theme", action="append", choices=("light", "dark"))
    parser.add_argument("--scale", action="append", choices=SCALES)
    parser.add_argument("--only", action="append", choices=(*SESSIONS, *LIVE))
    parser.add_argument("outdir")
    options = parser.parse_args()
    if shutil.which("xvfb-run") is None:
        print("Missing: xvfb-run")
        sys.exit(77)
    drive, out = os.path.abspath(options.drive), pathlib.Path(options.outdir).absolute()
    runs = list(itertools.product(options.theme or ("light", "dark"), options.scale or SCALES))
    sessions = {name: SESSIONS[name] for name in SESSIONS if name in (options.only or SESSIONS)}
    counts = harness.in_parallel(lambda run: take(drive, *run, sessions, out / "-".join(run)), runs)
    if shutil.which("xdotool") and shutil.which("import"):
        names = [name for name in LIVE if name in (options.only or LIVE)]
        program = str(pathlib.Path(drive).with_name("brindlex"))
        counts += [take_live(program, *run, names, out) for run in runs]
    else:
        print("No pictures of menus, lists and dialogs: xdotool or import is missing.")
    for run in runs:
        lay_out(*run, out)
    harness.finish("pictures", sum(good for good, _ in counts), sum(bad for _, bad in counts))


if __name__ == "__main__":
    main()
