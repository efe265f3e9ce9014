// What a document of Bolt Circles holds, read and solved without a form: five entries and the mark of angles only, a
// line each. Every hole is finite, and the pattern has as many as were asked for.
#include "readfuzz.h"

#include "boltcircle/document.h"
#include "boltcircle/report.h"
#include "boltcircle/solver.h"
#include "frame/fault.h"
#include "frame/text.h"

#include <numbers>

namespace {

using namespace brindlex;

// Thousands of holes take thousands of times as long and lead nowhere else; the fuzzer of the form has them.
constexpr double MostHoles = 40;

void Solve(boltcircle::Entries& entries) {
    boltcircle::Normalize(entries);
    const double holes = Val(entries.Holes);
    if (holes > MostHoles) {
        return;
    }
    const auto pattern = boltcircle::SolveBoltCircle(entries, ".0000", std::numbers::pi / 180);
    DemandFinite({pattern.Holes, pattern.StartAngle, pattern.Diameter, pattern.Radius, pattern.AngleSpacing,
                  pattern.ChordDist, pattern.CenterX, pattern.CenterY, pattern.HoleX, pattern.HoleY});
    Demand(pattern.Further.size() <= static_cast<std::size_t>(MostHoles));
    for (const boltcircle::Hole& hole : pattern.Further) {
        DemandFinite({hole.Angle, hole.X, hole.Y});
    }
    Demand(!boltcircle::ReportText(pattern, entries.StartAngle, ".0000").empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines = LinesOf(TextOf(data, size), boltcircle::DocumentLines);
    boltcircle::Entries entries{lines[0], lines[1], lines[2], lines[3], lines[4]};
    entries.AnglesOnly = boltcircle::StoredCheck(lines[5]) == 1;
    if (boltcircle::Validate(entries) == boltcircle::Refusal::None) {
        Guarded([&] { Solve(entries); });
    }
    return 0;
}
