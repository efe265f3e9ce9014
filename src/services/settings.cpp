// Settings by key lengths, documents by lines.
#include "services/settings.h"

#include "frame/fault.h"

#include <utility>

namespace brindlex {

namespace {

// Up to `most` lines, or up to the first empty one or the end.
std::vector<std::string> ReadLines(InputFile file, std::size_t most) {
    std::vector<std::string> lines;
    while (lines.size() < most && !file.Eof()) {
        std::string line = file.LineInput();
        if (line.empty()) {
            break;
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace

std::vector<std::string> ReadSettings(const Folder& folder, std::string_view name,
                                      std::span<const std::string_view> keys) {
    Guarded([&] { folder.Touch(name); });
    std::vector<std::string> lines;
    Guarded([&] { lines = ReadLines(folder.OpenInput(name), keys.size()); });
    lines.resize(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        lines[i].erase(0, keys[i].size());
    }
    return lines;
}

std::string AcceptedFlag(const std::string& stored, std::string_view otherwise) {
    return stored == "-1" || stored == "0" ? stored : std::string(otherwise);
}

void WriteSettings(const Folder& folder, std::string_view name, const std::vector<std::string>& lines) {
    Guarded([&] { folder.RewriteLines(name, lines); });
}

std::vector<std::string> ReadDocument(const Folder& folder, std::string_view name, std::size_t most) {
    return ReadLines(folder.OpenInput(name), most);
}

std::vector<std::string> ReadDocument(InputFile file, std::size_t most) {
    return ReadLines(std::move(file), most);
}

void WriteDocument(const Folder& folder, std::string_view name, const std::vector<std::string>& lines) {
    folder.RewriteLines(name, lines);
}

}  // namespace brindlex
