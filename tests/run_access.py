#!/usr/bin/env python3
"""Reads the real program as a screen reader does, over AT-SPI: what on each form can have the focus, under which role,
name and state, what a press does, and the words for the pictures.

    run_access.py --program build/release/bin/brindlex

Starts a screen and a bus of its own. Wants Xvfb, dbus-run-session, at-spi2-core and the Atspi bindings; ends with 77
where they are missing.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import harness

TOOLS = ("xvfb-run", "dbus-run-session")
BINDINGS = "import gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi"
PATIENCE = 20  # seconds until something that never comes has failed
PAUSE = 0.02

CALCULATORS = ["Right Triangles", "Oblique Triangles", "Bolt Circles", "Sine Plates", "Polygons", "Geometry",
               "Speeds + Feeds"]
CORNERS = ["text: Angle A", "text: Angle B", "text: Angle C", "text: Side a", "text: Side b", "text: Side c"]

# What can have the focus on each form as it opens, as a reader calls it.
OPENING = {
    "Menu": [f"push button: {name}" for name in CALCULATORS + ["About Brindlex", "Exit"]],
    "Right Triangles": ["combo box: Known Entities: Side a and side b", "text: Length of side a", "text: Length of side b",
                        "check box: Add Minutes and Seconds", "push button: Calculate!"] + CORNERS,
    "Oblique Triangles": ["combo box: Known Entities: Angle A, Angle B, side a", "text: Angle A", "text: Angle B", "text: Side a",
                          "check box: Add Minutes And Seconds", "check box: Add Minutes And Seconds",
                          "check box: Try Second Solution (Ambiguous)", "push button: Calculate!"] + CORNERS,
    "Bolt Circles": ["text: Bolt Circle X Center", "text: Bolt Circle Y Center", "text: Bolt Circle Diameter",
                     "text: Number Of Holes", "text: Start Angle", "check box: Add D/M/S",
                     "check box: Display Angles Only", "push button: Calculate!", "text: Report"],
    "Sine Plates": ["radio button: Regular", "radio button: Compound", "combo box: Center Spacing",
                    "text: Center Spacing", "text: Required Angle:", "check box: Add D/M/S", "push button: Calculate!"],
    "Polygons": ["combo box: Sides In Polygon", "text: Sides In Polygon", "radio button: Inscribed",
                 "radio button: Circumscribed", "radio button: Across Flats",
                 "radio button: Across 1 Flat and 1 Sharp Corner", "radio button: Across 1 Flat",
                 "text: Print Dimension:", "text: Circle Diameter:", "push button: Calculate!"],
    "Geometry": ["radio button: Circle", "radio button: Line", "radio button: Point", "radio button: Connect",
                 "radio button: Tangent Circle", "radio button: Extend", "radio button: Show, Hide, Delete",
                 "push button: Zoom In", "push button: Zoom Out", "push button: Fit", "push button: Delete",
                 "text: Place Center at: X:", "text: Place Center at: Y:", "text: Diameter:",
                 "check box: This is the Radius.", "push button: Place It", "scroll bar: Vertical Scroll Bar",
                 "scroll bar: Horizontal Scroll Bar"],
    "Speeds + Feeds": ["combo box: Machine", "text: Machine", "combo box: Tool", "text: Tool",
                       "combo box: Tool Material", "text: Tool Material", "combo box: Material Being Cut",
                       "text: Material Being Cut", "text: Range: SFM", "text: Range: FPT", "text: Choose SFM",
                       "text: Choose FPT", "text: Tool Dia.", "text: # of Teeth", "text: Power Constant/HP Factor",
                       "text: Depth of Cut", "text: Width of Cut", "text: Length of Cut", "text: Number of Cuts",
                       "text: RPM", "text: IPM", "text: MRR", "text: Time in Cut", "text: Req. H.P.",
                       "push button: Calculate!", "push button: Clear All",
                       # The boxes of the enter-data mode lie beneath the lists, out of the tab order.
                       "text: Tool", "text: Tool Material", "text: Material Being Cut"],
}
TITLES = {"Right Triangles": "Solutions To Right Triangles", "Oblique Triangles": "Solutions To Oblique Triangles",
          "Bolt Circles": "Solutions To Bolt Circles", "Sine Plates": "Solutions To Sine Plates",
          "Polygons": "Solutions To Polygons", "Speeds + Feeds": "Mill Speeds and Feeds"}

# The panels of the board, each by its tool.
PANELS = {
    "Line": ["text: Line Starts at X:", "text: Line Starts at Y:", "text: Line Ends at X:", "text: Line Ends at Y:",
             "check box: Begin next line here."],
    "Point": ["text: Locate Point At: X:", "text: Locate Point At: Y:"],
    "Connect": ["radio button: Circle", "radio button: Line", "radio button: Point", "radio button: Circle",
                "radio button: Line", "radio button: Point", "text: Connect Circle", "text: Connect Line",
                "text: Connect Point", "text: To Circle", "text: To Line", "text: To Point"],
    "Tangent Circle": ["combo box: Lines", "radio button: Diameter", "radio button: Radius",
                       "text: Circle: Diameter or Radius"],
    "Extend": ["combo box: Potential Intersections:", "text: Will Intersect At:"],
    "Show, Hide, Delete": [f"combo box: Show, Hide, Delete Entities {number}" for number in range(1, 7)] +
                          ["radio button: Show Only", "radio button: Hide Only", "radio button: Delete",
                           "push button: Reset"],
}


def bindings():
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    return Atspi


def until(found, what):
    """What a question answers, as soon as it answers anything."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = found()
        if answer:
            return answer
        time.sleep(PAUSE)
    raise AssertionError(f"never came: {what}")


