// Cutting data: lists, filters, checks, to and from CSV, merged. No line is ever lost.
#pragma once

#include "cli/calculation.h"
#include "cli/command.h"

namespace brindlex::cli {

[[nodiscard]] std::string RunData(const Arguments& given, const StandardInput& input);

inline constexpr OptionRow DataOptions[] = {
    {"--unit", "in|mm", "only records of this unit"},
    {"--tool", "NAME", "only records of this tool"},
    {"--tool-material", "NAME", "only records of this tool material"},
    {"--work-material", "NAME", "only records of this work material"},
    JsonOption,
    CsvOption,
    {"--check", "", "tells of lines that are no records, of bad numbers and of doubles"},
    {"--merge", "FILE.dat", "adds the lines of another machine that are not there yet"},
    {"--merge-csv", "FILE.csv", "the same from CSV; - is the standard input"}};

inline constexpr Command DataCommand{
    "data",
    "Cutting data: lists, filters, checks, to and from CSV, merged",
    "\nCSV has a head: line, unit, tool, tool_material, work_material, speed_range, feed_range, power_factor, text.\n"
    "A line of the file that is no record stands whole in the last column, so that nothing is lost on the way.\n"
    "--merge and --merge-csv rewrite FILE in one step, its own lines first and unchanged; a missing FILE is made.\n"
    "\nExamples:\n"
    "  brindlex-cli data Mill.dat --tool 'End mill' --unit in\n"
    "  brindlex-cli data Mill.dat --csv > mill.csv\n"
    "  brindlex-cli data Mill.dat --merge-csv mill.csv\n",
    DataOptions,
    {"FILE.dat", 1, 1},
    RunData};

}  // namespace brindlex::cli
