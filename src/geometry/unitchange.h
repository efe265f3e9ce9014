// The change of a drawing's unit.
// Units: inches, millimeters.
#pragma once

#include "geometry/session.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex::geometry {

/// By what the values are multiplied that go over to a unit. The way to inches multiplies too and does not divide.
[[nodiscard]] double FactorTo(Unit unit);

/// The records with all values converted; lines that are no records stay. Nothing where a line is blank.
/// Throws Overflow where a value leaves the range of a double.
[[nodiscard]] std::optional<std::vector<std::string>> ConvertedLines(const std::vector<std::string>& lines, Unit to);

/// The drawing goes over to a unit; the one it is in already does nothing. A blank line in the store refuses the
/// change without a word; values that can't be converted and a store that can't be written refuse it in a box.
void ChangeUnit(Session& work, Unit to);

}  // namespace brindlex::geometry
