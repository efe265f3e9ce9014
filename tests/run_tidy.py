#!/usr/bin/env python3
"""Runs clang-tidy over src/: run_tidy.py BUILD_FOLDER [SOURCE...]

BUILD_FOLDER holds compile_commands.json. The sources of a room that are compiled alike are read several at a time, since
most of the time goes into the headers they share; so no two files of a room may give one name to two things. A source
that is named is read alone, and only there a using-declaration that nobody uses is seen. What was clean is not read again until a source, a header of ours that it reaches, its
compile command, .clang-tidy or clang-tidy itself changes; the memory of that is build/tidy.
"""

import hashlib
import itertools
import json
import pathlib
import re
import shlex
import subprocess
import sys

import harness

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"
MEMORY = ROOT / "build" / "tidy"
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
MOST = 12             # sources in one go: a processor's share of a large room
MAIN = "\nint main("   # of which there is one in a program
NOT_OF_SEVERAL = "-bugprone-suspicious-include"   # which is how they are put together


def reached(path, seen):
    """The path and the headers of ours that it reaches, in seen with their bytes."""
    if path in seen or not path.is_file():
        return
    seen[path] = path.read_bytes()
    for name in INCLUDE.findall(seen[path]):
        for folder in (SOURCES, path.parent):
            reached(folder / name.decode(), seen)


def arguments_of(entry):
    """What the compiler is told of a source, without the source and the object."""
    words = shlex.split(entry["command"])
    del words[words.index("-o"):words.index("-o") + 2]
    return tuple(word for word in words[1:] if word not in ("-c", entry["file"]))


class Batch:
    """Sources that are read in one go."""

    def __init__(self, arguments, sources):
        self.arguments, self.sources = arguments, sources

    def name(self):
        return ", ".join(str(path.relative_to(SOURCES)) for path in self.sources)

    def fingerprint(self, general):
        seen = {}
        for path in self.sources:
            reached(path, seen)
        digest = hashlib.sha256(general)
        digest.update(repr(self.arguments).encode() + repr(self.sources).encode())
        for path in sorted(seen):
            digest.update(str(path).encode() + b"\0" + seen[path] + b"\0")
        return digest.hexdigest()

    def command(self, mark):
        if len(self.sources) == 1:
            return ["clang-tidy", "--quiet", str(self.sources[0]), "--", *self.arguments]
        together = mark.with_suffix(".cpp")
        together.write_text("".join(f'#include "{path}"\n' for path in self.sources), encoding="ascii")
        return ["clang-tidy", "--quiet", f"--config-file={ROOT / '.clang-tidy'}", f"--checks={NOT_OF_SEVERAL}",
                str(together), "--", *self.arguments]

    def is_clean(self, general):
        mark = MEMORY / self.fingerprint(general)
        if mark.exists():
            mark.touch()
            return True
        done = subprocess.run(self.command(mark), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, check=False)
        mark.with_suffix(".cpp").unlink(missing_ok=True)
        if done.returncode == 0:
            mark.touch()
            return True
        harness.tell_failure(self.name(), done.stdout or done.stderr)
        return False


def batches_of(entries, most):
    def alike(entry):
        return pathlib.Path(entry["file"]).parent, arguments_of(entry)

    for (_, arguments), group in itertools.groupby(sorted(entries, key=alike), alike):
        sources = sorted(pathlib.Path(entry["file"]) for entry in group)
        programs = [path for path in sources if MAIN in path.read_text(encoding="utf-8")]
        yield from (Batch(arguments, [path]) for path in programs)
        sources = [path for path in sources if path not in programs]
        # Of one size as nearly as can be, so that no processor waits for the last.
        count = -(-len(sources) // most)
        for i in range(count):
            yield Batch(arguments, sources[i::count])


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    wanted = {pathlib.Path(name).resolve() for name in sys.argv[2:]}
    entries = [entry for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
               if pathlib.Path(entry["file"]).is_relative_to(SOURCES)
               and (not wanted or pathlib.Path(entry["file"]) in wanted)]
    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout
    # The processor's name in the version's text differs from machine to machine and changes nothing.
    version = b"\n".join(line for line in version.splitlines() if b"CPU" not in line)
    general = version + (ROOT / ".clang-tidy").read_bytes()
    MEMORY.mkdir(parents=True, exist_ok=True)
    batches = sorted(batches_of(entries, 1 if wanted else MOST), key=lambda batch: -len(batch.sources))
    results = harness.in_parallel(lambda batch: batch.is_clean(general), batches)
    count = sum(len(batch.sources) for batch in batches)
    print(f"clang-tidy: {count} files in {len(results)} goes, {results.count(True)} of them clean")
    sys.exit(0 if results and all(results) else 1)


main()
