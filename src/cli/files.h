// Files by their paths, with faults told as failures that name the file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {

/// The ending of its name in small letters, without the point.
[[nodiscard]] std::string EndingOf(const std::filesystem::path& file);

/// The lines of a file. Throws Failure (Disk).
[[nodiscard]] std::vector<std::string> LinesOf(const std::filesystem::path& file);

/// All bytes of a file. Throws Failure (Disk).
[[nodiscard]] std::string BytesOf(const std::filesystem::path& file);

/// The lines of a document, as many as it has up to `most`, up to the first empty one. Throws Failure (Disk).
[[nodiscard]] std::vector<std::string> DocumentOf(const std::filesystem::path& file, std::size_t most);

/// Writes a file in one step: the old file or the new one, whole, at any moment. Throws Failure (Disk).
void WriteWhole(const std::filesystem::path& file, std::string_view content);

}  // namespace brindlex::cli
