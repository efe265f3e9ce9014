// The pairs of lines that cross, and those that would cross if they were longer.
// Units: drawing coordinates. Includes no control, form or runtime.
#pragma once

#include "geometry/record.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

/// An item of the two lists: 3 characters of each line's record, and where they cross.
struct PairItem {
    int NumberA = 0;
    int NumberB = 0;
    Position Crossing;
};
/// Reads an item; what is missing reads as 0.
[[nodiscard]] PairItem ReadPair(std::string_view item);

struct Crossings {
    std::vector<std::string> Crossing;   ///< items of Combo1
    std::vector<std::string> Potential;  ///< items of Combo2
};
/// All pairs of line records, in store order, of the first 200. Parallel lines make no pair.
[[nodiscard]] Crossings FindCrossings(const std::vector<std::string>& lines);

/// The text that a list selects after it was filled anew: the remembered one where it is still there, else the first;
/// empty for an empty list.
[[nodiscard]] std::string SelectionAfter(const std::vector<std::string>& items, std::string_view remembered);

/// "X ", x, ", Y ", y, with six decimals each: where a potential pair will meet.
[[nodiscard]] std::string MeetingText(std::string_view item);

}  // namespace brindlex::geometry
