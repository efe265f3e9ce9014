// The command that writes a document in the form that another program or a machine reads.
#pragma once

#include "cli/command.h"

#include <array>

namespace brindlex::cli {

[[nodiscard]] std::string RunExport(const Arguments& given, const StandardInput& input);

inline constexpr std::array<OptionRow, 13> ExportOptions{{
    {"--unit", "in|mm", "the unit of the lengths; a bolt circle has none of its own"},
    {"--force", "", "replaces OUT where it exists"},
    {"--as", "ENDING", "what to write, whatever OUT is called; with OUT - it is printed"},
    {"--pairs", "", "csv: pairs of lines with their crossings, instead of entities"},
    {"--hole-diameter", "D", "dxf, svg: holes as circles of this diameter, instead of points"},
    {"--depth", "Z", "nc: Z of the bottom of the holes; Z 0 is the top of the work, so below 0"},
    {"--retract", "Z", "nc: Z where the feed begins, above 0"},
    {"--safe-height", "Z", "nc: Z of the ways from hole to hole, not below --retract"},
    {"--feed", "F", "nc: feed, units a minute"},
    {"--spindle", "S", "nc: revolutions a minute"},
    {"--peck", "Q", "nc: depth of a peck; without it the holes are drilled in one plunge"},
    {"--tool", "T", "nc: changes to this tool and takes its length; without it the tool stays"},
    {"--places", "N", "nc: decimals, 1 to 6; else 4 for millimeters and 6 for inches"},
}};

inline constexpr Command ExportCommand{
    "export",
    "A drawing or a bolt circle for CAD, paper, spreadsheets and machines",
    "\nFILE is a drawing (.geo) or a bolt circle (.bcf). The ending of OUT tells what is written:\n"
    "  .dxf        circles, lines and points for CAD, each on a layer of its kind\n"
    "  .svg        a picture at scale 1:1 with the numbers\n"
    "  .csv .json  entities, pairs of lines, holes\n"
    "  .nc         a drilling program for the holes of a bolt circle:\n"
    "\n"
    "      Z --safe-height  _____     ______     ways from hole to hole\n"
    "                            |   |\n"
    "      Z --retract           v   |           the feed begins\n"
    "      Z 0  =================|===|=========  top of the work\n"
    "                            |   |\n"
    "      Z --depth             |___|           bottom, below 0\n"
    "\n"
    "Check a drilling program before it is run on a machine.\n"
    "\nExamples:\n  brindlex-cli export lever.geo lever.dxf\n"
    "  brindlex-cli export flange.bcf flange.csv --unit mm\n"
    "  brindlex-cli export flange.bcf flange.nc --unit mm --safe-height 25 --retract 2 --depth -12 \\\n"
    "      --feed 120 --spindle 900 --peck 3\n",
    ExportOptions,
    {"FILE OUT", 2, 2},
    RunExport};

}  // namespace brindlex::cli
