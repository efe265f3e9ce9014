#!/usr/bin/env python3
"""Runs the unit tests, one share of them a processor: run_unit.py PROGRAM [GTEST OPTION...]"""

import json
import os
import subprocess
import sys
import tempfile

import harness

SECONDS = 600


def run_share(program, options, share, shares):
    """(passed, failed) of one share; tells of its failures."""
    with tempfile.TemporaryDirectory(prefix="brindlex-unit-") as folder:
        report = os.path.join(folder, "report.json")
        working = os.path.join(folder, "work")
        os.mkdir(working)
        environment = dict(os.environ, GTEST_TOTAL_SHARDS=str(shares), GTEST_SHARD_INDEX=str(share), TMPDIR=folder)
        command = [program, "--gtest_brief=1", "--gtest_color=no", f"--gtest_output=json:{report}", *options]
        try:
            done = subprocess.run(command, cwd=working, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=SECONDS, check=False)
        except subprocess.TimeoutExpired as expired:
            harness.tell_failure(f"unit tests, share {share + 1}", f"not done after {SECONDS} s", expired.stdout or b"")
            return 0, 1
        if not os.path.exists(report):
            harness.tell_failure(f"unit tests, share {share + 1}", f"ended with {done.returncode}", done.stdout)
            return 0, 1
        with open(report, encoding="utf-8") as file:
            counts = json.load(file)
        failed = counts["failures"] + counts.get("errors", 0)
        if done.returncode and not failed:
            failed = 1
        if failed:
            harness.tell_failure(f"unit tests, share {share + 1}", done.stdout)
        return counts["tests"] - counts["disabled"] - counts["failures"], failed


def main():
    program, options = os.path.abspath(sys.argv[1]), sys.argv[2:]
    shares = harness.processors()
    results = harness.in_parallel(lambda share: run_share(program, options, share, shares), range(shares))
    harness.finish("unit tests", sum(result[0] for result in results), sum(result[1] for result in results))


main()
