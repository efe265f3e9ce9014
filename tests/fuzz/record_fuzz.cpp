// Fuzzes all that thinks over the records of the live drawing with arbitrary lines; record_read_fuzz reads them alone.
#include "frame/fault.h"
#include "geometry/board.h"
#include "geometry/connect.h"
#include "geometry/crossings.h"
#include "geometry/extend.h"
#include "geometry/record.h"
#include "geometry/rules.h"
#include "geometry/tangentcircles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

void Require(bool holds, const char* invariant) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", invariant);
        std::abort();
    }
}

bool IsFinite(const Segment& line) {
    return std::isfinite(line.Start.X) && std::isfinite(line.Start.Y) && std::isfinite(line.End.X) &&
           std::isfinite(line.End.Y);
}

void CheckSolvers(const Lines& lines) {
    for (const Tangents mode : {Tangents::AsRuled, Tangents::Exact}) {
        for (const Kind first : {Kind::Circle, Kind::Line, Kind::Point}) {
            for (const Kind second : {Kind::Circle, Kind::Line, Kind::Point}) {
                const Named a{first, "1"};
                const Named b{second, "2"};
                const std::vector<Segment> found = Connect(lines, a, b, mode);
                Require(std::all_of(found.begin(), found.end(), IsFinite), "candidates are finite");
                static_cast<void>(EveryLineTouches(lines, a, b, found));
            }
        }
        const Crossings crossings = FindCrossings(lines);
        if (!crossings.Crossing.empty()) {
            const std::string& item = crossings.Crossing.front();
            const auto circles = FindTangentCircles(lines, item, 1, mode);
            Require(
                std::all_of(circles.begin(), circles.end(),
                            [](const TangentCircle& circle) {
                                return IsFinite({circle.Centre, circle.OnA}) && IsFinite({circle.Centre, circle.OnB});
                            }),
                "circles are finite");
            static_cast<void>(EveryCircleTouches(lines, item, 1, circles));
        }
        if (!crossings.Potential.empty()) {
            static_cast<void>(Extend(lines, crossings.Potential.front()));
        }
    }
}

void CheckRules(const Lines& lines, std::uint8_t shape) {
    Board board;
    board.Reload(lines, {});
    Board after = board;
    RemovePicked(after, {{0, shape % 16 * 4}, {shape / 16 * 5, 0, 5}, {0}});
    Require(after.CircleTop <= board.CircleTop && after.LineTop <= board.LineTop, "a removal adds nothing");
    static_cast<void>(LinesLeft(lines, board, after));
    const Lines repaired = CheckTangents(lines);
    Require(repaired.size() == lines.size(), "a repair keeps every line");
    for (const Lines& kept :
         {WithoutItems(lines, EntityItems(lines)), WithoutCandidates(lines, {" 1", " 2", "", ""})}) {
        Require(
            std::count_if(kept.begin(), kept.end(), [](const std::string& l) { return KindOf(l) == Kind::None; }) ==
                std::count_if(lines.begin(), lines.end(), [](const std::string& l) { return KindOf(l) == Kind::None; }),
            "lines that are no records stay");
    }
}

void CheckAll(std::uint8_t shape, std::string_view text) {
    constexpr std::size_t MostLines = 30;
    Lines lines;
    while (!text.empty() && lines.size() < MostLines) {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    for (const std::string& line : lines) {
        static_cast<void>(ReadPair(line));
        static_cast<void>(MeetingText(line));
        static_cast<void>(FindTangentCircles(lines, line, 1, Tangents::Exact));
        static_cast<void>(Extend(lines, line));
    }
    CheckSolvers(lines);
    CheckRules(lines, shape);
}

}  // namespace
}  // namespace brindlex::geometry

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string text(data + 1, data + size);
    brindlex::geometry::CheckAll(data[0], text);
    return 0;
}
