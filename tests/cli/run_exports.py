#!/usr/bin/env python3
"""Runs the tests of brindlex-cli export, each in a fresh empty folder: what it writes is read back by other programs.

    run_exports.py --cli build/release/bin/brindlex-cli --drive build/release/bin/brindlex-drive [NAME...]

Every function test_* of the files export_*.py beside this one is a test; NAME picks those whose names hold it. Wants
ezdxf, rsvg-convert, pdfinfo and pdftoppm. Drilling programs are also run by rs274, where it is installed.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import cli_runner  # noqa: E402: these need the path above
import export_dxf
import export_nc
import export_refusals
import export_svg
import export_tables
import export_tools

cli_runner.main("exports", (export_dxf, export_svg, export_tables, export_nc, export_refusals), export_tools.Bench)
