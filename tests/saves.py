"""Every kind of save that the program knows, as commands for the driver: what kills and faults are aimed at."""

import dataclasses

OLD = b"old\r\n"
NOT_SAVED = "The File Could Not Be Saved:"
NOT_KEPT = "The Cutting Data Could Not Be Saved:"
NOT_CONVERTED = "The Drawing Could Not Be Converted!"


@dataclasses.dataclass
class Save:
    """One save, at rest before it and after it."""
    name: str
    opens: str  # the button of the menu form
    begin: list  # from the open form up to the save
    act: list  # the save
    watched: tuple  # the files that are the old one or the new one
    told: str = ""  # what a box says where the save failed; empty where it ends without a word
    files: dict = dataclasses.field(default_factory=dict)  # what lies in the folder before
    repeats: bool = True  # done once more, it gives the same file


def typed(form, **texts):
    return [f'type {form}.{name} "{text}"' for name, text in texts.items()]


def geo_line(number, kind, *values):
    """A record: the number, the values in columns 15, 43, 71, 99, the kind."""
    return f" {number}".ljust(14) + "".join(value.ljust(28) for value in values) + kind + "\r\n"


def dialog(name, *commands):
    return [f'dialog "{name}"', *commands]


DRAWING = (geo_line(1, "Circle", "1.50", "-2", ".5") + geo_line(2, "Circle", ".75", "1", ".25") +
           geo_line(3, "Line", "-1", "-1", "1", "1") + geo_line(4, "Line", "-1", "1", "1", "-1") +
           geo_line(5, "Point", ".25", "3"))
CROSSING = geo_line(1, "Line", "0", "0", "2", "0") + geo_line(2, "Line", "3", "1", "3", "2")
MILL = "I_T!M@W#80$.001%.8^\r\nstrange\r\nI_Drill!M@W#60$.002%^\r\n"
CHOSEN = [f'choose Form19.{box} "{name}"' for box, name in (("Combo2", "T"), ("Combo3", "M"), ("Combo4", "W"))]
ENTERED = typed("Form19", Text17="Reamer", Text18="HSS", Text19="Steel", Text1="30-40", Text2=".004-.008")
PICKED = ["mouse Form17.Picture1 down 1 2.7 -0.9", "mouse Form17.Picture1 move 3.6 -1.5 1",
          "mouse Form17.Picture1 up 1 3.6 -1.5"]
BLANKS = " " * 15


def documents():
    """Each calculator's document, into a new file and over an old one."""
    kinds = [
        ("right triangle", "Command1", "Form1", "a.rgt", "", [
            'choose Form1.Combo1 "Angle B and side c"', *typed("Form1", Text1="12", Text2="30"), "press Form1.Command1"]),
        ("oblique triangle", "Command2", "Form2", "a.obl", "", [
            *typed("Form2", Text1="40", Text2="60", Text3="10"), "press Form2.Command1"]),
        ("bolt circle", "Command3", "Form8", "a.bcf", "", [
            *typed("Form8", Text1="1.5", Text2="-2", Text3="10", Text4="4", Text5="30"), "press Form8.Command1"]),
        ("sine plate", "Command4", "Form12", "a.sin", NOT_SAVED, [
            *typed("Form12", Text1="30"), "press Form12.Command1"]),
        ("polygon", "Command6", "Form16", "a.pgf", NOT_SAVED, [*typed("Form16", Text1="1"), "press Form16.Command1"]),
    ]
    for name, opens, form, file, told, begin in kinds:
        for title, files in (("new", {}), ("replaced", {file: OLD})):
            yield Save(f"{name}, {title}", opens, begin, dialog(file, f"menu {form}.SaveFileAs"), (file,), told, files)
    for title, files in (("new", {}), ("replaced", {"out.geo": OLD})):
        yield drawing(f"drawing saved, {title}", dialog("out.geo", "menu Form17.SaveAs"), watched=("out.geo",),
                      files=files)