class Node:
    """What a reader sees of one thing on the screen."""

    def __init__(self, atspi, inner):
        self.atspi, self.inner = atspi, inner

    def name(self):
        return self.inner.get_name()

    def role(self):
        return self.inner.get_role_name()

    def words(self):
        return self.inner.get_description()

    def called(self):
        return f"{self.role()}: {self.name()}"

    def has(self, state):
        return self.inner.get_state_set().contains(getattr(self.atspi.StateType, state))

    def text(self):
        return self.atspi.Text.get_text(self.inner, 0, -1)

    def selections(self):
        return self.atspi.Text.get_n_selections(self.inner)

    def write(self, text):
        assert self.atspi.EditableText.set_text_contents(self.inner, text)

    def actions(self):
        return [self.atspi.Action.get_action_name(self.inner, index)
                for index in range(self.atspi.Action.get_n_actions(self.inner))]

    def do(self, action):
        index = self.actions().index(action)
        try:
            self.atspi.Action.do_action(self.inner, index)
        except RuntimeError:
            # A menu item that brings up a dialog answers when that is gone, and nobody waits for so long.
            pass

    def all(self):
        """This and all that it holds and shows."""
        nodes = [self]
        for index in range(self.inner.get_child_count()):
            child = self.inner.get_child_at_index(index)
            if child is not None and child.get_state_set().contains(self.atspi.StateType.SHOWING):
                nodes += Node(self.atspi, child).all()
        return nodes

    def focusable(self):
        return sorted(node.called() for node in self.all() if node.has("FOCUSABLE"))

    def the(self, called, number=0):
        found = [node for node in self.all() if node.called() == called]
        assert len(found) > number, f"{called} is not among {[node.called() for node in self.all()]}"
        return found[number]


