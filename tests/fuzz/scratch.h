// A folder that goes away with the fuzzer, and the files in it.
#pragma once

#include "readfuzz.h"

#include <stdlib.h>  // mkdtemp

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace brindlex {

class ScratchFolder {
public:
    ScratchFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "brindlex-fuzz-XXXXXX").string();
        Demand(::mkdtemp(path.data()) != nullptr);
        path_ = path;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Writes a file anew; its path.
    [[nodiscard]] std::string Put(const char* name, std::string_view content) const {
        const std::filesystem::path file = path_ / name;
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }
    [[nodiscard]] std::string Content(const char* name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path path_;
};

}  // namespace brindlex
