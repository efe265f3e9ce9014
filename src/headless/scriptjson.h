// Between the program's values and the JSON of scripts: a text has one JSON character per byte code, a number that is
// whole has no point, a Boolean is -1 or 0.
#pragma once

#include "frame/player.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace brindlex {

[[nodiscard]] nlohmann::json JsonOf(std::string_view text);
[[nodiscard]] nlohmann::json JsonOf(double number);
[[nodiscard]] nlohmann::json JsonOf(const PropertyValue& value);
/// -1 or 0.
[[nodiscard]] nlohmann::json JsonOfFlag(bool flag);

/// A JSON string as program text. Throws ScriptError where it has a character without a byte code.
[[nodiscard]] std::string TextOf(const nlohmann::json& value);
/// A string, a number, or true and false as -1 and 0; throws ScriptError for anything else.
[[nodiscard]] PropertyValue PropertyOf(const nlohmann::json& value);

/// In one line of ASCII.
[[nodiscard]] std::string Written(const nlohmann::json& value);

}  // namespace brindlex