class Reader:
    def __init__(self, atspi, program):
        self.atspi, self.program = atspi, program

    def application(self):
        desktop = self.atspi.get_desktop(0)
        desktop.clear_cache()
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_name() == "brindlex":
                child.set_cache_mask(self.atspi.Cache.NONE)
                return child
        return None

    def shown(self):
        """The windows on the screen."""
        application = self.application()
        nodes = [] if application is None else [
            Node(self.atspi, application.get_child_at_index(index)) for index in range(application.get_child_count())]
        return [node for node in nodes if node.inner is not None and node.has("SHOWING")]

    def window(self, title):
        return until(lambda: next((node for node in self.shown() if node.name().endswith(title)), None),
                     f"window {title}")

    def gone(self, title):
        until(lambda: not any(node.name().endswith(title) for node in self.shown()), f"window {title} away")

    def key(self, code):
        self.atspi.generate_keyboard_event(code, None, self.atspi.KeySynthType.SYM)

    def key_with_shift(self, code):
        kinds = self.atspi.KeySynthType
        self.atspi.generate_keyboard_event(LEFT_SHIFT, None, kinds.PRESS)
        self.key(code)
        self.atspi.generate_keyboard_event(LEFT_SHIFT, None, kinds.RELEASE)

    def focused(self, window, called):
        until(lambda: any(node.has("FOCUSED") and node.called() == called for node in window.all()),
              f"focus on {called}, not {[node.called() for node in window.all() if node.has('FOCUSED')]}")

    def opened(self, calculator):
        self.window("Menu").the(f"push button: {calculator}").do("Press")
        return self.window(TITLES.get(calculator, calculator))

    def chosen(self, window, item):
        """A menu item, by the menu that holds it last where several have its name."""
        [node for node in self.hidden(window) if node.called() == f"menu item: {item}"][-1].do("Press")

    def back(self, window):
        self.chosen(window, "Menu")
        self.window("Menu")

    def hidden(self, node):
        nodes = [node]
        for index in range(node.inner.get_child_count()):
            child = node.inner.get_child_at_index(index)
            if child is not None:
                nodes += self.hidden(Node(self.atspi, child))
        return nodes


def same(found, wanted):
    assert found == wanted, f"{found!r} is not {wanted!r}"


TAB, RETURN, ESCAPE, SPACE, LEFT, RIGHT, DOWN = 0xFF09, 0xFF0D, 0xFF1B, 0x20, 0xFF51, 0xFF53, 0xFF54
FIVE, LETTER_A = 0x35, 0x61
F4, F6, F10 = 0xFFC1, 0xFFC3, 0xFFC7
LEFT_SHIFT = 50  # a key, not a sign


def menu(reader):
    window = reader.window("Menu")
    same(window.role(), "frame")
    same(window.focusable(), sorted(OPENING["Menu"]))
    same(window.the("push button: Right Triangles").actions(), ["Press", "SetFocus"])
    # The letters of the title, and the triangle, are all of a blue; the first stroke of a colour so dark is black.
    words = window.the("image: Drawing").words()
    assert words.startswith("Texts: ") and "D L E X" in words and words.endswith("Shapes: 3 blue lines."), words


def about(reader):
    reader.window("Menu").the("push button: About Brindlex").do("Press")
    window = reader.window("Contacts")
    same(window.role(), "dialog")
    same(window.focusable(), ["link: mail@brindlex.example", "link: www.brindlex.example", "push button: OK"])
    reader.focused(window, "push button: OK")
    reader.key(TAB)
    reader.focused(window, "link: www.brindlex.example")
    reader.key(TAB)
    reader.focused(window, "link: mail@brindlex.example")
    reader.key(TAB)
    reader.focused(window, "push button: OK")
    reader.key(ESCAPE)
    reader.gone("Contacts")


def opening(calculator):
    def check(reader):
        window = reader.opened(calculator)
        same(window.role(), "frame")
        same(window.focusable(), sorted(OPENING[calculator]))
        reader.back(window)

    return check


