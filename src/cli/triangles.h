// Right and oblique triangles from options and from documents.
// Units: lengths in the unit that is shown, angles in degrees.
#pragma once

#include "cli/calculation.h"

#include <string>
#include <vector>

namespace brindlex::cli {

/// From the two, or three, elements that are given. Throw Failure.
[[nodiscard]] Answer SolveRight(const Arguments& given);
[[nodiscard]] Answer SolveOblique(const Arguments& given);

/// From the lines of a document. Throw Failure.
[[nodiscard]] Answer RightFromDocument(const std::vector<std::string>& lines, const Display& display);
[[nodiscard]] Answer ObliqueFromDocument(const std::vector<std::string>& lines, const Display& display);

inline constexpr OptionRow TriangleCommon[] = {UnitOption, PlacesOption, DmsOption, JsonOption, CsvOption, BatchOption};

inline constexpr OptionRow RightOwn[] = {{"--side-a", "LENGTH", "the hypotenuse"},
                                         {"--side-b", "LENGTH", "the leg opposite angle B"},
                                         {"--side-c", "LENGTH", "the leg opposite angle C"},
                                         {"--angle-b", "ANGLE", "angle B, opposite side b"},
                                         {"--angle-c", "ANGLE", "angle C, opposite side c"}};
inline constexpr auto RightOptions = Joined(RightOwn, TriangleCommon);

[[nodiscard]] std::string RunRight(const Arguments& given, const StandardInput& input);

inline constexpr Command RightCommand{
    "right",
    "A right triangle from two of its sides and angles, a side among them",
    "\n"
    "     B\n"
    "     |\\\n"
    "     | \\\n"
    "   c |  \\ a      Angle A is the right one.\n"
    "     |   \\\n"
    "     |    \\\n"
    "     A-----C\n"
    "        b\n"
    "\nAn angle is decimal degrees, or degrees, minutes and seconds: 30.5, 30:30:00, 30d30m.\n"
    "\nExamples:\n"
    "  brindlex-cli right --side-a 5 --angle-b 30\n"
    "  brindlex-cli right --side-b 40mm --side-c 30mm --unit mm --dms\n"
    "  brindlex-cli right --batch < triangles.csv\n",
    RightOptions,
    {},
    RunRight};

inline constexpr OptionRow ObliqueOwn[] = {
    {"--angle-a", "ANGLE", "angle A, opposite side a"},
    {"--angle-b", "ANGLE", "angle B, opposite side b"},
    {"--angle-c", "ANGLE", "angle C, opposite side c"},
    {"--side-a", "LENGTH", "side a"},
    {"--side-b", "LENGTH", "side b"},
    {"--side-c", "LENGTH", "side c"},
    {"--second", "", "the second solution of two sides and an angle that lies opposite one of them"}};
inline constexpr auto ObliqueOptions = Joined(ObliqueOwn, TriangleCommon);

[[nodiscard]] std::string RunOblique(const Arguments& given, const StandardInput& input);

inline constexpr Command ObliqueCommand{
    "oblique",
    "Any triangle from three of its sides and angles, a side among them",
    "\n"
    "          C\n"
    "         / \\\n"
    "      b /   \\ a\n"
    "       /     \\\n"
    "      A-------B\n"
    "          c\n"
    "\nAn angle is decimal degrees, or degrees, minutes and seconds: 30.5, 30:30:00, 30d30m.\n"
    "\nExamples:\n"
    "  brindlex-cli oblique --side-a 3 --side-b 4 --side-c 6\n"
    "  brindlex-cli oblique --angle-a 30 --side-a 3 --side-b 5 --second --json\n",
    ObliqueOptions,
    {},
    RunOblique};

}  // namespace brindlex::cli
