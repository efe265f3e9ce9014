// What a document of Polygons holds, read and solved without a form: sides, five Booleans, a dimension, a line each.
// Whatever they say, the solution is finite.
#include "readfuzz.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "polygon/solver.h"
#include "services/documents.h"

#include <algorithm>
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
    const std::vector<std::string> lines = LinesOf(TextOf(data, size), 7);
    PolygonCase given;
    const bool isRead = Guarded([&] {
        given.Sides = CInt(std::clamp(Val(lines[0]), double{FewestSides}, double{MostSides}));
        given.Dimension = Val(lines[6]);
    });
    given.Inscribed = BooleanFromWord(lines[1]).value_or(BooleanFromWord(lines[2]) != true);
    given.FlatsEnabled = BooleanFromWord(lines[3]).value_or(!IsOdd(given.Sides));
    given.CornerEnabled = BooleanFromWord(lines[5]).value_or(IsOdd(given.Sides));
    if (!isRead) {
        return 0;
    }
    for (const auto type : {DimensionType::AcrossFlats, DimensionType::FlatToCorner, DimensionType::OneFlat}) {
        given.Type = type;
        Solve(given);
    }
    return 0;
}
