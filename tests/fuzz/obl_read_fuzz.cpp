// What a document of Oblique Triangles holds, read and solved without a form: the case and three entries, a line each.
// Both solutions and the area are finite, and what is accepted is above 0.
#include "readfuzz.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "oblique/solver.h"
#include "services/degrees.h"

namespace {

using namespace brindlex;
using oblique::Element;

/// A letter from A on stands for the case of that place in the list.
std::string_view CaseOf(std::string_view line) {
    const auto cases = oblique::Cases();
    const bool isPlace = line.size() == 1 && line[0] >= 'A' && line[0] < 'A' + static_cast<int>(cases.size());
    return isPlace ? cases[static_cast<std::size_t>(line[0] - 'A')].Entry : line;
}

void Solve(std::string_view entry, const double (&given)[3], bool secondSolution) {
    oblique::Triangle triangle;
    Guarded([&] { oblique::SolveOblique(triangle, entry, given[0], given[1], given[2], secondSolution); });
    for (const Element element : oblique::AllElements) {
        DemandFinite({triangle.Working(element)});
    }
    if (!oblique::AcceptOblique(triangle)) {
        return;
    }
    for (const Element element : oblique::AllElements) {
        Demand(triangle.Kept(element) > 0);
    }
    Guarded([&] { DemandFinite({oblique::ObliqueArea(triangle.a, triangle.b, triangle.C)}); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines = LinesOf(TextOf(data, size), 4);
    double given[3] = {};
    DegreeReader reader;
    const bool isRead = Guarded([&] {
        for (std::size_t at = 0; at < 3; ++at) {
            given[at] = Val(reader.NormalizeDmsText(lines[at + 1]));
        }
    });
    if (isRead) {
        Solve(CaseOf(lines[0]), given, false);
        Solve(CaseOf(lines[0]), given, true);
    }
    return 0;
}
