#!/usr/bin/env python3
"""Runs the tests of brindlex-cli, each in a fresh empty folder; its numbers are held against the desktop program's.

    run_cli.py --cli build/release/bin/brindlex-cli --drive build/release/bin/brindlex-drive [NAME...]

Every function test_* of the files cli_*.py beside this one is a test; NAME picks those whose names hold it.
"""

import argparse
import os
import pathlib
import sys
import tempfile
import traceback

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent))

import cli_bench  # noqa: E402: these need the path above
import cli_data
import cli_documents
import cli_guide
import cli_other
import cli_refusals
import cli_triangles
import harness

MODULES = (cli_triangles, cli_other, cli_documents, cli_guide, cli_data, cli_refusals)


def run(test, options):
    with tempfile.TemporaryDirectory(prefix="brindlex-cli-") as folder:
        try:
            test[1](cli_bench.Bench(folder, options.cli, options.drive))
        except Exception:
            harness.tell_failure(test[0], traceback.format_exc())
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description="Runs the tests of brindlex-cli.")
    parser.add_argument("--cli", required=True, type=os.path.abspath)
    parser.add_argument("--drive", required=True, type=os.path.abspath)
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()
    for program in (options.cli, options.drive):
        if not os.access(program, os.X_OK):
            sys.exit(f"There is no {program}: build it first.")
    tests = [(f"{module.__name__}.{name}", function) for module in MODULES for name, function in vars(module).items()
             if name.startswith("test_")]
    tests = [test for test in tests if not options.names or any(name in test[0] for name in options.names)]
    results = harness.in_parallel(lambda test: run(test, options), tests)
    harness.finish("brindlex-cli", results.count(True), results.count(False))


main()
