// What a document of Right Triangles holds, read and solved without a form: the case and two entries, a line each. A
// triangle that is solved is whole and finite, and its entries hold no degree sign any more.
#include "readfuzz.h"

#include "frame/fault.h"
#include "righttri/solver.h"

#include <numbers>

namespace {

using namespace brindlex;

/// A digit stands for the case of that place in the list.
std::string_view CaseOf(std::string_view line) {
    const bool isPlace = line.size() == 1 && line[0] >= '1' && line[0] <= '9';
    return isPlace ? righttri::Cases()[static_cast<std::size_t>(line[0] - '1')].Name : line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines = LinesOf(TextOf(data, size), 3);
    righttri::Entries entries{lines[1], lines[2]};
    Guarded([&] {
        const auto solution = righttri::Solve(CaseOf(lines[0]), entries, std::numbers::pi / 180);
        if (solution.Refused != righttri::Refusal::None) {
            return;
        }
        const righttri::Triangle& found = solution.Found;
        DemandFinite({found.SideA, found.SideB, found.SideC, found.AngleB, found.AngleC});
        Demand(righttri::FindCase(CaseOf(lines[0])).has_value());
        Demand((entries.Text1 + entries.Text2).find('\xB0') == std::string::npos);
    });
    return 0;
}
