// Numbers by std::to_chars, which rounds correctly and knows no locale.
#include "cli/exportnumbers.h"

#include "cli/failure.h"
#include "cli/values.h"
#include "frame/fault.h"
#include "frame/text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace brindlex::cli {

namespace {

constexpr double SmallestPlain = 1e-6;
constexpr double SmallestLarge = 1e16;
/// The longest fixed form of a double has 309 digits before the point.
constexpr std::size_t LongestText = 330;

using Buffer = std::array<char, LongestText>;

}  // namespace

void RefuseUnlessFinite(double number) {
    if (!std::isfinite(number)) {
        throw Failure(Exit::BadInput, "a value is too large to be worked with");
    }
}

std::string ShortestText(double number) {
    RefuseUnlessFinite(number);
    if (number == 0) {
        return "0";
    }
    const double size = std::fabs(number);
    const bool plain = size >= SmallestPlain && size < SmallestLarge;
    Buffer buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       plain ? std::chars_format::fixed : std::chars_format::scientific);
    return {buffer.data(), written.ptr};
}

std::string DecimalText(double number, int places) {
    RefuseUnlessFinite(number);
    Buffer buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, places);
    std::string text(buffer.data(), written.ptr);
    if (places == 0) {
        text += '.';
    }
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text += '0';
    }
    return text == "-0.0" ? "0.0" : text;
}

std::optional<double> WholeNumberText(std::string_view text) {
    const std::string number = Trimmed(text);
    double value = 0;
    if (!IsNumber(number) || !Guarded([&] { value = Val(number); })) {
        return std::nullopt;
    }
    return value;
}

}  // namespace brindlex::cli
