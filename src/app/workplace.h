// Where the program works.
#pragma once

#include <filesystem>

namespace brindlex {

/// The process's working directory; where that can't be written, the user's data folder, which is made where missing.
[[nodiscard]] std::filesystem::path Workplace();

}  // namespace brindlex
