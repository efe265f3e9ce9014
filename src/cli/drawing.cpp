// Drawing files.
#include "cli/drawing.h"

#include "cli/failure.h"
#include "cli/files.h"
#include "geometry/record.h"

#include <algorithm>

namespace brindlex::cli {

using geometry::KindOf;
using geometry::UnitOf;

void RefuseUnlessDrawing(const std::filesystem::path& file, const std::vector<std::string>& lines) {
    const bool belongs = std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return UnitOf(line) || KindOf(line) != geometry::Kind::None;
    });
    if (!belongs) {
        throw Failure(Exit::BadInput, file.string() + ": this is no drawing");
    }
}

Drawing ReadDrawing(const std::filesystem::path& file) {
    Drawing drawing;
    const std::vector<std::string> lines = LinesOf(file);
    RefuseUnlessDrawing(file, lines);
    // A line that names a unit is acted upon wherever it stands: intended.
    for (const std::string& line : lines) {
        if (const auto unit = UnitOf(line)) {
            drawing.Measure = *unit;
        } else {
            drawing.Records.push_back(line);
        }
    }
    return drawing;
}

}  // namespace brindlex::cli
