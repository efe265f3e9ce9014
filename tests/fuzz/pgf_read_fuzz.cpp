// What a document of Polygons holds, read and solved without a form: sides, five Booleans, a dimension, a line each.
// Whatever they say, the solution is finite.
#include "readfuzz.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "polygon/document.h"
#include "polygon/solver.h"

#include <numbers>

namespace {

using namespace brindlex;
using namespace brindlex::polygon;

void Solve(const PolygonCase& given) {
    Guarded([&] {
        const PolygonSolution solution = SolvePolygon(given, std::numbers::pi / 180);
        DemandFinite({solution.Diameter, solution.Area, solution.PictureRadius});
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines = DocumentOf(TextOf(data, size), DocumentLines);
    const auto document = ReadDocument(lines);
    if (!document || !IsDocument(lines)) {
        return 0;
    }
    PolygonCase given;
    given.Sides = SidesOf(document->Sides);
    Demand(given.Sides >= 0 && given.Sides <= MostSides + 1);
    given.Inscribed = document->IsInscribed();
    const bool isRead = Guarded([&] { given.Dimension = Val(document->Dimension.value_or("")); });
    if (!isRead || given.Sides < FewestSides || given.Sides > MostSides) {
        return 0;
    }
    given.FlatsEnabled = !IsOdd(given.Sides);
    given.CornerEnabled = !given.FlatsEnabled;
    for (const auto type : {DimensionType::AcrossFlats, DimensionType::FlatToCorner, DimensionType::OneFlat}) {
        given.Type = type;
        Solve(given);
    }
    return 0;
}
