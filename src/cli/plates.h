// Sine plates and polygons from options and from documents.
// Units: the spacing of a sine plate in inches always, other lengths in the unit that is shown, angles in degrees.
#pragma once

#include "cli/calculation.h"

#include <string>
#include <vector>

namespace brindlex::cli {

[[nodiscard]] Answer SolveSine(const Arguments& given);
[[nodiscard]] Answer SinePlateFromDocument(const std::vector<std::string>& lines, const Display& display);

inline constexpr OptionRow SineOptions[] = {
    {"--angle", "ANGLE", "the angle of a regular plate"},
    {"--bottom-angle", "ANGLE", "the bottom angle of a compound plate"},
    {"--top-angle", "ANGLE", "its top angle"},
    {"--spacing", "INCHES", "the distance of the rolls, in inches always; 5 without it"},
    {"--unit", "in|mm", "the unit of the buildup; in without it"},
    PlacesOption,
    DmsOption,
    JsonOption,
    CsvOption,
    BatchOption};

[[nodiscard]] std::string RunSine(const Arguments& given, const StandardInput& input);

inline constexpr Command SineCommand{"sine",
                                     "The gauge blocks under a sine plate, regular or compound",
                                     "\n"
                                     "                __o\n"
                                     "      spacing _-  |\n"
                                     "           _-     | buildup\n"
                                     "     ____o- angle |\n"
                                     "\nThe buildup keeps its zeros, as it is wrung: 2.5000.\n"
                                     "\nExamples:\n"
                                     "  brindlex-cli sine --angle 30 --spacing 5\n"
                                     "  brindlex-cli sine --bottom-angle 20 --top-angle 15 --spacing 10 --unit mm\n"
                                     "  (echo angle; seq 0.5 0.5 90) | brindlex-cli sine --spacing 5 --batch\n",
                                     SineOptions,
                                     {},
                                     RunSine};

[[nodiscard]] Answer SolvePolygonOf(const Arguments& given);
[[nodiscard]] Answer PolygonFromDocument(const std::vector<std::string>& lines, const Display& display);

inline constexpr OptionRow PolygonOptions[] = {
    {"--sides", "N", "the number of sides, 3 to 36"},
    {"--across-flats", "LENGTH", "the dimension from flat to flat, of an even number of sides"},
    {"--flat-to-corner", "LENGTH", "the dimension across one flat and one sharp corner, of an odd number of sides"},
    {"--one-flat", "LENGTH", "the length of one flat"},
    {"--inscribed", "", "the polygon stands in the circle; so it is without either"},
    {"--circumscribed", "", "the polygon stands around the circle"},
    UnitOption,
    PlacesOption,
    JsonOption,
    CsvOption,
    BatchOption};

[[nodiscard]] std::string RunPolygon(const Arguments& given, const StandardInput& input);

inline constexpr Command PolygonCommand{
    "polygon",
    "The circle of a regular polygon, and its area",
    "\n"
    "       ____\n"
    "      /    \\      | across flats\n"
    "     /      \\     |\n"
    "     \\      /     |\n"
    "      \\____/      |\n"
    "      one flat\n"
    "\nExamples:\n"
    "  brindlex-cli polygon --sides 6 --across-flats 0.75\n"
    "  brindlex-cli polygon --sides 5 --flat-to-corner 40 --circumscribed --unit mm\n",
    PolygonOptions,
    {},
    RunPolygon};

}  // namespace brindlex::cli
