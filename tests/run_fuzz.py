#!/usr/bin/env python3
"""Runs every fuzzer for a short while, one a processor: run_fuzz.py FOLDER_OF_FUZZERS [SECONDS_EACH]

Seeds come from tests/fuzz/corpus/NAME, words from tests/fuzz/NAME.dict. What a run finds new stays in
FOLDER/../corpus/NAME; an input that breaks the program is left in FOLDER/../findings.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

import harness

SOURCES = pathlib.Path(__file__).resolve().parent / "fuzz"


def run_fuzzer(program, seconds):
    """Whether the fuzzer ran to its end without a finding."""
    name = program.name
    learnt = program.parent.parent / "corpus" / name
    findings = program.parent.parent / "findings"
    learnt.mkdir(parents=True, exist_ok=True)
    findings.mkdir(exist_ok=True)
    command = [str(program), f"-max_total_time={seconds}", "-timeout=20", "-rss_limit_mb=3000", "-print_final_stats=1",
               f"-artifact_prefix={findings}/{name}-", str(learnt)]
    seeds, words = SOURCES / "corpus" / name, SOURCES / f"{name}.dict"
    command += [str(seeds)] if seeds.is_dir() else []
    command += [f"-dict={words}"] if words.is_file() else []
    with tempfile.TemporaryDirectory(prefix="brindlex-fuzz-") as working:
        environment = dict(os.environ, TMPDIR=working)
        try:
            done = subprocess.run(command, cwd=working, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=seconds + 120, check=False)
        except subprocess.TimeoutExpired as expired:
            harness.tell_failure(name, f"not done {seconds + 120} s after its start", expired.stdout or b"")
            return False
    if done.returncode != 0:
        harness.tell_failure(name, done.stdout)
        return False
    runs = [line.split()[-1] for line in done.stdout.decode("utf-8", "replace").splitlines()
            if line.startswith("stat::number_of_executed_units")]
    print(f"{name}: {runs[0] if runs else '?'} inputs in {seconds} s")
    return True


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    seconds = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    names = sorted(path.stem for path in SOURCES.glob("*_fuzz.cpp"))
    missing = [name for name in names if not (folder / name).is_file()]
    for name in missing:
        harness.tell_failure(name, "it was not built")
    results = harness.in_parallel(lambda name: run_fuzzer(folder / name, seconds),
                                  [name for name in names if name not in missing])
    harness.finish("fuzzers", results.count(True), results.count(False) + len(missing))


main()
