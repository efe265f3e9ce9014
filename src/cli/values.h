// The words behind options, read strictly: numbers, lengths with their unit, angles, counts.
// Units: lengths in the unit of the command, angles in degrees. The answers are texts as the solvers' entries hold
// them.
#pragma once

#include "cli/answer.h"
#include "cli/command.h"
#include "geometry/unit.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex::cli {

using geometry::Unit;

/// "in" or "mm".
[[nodiscard]] std::string_view WordOf(Unit unit);
/// Their squares.
[[nodiscard]] std::string_view SquareWordOf(Unit unit);

/// Areas have five decimals, as on the forms.
inline constexpr std::string_view AreaMask = ".00000";

/// How an answer is to be shown.
struct Display {
    Unit Measure = Unit::Inch;
    int Places = 4;        ///< decimals, 1 to 15
    bool Minutes = false;  ///< angles in degrees, minutes and seconds
};

enum class Sign { Positive, NotNegative, Any };

// All throw Failure (Usage) that names the option.

/// By --unit, --places and --dms.
[[nodiscard]] Display DisplayFrom(const Arguments& given);
/// By --json and --csv, which exclude each other.
[[nodiscard]] Style StyleFrom(const Arguments& given, Style otherwise = Style::Table);

/// A decimal number with nothing before or behind it.
[[nodiscard]] std::string NumberFrom(const Arguments& given, std::string_view option, Sign sign);
/// A number that may be followed by its unit, which must be the one of the command: "5in", "5\"", "127 mm".
[[nodiscard]] std::string LengthFrom(const Arguments& given, std::string_view option, Unit unit, Sign sign);
/// Decimal degrees ("30.5", "30.5deg"), or degrees, minutes and seconds ("30d15m20s", "30:15:20", "30°15'20\"").
[[nodiscard]] std::string AngleFrom(const Arguments& given, std::string_view option, Sign sign);
/// A whole number.
[[nodiscard]] int CountFrom(const Arguments& given, std::string_view option, int least, int most);

/// Throws Failure (Usage) that the option is missing unless it is given.
void Require(const Arguments& given, std::string_view option);
/// The one of the options that is given. Throws Failure (Usage) where none is, or more than one.
[[nodiscard]] std::string_view OnlyOneOf(const Arguments& given, std::span<const std::string_view> options);

/// Whether a text is a decimal number with nothing before or behind it.
[[nodiscard]] bool IsNumber(std::string_view text);

/// With small ASCII letters for the capital ones.
[[nodiscard]] std::string Lower(std::string text);
/// A message of several lines as one.
[[nodiscard]] std::string OnOneLine(std::string text);

/// A number of the solvers without the blank in front.
[[nodiscard]] std::string Trimmed(std::string_view text);
/// Degree text of the solvers as UTF-8, without the blank in front.
[[nodiscard]] std::string DegreesShown(std::string_view text);

}  // namespace brindlex::cli
