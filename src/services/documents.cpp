// File dialogs and documents.
#include "services/documents.h"

#include "frame/fault.h"
#include "frame/form.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/settings.h"

#include <algorithm>
#include <cctype>

namespace brindlex {

namespace {

// 4 no read-only box, 8 the working directory stays, 2 asks before a file is replaced.
constexpr int OpenFlags = 12;
constexpr int SaveFlags = 14;

void Prepare(CommonDialog& dialog, const std::string& filter, int flags) {
    dialog.CancelError(true);
    dialog.Flags(flags);
    dialog.Filter(filter);
}

}  // namespace

std::optional<std::vector<std::string>> OpenDocument(CommonDialog& dialog, const std::string& filter,
                                                     std::size_t most) {
    Prepare(dialog, filter, OpenFlags);
    const std::string before = dialog.FileName();
    try {
        dialog.ShowOpen();
        return ReadDocument(dialog.Parent().Owner().Files(), dialog.FileName(), most);
    } catch (const Fault&) {
        // The title names the dialog's file, so one that was not read must not stay there.
        dialog.FileName(before);
        return std::nullopt;
    }
}

void SaveDocument(CommonDialog& dialog, const std::string& filter, const std::vector<std::string>& lines) {
    Prepare(dialog, filter, SaveFlags);
    Program& program = dialog.Parent().Owner();
    const std::string before = dialog.FileName();
    try {
        dialog.ShowSave();
        WriteDocument(program.Files(), dialog.FileName(), lines);
    } catch (const Fault& fault) {
        if (fault.Number() != FaultNumber::DialogCancelled) {
            const std::string refused = dialog.FileName();
            dialog.FileName(before);
            program.BeepBox("The File Could Not Be Saved:\r\n" + refused + "\r\n" + fault.what());
        }
    }
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
    return Val(lower) != 0;
}

}  // namespace brindlex
