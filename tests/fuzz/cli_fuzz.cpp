// Fuzzes brindlex-cli: words and standard input of the calculators, lines of documents. What comes of it is a whole
// answer or one line on the standard error, never both.
#include "clifuzz.h"

#include "cli/bolt.h"
#include "cli/failure.h"
#include "cli/plates.h"
#include "cli/speeds.h"
#include "cli/triangles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {
namespace {

/// The first line's words, parted by tabs, with the rest as standard input.
void RunCommands(const std::vector<std::string>& words, std::string_view input) {
    static constexpr std::array Table{RightCommand, ObliqueCommand, BoltCommand,
                                      SineCommand,  PolygonCommand, SpeedsCommand};
    const Outcome outcome = Run(Table, words, input);
    Require(outcome.Code == 0 || outcome.Out.empty(), "nothing is printed beside a reason");
}

void SolveDocuments(const std::vector<std::string>& lines, const Display& display) {
    constexpr std::array Solvers{RightFromDocument, ObliqueFromDocument, BoltFromDocument, SinePlateFromDocument,
                                 PolygonFromDocument};
    for (const auto solve : Solvers) {
        try {
            const Answer answer = solve(lines, display);
            for (const Style style : {Style::Table, Style::Json, Style::Csv}) {
                Require(!Written(answer, style).empty(), "an answer in every style");
            }
        } catch (const Failure& failure) {
            Require(failure.Code() == Exit::BadInput || failure.Code() == Exit::NoSolution, "why there is none");
        }
    }
}

}  // namespace
}  // namespace brindlex::cli

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brindlex::cli;
    const std::string text(data, data + size);
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view rest = std::string_view(text).substr(std::min(end + 1, text.size()));
    // The one option, or column, that names a file.
    if (text.find("data") == std::string::npos) {
        RunCommands(Split(std::string_view(text).substr(0, end), '\t'), rest);
    }
    if (text.find("32767") == std::string::npos) {
        Display display;
        display.Places = size == 0 ? 4 : 1 + data[0] % 15;
        display.Minutes = size > 1 && data[1] % 2 == 0;
        SolveDocuments(Split(rest, '\n'), display);
    }
    return 0;
}
