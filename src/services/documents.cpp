// File dialogs and documents.
#include "services/documents.h"

#include "frame/fault.h"
#include "frame/form.h"
#include "frame/program.h"
#include "services/settings.h"
#include "services/words.h"

#include <algorithm>
#include <iterator>

namespace brindlex {

namespace {

// 4 no read-only box, 8 the working directory stays, 2 asks before a file is replaced.
constexpr int OpenFlags = 12;
constexpr int SaveFlags = 14;

void Prepare(CommonDialog& dialog, const DocumentKind& kind, int flags) {
    dialog.CancelError(true);
    dialog.Flags(flags);
    dialog.Filter(kind.Filter);
}

}  // namespace

std::optional<std::vector<std::string>> OpenDocument(CommonDialog& dialog, const DocumentKind& kind) {
    Prepare(dialog, kind, OpenFlags);
    Program& program = dialog.Parent().Owner();
    const std::string before = dialog.FileName();
    try {
        dialog.ShowOpen();
        auto lines = ReadDocument(program.Files(), dialog.FileName(), kind.MostLines);
        if (kind.Belongs == nullptr || kind.Belongs(lines)) {
            return lines;
        }
    } catch (const Fault&) {
        // The title names the dialog's file, so one that was not read must not stay there.
        dialog.FileName(before);
        return std::nullopt;
    }
    dialog.FileName(before);
    program.BeepBox(kind.Refusal, kind.RefusalStyle);
    return std::nullopt;
}

void SaveDocument(CommonDialog& dialog, const DocumentKind& kind, const std::vector<std::string>& lines) {
    Prepare(dialog, kind, SaveFlags);
    Program& program = dialog.Parent().Owner();
    const std::string before = dialog.FileName();
    std::vector<std::string> whole;
    std::transform(lines.begin(), lines.end(), std::back_inserter(whole),
                   [](const std::string& line) { return FirstLine(line); });
    try {
        dialog.ShowSave();
        WriteDocument(program.Files(), dialog.FileName(), whole);
    } catch (const Fault& fault) {
        const std::string refused = dialog.FileName();
        dialog.FileName(before);
        if (kind.FailedSaveIsTold && fault.Number() != FaultNumber::DialogCancelled) {
            program.BeepBox("The File Could Not Be Saved:\r\n" + refused + "\r\n" + fault.what());
        }
    }
}

}  // namespace brindlex
