// The live drawing on the disk.
#include "geometry/store.h"

#include "frame/fault.h"
#include "geometry/record.h"
#include "geometry/rules.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <system_error>

namespace brindlex::geometry {

namespace {

constexpr std::array ScratchFiles{scratch::Delete,   scratch::Rewrite, scratch::Repair, scratch::Extend,
                                  scratch::LineCopy, scratch::Report,  scratch::Convert};

std::vector<std::string> LinesOf(const Folder& folder, std::string_view name) {
    std::vector<std::string> lines;
    InputFile file = folder.OpenInput(name);
    while (!file.Eof()) {
        lines.push_back(file.LineInput());
    }
    return lines;
}

/// Whether a file has a last line without its end, as an editor may leave it: a record would be glued to it.
bool EndsWithinLine(const Folder& folder, std::string_view name) {
    std::ifstream file(folder.PathOf(name), std::ios::binary | std::ios::ate);
    if (!file || file.tellg() <= 0) {
        return false;
    }
    file.seekg(-1, std::ios::end);
    const int last = file.get();
    return last != '\n' && last != '\r';
}

/// Deletes the hidden files that a run which was killed in the middle of a rewrite has left. No other run is in the
/// middle of one: a working directory has one run at a time.
void DropTornRewrites(const Folder& folder) {
    std::error_code error;
    std::vector<std::string> torn;
    for (std::filesystem::directory_iterator entry(folder.PathOf("."), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(".brindlex-") && name.ends_with(".tmp")) {
            torn.push_back(name);
        }
    }
    for (const std::string& name : torn) {
        folder.KillIfThere(name);
    }
}

bool Empty(const Folder& folder, std::string_view name) {
    return Guarded([&] { folder.OpenOutput(name).Close(); });
}

}  // namespace

std::vector<std::string> Store::Lines() const {
    return TryLines().value_or(std::vector<std::string>{});
}

std::optional<std::vector<std::string>> Store::TryLines() const {
    try {
        return LinesOf(*folder_, StoreFile);
    } catch (const Fault& fault) {
        if (fault.Number() == FaultNumber::FileNotFound) {
            return std::vector<std::string>{};
        }
        return std::nullopt;
    }
}

std::string Store::FirstLine() const {
    std::string line;
    Guarded([&] { line = folder_->OpenInput(StoreFile).LineInput(); });
    return line;
}

int Store::Count() const {
    const std::vector<std::string> lines = Lines();
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [](const std::string& line) { return KindOf(line) != Kind::None; }));
}

bool Store::Append(std::string_view record) const {
    const std::filesystem::path path = folder_->PathOf(StoreFile);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    const bool appended = Guarded([&] {
        OutputFile file = folder_->OpenAppend(StoreFile);
        const std::string before = EndsWithinLine(*folder_, StoreFile) ? "\r\n" : "";
        file.Print(before + std::string(record));
        file.Close();
    });
    if (!appended && !error) {
        // A disk that is full may have taken a part of it.
        std::filesystem::resize_file(path, size, error);
    }
    return appended;
}

bool Store::Append(const std::vector<std::string>& records) const {
    if (records.empty()) {
        return true;
    }
    // One print, so that they come to the disk together.
    std::string text = records.front();
    for (std::size_t i = 1; i < records.size(); ++i) {
        text += "\r\n" + records[i];
    }
    return Append(text);
}

bool Store::Rewrite(std::string_view scratchFile, const std::vector<std::string>& lines) const {
    folder_->KillIfThere(scratchFile);
    return Guarded([&] { folder_->RewriteLines(StoreFile, lines, Durability::Step); });
}

bool Store::CheckTangents() const {
    folder_->KillIfThere(scratch::Rewrite);
    const auto lines = TryLines();
    return lines && Rewrite(scratch::Repair, geometry::CheckTangents(*lines));
}

bool Store::Clear() const {
    folder_->KillIfThere(StoreFile);
    return Empty(*folder_, StoreFile);
}

bool Store::Begin() const {
    Guarded([&] { DropTornRewrites(*folder_); });
    KillLineCopy();
    const bool copied = Empty(*folder_, scratch::LineCopy);
    return Clear() && copied;
}

void Store::End() const {
    folder_->KillIfThere(StoreFile);
    for (const std::string_view file : ScratchFiles) {
        folder_->KillIfThere(file);
    }
}

bool Store::Owns(std::string_view name) const {
    bool owns = false;
    Guarded([&] {
        std::error_code error;
        const auto whole = [&](std::string_view file) {
            return std::filesystem::weakly_canonical(folder_->PathOf(file), error);
        };
        const std::filesystem::path path = whole(name);
        owns = path == whole(StoreFile) || std::any_of(ScratchFiles.begin(), ScratchFiles.end(),
                                                       [&](std::string_view file) { return path == whole(file); });
    });
    return owns;
}

bool Store::WriteLineCopy(const std::vector<std::string>& lines) const {
    std::vector<std::string> copy;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(copy),
                 [](const std::string& line) { return KindOf(line) == Kind::Line; });
    KillLineCopy();
    return Guarded([&] { folder_->RewriteLines(scratch::LineCopy, copy, Durability::Step); });
}

std::optional<std::vector<std::string>> Store::TakeLineCopy() const {
    std::optional<std::vector<std::string>> lines;
    Guarded([&] { lines = LinesOf(*folder_, scratch::LineCopy); });
    KillLineCopy();
    return lines;
}

void Store::KillLineCopy() const {
    folder_->KillIfThere(scratch::LineCopy);
}

}  // namespace brindlex::geometry