def right_triangle(reader):
    window = reader.opened("Right Triangles")
    # A right triangle with the corners A, B, C; A and the sides a and b, which are given, are red.
    same(window.the("image: Drawing").words(), "Texts: red: A, a, b; B, C, c. Shapes: 3 blue lines.")
    window.the("push button: Calculate!").do("Press")
    box = reader.window("Brindlex")
    same(box.the("label: What is Length of side a").has("SHOWING"), True)
    box.the("image: Question")
    box.the("push button: OK").do("Press")
    reader.gone("Brindlex")
    window.the("text: Length of side a").write("5")
    window.the("text: Length of side b").write("4")
    window.the("push button: Calculate!").do("Press")
    until(lambda: window.the("text: Side c").text() == " 3", "side c")
    same(window.the("text: Angle B").text(), " 53.1301\N{DEGREE SIGN}")
    same(window.the("text: Angle C").text(), " 36.8699\N{DEGREE SIGN}")
    reader.back(window)


def options(reader):
    window = reader.opened("Sine Plates")
    regular, compound = window.the("radio button: Regular"), window.the("radio button: Compound")
    same((regular.has("CHECKED"), compound.has("CHECKED")), (True, False))
    compound.do("Press")
    until(lambda: compound.has("CHECKED"), "Compound chosen")
    same(regular.has("CHECKED"), False)
    until(lambda: "text: Top Angle:" in window.focusable(), "the top angle")
    reader.back(window)


def checks(reader):
    window = reader.opened("Bolt Circles")
    for name, value in (("Bolt Circle X Center", "0"), ("Bolt Circle Y Center", "0"), ("Bolt Circle Diameter", "10"),
                        ("Number Of Holes", "4"), ("Start Angle", "0")):
        window.the(f"text: {name}").write(value)
    window.the("push button: Calculate!").do("Press")
    until(lambda: "Hole 1" in window.the("text: Report").text(), "the report")
    box = window.the("check box: Display Angles Only")
    same(box.has("CHECKED"), False)
    box.do("Press")
    until(lambda: box.has("CHECKED"), "Angles Only")
    until(lambda: "Hole 2=  90\N{DEGREE SIGN}" in window.the("text: Report").text(), "angles in the report")
    reader.back(window)


def purposes(reader):
    """Boxes of one caption tell for which angle they are."""
    for calculator, caption, angles in (("Oblique Triangles", "Add Minutes And Seconds", ["Angle A", "Angle B"]),
                                        ("Sine Plates", "Add D/M/S", ["Bottom Angle:", "Top Angle:"])):
        window = reader.opened(calculator)
        if calculator == "Sine Plates":
            window.the("radio button: Compound").do("Press")
            until(lambda: "text: Top Angle:" in window.focusable(), "the top angle")
        told = [window.the(f"check box: {caption}", number) for number in range(2)]
        until(lambda: [box.words() for box in told] == angles, f"{angles}, not {[box.words() for box in told]}")
        reader.back(window)
    window = reader.opened("Bolt Circles")
    same(window.the("check box: Add D/M/S").words(), "")
    reader.back(window)


def tools(reader):
    window = reader.opened("Geometry")
    same(window.the("tool bar: Tools").has("SHOWING"), True)
    same([window.the(f"radio button: {name}").has("CHECKED") for name in ("Circle", "Line")], [True, False])
    same(window.the("radio button: Connect").has("ENABLED"), False)
    same(window.the("radio button: Connect").actions(), [])
    reader.focused(window, "text: Diameter:")
    # To the tools, one on, and press it; the board then wants the start of a line.
    reader.key(F6)
    reader.focused(window, "radio button: Circle")
    reader.key(RIGHT)
    reader.focused(window, "radio button: Line")
    reader.key(SPACE)
    reader.focused(window, "text: Line Starts at X:")
    reader.key(F6)
    reader.focused(window, "radio button: Line")
    reader.key(F6)
    reader.focused(window, "text: Line Starts at X:")
    window.the("radio button: Circle").do("Press")
    until(lambda: window.the("radio button: Circle").has("CHECKED"), "the tool")
    reader.back(window)


