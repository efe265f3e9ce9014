// Commands on the documents and drawings of the desktop program.
#pragma once

#include "cli/calculation.h"
#include "cli/command.h"

namespace brindlex::cli {

[[nodiscard]] std::string RunSolve(const Arguments& given, const StandardInput& input);

inline constexpr OptionRow SolveOptions[] = {
    UnitOption, PlacesOption, DmsOption,
    JsonOption, CsvOption,    {"--check", "", "tells of each file whether it solves; drawings may be among them"}};

inline constexpr Command SolveCommand{
    "solve",
    "The results of documents: .rgt .obl .bcf .sin .pgf",
    "\nThe ending tells the kind of a document. --unit is the unit that its lengths are in, as a document names none;\n"
    "of a sine plate it is the unit of the buildup. CSV is a line for each value of each file.\n"
    "With --check every file is looked at; without it the first that has no result ends the command.\n"
    "\nExamples:\n"
    "  brindlex-cli solve hub.bcf taper.rgt\n"
    "  brindlex-cli solve --check jobs/*\n",
    SolveOptions,
    {"FILE...", 1, std::size_t(-1)},
    RunSolve};

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
