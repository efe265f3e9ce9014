// Strict reading of numbers, lengths and angles.
#include "cli/values.h"

#include "cli/failure.h"
#include "frame/fault.h"
#include "frame/text.h"
#include "frame/textfile.h"
#include "services/degrees.h"

#include <array>
#include <cctype>

namespace brindlex::cli {

namespace {

constexpr int LeastPlaces = 1;
constexpr int MostPlaces = 15;
constexpr int MostDegrees = 32767;

[[noreturn]] void Refuse(std::string_view option, std::string_view text, std::string_view why) {
    throw Failure(Exit::Usage, std::string(option).append(" ").append(text).append(": ").append(why));
}

std::string_view WithoutBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t DigitsAt(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end])) != 0) {
        ++end;
    }
    return end - at;
}

/// How many characters at the head of a text are a decimal number; 0 where none are.
std::size_t NumberLength(std::string_view text) {
    std::size_t at = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
    const std::size_t whole = DigitsAt(text, at);
    at += whole;
    std::size_t part = 0;
    if (at < text.size() && text[at] == '.') {
        part = DigitsAt(text, at + 1);
        at += 1 + part;
    }
    if (whole + part == 0) {
        return 0;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t sign = at + 1 < text.size() && (text[at + 1] == '-' || text[at + 1] == '+') ? 1 : 0;
        const std::size_t exponent = DigitsAt(text, at + 1 + sign);
        at += exponent == 0 ? 0 : 1 + sign + exponent;
    }
    return at;
}

double ValueIn(std::string_view option, std::string_view text) {
    try {
        return Val(text);
    } catch (const Fault&) {
        Refuse(option, text, "this is out of range");
    }
}

/// The number, if its sign will do. `text` is what was typed.
std::string Accepted(std::string_view option, std::string_view text, std::string number, Sign sign) {
    const double value = ValueIn(option, number);
    if (sign == Sign::Positive && value <= 0) {
        Refuse(option, text, "this must be above 0");
    }
    if (sign == Sign::NotNegative && value < 0) {
        Refuse(option, text, "this must not be below 0");
    }
    return number;
}

/// A text as a number and what stands behind it. Throws where there is no number.
struct Measured {
    Measured(std::string_view option, std::string_view text) {
        const std::string_view bare = WithoutBlanks(text);
        const std::size_t length = NumberLength(bare);
        if (length == 0) {
            Refuse(option, text, "this is no number");
        }
        Number = bare.substr(0, length);
        Rest = WithoutBlanks(bare.substr(length));
    }

    std::string Number;
    std::string_view Rest;
};

struct UnitRow {
    std::string_view Word;
    Unit Means;
};
constexpr std::array UnitWords{UnitRow{"in", Unit::Inch}, UnitRow{"\"", Unit::Inch}, UnitRow{"mm", Unit::Millimeter}};

/// The marks behind degrees, minutes and seconds, the longer ones first.
constexpr std::array<std::array<std::string_view, 4>, 3> AngleMarks{{
    {"deg", "d", "\xC2\xB0", ":"},
    {"min", "m", "'", ":"},
    {"sec", "s", "\"", ""},
}};

/// Takes the mark at the head of a text; false where it is not one of them.
bool TakeMark(std::string_view& text, const std::array<std::string_view, 4>& marks) {
    for (const std::string_view mark : marks) {
        if (text.substr(0, mark.size()) == mark) {
            text = WithoutBlanks(text.substr(mark.size()));
            return true;
        }
    }
    return false;
}

bool IsWhole(std::string_view number) {
    return DigitsAt(number, 0) == number.size();
}

/// Takes the number at the head of a text; empty where there is none or one with a sign.
std::string TakeUnsigned(std::string_view& text) {
    const std::size_t length = text.front() == '-' || text.front() == '+' ? 0 : NumberLength(text);
    std::string number(text.substr(0, length));
    text = WithoutBlanks(text.substr(length));
    return number;
}

/// Degrees, minutes and seconds as decimal degrees, by the same steps as the solvers read their own notation.
std::string FromMinutes(std::string_view option, std::string_view text, const std::array<std::string, 3>& parts) {
    const double degrees = ValueIn(option, parts[0]);
    const double minutes = ValueIn(option, parts[1]);
    const double seconds = ValueIn(option, parts[2]);
    if (degrees > MostDegrees) {
        Refuse(option, text, "this is out of range");
    }
    if (minutes >= PerWhole || seconds >= PerWhole) {
        Refuse(option, text, "minutes and seconds must be below 60");
    }
    DegreeReader reader;
    return reader.NormalizeDmsText(DegreeText({static_cast<std::int16_t>(degrees), minutes, seconds}));
}

}  // namespace

std::string_view WordOf(Unit unit) {
    return unit == Unit::Inch ? "in" : "mm";
}

