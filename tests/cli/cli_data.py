"""Cutting data: lists, filters, checks and merges, and no line lost on any way."""

from cli_bench import same, written_by_scripts

DATA = (b"I_End mill!Carbide@Aluminum#500-1000$.002-.006%.33^\r\n"
        b"\r\n"
        b"a note, with \"quotes\" and \xb0 and \x81\r\n"
        b"M_End mill!Carbide@Aluminum#150-300$.05-.15%^\r\n"
        b"I_Drill!HSS@Steel#80$.004%^\r\n")
CSV = ("line,unit,tool,tool_material,work_material,speed_range,feed_range,power_factor,text\n"
       "1,in,End mill,Carbide,Aluminum,500-1000,.002-.006,.33,\n"
       "3,,,,,,,,\"a note, with \"\"quotes\"\" and \u00b0 and \u0081\"\n"
       "4,mm,End mill,Carbide,Aluminum,150-300,.05-.15,,\n"
       "5,in,Drill,HSS,Steel,80,.004,,\n")


def put(bench, name, content):
    (bench.folder / name).write_bytes(content)


def get(bench, name):
    return (bench.folder / name).read_bytes()


def test_lists_and_filters(bench):
    put(bench, "Mill.dat", DATA)
    same(bench.ok("data", "Mill.dat", "--csv"), CSV, "list")
    for words, lines in [(["--unit", "mm"], ["4"]), (["--tool", "End mill"], ["1", "4"]),
                         (["--tool-material", "HSS"], ["5"]), (["--work-material", "Aluminum", "--unit", "in"], ["1"]),
                         (["--tool", "Saw"], [])]:
        same([row["line"] for row in bench.rows("data", "Mill.dat", *words)], lines, words)
    json = bench.json("data", "Mill.dat", "--tool", "Drill")
    same((json["lines_listed"], json["lines"][0]["speed_range"]), (1, "80"), "JSON")


def test_csv_and_back_loses_nothing(bench):
    put(bench, "Mill.dat", DATA)
    given = bench.ok("data", "Mill.dat", "--csv").encode()
    same(bench.ok("data", "New.dat", "--merge-csv", "-", given=given), "New.dat: 4 lines added, 0 were there already\n",
         "merge")
    same(get(bench, "New.dat"), DATA.replace(b"\r\n\r\n", b"\r\n"), "the file from CSV")
    same(bench.ok("data", "Mill.dat", "--merge-csv", "-", given=given), "Mill.dat: 0 lines added, 4 were there already\n",
         "merge again")
    same(get(bench, "Mill.dat"), DATA, "an unchanged file")


def test_every_file_of_the_sessions_comes_back(bench):
    files = {name: content for name, content in written_by_scripts(".dat").items() if b"_" in content}
    assert len(files) > 10, len(files)
    for name, content in files.items():
        put(bench, name, content)
        given = bench.ok("data", name, "--csv").encode()
        bench.ok("data", "back.dat", "--merge-csv", "-", given=given)
        lines = [line for line in content.replace(b"\r\n", b"\n").replace(b"\r", b"\n").split(b"\n") if line]
        unique = list(dict.fromkeys(lines))
        same(get(bench, "back.dat"), b"".join(line + b"\r\n" for line in unique), name)
        (bench.folder / "back.dat").unlink()


def test_merge_keeps_the_own_lines_first(bench):
    put(bench, "Mill.dat", DATA)
    put(bench, "Other.dat", b"I_Drill!HSS@Steel#80$.004%^\nI_Saw!HSS@Steel#60$.001%^\nloose end")
    same(bench.ok("data", "Mill.dat", "--merge", "Other.dat"), "Mill.dat: 2 lines added, 1 were there already\n", "merge")
    same(get(bench, "Mill.dat"), DATA + b"I_Saw!HSS@Steel#60$.001%^\r\nloose end\r\n", "merged")


