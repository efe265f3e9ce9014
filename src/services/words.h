// The words of documents.
// Includes no control, form or runtime.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// What stands before the first line end: a pasted entry may hold one, which in a file would part it.
[[nodiscard]] std::string FirstLine(std::string_view text);

/// The words of a Boolean in a document.
[[nodiscard]] std::string BooleanWord(bool value);
/// "True" and "False" in any case, or a number, which is true when it isn't 0; nothing for any other word, nor for a
/// number that is too large.
[[nodiscard]] std::optional<bool> BooleanFromWord(const std::string& word);

}  // namespace brindlex