std::string_view SquareWordOf(Unit unit) {
    return unit == Unit::Inch ? "sq in" : "sq mm";
}

Display DisplayFrom(const Arguments& given) {
    Display display;
    const std::string_view unit = given.Text("--unit").value_or("in");
    if (unit != "in" && unit != "mm") {
        Refuse("--unit", unit, "this must be in or mm");
    }
    display.Measure = unit == "in" ? Unit::Inch : Unit::Millimeter;
    if (given.Has("--places")) {
        display.Places = CountFrom(given, "--places", LeastPlaces, MostPlaces);
    }
    display.Minutes = given.Has("--dms");
    return display;
}

Style StyleFrom(const Arguments& given, Style otherwise) {
    const bool json = given.Has("--json");
    const bool csv = given.Has("--csv");
    if (json && csv) {
        throw Failure(Exit::Usage, "--json and --csv exclude each other");
    }
    return json ? Style::Json : csv ? Style::Csv : otherwise;
}

std::string NumberFrom(const Arguments& given, std::string_view option, Sign sign) {
    Require(given, option);
    const std::string_view text = *given.Text(option);
    const Measured measured(option, text);
    if (!measured.Rest.empty()) {
        Refuse(option, text, "this is no number");
    }
    return Accepted(option, text, measured.Number, sign);
}

std::string LengthFrom(const Arguments& given, std::string_view option, Unit unit, Sign sign) {
    Require(given, option);
    const std::string_view text = *given.Text(option);
    const Measured measured(option, text);
    if (measured.Rest.empty()) {
        return Accepted(option, text, measured.Number, sign);
    }
    for (const UnitRow& row : UnitWords) {
        if (row.Word == measured.Rest) {
            if (row.Means == unit) {
                return Accepted(option, text, measured.Number, sign);
            }
            Refuse(option, text, std::string("the unit here is ").append(WordOf(unit)));
        }
    }
    Refuse(option, text, "this is no length");
}

std::string AngleFrom(const Arguments& given, std::string_view option, Sign sign) {
    Require(given, option);
    const std::string_view text = *given.Text(option);
    const Measured measured(option, text);
    std::string_view rest = measured.Rest;
    if (rest.empty() || rest == "deg" || rest == "d" || rest == "\xC2\xB0") {
        return Accepted(option, text, measured.Number, sign);
    }
    std::array<std::string, 3> parts{measured.Number, "0", "0"};
    for (std::size_t part = 0; part < parts.size() && !rest.empty(); ++part) {
        if (!TakeMark(rest, AngleMarks[part])) {
            Refuse(option, text, "this is no angle");
        }
        if (!rest.empty() && part + 1 < parts.size()) {
            parts[part + 1] = TakeUnsigned(rest);
            if (parts[part + 1].empty() || !IsWhole(parts[part])) {
                Refuse(option, text, "this is no angle");
            }
        }
    }
    if (!rest.empty() || text.find_last_not_of(' ') == text.rfind(':')) {
        Refuse(option, text, "this is no angle");
    }
    return Accepted(option, text, FromMinutes(option, text, parts), sign);
}

int CountFrom(const Arguments& given, std::string_view option, int least, int most) {
    Require(given, option);
    const std::string_view text = *given.Text(option);
    const std::string number = NumberFrom(given, option, Sign::Any);
    const double value = ValueIn(option, number);
    if (Fix(value) != value) {
        Refuse(option, text, "this must be a whole number");
    }
    if (value < least || value > most) {
        Refuse(option, text, "this must be from " + std::to_string(least) + " to " + std::to_string(most));
    }
    return static_cast<int>(value);
}

void Require(const Arguments& given, std::string_view option) {
    if (!given.Has(option)) {
        throw Failure(Exit::Usage, std::string(option).append(" is missing"));
    }
}

std::string_view OnlyOneOf(const Arguments& given, std::span<const std::string_view> options) {
    std::string_view found;
    std::string names;
    for (const std::string_view& option : options) {
        names.append(names.empty() ? "" : &option == &options.back() ? " or " : ", ").append(option);
        if (given.Has(option)) {
            if (!found.empty()) {
                throw Failure(Exit::Usage, std::string(found).append(" and ").append(option) + " exclude each other");
            }
            found = option;
        }
    }
    if (found.empty()) {
        throw Failure(Exit::Usage, names + " is missing");
    }
    return found;
}

bool IsNumber(std::string_view text) {
    return !text.empty() && NumberLength(text) == text.size();
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

std::string OnOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\r', ' ');
    text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
    return text;
}

std::string Trimmed(std::string_view text) {
    return std::string(WithoutBlanks(text));
}

std::string DegreesShown(std::string_view text) {
    return Utf8FromText(WithoutBlanks(text));
}

}  // namespace brindlex::cli
