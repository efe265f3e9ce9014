"""The command line: each option missing, doubled, out of range, no number, of the wrong unit; codes and streams."""

import os
import resource
import subprocess

from cli_bench import same

# A command, options that make a whole calculation, and the bad texts of each option by its kind.
GOOD = {
    "right": {"--side-a": "5", "--angle-b": "30"},
    "oblique": {"--side-a": "3", "--side-b": "4", "--side-c": "6"},
    "bolt": {"--diameter": "5", "--holes": "6", "--start-angle": "10", "--center-x": "1", "--center-y": "2"},
    "sine": {"--bottom-angle": "20", "--top-angle": "15", "--spacing": "5"},
    "polygon": {"--sides": "6", "--across-flats": "1"},
    "speeds": {"--surface-speed": "100", "--feed": ".002", "--diameter": ".5", "--teeth": "4", "--depth": ".1",
               "--width": ".2", "--power-factor": "1", "--length": "3", "--cuts": "2", "--speed-range": "50-200",
               "--feed-range": ".001-.003"},
}
OPTIONAL = {"bolt": ["--start-angle", "--center-x", "--center-y"], "sine": ["--spacing"],
            "speeds": ["--speed-range", "--feed-range", "--power-factor"]}
COUNTS = ["--holes", "--sides", "--teeth", "--cuts", "--places"]
LENGTHS = ["--side-a", "--side-b", "--side-c", "--diameter", "--center-x", "--center-y", "--across-flats", "--feed",
           "--depth", "--width", "--length"]
SIGNED = ["--start-angle", "--center-x", "--center-y"]
NO_NUMBERS = ["", "x", "5x", "5 5", "1,5", "--", "nan", "inf", "0x10", "1e", ".", "-", "5..", "1e999", "\u0665"]


def words_of(command, options):
    return [command, *(word for pair in options.items() for word in pair)]


def test_what_is_good_is_taken(bench):
    for command, options in GOOD.items():
        bench.ok(*words_of(command, options), "--csv")


def test_missing(bench):
    for command, options in GOOD.items():
        bench.refuses(2, "", command)
        for option in options:
            rest = {name: text for name, text in options.items() if name != option}
            if option in OPTIONAL.get(command, []):
                bench.ok(*words_of(command, rest))
            else:
                bench.refuses(2, "", *words_of(command, rest))


def test_doubled(bench):
    for command, options in GOOD.items():
        for option, text in options.items():
            bench.refuses(2, f"{option} is given more than once", *words_of(command, options), option, text)
        bench.refuses(2, "--json is given more than once", *words_of(command, options), "--json", "--json")
        bench.refuses(2, "exclude each other", *words_of(command, options), "--json", "--csv")


def test_no_number(bench):
    for command, options in GOOD.items():
        for option in options:
            for text in NO_NUMBERS:
                bench.refuses(2, option, *words_of(command, {**options, option: text}))


def test_out_of_range(bench):
    for command, options in GOOD.items():
        for option in options:
            if option not in SIGNED:
                bench.refuses(2, option, *words_of(command, {**options, option: "0"}))
                bench.refuses(2, option, *words_of(command, {**options, option: "-1"}))
            if option in COUNTS:
                bench.refuses(2, "whole number", *words_of(command, {**options, option: "2.5"}))
                bench.refuses(2, option, *words_of(command, {**options, option: "32768"}))
    for places in ("0", "16", "-4", "x", "4.5"):
        bench.refuses(2, "--places", *words_of("right", GOOD["right"]), "--places", places)
    for sides in ("2", "37"):
        bench.refuses(2, "from 3 to 36", "polygon", "--sides", sides, "--one-flat", "1")
    bench.refuses(4, "90 degrees or less", "sine", "--angle", "90.5")
    bench.refuses(4, "no right triangle", "right", "--side-a", "5", "--angle-b", "89.999991")
    for angle in ("30:60", "30:0:60", "30:15:", "30::15", "30.5:15", "30:1.5:2", "30:-1", "1:2:3:4", "30m"):
        bench.refuses(2, "--angle-b", "right", "--side-a", "5", "--angle-b", angle)


def test_ranges(bench):
    rest = words_of("speeds", {name: text for name, text in GOOD["speeds"].items() if "range" not in name})
    for option, good in (("--speed-range", ("100", "200-50", " 50-200 ")), ("--feed-range", (".002", ".001-.002"))):
        for text in good:
            bench.ok(*rest, option, text)
        for text in ("100-", "-100", "1-2-3", "50 200", "50..200", "1e999", "0-100", "-", "50-2x", "50 - 200", "\u00bd"):
            bench.refuses(2, f"{option} {text}: this is no range above 0", *rest, option, text)


def test_wrong_unit(bench):
    for command, options in GOOD.items():
        for option in options:
            if option in LENGTHS:
                bench.refuses(2, "the unit here is in", *words_of(command, {**options, option: "1mm"}))
                bench.refuses(2, "the unit here is mm", *words_of(command, {**options, option: "1in"}), "--unit", "mm")
                bench.refuses(2, "this is no length", *words_of(command, {**options, option: "1cm"}))
        for unit in ("cm", "", "IN", "inch"):
            bench.refuses(2, "this must be in or mm", *words_of(command, options), "--unit", unit)
    bench.refuses(2, "the unit here is in", "sine", "--angle", "30", "--spacing", "127mm", "--unit", "mm")
    bench.ok("right", "--side-a", '5"', "--side-b", "3 in")


