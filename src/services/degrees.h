// Decimal degrees to degrees, minutes and seconds, as parts and as text, and back.
// Units: decimal degrees. Includes no control, form or runtime.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace brindlex {

inline constexpr double FullTurn = 360;  ///< degrees
inline constexpr double PerWhole = 60;   ///< minutes in a degree, seconds in a minute
inline constexpr double SecondsPerDegree = 3600;

struct DegreeParts {
    std::int16_t Degrees = 0;
    double Minutes = 0;
    double Seconds = 0;
};

/// Splits decimal degrees; the seconds pass through `roundSeconds` before the carry, which runs from seconds that are
/// exactly 60 to minutes and from minutes to degrees. Throws Overflow where the degrees pass 16 bits.
[[nodiscard]] DegreeParts SplitDegrees(double degrees, const std::function<double(double)>& roundSeconds);
/// The same without rounding and therefore with a carry only at an exact 60.
[[nodiscard]] DegreeParts SplitDegrees(double degrees);

/// Degrees, degree sign, blank, minutes, apostrophe, blank, seconds, double quote; each number as Str writes it.
[[nodiscard]] std::string DegreeText(const DegreeParts& parts);

/// Degree text: all three parts of one calculation's fields. The minute and second texts are shared between the fields
/// and not cleared between them, so a field without minutes takes those of the field before: intended.
class DegreeReader {
public:
    /// A text without a degree sign as it is; else Str of the degrees that it holds, leading blank included. Throws
    /// BadArgument where a mark stands too early for what must stand before it.
    [[nodiscard]] std::string NormalizeDmsText(const std::string& text);

private:
    std::string minuteText_;
    std::string secondText_;
};

}  // namespace brindlex
