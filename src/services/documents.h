// Opening and saving of documents by way of the file dialogs, the same for all calculators.
#pragma once

#include "frame/commondialog.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Asks for a file and reads its lines, `most` at the most, up to the first empty one. Nothing on Cancel and where the
/// file can't be read: both end quietly.
[[nodiscard]] std::optional<std::vector<std::string>> OpenDocument(CommonDialog& dialog, const std::string& filter,
                                                                   std::size_t most);

/// Asks for a file and writes the lines. Cancel ends quietly; a failed save leaves the old file whole and says so.
void SaveDocument(CommonDialog& dialog, const std::string& filter, const std::vector<std::string>& lines);

/// The words of a Boolean in a document.
[[nodiscard]] std::string BooleanWord(bool value);
/// "True" and "False" in any case, or a number, which is true when it isn't 0; nothing for any other word.
[[nodiscard]] std::optional<bool> BooleanFromWord(const std::string& word);

}  // namespace brindlex
