// Text and number rules of the form runtime: numbers in text, masks, slices.
// A text is a std::string of single-byte characters (Windows-1252). Nothing here looks at the locale.
// Ground floor: includes only the standard library.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// The degree sign, code 176.
inline constexpr char DegreeSign = '\xB0';

/// Reads the longest numeric prefix behind leading blanks: an optional sign, digits with at most one point, an
/// optional exponent (E or e, an optional sign, digits). Stops at the first character that does not belong to the
/// number, a blank within included. 0 where there is no number, and never negative zero. Throws Overflow beyond the
/// range of a double; what is too small for one is 0.
[[nodiscard]] double Val(std::string_view text);

/// A blank or a minus sign, then at most 15 significant digits without trailing zeros and without a zero before the
/// point (" .5"); in exponent form ("1E-05", "1.5E+15") when the decimal exponent is below -4 or above 14.
/// Negative zero reads " 0". Str, Format and Round throw Overflow for an infinity and a not-a-number.
[[nodiscard]] std::string Str(double number);

/// A number through a mask of zeros with at most one point, such as ".0000", "0", "0.", "0.0", "00.00".
/// Rounds the number's 15-digit decimal form, ties away from zero, to as many places as zeros stand behind the point;
/// writes at least as many digits before the point as zeros stand there (none for ".0000" and a value below 1);
/// writes the point where the mask has one ("0." gives "5."). No minus sign when nothing but zeros remain.
/// Throws BadArgument for a mask of anything else.
[[nodiscard]] std::string Format(double number, std::string_view mask);

/// Rounds the 15-digit decimal form to a number of decimals (0 to 22), ties to even. Never gives negative zero.
[[nodiscard]] double Round(double number, int decimals = 0);

/// Truncates toward zero.
[[nodiscard]] double Fix(double number);
/// Rounds down.
[[nodiscard]] double Int(double number);

/// Conversion to a 16-bit integer: ties to even; throws Overflow outside -32768 to 32767.
[[nodiscard]] std::int16_t CInt(double number);

/// Position (from 1) of the first `what` in `text` at or behind `start` (from 1); 0 where there is none.
/// An empty `what` is found at `start`. A start behind the text's end finds nothing, not even an empty `what`.
/// Throws BadArgument for a start below 1.
[[nodiscard]] int InStr(std::string_view text, std::string_view what, int start = 1);

/// The first `length` characters; the whole text where it is shorter. Throws BadArgument for a negative length.
[[nodiscard]] std::string Left(std::string_view text, int length);
/// The last `length` characters, likewise.
[[nodiscard]] std::string Right(std::string_view text, int length);
/// The characters from position `start` (from 1) on. Throws BadArgument for a start below 1 or a negative length.
[[nodiscard]] std::string Mid(std::string_view text, int start, int length);
[[nodiscard]] std::string Mid(std::string_view text, int start);

[[nodiscard]] int Len(std::string_view text);
/// `count` blanks. Throws BadArgument for a negative count.
[[nodiscard]] std::string Space(int count);
/// The code of the first character, 0 to 255. Throws BadArgument for an empty text.
[[nodiscard]] int Asc(std::string_view text);
/// The character of a code. Throws BadArgument outside 0 to 255.
[[nodiscard]] std::string Chr(int code);

}  // namespace brindlex
