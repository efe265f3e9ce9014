// Ranges of speeds and feeds as texts: one number, or two with "-" between, either way round.
// Includes no control, form or runtime.
#pragma once

#include "services/units.h"
#include "speedsfeeds/setup.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex::speedsfeeds {

/// The number at the head of a text; 0 where there is none, and for one beyond the range of numbers.
[[nodiscard]] double NumberOf(std::string_view text);

/// One end of a range, as it is written and as it reads.
struct RangeEnd {
    std::string Text;
    double Value = 0;
};

/// The ends as they stand, parted by the first "-".
struct RangeEnds {
    RangeEnd Left;
    RangeEnd Right;
};

/// Nothing for a range without "-".
[[nodiscard]] std::optional<RangeEnds> SplitRange(std::string_view range);
/// The same with the lower end left.
[[nodiscard]] std::optional<RangeEnds> SortedRange(std::string_view range);

/// The value to begin with: the whole of a range without "-", else its lower end as it is written.
[[nodiscard]] std::string StartingValue(std::string_view range);

struct RangePair {
    std::string Speed;
    std::string Feed;
};

/// Both ranges in the other unit: speeds in feet or meters with mask "0", feeds in inches or millimeters with mask
/// ".0000". Nothing where a range has no "-", or an end is 0 or too large.
[[nodiscard]] std::optional<RangePair> ConvertRanges(const RangePair& ranges, Unit to);

/// A number in the other unit, as text with mask ".0000": `factor` metric units make one inch unit. Throws Fault where
/// it is too large.
[[nodiscard]] std::string ConvertNumber(std::string_view text, double factor, Unit to);

inline constexpr double MetersPerFoot = 0.3048;
inline constexpr double KilowattFactor = 2.73;

}  // namespace brindlex::speedsfeeds
