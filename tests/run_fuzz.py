#!/usr/bin/env python3
"""Runs the fuzzers, one a processor.

    run_fuzz.py FOLDER_OF_FUZZERS [SECONDS_EACH] [--runs N] [--jobs N] [--alike] [--keep] [--only NAME...]

For so many seconds each, or for so many runs, or what comes first where both are given. Seeds come from
tests/fuzz/corpus/NAME, words from tests/fuzz/NAME.dict; what reads alone (X_read_fuzz) takes those of the form (X_fuzz)
where it has none of its own. What earlier runs found is kept in tests/fuzz/corpus/NAME.tar.gz. What a run finds new
stays in FOLDER/../corpus/NAME, and with --keep the inputs there that reach something of their own take the place of the
kept ones. An input that breaks the program is left in FOLDER/../findings. With --alike no input is weighed before
another: the quickest readers then run twice as often.
"""

import argparse
import gzip
import io
import os
import pathlib
import subprocess
import tarfile
import tempfile

import harness

SOURCES = pathlib.Path(__file__).resolve().parent / "fuzz"
LONGEST = 160  # bytes of an input in a run by count; its rate depends on it
DAY = 24 * 3600


def kept(name, where):
    """The seeds or the words of a fuzzer, or of the form's that reads the same; None where there are none."""
    for own in (name, name.replace("_read_fuzz", "_fuzz")):
        if where(own).exists():
            return where(own)
    return None


def learnt_of(program):
    return program.parent.parent / "corpus" / program.name


def command_of(program, options):
    name = program.name
    learnt, findings = learnt_of(program), program.parent.parent / "findings"
    learnt.mkdir(parents=True, exist_ok=True)
    findings.mkdir(exist_ok=True)
    unpack(name, learnt)
    limit = [f"-runs={options.runs}", f"-max_len={LONGEST}"] if options.runs else []
    limit += [f"-max_total_time={options.seconds}"] if options.seconds else []
    limit += ["-entropic=0"] if options.alike else []
    command = [str(program), *limit, "-timeout=20", "-rss_limit_mb=3000", "-print_final_stats=1",
               f"-artifact_prefix={findings}/{name}-", str(learnt)]
    seeds, words = kept(name, lambda own: SOURCES / "corpus" / own), kept(name, lambda own: SOURCES / f"{own}.dict")
    command += [str(seeds)] if seeds else []
    command += [f"-dict={words}"] if words else []
    return command


def archive_of(name):
    return SOURCES / "corpus" / f"{name}.tar.gz"


def unpack(name, learnt):
    if archive_of(name).exists():
        with tarfile.open(archive_of(name)) as archive:
            for member in archive.getmembers():
                (learnt / pathlib.Path(member.name).name).write_bytes(archive.extractfile(member).read())


def keep(program, learnt):
    """Packs what reaches something of its own, the same bytes for the same inputs."""
    with tempfile.TemporaryDirectory(prefix="brindlex-fuzz-") as least:
        subprocess.run([str(program), "-merge=1", least, str(learnt)], stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
        packed = io.BytesIO()
        with tarfile.open(fileobj=packed, mode="w", format=tarfile.USTAR_FORMAT) as archive:
            for path in sorted(pathlib.Path(least).iterdir()):
                member = tarfile.TarInfo(path.name)
                member.size = path.stat().st_size
                archive.addfile(member, io.BytesIO(path.read_bytes()))
    archive_of(program.name).write_bytes(gzip.compress(packed.getvalue(), mtime=0))


def run_fuzzer(program, options):
    """Whether the fuzzer ran to its end without a finding."""
    name = program.name
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    most = options.seconds + 120 if options.seconds else DAY
    with tempfile.TemporaryDirectory(prefix="brindlex-fuzz-", dir=memory) as working:
        environment = dict(os.environ, TMPDIR=working)
        try:
            done = subprocess.run(command_of(program, options), cwd=working, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=most, check=False)
        except subprocess.TimeoutExpired as expired:
            harness.tell_failure(name, f"not done {most} s after its start", expired.stdout or b"")
            return False
    if done.returncode != 0:
        harness.tell_failure(name, done.stdout)
        return False
    if options.keep:
        keep(program, learnt_of(program))
    stats = dict(line[len("stat::"):].split(":") for line in done.stdout.decode("utf-8", "replace").splitlines()
                 if line.startswith("stat::"))
    print(f"{name}: {stats['number_of_executed_units'].strip()} inputs, {stats['average_exec_per_sec'].strip()} a second",
          flush=True)
    return True


def main():
    options = argparse.ArgumentParser()
    options.add_argument("folder", type=lambda name: pathlib.Path(name).resolve())
    options.add_argument("seconds", type=int, nargs="?", default=0)
    options.add_argument("--runs", type=int, default=0)
    options.add_argument("--jobs", type=int, default=harness.processors())
    options.add_argument("--alike", action="store_true")
    options.add_argument("--keep", action="store_true")
    options.add_argument("--only", nargs="+", default=[])
    options = options.parse_args()
    if not options.runs and not options.seconds:
        options.seconds = 10
    names = options.only or sorted(path.stem for path in SOURCES.glob("*_fuzz.cpp"))
    missing = [name for name in names if not (options.folder / name).is_file()]
    for name in missing:
        harness.tell_failure(name, "it was not built")
    results = harness.in_parallel(lambda name: run_fuzzer(options.folder / name, options),
                                  [name for name in names if name not in missing], options.jobs)
    harness.finish("fuzzers", results.count(True), results.count(False) + len(missing))


main()
