// Speeds and feeds from options.
// Units: inches and surface feet per minute, or millimeters and surface meters per minute.
#pragma once

#include "cli/calculation.h"

#include <string>
#include <string_view>

namespace brindlex::cli {

/// Whether a text is a number above 0 with nothing before or behind it.
[[nodiscard]] bool IsPositive(std::string_view text);
/// The same of one number, or of two with "-" between them.
[[nodiscard]] bool IsRange(std::string_view range);

[[nodiscard]] Answer SolveSpeeds(const Arguments& given);
[[nodiscard]] std::string RunSpeeds(const Arguments& given, const StandardInput& input);

inline constexpr OptionRow SpeedsOptions[] = {
    {"--machine", "mill|lathe", "mill without it"},
    {"--unit", "in|mm", "inches and surface feet, or millimeters and surface meters; in without it"},
    {"--surface-speed", "SPEED", "surface feet, or meters, per minute"},
    {"--feed", "FEED", "per tooth on a mill, per revolution on a lathe"},
    {"--diameter", "LENGTH", "of the tool on a mill, of the work on a lathe"},
    {"--teeth", "N", "teeth of the tool, on a mill"},
    {"--depth", "LENGTH", "depth of cut, for the removal rate"},
    {"--width", "LENGTH", "width of cut, for the removal rate on a mill"},
    {"--power-factor", "FACTOR", "power per removal rate, for the power"},
    {"--length", "LENGTH", "length of cut, for the time"},
    {"--cuts", "N", "number of cuts, for the time"},
    {"--speed-range", "LOW-HIGH", "refuses a surface speed that is not within"},
    {"--feed-range", "LOW-HIGH", "refuses a feed that is not within"},
    {"--data", "FILE", "takes ranges, power factor and what is not given from cutting data:"},
    {"--tool", "NAME", "the tool there"},
    {"--tool-material", "NAME", "its material"},
    {"--work-material", "NAME", "the material that is cut"},
    {"--places", "N", "decimal places of the results, 1 to 15; 1 without it"},
    JsonOption,
    CsvOption,
    BatchOption};

inline constexpr Command SpeedsCommand{
    "speeds",
    "Spindle speed, feed rate, removal rate, power and time in cut",
    "\n"
    "      ( )  rpm = surface speed / (pi x diameter)\n"
    "      |#|\n"
    "      |#|      feed rate = rpm x feed x teeth\n"
    "   ---+-+---\n"
    "   | depth |   removal rate = depth x width x feed rate\n"
    "\nExamples:\n"
    "  brindlex-cli speeds --surface-speed 100 --feed .002 --diameter .5 --teeth 4\n"
    "  brindlex-cli speeds --data Mill.dat --tool 'End mill' --tool-material Carbide \\\n"
    "      --work-material Aluminum --diameter .5 --teeth 4\n",
    SpeedsOptions,
    {},
    RunSpeeds};

}  // namespace brindlex::cli
