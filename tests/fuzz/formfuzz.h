// What fuzzers of whole forms share: a demand, and a folder that goes away with the fuzzer.
#pragma once

#include <stdlib.h>  // mkdtemp

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace brindlex {

inline void Demand(bool holds) {
    if (!holds) {
        std::abort();
    }
}

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

private:
    std::filesystem::path path_;
};

}  // namespace brindlex
