// Text and number rules of the form runtime. Every number goes through its 15-digit decimal form, which
// std::to_chars rounds correctly and without a look at the locale.
#include "frame/text.h"

#include "frame/fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace brindlex {

namespace {

constexpr int Significant = 15;
constexpr int LowestPlainExponent = -4;
constexpr int HighestPlainExponent = 14;
constexpr int MostDecimals = 22;

enum class Ties { AwayFromZero, ToEven };

/// A number as 0.d1d2d3... times ten to the power of `point`; `count` is 0 for zero.
struct Decimal {
    std::array<char, Significant> digits{};
    int count = 0;
    int point = 0;
    bool negative = false;
};

/// The 15-digit decimal form without its trailing zeros. Throws Overflow for what is no finite number.
Decimal DecimalForm(double number) {
    if (!std::isfinite(number)) {
        throw Fault(FaultNumber::Overflow);
    }
    Decimal form;
    if (number == 0.0) {
        return form;
    }
    form.negative = number < 0.0;
    // "d.dddddddddddddde+xxx" is at most 21 characters.
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                            std::chars_format::scientific, Significant - 1);
    form.digits[0] = buffer[0];
    std::copy_n(buffer.data() + 2, Significant - 1, form.digits.data() + 1);
    const char* exponent = buffer.data() + Significant + 2;  // behind the digits, the point and the "e"
    int value = 0;
    std::from_chars(exponent + 1, end, value);
    form.point = (*exponent == '-' ? -value : value) + 1;
    form.count = Significant;
    while (form.digits[static_cast<std::size_t>(form.count) - 1] == '0') {
        --form.count;
    }
    return form;
}

/// Whether the digits from `cut` on round the digit before them up.
bool RoundsUp(const Decimal& form, int cut, Ties ties) {
    const char first = form.digits[static_cast<std::size_t>(cut)];
    const bool tie = first == '5' && cut + 1 == form.count;
    if (!tie || ties == Ties::AwayFromZero) {
        return first >= '5';
    }
    return cut > 0 && (form.digits[static_cast<std::size_t>(cut) - 1] - '0') % 2 == 1;
}

/// Rounds to a number of places behind the point.
void RoundTo(Decimal& form, int places, Ties ties) {
    const int cut = form.point + places;  // how many digits stay
    if (cut >= form.count) {
        return;
    }
    if (cut < 0) {
        form = {};
        return;
    }
    const bool up = RoundsUp(form, cut, ties);
    form.count = cut;
    if (up) {
        while (form.count > 0 && form.digits[static_cast<std::size_t>(form.count) - 1] == '9') {
            --form.count;
        }
        if (form.count == 0) {
            form.digits[0] = '1';
            form.count = 1;
            ++form.point;
        } else {
            ++form.digits[static_cast<std::size_t>(form.count) - 1];
        }
    }
    while (form.count > 0 && form.digits[static_cast<std::size_t>(form.count) - 1] == '0') {
        --form.count;
    }
    if (form.count == 0) {
        form = {};
    }
}

/// Appends the digits from place `from` up to `to`, both counted from the first digit; zeros beyond either end.
void AppendDigits(std::string& text, const Decimal& form, int from, int to) {
    const int zerosBefore = std::clamp(-from, 0, std::max(to - from, 0));
    text.append(static_cast<std::size_t>(zerosBefore), '0');
    const int first = std::max(from, 0);
    const int last = std::min(to, form.count);
    if (last > first) {
        text.append(form.digits.data() + first, static_cast<std::size_t>(last - first));
    }
    const int zerosBehind = to - std::max(first, form.count);
    if (zerosBehind > 0) {
        text.append(static_cast<std::size_t>(zerosBehind), '0');
    }
}

void AppendExponent(std::string& text, int exponent) {
    text += 'E';
    text += exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    if (size < 10) {
        text += '0';
    }
    std::array<char, 8> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size);
    text.append(buffer.data(), end);
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The longest prefix of `text` that is an unsigned number; empty where there is none.
std::string_view UnsignedPrefix(std::string_view text) {
    std::size_t end = 0;
    bool point = false;
    bool digit = false;
    while (end < text.size() && (IsDigit(text[end]) || (text[end] == '.' && !point))) {
        point = point || text[end] == '.';
        digit = digit || IsDigit(text[end]);
        ++end;
    }
    if (!digit) {
        return {};
    }
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        std::size_t next = end + 1;
        if (next < text.size() && (text[next] == '+' || text[next] == '-')) {
            ++next;
        }
        // A mark without digits behind it is not an exponent, and the number ends before it.
        if (next < text.size() && IsDigit(text[next])) {
            end = std::min(text.find_first_not_of("0123456789", next), text.size());
        }
    }
    return text.substr(0, end);
}

/// Whether an unsigned number that has no place among the doubles is too large, rather than too small. It is not zero.
bool TooLarge(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("Ee"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t first = mantissa.find_first_of("123456789");
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    auto place = static_cast<long long>(point) - static_cast<long long>(first);
    if (mark < number.size()) {
        std::string_view digits = number.substr(mark + 1);
        const bool negative = digits.front() == '-';
        digits.remove_prefix(IsDigit(digits.front()) ? 0 : 1);
        constexpr long long Beyond = 1'000'000'000'000;
        long long exponent = 0;
        const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
        if (parsed.ec != std::errc() || exponent > Beyond) {
            exponent = Beyond;
        }
        place += negative ? -exponent : exponent;
    }
    return place > 0;
}

/// Reads an unsigned number; throws Overflow beyond the range.
double Read(std::string_view number) {
    double value = 0.0;
    const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
    if (parsed.ec == std::errc::result_out_of_range) {
        if (TooLarge(number)) {
            throw Fault(FaultNumber::Overflow);
        }
        return 0.0;
    }
    return value;
}

struct Mask {
    int before = 0;
    int behind = 0;
    bool point = false;
};

Mask ParseMask(std::string_view mask) {
    Mask shape;
    for (const char c : mask) {
        if (c == '0') {
            ++(shape.point ? shape.behind : shape.before);
        } else if (c == '.' && !shape.point) {
            shape.point = true;
        } else {
            throw Fault(FaultNumber::BadArgument);
        }
    }
    return shape;
}

}  // namespace