def entry_menu(reader):
    """All of an entry is selected from its own menu, which Ctrl+A does not do there, and the next figure takes its
    place."""
    window = reader.opened("Bolt Circles")
    entry = window.the("text: Bolt Circle X Center")
    until(lambda: entry.has("FOCUSED"), "the first entry")
    for code in (FIVE, FIVE):
        reader.key(code)
    until(lambda: entry.text() == "55", "two figures")
    reader.key_with_shift(F10)

    def all_selected():
        # Until the menu is there the entry gets the letter, and refuses it.
        reader.key(LETTER_A)
        return entry.selections() == 1

    until(all_selected, "the menu, and all selected by it")
    reader.key(FIVE)
    until(lambda: entry.text() == "5", f"one figure, not {entry.text()}")
    reader.back(window)


def lists(reader):
    """A list opens where the box stands, a text with blanks less among them; an arrow goes on from there. The lists
    beneath the boxes of the enter-data mode open from these."""
    window = reader.opened("Polygons")
    sides = window.the("text: Sides In Polygon")
    reader.focused(window, "combo box: Sides In Polygon")
    same(sides.text(), "6")
    reader.key(DOWN)
    until(lambda: sides.text() == " 7", "seven sides")
    reader.back(window)
    window = reader.opened("Speeds + Feeds")
    reader.chosen(window, "ENTER New INCH Data")
    reader.focused(window, "text: Tool")
    # An empty list does not take the keyboard.
    tool = window.the("text: Tool", 1)
    reader.key(F4)
    reader.key(FIVE)
    until(lambda: tool.text() == "5", "a five in the box")
    for name, value, number in (("Tool", "Drill", 1), ("Tool Material", "Carbide", 1), ("Material Being Cut", "Brass", 1),
                                ("Range: SFM", "80-120", 0), ("Range: FPT", ".001-.004", 0)):
        window.the(f"text: {name}", number).write(value)
    window.the("push button: Enter Data").do("Press")
    until(lambda: tool.text() == "", "the record saved")
    # From the box to its list and back, with the choice and without one.
    for end, choice in ((ESCAPE, ""), (RETURN, "Drill")):
        until(lambda: tool.has("FOCUSED"), "the box")
        reader.key(F4)
        until(lambda: not tool.has("FOCUSED"), "the list")
        reader.key(end)
        until(lambda: tool.has("FOCUSED"), "the box again")
        same(tool.text(), choice)
    reader.chosen(window, "ENTER New INCH Data")
    reader.back(window)


def dialogs(reader):
    window = reader.opened("Bolt Circles")
    window.the("text: Start Angle").write("30")
    window.the("check box: Add D/M/S").do("Press")
    dialog = reader.window("Add Minutes And Seconds")
    same(dialog.role(), "dialog")
    same(dialog.focusable(), ["push button: Cancel", "push button: OK", "text: Degrees", "text: Minutes",
                              "text: Seconds"])
    same(dialog.the("text: Degrees").text(), "30")
    dialog.the("text: Minutes").write("15")
    dialog.the("text: Seconds").write("36")
    dialog.the("push button: OK").do("Press")
    reader.gone("Add Minutes And Seconds")
    # 15 / 60 + 36 / 3600 = .26
    same(window.the("text: Start Angle").text(), "30.26")
    reader.back(window)
    window = reader.opened("Right Triangles")
    reader.chosen(window, "Round Numbers")
    dialog = reader.window("Round Numbers")
    same(dialog.role(), "dialog")
    same(dialog.focusable(), ["combo box: Round To: 4", "push button: Cancel", "push button: OK"])
    dialog.the("push button: Cancel").do("Press")
    reader.gone("Round Numbers")
    reader.back(window)


def report(reader):
    # Of the two circles that stand on the board.
    window = reader.opened("Geometry")
    reader.chosen(window, "Report")
    report_ = reader.window("Geometry Report.")
    same(report_.focusable(), ["push button: OK", "push button: Print Report", "text: Report"])
    assert "2 Circle:\n          Center X  1,  Y 0\n" in report_.the("text: Report").text()
    report_.the("push button: OK").do("Press")
    reader.gone("Geometry Report.")
    reader.back(window)


