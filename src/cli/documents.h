// Commands on the files of the desktop program.
#pragma once

#include "cli/command.h"

namespace brindlex::cli {

[[nodiscard]] std::string RunReport(const Arguments& given, const StandardInput& input);

inline constexpr Command ReportCommand{
    "report",
    "The report of a drawing, as the drawing board shows it",
    "\nThe text is the drawing board's own: lines ended by carriage return and line feed.\n"
    "\nExample:\n  brindlex-cli report bracket.geo > bracket.txt\n",
    {},
    {"FILE.geo", 1, 1},
    RunReport};

}  // namespace brindlex::cli
