// Extension of a pair of lines: the parameters of the meeting point along both lines decide which end moves.
#include "geometry/extend.h"

#include "frame/checked.h"
#include "frame/fault.h"
#include "frame/text.h"
#include "geometry/crossings.h"

#include <cstddef>

namespace brindlex::geometry {

namespace {

constexpr int NumberColumns = 5;

int LineNumber(std::string_view record) {
    return IntegerOf(record.substr(0, NumberColumns));
}

struct Pair {
    Segment A;
    Segment B;
};

/// The two lines as they stand; reading stops at line B, since A is always the earlier record.
std::optional<Pair> FindPair(const std::vector<std::string>& lines, const PairItem& item) {
    std::optional<Segment> a;
    for (const std::string& line : lines) {
        if (KindOf(line) != Kind::Line) {
            continue;
        }
        if (LineNumber(line) == item.NumberA) {
            a = ReadRecord(line).Ends();
        }
        if (LineNumber(line) == item.NumberB) {
            return a ? std::optional(Pair{*a, ReadRecord(line).Ends()}) : std::nullopt;
        }
    }
    return std::nullopt;
}

struct Parameters {
    Checked A;
    Checked B;
};

/// Where the meeting point lies along both lines: 0 at the start, 1 at the end.
Parameters Along(const Pair& pair) {
    constexpr int Decimals = 15;
    const Checked ax = Checked(pair.A.End.X) - pair.A.Start.X;
    const Checked ay = Checked(pair.A.End.Y) - pair.A.Start.Y;
    const Checked bx = Checked(pair.B.End.X) - pair.B.Start.X;
    const Checked by = Checked(pair.B.End.Y) - pair.B.Start.Y;
    const Checked x = Checked(pair.A.Start.X) - pair.B.Start.X;
    const Checked y = Checked(pair.A.Start.Y) - pair.B.Start.Y;
    const Checked den = by * ax - ay * bx;
    return {Round(((y * bx - by * x) / den).Value(), Decimals), Round(((y * ax - ay * x) / den).Value(), Decimals)};
}

Checked Distance(Position from, Position to) {
    const Checked dx = Checked(from.X) - to.X;
    const Checked dy = Checked(from.Y) - to.Y;
    return Sqr(dx * dx + dy * dy);
}

/// The new ends of a line with its own parameter and the other's; nothing where it is to be dropped. The first end is
/// always the one that stays.
std::optional<Segment> Moved(const Segment& line, Position meeting, Checked own, Checked other) {
    if (own >= 1.0) {
        return Segment{line.Start, meeting};
    }
    if (own <= 0.0) {
        return Segment{line.End, meeting};
    }
    if (other >= 0.0 && other <= 1.0) {
        return line;
    }
    const Checked toStart = Distance(meeting, line.Start);
    const Checked toEnd = Distance(meeting, line.End);
    if (toStart > toEnd) {
        return Segment{line.Start, meeting};
    }
    if (toEnd > toStart) {
        return Segment{line.End, meeting};
    }
    return std::nullopt;  // both pieces equal: intended
}

std::vector<std::string> Rewritten(const std::vector<std::string>& lines, const PairItem& item, const Pair& pair) {
    const Parameters along = Along(pair);
    const auto newA = Moved(pair.A, item.Crossing, along.A, along.B);
    const auto newB = Moved(pair.B, item.Crossing, along.B, along.A);
    std::vector<std::string> result;
    for (const std::string& line : lines) {
        const int number = LineNumber(line);
        const bool isLine = KindOf(line) == Kind::Line;
        const bool isA = isLine && number == item.NumberA;
        const bool isB = isLine && number == item.NumberB;
        if (!isA && !isB) {
            result.push_back(line);
        }
        if (isA && newA) {
            result.push_back(ExtendedLineRecord(number, *newA));
        }
        if (isB && newB) {
            result.push_back(ExtendedLineRecord(number, *newB));
        }
    }
    return result;
}

}  // namespace

std::optional<std::vector<std::string>> Extend(const std::vector<std::string>& lines, std::string_view item) {
    const PairItem chosen = ReadPair(item);
    const auto pair = FindPair(lines, chosen);
    std::optional<std::vector<std::string>> result;
    if (pair) {
        Guarded([&] { result = Rewritten(lines, chosen, *pair); });
    }
    return result;
}

}  // namespace brindlex::geometry