def board(reader):
    window = reader.opened("Geometry")
    same(window.the("image: Drawing").words().split("\n")[0], "Shapes: 1 grey cross.")
    for x, numbered in (("-1", "blue: circle 1."), ("1", "blue: circle 1, circle 2.")):
        window.the("text: Place Center at: X:").write(x)
        window.the("text: Place Center at: Y:").write("0")
        window.the("text: Diameter:").write("1")
        window.the("push button: Place It").do("Press")
        until(lambda: numbered in window.the("image: Drawing").words(), numbered)
    same(window.the("image: Drawing").words().split("\n"),
         ["Shapes: 1 grey cross. Numbered: blue: circle 1, circle 2.", "Scale: Inches", "", "1 Circle:",
          "          Center X -1,  Y 0", "          Diameter:  1", "          Radius:  .5",
          "          Area:  .785398163397448", "          Circumference:  3.14159265358979", "", "2 Circle:",
          "          Center X  1,  Y 0", "          Diameter:  1", "          Radius:  .5",
          "          Area:  .785398163397448", "          Circumference:  3.14159265358979"])
    for tool, wanted in PANELS.items():
        window.the(f"radio button: {tool}").do("Press")
        always = [called for called in OPENING["Geometry"]
                  if called.split(": ")[1] not in ("Place Center at", "Diameter", "Diameter:", "This is the Radius.",
                                                   "Place It")]
        place = "push button: " + ("Show" if tool.startswith("Show") else "Place It")
        until(lambda: window.focusable() == sorted(always + wanted + [place]), f"panel of {tool}: {window.focusable()}")
    reader.back(window)


CASES = {"menu": menu, "about": about, **{f"{name} opens": opening(name) for name in CALCULATORS},
         "right triangle by a reader": right_triangle, "options": options, "check boxes": checks, "purposes": purposes,
         "tools": tools, "an entry's menu": entry_menu, "lists": lists, "board": board, "dialogs": dialogs, "report": report}


def inside(program):
    atspi = bindings()
    atspi.init()
    atspi.get_desktop(0)
    with tempfile.TemporaryDirectory(prefix="brindlex-access-") as home:
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("XDG_", "QT_", "WAYLAND_"))}
        environment.update(HOME=home, XDG_RUNTIME_DIR=home, XDG_DATA_HOME=str(pathlib.Path(home, "data")),
                           LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with subprocess.Popen([program], env=environment, cwd=home) as run:
            reader = Reader(atspi, run)
            passed = failed = 0
            for name, case in CASES.items():
                try:
                    case(reader)
                    passed += 1
                except (AssertionError, ValueError) as failure:
                    harness.tell_failure(name, f"{type(failure).__name__}: {failure}")
                    failed += 1
                    break
            run.terminate()
            run.wait(PATIENCE)
    harness.finish("access", passed, failed + len(CASES) - passed - failed)


def main():
    parser = argparse.ArgumentParser(description="Reads the program as a screen reader does.")
    parser.add_argument("--program", required=True)
    parser.add_argument("--inside", action="store_true", help=argparse.SUPPRESS)
    options_ = parser.parse_args()
    program = os.path.abspath(options_.program)
    if options_.inside:
        inside(program)
    # The bindings are those of the system's own Python.
    pythons = [python for python in (sys.executable, "/usr/bin/python3")
               if subprocess.run([python, "-c", BINDINGS], stderr=subprocess.DEVNULL, check=False).returncode == 0]
    missing = [tool for tool in TOOLS if shutil.which(tool) is None] + ([] if pythons else ["gir1.2-atspi-2.0"])
    if missing:
        print(f"Missing: {', '.join(missing)}")
        sys.exit(77)
    sys.exit(subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -noreset", "dbus-run-session", "--", pythons[0],
                             __file__, "--inside", "--program", program], check=False, timeout=240).returncode)


main()
