// What a document of Sine Plates holds, read and solved without a form: spacing, two Booleans, two angles, a line
// each. A buildup is finite and never higher than the spacing.
#include "readfuzz.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "services/degrees.h"
#include "sineplate/document.h"
#include "sineplate/solver.h"

#include <algorithm>
#include <numbers>

namespace {

using namespace brindlex;
using namespace brindlex::sineplate;

constexpr double Radians = std::numbers::pi / 180;

void Solve(const PlateEntries& entries) {
    DegreeReader reader;
    const double first = Val(reader.NormalizeDmsText(entries.FirstAngle));
    const double second = entries.SecondShown ? Val(reader.NormalizeDmsText(entries.SecondAngle)) : 0;
    const double spacing = Val(entries.Spacing);
    const Buildup stack = entries.SecondShown ? SolveCompound(second, first, spacing, 1, Radians)
                                              : SolveRegular(first, spacing, 1, Radians);
    DemandFinite({stack.Bottom, stack.Top});
    const double highest = std::fabs(spacing) * (1 + 1e-12);
    Demand(std::fabs(stack.Bottom) <= highest && std::fabs(stack.Top) <= highest);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines = DocumentOf(TextOf(data, size), DocumentLines);
    const auto document = ReadDocument(lines);
    if (!document || !IsDocument(lines)) {
        return 0;
    }
    const PlateEntries entries{document->Angles[0], document->Angles[1], document->IsCompound(), document->Spacing};
    Guarded([&] {
        if (CheckPlate(entries) == PlateRefusal::None) {
            Solve(entries);
        }
    });
    return 0;
}
