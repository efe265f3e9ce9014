// Drawing files: opening, saving, and what a run that ended without order has left behind.
// Units: a file names its own in a line of its own, "I" or "M".
#pragma once

#include "frame/commondialog.h"
#include "frame/textfile.h"
#include "geometry/session.h"
#include "geometry/unit.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex::geometry {

/// Saves a live drawing that was left over, if it holds entities, as recovered.geo, recovered-2.geo and so on: the
/// first name that is free. The name; nothing where there was nothing to save.
[[nodiscard]] std::optional<std::string> RecoverLeftOver(const Folder& folder);

/// The file items of the board.
class GeoFile {
public:
    struct Calls {
        std::function<void()> NewStuff;                         ///< an empty drawing in inches
        std::function<void(const std::string& file)> ShowFile;  ///< the file's name goes into the title
    };

    GeoFile(Session& work, CommonDialog& dialog, Calls calls)
        : work_(work), dialog_(dialog), calls_(std::move(calls)) {}

    /// Cancel changes nothing. A file that can't be read leaves an empty drawing, without a word: intended.
    void Open();
    /// A failed save ends without a word too, and leaves the old file whole.
    void SaveAs();

private:
    /// Asks for a file; false on Cancel. The dialog keeps its file name then.
    [[nodiscard]] bool Ask(int flags, void (CommonDialog::*show)());
    void TakeLines(const std::vector<std::string>& lines);
    void ShowWhole();

    Session& work_;
    CommonDialog& dialog_;
    Calls calls_;
};

}  // namespace brindlex::geometry