double Val(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) {
        return 0.0;
    }
    text.remove_prefix(start);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') {
        text.remove_prefix(1);
    }
    const std::string_view number = UnsignedPrefix(text);
    if (number.empty()) {
        return 0.0;
    }
    const double value = Read(number);
    return negative && value != 0.0 ? -value : value;
}

std::string Str(double number) {
    const Decimal form = DecimalForm(number);
    std::string text(1, form.negative ? '-' : ' ');
    if (form.count == 0) {
        text += '0';
        return text;
    }
    const int exponent = form.point - 1;
    const bool plain = exponent >= LowestPlainExponent && exponent <= HighestPlainExponent;
    const int point = plain ? form.point : 1;
    AppendDigits(text, form, 0, point);  // none for a number below 1
    if (form.count > point) {
        text += '.';
        AppendDigits(text, form, point, form.count);
    }
    if (!plain) {
        AppendExponent(text, exponent);
    }
    return text;
}

std::string Format(double number, std::string_view mask) {
    const Mask shape = ParseMask(mask);
    Decimal form = DecimalForm(number);
    RoundTo(form, shape.behind, Ties::AwayFromZero);
    std::string text;
    text.reserve(mask.size() + Significant + 2);
    if (form.negative) {
        text += '-';
    }
    AppendDigits(text, form, std::min(0, form.point - shape.before), form.point);
    if (shape.point) {
        text += '.';
        AppendDigits(text, form, form.point, form.point + shape.behind);
    }
    return text;
}

double Round(double number, int decimals) {
    if (decimals < 0 || decimals > MostDecimals) {
        throw Fault(FaultNumber::BadArgument);
    }
    Decimal form = DecimalForm(number);
    RoundTo(form, decimals, Ties::ToEven);
    if (form.count == 0) {
        return 0.0;
    }
    std::array<char, 32> buffer{};
    char* end = std::copy_n(form.digits.data(), form.count, buffer.data());
    *end++ = 'e';
    end = std::to_chars(end, buffer.data() + buffer.size(), form.point - form.count).ptr;
    double value = 0.0;
    const auto parsed = std::from_chars(buffer.data(), end, value);
    if (parsed.ec != std::errc()) {
        return number;  // the 15-digit form of the very largest doubles lies just beyond the range
    }
    return form.negative ? -value : value;
}

double Fix(double number) {
    return std::trunc(number) + 0.0;
}

double Int(double number) {
    return std::floor(number) + 0.0;
}

std::int16_t CInt(double number) {
    const double rounded = std::nearbyint(number);
    constexpr double Lowest = std::numeric_limits<std::int16_t>::min();
    constexpr double Highest = std::numeric_limits<std::int16_t>::max();
    if (!(rounded >= Lowest && rounded <= Highest)) {
        throw Fault(FaultNumber::Overflow);
    }
    return static_cast<std::int16_t>(rounded);
}

int InStr(std::string_view text, std::string_view what, int start) {
    if (start < 1) {
        throw Fault(FaultNumber::BadArgument);
    }
    const auto from = static_cast<std::size_t>(start) - 1;
    if (from >= text.size()) {
        return 0;
    }
    const std::size_t found = text.find(what, from);
    return found == std::string_view::npos ? 0 : static_cast<int>(found) + 1;
}

std::string Left(std::string_view text, int length) {
    if (length < 0) {
        throw Fault(FaultNumber::BadArgument);
    }
    return std::string(text.substr(0, static_cast<std::size_t>(length)));
}

std::string Right(std::string_view text, int length) {
    if (length < 0) {
        throw Fault(FaultNumber::BadArgument);
    }
    const std::size_t kept = std::min(text.size(), static_cast<std::size_t>(length));
    return std::string(text.substr(text.size() - kept));
}

std::string Mid(std::string_view text, int start, int length) {
    if (start < 1 || length < 0) {
        throw Fault(FaultNumber::BadArgument);
    }
    const std::size_t from = std::min(text.size(), static_cast<std::size_t>(start) - 1);
    return std::string(text.substr(from, static_cast<std::size_t>(length)));
}

std::string Mid(std::string_view text, int start) {
    return Mid(text, start, std::numeric_limits<int>::max());
}

int Len(std::string_view text) {
    return static_cast<int>(text.size());
}

std::string Space(int count) {
    if (count < 0) {
        throw Fault(FaultNumber::BadArgument);
    }
    return std::string(static_cast<std::size_t>(count), ' ');
}

int Asc(std::string_view text) {
    if (text.empty()) {
        throw Fault(FaultNumber::BadArgument);
    }
    return static_cast<unsigned char>(text.front());
}

std::string Chr(int code) {
    if (code < 0 || code > 255) {
        throw Fault(FaultNumber::BadArgument);
    }
    return std::string(1, static_cast<char>(static_cast<unsigned char>(code)));
}

}  // namespace brindlex
