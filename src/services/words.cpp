// First lines and Booleans.
#include "services/words.h"

#include "frame/fault.h"
#include "frame/text.h"

#include <algorithm>
#include <cctype>

namespace brindlex {

std::string FirstLine(std::string_view text) {
    return std::string(text.substr(0, text.find_first_of("\r\n")));
}

std::string BooleanWord(bool value) {
    return value ? "True" : "False";
}

std::optional<bool> BooleanFromWord(const std::string& word) {
    std::string lower(word);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (lower == "true") {
        return true;
    }
    if (lower == "false") {
        return false;
    }
    if (lower.empty() || lower.find_first_not_of(" +-.0123456789") != std::string::npos) {
        return std::nullopt;
    }
    std::optional<bool> value;
    // More digits than a number can have are none.
    Guarded([&] { value = Val(lower) != 0; });
    return value;
}

}  // namespace brindlex