def settings():
    yield Save("settings of right triangles", "Command1", ["menu Form1.DIDMS"], ["menu Form1.Ext"], ("brindr.ini",),
               files={"brindr.ini": b"DMS=0\r\nShape=-1\r\nText=-1\r\nRounding=4\r\n"}, repeats=False)
    yield Save("settings of oblique triangles", "Command2", ["menu Form2.DIDMSO"], ["menu Form2.Ext2"],
               ("brindo.ini",), files={"brindo.ini": b"DMS=0\r\nShape=-1\r\nText=-1\r\nRounding=4\r\n"}, repeats=False)
    yield Save("settings of bolt circles", "Command3",
               [*typed("Form8", Text1="0", Text2="0", Text3="10", Text4="1", Text5="0"), "menu Form8.RoundNumbers",
                'choose Form9.Combo1 "11"', "press Form9.Command1"], ["menu Form8.ExitPgm"], ("boltcirc.ini",),
               files={"boltcirc.ini": b"Rounding=4\r\n"}, repeats=False)


def cutting_data():
    files = {"Mill.dat": MILL.encode()}
    yield Save("cutting data, first record", "Command7", ["menu Form19.DataOp", *ENTERED], ["press Form19.Command1"],
               ("Mill.dat",), NOT_KEPT)
    yield Save("cutting data, further record", "Command7", ["menu Form19.DataOp", *ENTERED], ["press Form19.Command1"],
               ("Mill.dat",), NOT_KEPT, files)
    yield Save("cutting data, record deleted", "Command7", ["menu Form19.DataOp", *CHOSEN],
               ["answer yes", "menu Form19.DelDat"], ("Mill.dat",), NOT_KEPT, files, repeats=False)


def drawing(name, act, begin=(), watched=("geometry.dat",), told="", files=None, drawn=DRAWING):
    return Save(name, "Command8", dialog("a.geo", "menu Form17.OpenIt") + list(begin), act, watched, told,
                {"a.geo": f"I\r\n{drawn}".encode(), **(files or {})}, repeats=watched != ("geometry.dat",))


def live_drawing():
    board = "Form17.Toolbar1"
    yield drawing("circle placed", ["press Form17.Command1"], typed("Form17", Text1="1.50", Text2="-2", Text3=".5"))
    yield drawing("line placed", ["press Form17.Command1"],
                  [f'tool {board} "Line"', *typed("Form17", Text6="0", Text7="0", Text8="1", Text9="2.250")])
    yield drawing("point placed", ["press Form17.Command1"],
                  [f'tool {board} "Point"', *typed("Form17", Text10=".25", Text11="3")])
    connected = [f'tool {board} "Connect"', "press Form17.Option1", *typed("Form17", Text12="1"),
                 "press Form17.Option4", *typed("Form17", Text15="2")]
    yield drawing("circles connected", ["press Form17.Command1"], connected)
    yield drawing("a candidate kept", ["press Form17.Command4"], [*connected, "press Form17.Command1"])
    tangent = [f'tool {board} "CircTan"', *typed("Form17", Text4=".5")]
    yield drawing("tangent circles", ["press Form17.Command1"], tangent)
    yield drawing("tangent circles cancelled", ["press Form17.Command3"], [*tangent, "press Form17.Command1"])
    yield drawing("lines extended", ["press Form17.Command1"], [f'tool {board} "PotInt"'], drawn=CROSSING)
    yield drawing("deleted by the lists", ["press Form17.Command1"],
                  [f'tool {board} "ID"', "press Form17.Option11", f'choose Form17.Combo3 " 1{BLANKS}/Circle"',
                   f'choose Form17.Combo8 " 5{BLANKS}/Point"'])
    placed = [command for x in ("0", "1", "-1") for command in
              (*typed("Form17", Text1=x, Text2="0", Text3=".5"), "press Form17.Command1")]
    yield Save("removed by the pointer", "Command8", placed + PICKED, ["press Form17.Command2"], ("geometry.dat",),
               repeats=False)
    yield drawing("converted to millimeters", ["menu Form17.MM"], told=NOT_CONVERTED)
    yield Save("drawing opened", "Command8", [], dialog("a.geo", "menu Form17.OpenIt"), ("geometry.dat",), "",
               {"a.geo": f"I\r\n{DRAWING}".encode()}, repeats=False)


def all_saves():
    return [*documents(), *settings(), *cutting_data(), *live_drawing()]
