// Program values as JSON, and back.
#include "headless/scriptjson.h"

#include "headless/scripterror.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>

namespace brindlex {

using nlohmann::json;

namespace {

// Whole numbers up to here are doubles and 64-bit integers alike.
constexpr double LargestWhole = 9007199254740992.0;

// A code below 0x800 as UTF-8 has at most two bytes: the upper five bits and the lower six.
constexpr unsigned LowerBits = 6;
constexpr unsigned char TwoBytes = 0xC0;
constexpr unsigned char Following = 0x80;
constexpr unsigned char LowerMask = 0x3F;
// The first bytes of the codes 128 to 191 and 192 to 255.
constexpr unsigned char FirstOf128 = 0xC2;
constexpr unsigned char FirstOf192 = 0xC3;

}  // namespace

json JsonOf(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < Following) {
            utf8 += character;
        } else {
            utf8 += static_cast<char>(TwoBytes | (code >> LowerBits));
            utf8 += static_cast<char>(Following | (code & LowerMask));
        }
    }
    return utf8;
}

json JsonOf(double number) {
    const bool negativeZero = number == 0 && std::signbit(number);
    if (number == std::trunc(number) && std::fabs(number) < LargestWhole && !negativeZero) {
        return static_cast<std::int64_t>(number);
    }
    return number;
}

json JsonOf(const PropertyValue& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return JsonOf(std::string_view(*text));
    }
    if (const auto* const number = std::get_if<double>(&value)) {
        return JsonOf(*number);
    }
    json list = json::array();
    for (const std::string& item : std::get<std::vector<std::string>>(value)) {
        list.push_back(JsonOf(std::string_view(item)));
    }
    return list;
}

json JsonOfFlag(bool flag) {
    return flag ? -1 : 0;
}

std::string TextOf(const json& value) {
    if (!value.is_string()) {
        throw ScriptError("a text in double quotes is wanted");
    }
    const auto& utf8 = value.get_ref<const std::string&>();
    std::string text;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const auto first = static_cast<unsigned char>(utf8[at]);
        if (first < Following) {
            text += utf8[at];
        } else if (first == FirstOf128 || first == FirstOf192) {
            const auto second = static_cast<unsigned char>(utf8[++at]);
            text += static_cast<char>(((first << LowerBits) & TwoBytes) | (second & LowerMask));
        } else {
            throw ScriptError("a text has a character above 255");
        }
    }
    return text;
}

PropertyValue PropertyOf(const json& value) {
    if (value.is_string()) {
        return TextOf(value);
    }
    if (value.is_boolean()) {
        return value.get<bool>() ? -1.0 : 0.0;
    }
    if (value.is_number()) {
        return value.get<double>();
    }
    throw ScriptError("a text or a number is wanted");
}

std::string Written(const json& value) {
    return value.dump(-1, ' ', true);
}

}  // namespace brindlex
