// Settings files: lines read by fixed key lengths, rewritten whole. And the reading of document files.
// Includes no control, form or runtime.
#pragma once

#include "frame/textfile.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Creates a missing file, then reads as many lines as keys are given, up to the first empty line or the end: of each
/// the text behind the key by length alone, the key is not compared; a line shorter than its key gives an empty text.
/// What is not there is empty, and an unreadable file gives nothing but empty texts.
[[nodiscard]] std::vector<std::string> ReadSettings(const Folder& folder, std::string_view name,
                                                    std::span<const std::string_view> keys);

/// "-1" or "0" as they are, the default for anything else.
[[nodiscard]] std::string AcceptedFlag(const std::string& stored, std::string_view otherwise);

/// Writes the file anew in one step. A folder that can't be written leaves the old file; nothing is thrown, since a
/// form is left by this.
void WriteSettings(const Folder& folder, std::string_view name, const std::vector<std::string>& lines);

/// The lines of a document, as many as it has up to `most`, up to the first empty line or the end of the file.
/// Throws Fault where the file can't be read.
[[nodiscard]] std::vector<std::string> ReadDocument(const Folder& folder, std::string_view name, std::size_t most);

/// The same of a file that is open already.
[[nodiscard]] std::vector<std::string> ReadDocument(InputFile file, std::size_t most);

/// Writes a document in one step. A failed save leaves the old file whole and throws Fault.
void WriteDocument(const Folder& folder, std::string_view name, const std::vector<std::string>& lines);

}  // namespace brindlex
