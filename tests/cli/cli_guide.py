"""The guide's page of the command line: each command that it shows prints what it shows. The man page: every option."""

import os
import pathlib
import re
import subprocess

from cli_bench import same

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PAGE = ROOT / "docs" / "guide" / "command-line.md"
MAN = ROOT / "packaging" / "man" / "brindlex-cli.1"
FILES = {
    "flange.bcf": b"0\r\n0\r\n120\r\n8\r\n22.5\r\n 0 \r\n",
    "lever.geo": b"I\r\n 1             2                          1                           1                           Circle\r\n"
                 b" 2            -1                          0                           1                           0                           Line\r\n"
                 b" 3            0                           -1                          0                           1                           Line\r\n",
    "jobs/flange.bcf": b"0\r\n0\r\n120\r\n8\r\n22.5\r\n 0 \r\n",
    "jobs/taper.rgt": b"Side b and side c\r\n40\r\n30\r\n",
    "jobs/ramp.rgt": b"Side a and side b\r\n3\r\n5\r\n",
    "Mill.dat": b"I_End mill!Carbide@Aluminum#500-1000$.002-.006%.33^\r\nI_Drill!HSS@Steel#80$.004%^\r\n",
    "Other.dat": b"I_Drill!HSS@Steel#80$.004%^\r\n",
}


def commands():
    """[(command, what it prints)] of the page, in order."""
    found = []
    for line in PAGE.read_text(encoding="utf-8").splitlines():
        if line.lstrip().startswith("$ ") and line.startswith("    "):
            indent = len(line) - len(line.lstrip())
            found.append([line.lstrip()[2:], ""])
        elif found and line.startswith("    ") and found[-1][1] is not None:
            found[-1][1] += line[indent:] + "\n"
        elif found and not line.strip():
            found.append(["true", ""])
    return [(command, printed) for command, printed in found if command != "true"]


def test_every_command_of_the_page(bench):
    for name, content in FILES.items():
        path = bench.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(content)
    tools = bench.folder / "tools"
    tools.mkdir()
    (tools / "brindlex-cli").symlink_to(bench.program)
    environment = {**os.environ, "PATH": f"{tools}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
    shown = commands()
    assert len(shown) > 15, shown
    for command, printed in shown:
        done = subprocess.run(["bash", "-c", command], cwd=bench.folder, env=environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        same(done.stdout, printed, command)


def options_of(text):
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))


def test_every_option_stands_in_the_man_page(bench):
    page = MAN.read_text(encoding="utf-8").replace("\\-", "-")
    sections = re.split(r"^\.S([HS]) (.*)$", page, flags=re.MULTILINE)
    texts = {title.split()[0]: text for title, text in zip(sections[2::3], sections[3::3])}
    common = options_of(texts["COMMON"])
    commands = re.findall(r"^  ([a-z]+)  ", bench.ok("--help"), re.MULTILINE)
    same(len(commands), 10, "commands")
    for command in commands:
        helped = options_of("\n".join(re.findall(r"^  --.*?(?=  |$)", bench.ok(command, "--help"), re.MULTILINE)))
        told = options_of("\n".join(re.findall(r"^\.B.*", texts[command], re.MULTILINE)))
        same(helped - told - common, set(), f"options of {command} that the man page does not tell")
        same(told - helped, set(), f"options that the man page tells of {command} and that are none")
