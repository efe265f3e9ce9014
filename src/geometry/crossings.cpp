// Pairs of lines and where they cross, by the parameters along both lines.
#include "geometry/crossings.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "geometry/steps.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace brindlex::geometry {

namespace {

constexpr int SliceCharacters = 3;
/// A board has 14 lines. A file made elsewhere may hold more, and one of any length must not stall the program.
constexpr std::size_t MostRecords = 200;

/// The working numbers of a run. Line B runs from 1 to 2, line A from 3 to 4.
struct CrossingNumbers {
    Checked x1, y1, x2, y2, x3, y3, x4, y4;
    Checked n1;  ///< dividend of the parameter along line B
    Checked d;   ///< divisor of both parameters; 0 for parallel lines
    Checked ua;  ///< parameter along line B, rounded
    Checked ub;  ///< parameter along line A, rounded
};

constexpr int RatioDecimals = 15;

bool InRange(Checked parameter) {
    return parameter >= 0.0 && parameter <= 1.0;
}

class Finder {
public:
    void Visit(const std::string& lineA, const std::string& lineB);
    [[nodiscard]] Crossings Take() { return std::move(lists_); }

private:
    void ReadEnds(const std::string& lineA, const std::string& lineB);
    void Solve(const std::string& lineA, const std::string& lineB);
    [[nodiscard]] std::string Item(const std::string& lineA, const std::string& lineB) const;

    CrossingNumbers w_;
    Checked t_, x_, y_;
    bool flag_ = false;  // not reset from pair to pair: intended
    Crossings lists_;
};

void Finder::ReadEnds(const std::string& lineA, const std::string& lineB) {
    const Segment a = ReadRecord(lineA).Ends();
    const Segment b = ReadRecord(lineB).Ends();
    w_ = {b.Start.X, b.Start.Y, b.End.X, b.End.Y, a.Start.X, a.Start.Y, a.End.X, a.End.Y, {}, {}, {}, {}};
}

/// The usual crossing of two lines by their parameters; both in 0 to 1 where the pieces themselves cross.
void Finder::Solve(const std::string& lineA, const std::string& lineB) {
    CrossingNumbers& w = w_;
    Step(w.ua, [&] { return Checked(Round((w.n1 / w.d).Value(), RatioDecimals)); });
    Step(w.ub, [&] {
        const Checked dividend = (w.y1 - w.y3) * (w.x2 - w.x1) - (w.x1 - w.x3) * (w.y2 - w.y1);
        return Checked(Round((dividend / w.d).Value(), RatioDecimals));
    });
    Step(x_, [&] { return (w.x2 - w.x1) * w.ua + w.x1; });
    Step(y_, [&] { return (w.y2 - w.y1) * w.ua + w.y1; });
    flag_ = true;
    if (InRange(w.ua) && InRange(w.ub)) {
        flag_ = false;
        lists_.Crossing.push_back(Item(lineA, lineB));
    }
}

std::string Finder::Item(const std::string& lineA, const std::string& lineB) const {
    constexpr int Gap = 15;
    return Left(lineA, SliceCharacters) + " , " + Left(lineB, SliceCharacters) + Space(Gap) + "/" + Str(x_.Value()) +
           "\\" + Str(y_.Value());
}

void Finder::Visit(const std::string& lineA, const std::string& lineB) {
    CrossingNumbers& w = w_;
    w = {};  // a parallel pair finds parameters of 0, which pass as in range, so that it is never listed
    if (NumberOf(lineA) != NumberOf(lineB)) {
        ReadEnds(lineA, lineB);
    }
    Step(w.n1, [&] { return (w.y1 - w.y3) * (w.x4 - w.x3) - (w.x1 - w.x3) * (w.y4 - w.y3); });
    Step(w.d, [&] { return (w.x2 - w.x1) * (w.y4 - w.y3) - (w.y2 - w.y1) * (w.x4 - w.x3); });
    if (w.d != 0.0) {
        Solve(lineA, lineB);
    }
    if (flag_ && !(InRange(w.ua) && InRange(w.ub))) {
        Step(t_, [&] { return w.n1 / w.d; });  // not rounded here: intended
        Step(x_, [&] { return (w.x2 - w.x1) * t_ + w.x1; });
        Step(y_, [&] { return (w.y2 - w.y1) * t_ + w.y1; });
        lists_.Potential.push_back(Item(lineA, lineB));
    }
}

}  // namespace

PairItem ReadPair(std::string_view item) {
    const auto part = [&](std::size_t from, char to) {
        const std::string_view rest = item.substr(std::min(from, item.size()));
        return rest.substr(0, rest.find(to));
    };
    const auto behind = [&](char mark) {
        const std::size_t found = item.find(mark);
        return found == std::string_view::npos ? item.size() : found + 1;
    };
    PairItem pair;
    pair.NumberA = IntegerOf(part(0, ','));
    pair.NumberB = IntegerOf(part(behind(','), '/'));
    pair.Crossing.X = ValueOf(part(behind('/'), '\\'));
    pair.Crossing.Y = ValueOf(item.substr(behind('\\')));
    return pair;
}

Crossings FindCrossings(const std::vector<std::string>& lines) {
    std::vector<std::string> records;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(records),
                 [](const std::string& line) { return KindOf(line) == Kind::Line; });
    records.resize(std::min(records.size(), MostRecords));
    Finder finder;
    for (std::size_t a = 0; a < records.size(); ++a) {
        for (std::size_t b = a + 1; b < records.size(); ++b) {
            finder.Visit(records[a], records[b]);
        }
    }
    return finder.Take();
}

std::string SelectionAfter(const std::vector<std::string>& items, std::string_view remembered) {
    const auto found = std::find(items.begin(), items.end(), remembered);
    if (found != items.end()) {
        return *found;
    }
    return items.empty() ? std::string() : items.front();
}

std::string MeetingText(std::string_view item) {
    constexpr std::string_view Mask = ".000000";
    const Position meeting = ReadPair(item).Crossing;
    return "X " + Format(meeting.X, Mask) + ", Y " + Format(meeting.Y, Mask);
}

}  // namespace brindlex::geometry
