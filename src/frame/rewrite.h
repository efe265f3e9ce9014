// A file's replacement in one step, and faults out of the system's errors.
// Ground floor: includes only the standard library and the ground floor.
#pragma once

#include "frame/fault.h"
#include "frame/textfile.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace brindlex {

/// The fault of a file operation: its number by the kind of error, its description the system's reason.
/// An error of 0 (the system gave no reason) is FileIo with the runtime's own words.
[[nodiscard]] Fault SystemFault(const std::error_code& error);

/// The error of a folder, a pipe or a socket in a file's place; none for a file, a device or nothing at all.
/// A pipe is refused since a program with one thread could wait for its other end for ever.
[[nodiscard]] std::error_code NotAFile(const std::filesystem::path& path);

/// Replaces the file's content as Folder::Rewrite tells. A device is written to where it stands.
/// Throws PermissionDenied where the old file is write-protected, although a rename could replace it.
void RewriteFile(const std::filesystem::path& path, std::string_view content, Durability durability);

}  // namespace brindlex
