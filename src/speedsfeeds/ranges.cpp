// Ranges and conversions.
#include "speedsfeeds/ranges.h"

#include "frame/checked.h"
#include "frame/fault.h"
#include "frame/text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace brindlex::speedsfeeds {

namespace {

constexpr const char* SpeedMask = "0";
constexpr const char* NumberMask = ".0000";

Checked InUnit(double value, double factor, Unit to) {
    return to == Unit::Metric ? Checked(value) * factor : Checked(value) / factor;
}

/// A whole range in the other unit; empty where an end is 0.
std::string ConvertRange(const RangeEnds& ends, double factor, Unit to, const char* mask) {
    const double left = InUnit(ends.Left.Value, factor, to).Value();
    const double right = InUnit(ends.Right.Value, factor, to).Value();
    return left == 0 || right == 0 ? std::string() : Format(left, mask) + "-" + Format(right, mask);
}

}  // namespace

double NumberOf(std::string_view text) {
    double value = 0;
    Guarded([&] { value = Val(text); });
    return value;
}

std::optional<RangeEnds> SplitRange(std::string_view range) {
    const std::size_t minus = range.find('-');
    if (minus == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view left = range.substr(0, minus);
    const std::string_view right = range.substr(minus + 1);
    return RangeEnds{{std::string(left), NumberOf(left)}, {std::string(right), NumberOf(right)}};
}

std::optional<RangeEnds> SortedRange(std::string_view range) {
    std::optional<RangeEnds> ends = SplitRange(range);
    if (ends && ends->Left.Value > ends->Right.Value) {
        std::swap(ends->Left, ends->Right);
    }
    return ends;
}

std::string StartingValue(std::string_view range) {
    const std::optional<RangeEnds> ends = SortedRange(range);
    return ends ? ends->Left.Text : std::string(range);
}

std::optional<RangePair> ConvertRanges(const RangePair& ranges, Unit to) {
    const std::optional<RangeEnds> speed = SplitRange(ranges.Speed);
    const std::optional<RangeEnds> feed = SplitRange(ranges.Feed);
    if (!speed || !feed) {
        return std::nullopt;
    }
    RangePair converted;
    Guarded([&] {
        converted.Speed = ConvertRange(*speed, MetersPerFoot, to, SpeedMask);
        converted.Feed = ConvertRange(*feed, MillimetersPerInch, to, NumberMask);
    });
    if (converted.Speed.empty() || converted.Feed.empty()) {
        return std::nullopt;
    }
    return converted;
}

std::string ConvertNumber(std::string_view text, double factor, Unit to) {
    return Format(InUnit(Val(text), factor, to).Value(), NumberMask);
}

}  // namespace brindlex::speedsfeeds
