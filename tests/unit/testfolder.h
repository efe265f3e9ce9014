// A folder of a test's own that goes away with it.
#pragma once

#include "frame/textfile.h"

#include <stdlib.h>  // mkdtemp

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace brindlex {

/// A fresh, empty folder below the system's one for temporary files.
class TestFolder {
public:
    TestFolder() : files_(Make()) {}
    TestFolder(const TestFolder&) = delete;
    TestFolder(TestFolder&&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    TestFolder& operator=(TestFolder&&) = delete;
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Path(), ignored);
    }

    [[nodiscard]] const Folder& Files() const { return files_; }
    [[nodiscard]] const std::filesystem::path& Path() const { return files_.Path(); }

    void Put(const std::string& name, const std::string& content) const {
        std::ofstream stream(Path() / name, std::ios::binary);
        stream << content;
    }
    /// The whole content of a file; "(missing)" where there is none.
    [[nodiscard]] std::string Get(const std::string& name) const {
        std::ifstream stream(Path() / name, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "(missing)";
    }
    /// The names in the folder, sorted.
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    static std::filesystem::path Make() {
        std::string path = (std::filesystem::temp_directory_path() / "brindlex-test-XXXXXX").string();
        if (::mkdtemp(path.data()) == nullptr) {
            throw std::runtime_error("no folder for the test");
        }
        return path;
    }

    Folder files_;
};

}  // namespace brindlex
