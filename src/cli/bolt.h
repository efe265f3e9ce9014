// Bolt circles from options and from documents.
// Units: lengths in the unit that is shown, angles in degrees.
#pragma once

#include "cli/calculation.h"

#include <string>
#include <vector>

namespace brindlex::cli {

[[nodiscard]] Answer SolveBolt(const Arguments& given);
[[nodiscard]] Answer BoltFromDocument(const std::vector<std::string>& lines, const Display& display);

inline constexpr OptionRow BoltOptions[] = {
    {"--diameter", "LENGTH", "the diameter of the bolt circle"},
    {"--holes", "N", "the number of holes"},
    {"--start-angle", "ANGLE", "the angle of hole 1; 0 without it"},
    {"--center-x", "LENGTH", "X of the center; 0 without it"},
    {"--center-y", "LENGTH", "Y of the center; 0 without it"},
    {"--angles-only", "", "the angles of the holes in place of their coordinates"},
    UnitOption,
    PlacesOption,
    DmsOption,
    JsonOption,
    CsvOption};

[[nodiscard]] std::string RunBolt(const Arguments& given, const StandardInput& input);

inline constexpr Command BoltCommand{
    "bolt",
    "The holes of a bolt circle",
    "\n"
    "          2\n"
    "      3   |   1    Holes run counter-clockwise from the start angle,\n"
    "       \\  |  /     which is measured from the positive X axis.\n"
    "    4 ----+---- X\n"
    "\n"
    "CSV is a line for each hole.\n"
    "\nExamples:\n"
    "  brindlex-cli bolt --diameter 5 --holes 6 --start-angle 30\n"
    "  brindlex-cli bolt --diameter 120 --holes 8 --unit mm --center-x 200 --center-y -50 --csv\n",
    BoltOptions,
    {},
    RunBolt};

}  // namespace brindlex::cli
