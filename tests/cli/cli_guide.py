"""The guide's page of the command line: each command that it shows prints what it shows."""

import os
import pathlib
import subprocess

from cli_bench import same

PAGE = pathlib.Path(__file__).resolve().parent.parent.parent / "docs" / "guide" / "command-line.md"
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
