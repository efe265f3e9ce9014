// What cutting data are for: a unit and a machine.
// Includes no control, form or runtime.
#pragma once

#include <string_view>

namespace brindlex::speedsfeeds {

enum class Unit {
    Inch,   ///< inches, surface feet per minute, horse power
    Metric  ///< millimeters, surface meters per minute, kilowatts
};

enum class Machine { Mill, Lathe };

inline constexpr std::string_view MillText = "Mill";
inline constexpr std::string_view LatheText = "Lathe";

/// The machine of a text; any but "Lathe" is treated as a mill.
[[nodiscard]] constexpr Machine MachineOf(std::string_view text) {
    return text == LatheText ? Machine::Lathe : Machine::Mill;
}

[[nodiscard]] constexpr Unit Other(Unit unit) {
    return unit == Unit::Inch ? Unit::Metric : Unit::Inch;
}

}  // namespace brindlex::speedsfeeds
