// Documents to plain values.
#include "cli/exportsheet.h"

#include "boltcircle/document.h"
#include "boltcircle/report.h"
#include "boltcircle/solver.h"
#include "cli/exportnumbers.h"
#include "cli/failure.h"
#include "frame/fault.h"
#include "frame/shared.h"
#include "frame/textfile.h"
#include "geometry/crossings.h"
#include "services/degrees.h"

#include <array>
#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

namespace brindlex::cli {

using geometry::Kind;
using geometry::Position;
using geometry::Record;
using geometry::Segment;
using geometry::Unit;

namespace {

constexpr double HalfTurn = 180;
/// A million degrees still are known to a ten millionth of a second; far beyond, a double does not tell a direction.
constexpr double LargestAngle = 1e6;
/// The number stands before column 14, where the values begin.
constexpr std::size_t NumberColumns = 13;

int FullNumberOf(std::string_view line) {
    return geometry::IntegerOf(line.substr(0, NumberColumns));
}

Layer LayerOf(Kind kind) {
    switch (kind) {
        case Kind::Circle:
            return Layer::Circles;
        case Kind::Line:
            return Layer::Lines;
        case Kind::Point:
        case Kind::None:
            break;
    }
    return Layer::Points;
}

/// A line record for a run over a single pair: as number 1 and as number 2, so that numbers that the lists would
/// shorten stay apart.
struct PairedLine {
    std::string AsFirst;
    std::string AsSecond;
    int Number = 0;
    Segment Ends;
};

std::vector<PairedLine> PairedLines(const std::vector<std::string>& records) {
    std::vector<PairedLine> lines;
    for (const std::string& record : records) {
        if (geometry::KindOf(record) == Kind::Line) {
            const auto renumbered = [&](const char* number) { return std::string(record).replace(0, 3, number); };
            lines.push_back(
                {renumbered("1  "), renumbered("2  "), FullNumberOf(record), geometry::ReadRecord(record).Ends()});
        }
    }
    if (lines.size() > MostPairedLines) {
        throw Failure(Exit::BadInput, "the drawing has more than " + std::to_string(MostPairedLines) + " lines");
    }
    return lines;
}

/// By the arc tangent of the cross product over the dot product, both taken as positive.
double AngleBetween(const Segment& a, const Segment& b) {
    const double ax = a.End.X - a.Start.X;
    const double ay = a.End.Y - a.Start.Y;
    const double bx = b.End.X - b.Start.X;
    const double by = b.End.Y - b.Start.Y;
    return std::atan2(std::fabs(ax * by - ay * bx), std::fabs(ax * bx + ay * by)) * HalfTurn / std::numbers::pi;
}

[[noreturn]] void RefuseSheet(const std::string& why) {
    throw Failure(Exit::BadInput, why);
}

constexpr std::array<const char*, boltcircle::EntryLines> EntryNames{"the center's X", "the center's Y", "the diameter",
                                                                     "the number of holes", "the start angle"};

/// The entries, each a number: the calculator reads "1,5" as 1, and on a machine that would be a hole in the wrong
/// place. Degree text stands in no document, since the calculator replaces it before a document can be saved.
boltcircle::Entries EntriesOf(const std::vector<std::string>& lines) {
    boltcircle::Entries entries;
    const std::array<std::string*, EntryNames.size()> texts{&entries.CenterX, &entries.CenterY, &entries.Diameter,
                                                            &entries.Holes, &entries.StartAngle};
    for (std::size_t i = 0; i < texts.size() && i < lines.size(); ++i) {
        *texts[i] = lines[i];
    }
    if (entries.StartAngle.empty()) {
        entries.StartAngle = "0";
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!WholeNumberText(*texts[i])) {
            RefuseSheet(std::string(EntryNames[i]) +
                        (texts[i]->empty() ? " is missing" : " is no number: " + Utf8FromText(*texts[i])));
        }
    }
    return entries;
}

void CheckEntries(const boltcircle::Entries& entries) {
    const double holes = *WholeNumberText(entries.Holes);
    if (!(*WholeNumberText(entries.Diameter) > 0)) {
        RefuseSheet("the diameter is not above 0: " + entries.Diameter);
    }
    if (!(holes > 0)) {
        RefuseSheet("there are no holes: " + entries.Holes);
    }
    if (holes != std::floor(holes)) {
        RefuseSheet("the number of holes is no whole number: " + entries.Holes);
    }
    if (!(std::fabs(*WholeNumberText(entries.StartAngle)) <= LargestAngle)) {
        RefuseSheet("the start angle is too large: " + entries.StartAngle);
    }
    if (holes > boltcircle::MostHoles) {
        RefuseSheet("there are more than " + std::to_string(boltcircle::MostHoles) + " holes: " + entries.Holes);
    }
}

double WithinTurn(double angle) {
    const double rest = std::fmod(angle, FullTurn);
    return rest < 0 ? rest + FullTurn : rest;
}

Shape MakeShape(Layer layer, int number, Kind kind, const std::array<double, 4>& values) {
    return {layer, number, {kind, static_cast<double>(number), values}};
}

}  // namespace

