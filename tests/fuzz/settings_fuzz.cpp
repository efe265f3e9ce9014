// Settings files and documents of any bytes: the readers give texts within their limits and never throw but as told,
// and reading changes no file.
#include "formfuzz.h"

#include "frame/textfile.h"
#include "services/rounding.h"
#include "services/settings.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace brindlex;

constexpr std::array<std::string_view, 4> Keys = {"DMS=", "Shape=", "Text=", "Rounding="};
constexpr std::size_t DocumentLines = 7;

std::string Content(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder scratch;
    static const Folder folder(scratch.Path());
    const std::string content(data, data + size);
    std::ofstream(scratch.Path() / "any.ini", std::ios::binary) << content;

    const std::vector<std::string> values = ReadSettings(folder, "any.ini", Keys);
    Demand(values.size() == Keys.size());
    for (std::size_t i = 0; i + 1 < values.size(); ++i) {
        const std::string flag = AcceptedFlag(values[i], "-1");
        Demand(flag == "-1" || flag == "0");
    }
    const std::string digits = AcceptedDigits(values.back());
    Demand(digits.size() <= 2 && !digits.empty());
    Demand(digits >= "1" && (digits <= "15" || digits == "4"));

    const std::vector<std::string> lines = ReadDocument(folder, "any.ini", DocumentLines);
    Demand(lines.size() <= DocumentLines);
    for (const std::string& line : lines) {
        Demand(!line.empty() && line.find_first_of("\r\n") == std::string::npos);
    }
    Demand(Content(scratch.Path() / "any.ini") == content);

    // What was read can be written and read again.
    folder.RewriteLines("again.ini", lines, Durability::Step);
    Demand(ReadDocument(folder, "again.ini", DocumentLines) == lines);
    return 0;
}
