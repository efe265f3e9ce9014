// The unit line of drawing files.
#include "geometry/unit.h"

namespace brindlex::geometry {

std::optional<Unit> UnitOf(std::string_view line) {
    if (line == "I") {
        return Unit::Inch;
    }
    return line == "M" ? std::optional(Unit::Millimeter) : std::nullopt;
}

std::vector<std::string> GeoLines(const std::vector<std::string>& records, Unit unit) {
    std::vector<std::string> lines{unit == Unit::Inch ? "I" : "M"};
    lines.insert(lines.end(), records.begin(), records.end());
    return lines;
}

}  // namespace brindlex::geometry