Sheet SheetOf(const std::vector<std::string>& records, Unit unit) {
    Sheet sheet{unit, {}};
    for (const std::string& line : records) {
        const Record record = geometry::ReadRecord(line);
        if (record.Shape == Kind::None) {
            continue;
        }
        const int number = FullNumberOf(line);
        if (record.Shape == Kind::Circle && !(record.Diameter() > 0)) {
            RefuseSheet("circle " + std::to_string(number) + " has no diameter");
        }
        sheet.Shapes.push_back({LayerOf(record.Shape), number, record});
    }
    if (sheet.Shapes.empty()) {
        RefuseSheet("the drawing is empty");
    }
    return sheet;
}

std::vector<LinePair> PairsOf(const std::vector<std::string>& records) {
    const std::vector<PairedLine> lines = PairedLines(records);
    std::vector<LinePair> crossing;
    std::vector<LinePair> potential;
    for (std::size_t a = 0; a < lines.size(); ++a) {
        for (std::size_t b = a + 1; b < lines.size(); ++b) {
            const geometry::Crossings found = geometry::FindCrossings({lines[a].AsFirst, lines[b].AsSecond});
            const bool cross = !found.Crossing.empty();
            if (cross || !found.Potential.empty()) {
                const auto item = geometry::ReadPair(cross ? found.Crossing.front() : found.Potential.front());
                (cross ? crossing : potential)
                    .push_back({lines[a].Number, lines[b].Number, item.Crossing,
                                AngleBetween(lines[a].Ends, lines[b].Ends), cross});
            }
        }
    }
    crossing.insert(crossing.end(), potential.begin(), potential.end());
    return crossing;
}

HolePattern PatternOf(const std::vector<std::string>& lines) {
    boltcircle::Entries entries = EntriesOf(lines);
    CheckEntries(entries);
    // With angles only nothing is rounded, and the places of the holes are worked out all the same.
    entries.AnglesOnly = true;
    SharedState shared;
    WorkOutPi(shared);
    boltcircle::Pattern solved;
    if (!Guarded([&] { solved = boltcircle::SolveBoltCircle(entries, ".0000", shared.Rad); })) {
        RefuseSheet("a value is too large to be worked with");
    }
    HolePattern pattern{{solved.CenterX, solved.CenterY}, solved.Diameter, solved.StartAngle, {}};
    const boltcircle::Hole first = boltcircle::FirstHole(solved);
    pattern.Holes.push_back({1, {first.X, first.Y}, WithinTurn(first.Angle)});
    for (const boltcircle::Hole& hole : solved.Further) {
        const int number = static_cast<int>(pattern.Holes.size()) + 1;
        pattern.Holes.push_back({number, {hole.X, hole.Y}, WithinTurn(hole.Angle)});
    }
    return pattern;
}

Sheet SheetOf(const HolePattern& pattern, Unit unit, double holeDiameter) {
    Sheet sheet{unit, {}};
    const Position centre = pattern.Centre;
    sheet.Shapes.push_back(MakeShape(Layer::BoltCircle, 0, Kind::Circle, {pattern.Diameter, centre.X, centre.Y, 0}));
    for (const Hole& hole : pattern.Holes) {
        const Position place = hole.Place;
        sheet.Shapes.push_back(
            holeDiameter > 0 ? MakeShape(Layer::Holes, hole.Number, Kind::Circle, {holeDiameter, place.X, place.Y, 0})
                             : MakeShape(Layer::Holes, hole.Number, Kind::Point, {place.X, place.Y, 0, 0}));
    }
    return sheet;
}

std::string_view UnitPlural(Unit unit) {
    return unit == Unit::Inch ? "inches" : "millimeters";
}

std::string_view LayerName(Layer layer) {
    constexpr std::array<std::string_view, 5> Names{"CIRCLES", "LINES", "POINTS", "BOLT_CIRCLE", "HOLES"};
    return Names[static_cast<std::size_t>(layer)];
}

}  // namespace brindlex::cli
