// A drawing file as plain values.
// Units: those of the drawing, which the file names.
#pragma once

#include "geometry/unit.h"

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex::cli {

struct Drawing {
    geometry::Unit Measure = geometry::Unit::Inch;
    std::vector<std::string> Records;  ///< the lines that name no unit, in order; such that are no records among them
};

/// Throws Failure (BadInput) unless one of the lines is a record or names a unit.
void RefuseUnlessDrawing(const std::filesystem::path& file, const std::vector<std::string>& lines);

/// Reads a drawing as the drawing board opens it. Throws Failure: Disk for a file that can't be read, BadInput for one
/// that holds neither a record nor a unit.
[[nodiscard]] Drawing ReadDrawing(const std::filesystem::path& file);

}  // namespace brindlex::cli
