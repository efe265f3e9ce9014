#!/usr/bin/env python3
"""Runs the tests of brindlex-cli export, each in a fresh empty folder: what it writes is read back by other programs.

    run_exports.py --cli build/release/bin/brindlex-cli --drive build/release/bin/brindlex-drive [NAME...]

Every function test_* of the files export_*.py beside this one is a test; NAME picks those whose names hold it. Wants
ezdxf, rsvg-convert, pdfinfo and pdftoppm. Drilling programs are also run by rs274, where it is installed.
"""

import argparse
import os
import pathlib
import sys
import tempfile
import traceback

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent))

import export_dxf  # noqa: E402: these two need the path above
import export_nc
import export_refusals
import export_svg
import export_tables
import export_tools
import harness

MODULES = (export_dxf, export_svg, export_tables, export_nc, export_refusals)


def run(test, options):
    """True, False, or None for a test that wants a program which is not there."""
    with tempfile.TemporaryDirectory(prefix="brindlex-export-") as folder:
        try:
            test(export_tools.Bench(folder, options.cli, options.drive))
        except export_nc.Missing as missing:
            print(f"skipped {test.__module__}.{test.__name__}: there is no {missing}")
            return None
        except Exception:
            harness.tell_failure(f"{test.__module__}.{test.__name__}", traceback.format_exc())
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description="Runs the tests of brindlex-cli export.")
    parser.add_argument("--cli", required=True, type=os.path.abspath)
    parser.add_argument("--drive", required=True, type=os.path.abspath)
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()
    for program in (options.cli, options.drive):
        if not os.access(program, os.X_OK):
            sys.exit(f"There is no {program}: build it first.")
    tests = [test for module in MODULES for name, test in vars(module).items() if name.startswith("test_")]
    tests = [test for test in tests
             if not options.names or any(name in f"{test.__module__}.{test.__name__}" for name in options.names)]
    results = harness.in_parallel(lambda test: run(test, options), tests)
    harness.finish("exports", results.count(True), results.count(False), results.count(None))


main()