def test_what_does_not_go_together(bench):
    for message, words in [
            ("two angles are no triangle", "right --angle-b 30 --angle-c 60"),
            ("and there are 3", "right --side-a 5 --side-b 4 --side-c 3"),
            ("three angles are no triangle", "oblique --angle-a 60 --angle-b 60 --angle-c 60"),
            ("one solution only", "oblique --side-a 3 --side-b 4 --side-c 5 --second"),
            ("--angle and --bottom-angle exclude each other", "sine --angle 3 --bottom-angle 4"),
            ("--top-angle goes with --bottom-angle", "sine --angle 3 --top-angle 4"),
            ("even number of sides", "polygon --sides 5 --across-flats 1"),
            ("odd number of sides", "polygon --sides 6 --flat-to-corner 1"),
            ("exclude each other", "polygon --sides 6 --one-flat 1 --across-flats 1"),
            ("exclude each other", "polygon --sides 6 --one-flat 1 --inscribed --circumscribed"),
            ("are for a mill", "speeds --machine lathe --surface-speed 1 --feed 1 --diameter 1 --teeth 2"),
            ("must be mill or lathe", "speeds --machine saw --surface-speed 1 --feed 1 --diameter 1 --teeth 2"),
            ("go with --data", "speeds --surface-speed 1 --feed 1 --diameter 1 --teeth 2 --tool x")]:
        bench.refuses(2, message, *words.split())


def test_words_that_are_no_options(bench):
    bench.refuses(2, "--side-d is no option here; --help lists them", "right", "--side-d", "3")
    bench.refuses(2, "--side-a has nothing behind it", "right", "--angle-b", "30", "--side-a")
    bench.refuses(2, "--side-a has nothing behind it", "right", "--side-a=", "--angle-b=30")
    bench.refuses(2, "--json takes nothing behind it", "right", "--side-a", "5", "--angle-b", "30", "--json=false")
    for words in (["right", "5"], ["right", "--side-d", "3"], ["right", "--side-a"], ["nothing"], [], ["-x"], ["solve"],
                  ["report"], ["report", "a.geo", "b.geo"], ["data"], ["right", "\x1b[31m\n"], ["RIGHT"]):
        bench.refuses(2, "", *words)


def test_a_name_in_brackets_is_one_name(bench):
    (bench.folder / "a.geo").write_bytes(b"I\r\n")
    bench.refuses(5, "[a.geo] can't be read", "report", "[a.geo]")
    (bench.folder / "[a.geo,b]").write_bytes(b"I\r\n")
    same(bench.ok("report", "[a.geo,b]"), "Scale: Inches\r\n\r\n", "brackets")


def test_long_texts_are_told_in_part(bench):
    (bench.folder / "long.bcf").write_bytes(b"9x" * 5000000 + b"\r\n")
    done = bench.run("export", "long.bcf", "-", "--as", "csv", "--unit", "mm")
    same((done.returncode, done.stdout, len(done.stderr)), (3, b"", 1001), "a long line")
    assert done.stderr.startswith(b"brindlex-cli export: long.bcf: the center's X is no number: 9x9x"), done.stderr
    bench.refuses(2, "this must be above 0", "right", "--side-b", "3", "--side-a", "-" + "0" * 5000)


def test_help(bench):
    commands = ("right", "oblique", "bolt", "sine", "polygon", "speeds", "solve", "report", "export", "data")
    text = bench.ok("--help")
    for command in commands:
        assert f"  {command} " in text, command
        told = bench.ok(command, "--help")
        assert told.startswith(f"brindlex-cli {command} ") and "Example" in told, told
        same(max(map(len, told.splitlines())) <= 120, True, f"the width of the help of {command}")
    same(bench.ok("--version"), "brindlex-cli 3.0.2\n", "version")


def test_a_full_or_closed_output_is_told(bench):
    for words in (["right", "--side-a", "5", "--side-b", "3"], ["--help"], ["bolt", "--diameter", "5", "--holes", "20000"]):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([bench.program, *words], stdout=full, stderr=subprocess.PIPE, check=False)
        same((done.returncode, done.stderr.count(b"\n")), (5, 1), words)
        done = subprocess.run([bench.program, *words], stderr=subprocess.PIPE, check=False,
                              preexec_fn=lambda: os.close(1))
        same((done.returncode, done.stderr.count(b"\n")), (5, 1), words)


def test_an_input_that_can_not_be_read_is_told(bench):
    done = subprocess.run([bench.program, "right", "--batch"], stdin=os.open(bench.folder, os.O_RDONLY),
                          capture_output=True, check=False)
    same((done.returncode, done.stdout, done.stderr),
         (5, b"", b"brindlex-cli right: the standard input can't be read\n"), "a folder as input")


def test_a_full_disk_leaves_the_old_file(bench):
    old = b"I_Drill!HSS@Steel#80$.004%^\r\n"
    (bench.folder / "Mill.dat").write_bytes(old)
    (bench.folder / "Big.dat").write_bytes(b"".join(b"I_Drill%d!HSS@Steel#80$.004%%^\r\n" % i for i in range(2000)))

    def no_room():
        import signal
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))

    bench_files = set(os.listdir(bench.folder))
    done = subprocess.run([bench.program, "data", "Mill.dat", "--merge", "Big.dat"], cwd=bench.folder, capture_output=True,
                          preexec_fn=no_room, check=False)
    same((done.returncode, done.stdout, done.stderr.count(b"\n")), (5, b"", 1), done)
    same((bench.folder / "Mill.dat").read_bytes(), old, "the old file")
    same(set(os.listdir(bench.folder)), bench_files, "files left")


def test_no_qt_is_loaded(bench):
    libraries = subprocess.run(["ldd", bench.program], capture_output=True, text=True, check=True).stdout
    assert "libc.so" in libraries
    for word in ("Qt", "libX11", "libGL", "libxcb", "wayland"):
        assert word not in libraries, libraries
