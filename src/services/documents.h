// Opening and saving of documents by way of the file dialogs, the same for all calculators.
#pragma once

#include "frame/commondialog.h"
#include "frame/runtime.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What tells the documents of one calculator from another's.
struct DocumentKind {
    const char* Filter = "";    ///< of the file dialog
    std::size_t MostLines = 0;  ///< that are read
    /// Whether such lines are a document of this kind; null takes any. Another kind of file is refused before it takes
    /// the place of what was entered.
    bool (*Belongs)(const std::vector<std::string>& lines) = nullptr;
    const char* Refusal = "";               ///< the text of that refusal
    int RefusalStyle = style::Exclamation;  ///< and its box
    bool FailedSaveIsTold = true;           ///< or ends quietly
};

/// Asks for a file and reads its lines up to the first empty one. Nothing on Cancel and where the file can't be read,
/// both quietly, and where it is of another kind. The dialog then names the file that it named before.
[[nodiscard]] std::optional<std::vector<std::string>> OpenDocument(CommonDialog& dialog, const DocumentKind& kind);

/// Asks for a file and writes the lines, of each what stands before a line end. Cancel ends quietly; a failed save
/// leaves the old file whole.
void SaveDocument(CommonDialog& dialog, const DocumentKind& kind, const std::vector<std::string>& lines);

}  // namespace brindlex
