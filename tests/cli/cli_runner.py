"""What the runners of this folder share: every function test_* of some modules is a test, each in a fresh folder."""

import argparse
import os
import tempfile
import traceback

import harness


class Missing(Exception):
    """A program that a test wants is not there: the test is skipped."""


def run(test, make_bench):
    """True, False, or None for a test that wants a program which is not there."""
    name, function = test
    with tempfile.TemporaryDirectory(prefix="brindlex-cli-") as folder:
        try:
            function(make_bench(folder))
        except Missing as missing:
            print(f"skipped {name}: there is no {missing}")
            return None
        except Exception:
            harness.tell_failure(name, traceback.format_exc())
            return False
    return True


def main(what, modules, bench):
    """`bench` makes what a test is given, of a folder, brindlex-cli and brindlex-drive."""
    parser = argparse.ArgumentParser(description=f"Runs the tests of {what}.")
    parser.add_argument("--cli", required=True, type=os.path.abspath)
    parser.add_argument("--drive", required=True, type=os.path.abspath)
    parser.add_argument("names", nargs="*", help="picks the tests whose names hold one of these")
    options = parser.parse_args()
    for program in (options.cli, options.drive):
        if not os.access(program, os.X_OK):
            raise SystemExit(f"There is no {program}: build it first.")
    tests = [(f"{module.__name__}.{name}", function) for module in modules for name, function in vars(module).items()
             if name.startswith("test_")]
    tests = [test for test in tests if not options.names or any(name in test[0] for name in options.names)]
    results = harness.in_parallel(
        lambda test: run(test, lambda folder: bench(folder, options.cli, options.drive)), tests)
    harness.finish(what, results.count(True), results.count(False), results.count(None))
