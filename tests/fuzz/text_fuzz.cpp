// Fuzzes the text and number rules with arbitrary text.
#include "frame/fault.h"
#include "frame/text.h"
#include "frame/textfile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace brindlex {
namespace {

void Require(bool holds, const char* invariant) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", invariant);
        std::abort();
    }
}

/// Whether two numbers are the same to 15 digits, by the system's own printing.
bool SameDigits(double a, double b) {
    char first[40];
    char second[40];
    std::snprintf(first, sizeof first, "%.14e", a);
    std::snprintf(second, sizeof second, "%.14e", b);
    return std::strcmp(first, second) == 0;
}

void CheckStr(double number) {
    const std::string text = Str(number);
    Require(text.size() >= 2 && (text[0] == ' ' || text[0] == '-'), "Str starts with a blank or a minus sign");
    Require(text[1] != '0' || text == " 0", "Str has no zero before the point");
    double back = 0.0;
    if (Guarded([&] { back = Val(text); })) {
        Require(SameDigits(back, number + 0.0), "Val(Str(x)) is x to 15 digits");
    } else {
        Require(std::fabs(number) > 1.797693134862315e308, "only the largest numbers round beyond the range");
    }
}

void CheckFormat(double number, const std::string& mask) {
    const std::string text = Format(number, mask);
    Require(text.find_first_not_of("-.0123456789") == std::string::npos, "Format writes a plain number");
    Require(text.find('-') == std::string::npos || text.find_first_of("123456789") != std::string::npos,
            "Format writes no minus sign before nothing but zeros");
    const std::size_t point = mask.find('.');
    Require((point == std::string::npos) == (text.find('.') == std::string::npos), "the point is the mask's");
    const std::size_t places = point == std::string::npos ? 0 : mask.size() - point - 1;
    Require(point == std::string::npos || text.size() - text.find('.') - 1 == places, "the places are the mask's");
    double back = 0.0;
    if (Guarded([&] { back = Val(text); })) {
        const double step = std::pow(10.0, -static_cast<double>(places));
        Require(std::fabs(back - number) <= step * 0.5001 + std::fabs(number) * 1e-14, "Format parses back");
    } else {
        Require(std::fabs(number) > 1.797693134862315e308, "only the largest numbers round beyond the range");
    }
}

void CheckRound(double number, int decimals) {
    const double rounded = Round(number, decimals);
    Require(std::isfinite(rounded), "Round gives a number");
    Require(rounded != 0.0 || !std::signbit(rounded), "Round gives no negative zero");
    Require(Round(rounded, decimals) == rounded, "Round does nothing twice");
    Require(std::fabs(rounded - number) <= 0.5001 * std::pow(10.0, -decimals) + std::fabs(number) * 1e-14,
            "Round moves by half a step at most");
}

void CheckNumber(double number, std::uint8_t shape) {
    if (!std::isfinite(number)) {
        Require(!Guarded([&] { static_cast<void>(Str(number)); }), "Str refuses what is no number");
        return;
    }
    CheckStr(number);
    const std::string before(shape & 3U, '0');
    const std::string behind(shape >> 4U, '0');
    CheckFormat(number, before + '.' + behind);
    CheckFormat(number, before + '0');
    CheckRound(number, shape % 23);
    Require(std::fabs(Fix(number)) <= std::fabs(number), "Fix goes toward zero");
    Require(Int(number) <= number, "Int goes down");
    std::int16_t integer = 0;
    if (Guarded([&] { integer = CInt(number); })) {
        Require(std::fabs(integer - number) <= 0.5, "CInt goes to the nearest");
    }
}

void CheckSlices(std::string_view text, std::uint8_t shape) {
    const int start = (shape & 15U) + 1;
    const int length = shape >> 4U;
    const std::string slice = Mid(text, start, length);
    Require(Len(slice) <= length, "Mid takes no more than it is told to");
    const int found = InStr(text, slice, start);
    Require(found == (start <= Len(text) ? start : 0), "InStr finds what Mid took");
    Require(Left(text, length) + Mid(text, length + 1) == text, "Left and Mid part a text");
    Require(Len(Right(text, length)) == std::min(length, Len(text)), "Right takes what is there");
    Require(TextFromUtf8(Utf8FromText(text)) == text, "a text comes back from UTF-8");
    Require(Len(TextFromUtf8(text)) <= Len(text), "UTF-8 has a byte at least for each character");
}

void CheckAll(std::uint8_t shape, const std::string& text) {
    double number = 0.0;
    if (Guarded([&] { number = Val(text); })) {
        Require(std::isfinite(number), "Val gives a number");
        CheckNumber(number, shape);
    }
    if (text.size() >= sizeof number) {
        std::memcpy(&number, text.data(), sizeof number);
        CheckNumber(number, shape);
    }
    CheckSlices(text, shape);
    Guarded([&] { static_cast<void>(Format(1.5, text.substr(0, 40))); });
}

}  // namespace
}  // namespace brindlex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    brindlex::CheckAll(data[0], std::string(data + 1, data + size));
    return 0;
}