def test_the_desktop_reads_what_was_merged(bench):
    put(bench, "in.csv", b"\xef\xbb\xbfunit,tool,tool_material,work_material,speed_range,feed_range\r\n"
                         b"in,Reamer,HSS,Bronze,100-200,.005-.01\r\n")
    bench.ok("data", "Mill.dat", "--merge-csv", "in.csv")
    with bench.desktop() as desktop:
        desktop.do("start")
        desktop.do("press Form11.Command7")
        for combo, name in (("Combo2", "Reamer"), ("Combo3", "HSS"), ("Combo4", "Bronze")):
            desktop.do("choose Form19." + combo, name)
        same(desktop.texts("Form19", ["Text1", "Text2"]), ["100-200", ".005-.01"], "ranges")


def test_bad_csv_changes_nothing(bench):
    head = "unit,tool,tool_material,work_material,speed_range,feed_range,power_factor,text\n"
    put(bench, "Mill.dat", DATA)
    for message, text in [
            ("line 2: the unit must be in or mm, not cm", head + "cm,a,b,c,1,2,,\n"),
            ("line 2: the tool material is missing", head + "in,a,,c,1,2,,\n"),
            ("holds a mark of the file", head + "in,a!b,b,c,1,2,,\n"),
            ("line 3: 7 fields, where the head has 8", head + "in,a,b,c,1,2,,\nin,a,b,c,1,2,\n"),
            ("line 1: name is no column", "name\n"), ("line 1: tool stands there more than once", "tool,tool\n"),
            ("can't hold a character of \u03a9", head + "in,\u03a9,b,c,1,2,,\n"),
            ("can't hold a line end", head + 'in,"a\nb",b,c,1,2,,\n'),
            ("there are a record and a text", head + "in,a,b,c,1,2,,x\n"),
            ("there is no head", "")]:
        bench.refuses(3, message, "data", "Mill.dat", "--merge-csv", "-", given=text.encode())
        same(get(bench, "Mill.dat"), DATA, message)
    bench.refuses(3, "can't hold a character", "data", "Mill.dat", "--merge-csv", "-", given=head.encode() + b"in,\xff,b,c,1,2,,\n")


def test_checks(bench):
    put(bench, "Mill.dat", DATA + b"I_Drill!HSS@Steel#0-100$.004%^\r\nI_Drill!HSS@Steel#80$.004%^\r\n"
                                  b"I_Saw!HSS@Steel#60$fast%x^\r\n")
    done = bench.run("data", "Mill.dat", "--check")
    same(done.returncode, 3, done)
    same(done.stdout.decode().splitlines(),
         ["Mill.dat line 3: this is no record",
          "Mill.dat line 6: the speed range is no range above 0: 0-100",
          "Mill.dat line 6: this hides line 5, of the same tool and materials",
          "Mill.dat line 7: this is line 5 once more",
          "Mill.dat line 8: the feed range is no range above 0: fast"], "findings")
    same(done.stderr, b"brindlex-cli data: Mill.dat: 5 findings\n", "findings")
    put(bench, "Good.dat", DATA.replace(b"a note, with \"quotes\" and \xb0 and \x81\r\n", b""))
    same(bench.ok("data", "Good.dat", "--check"), "Good.dat: 4 lines, nothing found\n", "good")


def test_refusals(bench):
    put(bench, "Mill.dat", DATA)
    bench.refuses(5, "Gone.dat can't be read: File not found", "data", "Gone.dat")
    bench.refuses(5, "Gone.dat can't be read", "data", "Mill.dat", "--merge", "Gone.dat")
    bench.refuses(2, "does not go with", "data", "Mill.dat", "--check", "--tool", "Drill")
    bench.refuses(2, "does not go with", "data", "Mill.dat", "--merge", "a.dat", "--check")
    bench.refuses(2, "--unit cm: this must be in or mm", "data", "Mill.dat", "--unit", "cm")
    (bench.folder / "sub").mkdir()
    bench.refuses(5, "can't be read", "data", "sub", "--merge", "Mill.dat")
    same(get(bench, "Mill.dat"), DATA, "an unchanged file")
