#!/usr/bin/env python3
"""Runs the tests of brindlex-cli, each in a fresh empty folder; its numbers are held against the desktop program's.

    run_cli.py --cli build/release/bin/brindlex-cli --drive build/release/bin/brindlex-drive [NAME...]

Every function test_* of the files cli_*.py beside this one is a test; NAME picks those whose names hold it.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import cli_bench  # noqa: E402: these need the path above
import cli_data
import cli_documents
import cli_guide
import cli_other
import cli_refusals
import cli_runner
import cli_triangles

cli_runner.main("brindlex-cli", (cli_triangles, cli_other, cli_documents, cli_guide, cli_data, cli_refusals),
                cli_bench.Bench)
