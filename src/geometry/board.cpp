// The arrays of the drawing and how records come into them.
#include "geometry/board.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>

namespace brindlex::geometry {

namespace {

/// Writes values from an index on. A value beyond the bound is left out, the index goes on: intended.
template <std::size_t Bound>
void Enter(std::array<double, Bound>& values, int& index, std::initializer_list<double> entity) {
    for (const double value : entity) {
        if (index < static_cast<int>(Bound)) {
            values[static_cast<std::size_t>(index)] = value;
        }
        ++index;
    }
}

template <std::size_t Bound>
bool HasNumber(const std::array<double, Bound>& values, int count, int width, double number) {
    for (int i = 0; i < count; ++i) {
        if (values[static_cast<std::size_t>((i + 1) * width - 1)] == number) {
            return true;
        }
    }
    return false;
}

}  // namespace

void Board::Erase() {
    const int number = EntNum;
    *this = {};
    EntNum = number;
}

void Board::Clear() {
    *this = {};
}

void Board::Reload(const std::vector<std::string>& lines, const Scale& scale) {
    EntNum = 0;
    ReloadKeepingNumber(lines, scale);
}

void Board::ReloadKeepingNumber(const std::vector<std::string>& lines, const Scale& scale) {
    Erase();
    for (const std::string& line : lines) {
        EnterRecord(line, scale);
    }
}

void Board::EnterRecord(std::string_view line, const Scale& scale) {
    const Record record = ReadRecord(line);
    switch (record.Shape) {
        case Kind::Circle:
            EnterCircle(record.Centre(), record.Diameter() / 2, record.Number, scale);
            break;
        case Kind::Line:
            EnterLine(record.Ends(), record.Number, scale);
            break;
        case Kind::Point:
            EnterPoint(record.Place(), record.Number, scale);
            break;
        case Kind::None:
            return;
    }
    constexpr int NumberCharacters = 3;
    EntNum = std::max(EntNum, IntegerOf(line.substr(0, NumberCharacters)));
}

int Board::NextNumber() {
    if (EntNum < std::numeric_limits<std::int16_t>::max()) {
        ++EntNum;
    }
    return EntNum;
}

void Board::EnterCircle(Position centre, double radius, double number, const Scale& scale) {
    Enter(CircleArr, CircleIdx, {centre.X + scale.Width / 2, centre.Y + scale.Height / 2, radius, number});
    CircleTop += CircleWidth;
}

void Board::EnterLine(const Segment& line, double number, const Scale& scale) {
    const double halfWidth = scale.Width / 2;
    const double halfHeight = scale.Height / 2;
    Enter(
        LineArr, LineIdx,
        {line.Start.X + halfWidth, line.Start.Y + halfHeight, line.End.X + halfWidth, line.End.Y + halfHeight, number});
    LineTop += LineWidth;
}

void Board::EnterPoint(Position place, double number, const Scale& scale) {
    Enter(PointArr, PointIdx, {place.X + scale.Width / 2, place.Y + scale.Height / 2, number});
    PointTop += PointWidth;
}

int Board::Count(Kind kind) const {
    switch (kind) {
        case Kind::Circle:
            return std::min(CircleTop, CircleBound) / CircleWidth;
        case Kind::Line:
            return std::min(LineTop, LineBound) / LineWidth;
        case Kind::Point:
            return std::min(PointTop, PointBound) / PointWidth;
        case Kind::None:
            break;
    }
    return 0;
}

bool Board::Has(Kind kind, double number) const {
    switch (kind) {
        case Kind::Circle:
            return HasNumber(CircleArr, Count(kind), CircleWidth, number);
        case Kind::Line:
            return HasNumber(LineArr, Count(kind), LineWidth, number);
        case Kind::Point:
            return HasNumber(PointArr, Count(kind), PointWidth, number);
        case Kind::None:
            break;
    }
    return false;
}

}  // namespace brindlex::geometry
