// Drilling programs for machines (RS-274, "G-code") that drill the holes of a bolt circle.
// Z is 0 at the top of the work and grows upward, away from it. Lengths are in the unit of the program.
#pragma once

#include "cli/exportsheet.h"

#include <optional>
#include <string>

namespace brindlex::cli {

inline constexpr int FastestSpindle = 999999;
inline constexpr int MostTool = 9999;
inline constexpr int MostNcPlaces = 6;

/// What a program needs besides the places of the holes. None has a default: a wrong guess could break the tool.
struct Drilling {
    double SafeHeight = 0;       ///< Z of the ways from hole to hole: not below Retract
    double Retract = 0;          ///< Z where the feed begins: above 0
    double Depth = 0;            ///< Z of the bottom of the holes: below 0
    double Feed = 0;             ///< units a minute, above 0
    int Spindle = 0;             ///< revolutions a minute, 1 to FastestSpindle
    std::optional<double> Peck;  ///< how far the tool goes before it backs out, above 0; without it one plunge
    std::optional<int> Tool;     ///< with it the program changes to that tool and takes its length, 1 to MostTool
    std::optional<int> Places;   ///< decimals, 1 to MostNcPlaces; else DefaultPlaces
};

/// 4 decimals of a millimetre, 6 of an inch: no coordinate is off by more than 0.00005 mm.
[[nodiscard]] int DefaultPlaces(geometry::Unit unit);

/// The whole program. `source` names the document in a comment. Throws Failure: Usage for values of Drilling that break
/// the rules above, also once they are written with these decimals; BadInput for coordinates of 100000 and more.
[[nodiscard]] std::string NcText(const HolePattern& pattern, geometry::Unit unit, const Drilling& drilling,
                                 const std::string& source);

/// A text as a comment may hold it: capital letters, digits, blanks and . , : = + - /, all else a blank; at most 60
/// characters. Brackets would end the comment too early.
[[nodiscard]] std::string CommentText(const std::string& text);

}  // namespace brindlex::cli
