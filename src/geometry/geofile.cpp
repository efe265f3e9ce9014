// Drawing files.
#include "geometry/geofile.h"

#include "frame/fault.h"
#include "frame/program.h"
#include "geometry/record.h"
#include "services/settings.h"

#include <algorithm>

namespace brindlex::geometry {

namespace {

constexpr const char* Filter = "Geometry Files(*.geo)|*.geo";
// 4 no read-only box, 8 the working directory stays, 2 asks before a file is replaced.
constexpr int OpenFlags = 12;
constexpr int SaveFlags = 14;
constexpr int FewestToConnect = 2;

std::string RecoveredName(int count) {
    return count == 1 ? "recovered.geo" : "recovered-" + std::to_string(count) + ".geo";
}

bool Taken(const Folder& folder, const std::string& name) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(folder.PathOf(name), error));
}

/// Where the disk renames nothing: written under its own name, and gone again unless it is whole.
bool WrittenPlainly(const Folder& folder, const std::string& name, const std::vector<std::string>& lines) {
    const bool written = Guarded([&] {
        OutputFile file = folder.OpenOutput(name);
        for (const std::string& line : lines) {
            file.Print(line);
        }
        file.Close();
    });
    if (!written) {
        folder.KillIfThere(name);
    }
    return written;
}

}  // namespace

std::optional<std::string> RecoverLeftOver(const Folder& folder) {
    constexpr int MostRecovered = 10000;
    const auto records = Store(folder).TryLines();
    if (!records && !folder.Exists(StoreFile)) {
        return std::nullopt;  // something else bears the name
    }
    if (records &&
        std::none_of(records->begin(), records->end(), [](const auto& line) { return KindOf(line) != Kind::None; })) {
        return std::nullopt;
    }
    int count = 1;
    while (count < MostRecovered && Taken(folder, RecoveredName(count))) {
        ++count;
    }
    const std::string name = RecoveredName(count);
    const bool saved = records && Guarded([&] { WriteDocument(folder, name, GeoLines(*records, Unit::Inch)); });
    // A full disk, and one that can't be read, still lets the store itself take the name.
    if (saved || Guarded([&] { folder.Name(StoreFile, name); })) {
        return name;
    }
    const bool plainly = records && WrittenPlainly(folder, name, GeoLines(*records, Unit::Inch));
    return plainly ? std::optional(name) : std::nullopt;
}

bool GeoFile::Ask(int flags, void (CommonDialog::*show)()) {
    dialog_.CancelError(true);
    dialog_.Flags(flags);
    dialog_.Filter(Filter);
    return Guarded([&] { (dialog_.*show)(); });
}

void GeoFile::Open() {
    const std::string before = dialog_.FileName();
    if (!Ask(OpenFlags, &CommonDialog::ShowOpen)) {
        dialog_.FileName(before);
        return;
    }
    // Read before the board is cleared: the file may be the live drawing itself.
    std::vector<std::string> lines;
    const bool read = Guarded([&] { lines = work_.Owner().Files().OpenInput(dialog_.FileName()).AllLines(); });
    calls_.NewStuff();
    if (!read) {
        dialog_.FileName(before);
        return;
    }
    TakeLines(lines);
    ShowWhole();
}

void GeoFile::TakeLines(const std::vector<std::string>& lines) {
    std::vector<std::string> records;
    // A line that names a unit is acted upon wherever it stands: intended.
    for (const std::string& line : lines) {
        if (const auto unit = UnitOf(line)) {
            work_.TakeUnit(*unit);
            work_.FirstView(*unit);
        } else {
            records.push_back(line);
            work_.Entities.EnterRecord(line, work_.View());
        }
    }
    work_.Live().Rewrite(scratch::Rewrite, records);
}

void GeoFile::ShowWhole() {
    if (work_.Live().Count() >= FewestToConnect) {
        work_.EnableTool("Connect", true);
    }
    work_.EnableTool("Zoom", true);
    work_.EnableTool("UnZoom", true);
    // Twice: the second fit sees the arrays as the first one's scale has them.
    work_.Fit();
    work_.Fit();
    work_.On.SaveAs.Enabled(true);
    work_.OfferPlacing();
    calls_.ShowFile(dialog_.FileName());
    Session::Run(work_.Calls.FindAng);
    Session::Run(work_.Calls.FillLists);
}

void GeoFile::SaveAs() {
    const std::string before = dialog_.FileName();
    bool saved = false;
    if (Ask(SaveFlags, &CommonDialog::ShowSave)) {
        const Store live = work_.Live();
        const std::string file = dialog_.FileName();
        if (live.Owns(file)) {
            // That file goes when the form is left.
            work_.Owner().BeepBox("The File Could Not Be Saved:\r\n" + file);
        } else if (const auto records = live.TryLines()) {
            saved = Guarded([&] { WriteDocument(work_.Owner().Files(), file, GeoLines(*records, work_.Measure())); });
        }
    }
    if (saved) {
        calls_.ShowFile(dialog_.FileName());
    } else {
        dialog_.FileName(before);
    }
}

}  // namespace brindlex::geometry
