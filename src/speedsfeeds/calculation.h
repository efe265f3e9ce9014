// Spindle speed, feed rate, removal rate, time in cut and power, and the checks before them.
// Units: inches and surface feet per minute, or millimeters and surface meters per minute; entries and results are
// texts, as they stand in their boxes.
// Includes no control, form or runtime.
#pragma once

#include "speedsfeeds/record.h"
#include "speedsfeeds/setup.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex::speedsfeeds {

struct Entries {
    std::string SurfSpeed;
    std::string Feed;      ///< per tooth on a mill, per revolution on a lathe
    std::string Diameter;  ///< of the tool on a mill, of the work on a lathe
    std::string Teeth;     ///< not looked at on a lathe
    std::string CutDepth;
    std::string CutWidth;  ///< on a lathe the feed
    std::string PowerFactor;
    std::string CutLength;
    std::string CutCount;
    std::string SpeedRange;  ///< low and high with "-" between, or one value
    std::string FeedRange;
};

/// Where a refusal sends the focus.
enum class Entry { Tool, ToolMaterial, WorkMaterial, SpeedRange, FeedRange, SurfSpeed, Feed, Diameter, Teeth };

struct Refusal {
    Entry At;
    std::string Message;
};

/// The first field that a record can't do without and that is empty.
[[nodiscard]] std::optional<Refusal> MissingData(const Record& record, Machine machine);
/// The first entry that the calculation can't do without and that is empty.
[[nodiscard]] std::optional<Refusal> MissingEntry(const Entries& entries, Machine machine);
/// The chosen speed and feed against their ranges, the speed first. An empty range is not checked. Refuses what is
/// not within, ends included, and a range with an end of 0.
[[nodiscard]] std::optional<Refusal> OutOfRange(const Entries& entries, Machine machine);

/// What the boxes show afterwards; a box without a text keeps what it shows.
struct Results {
    std::string SpindleSpeed;
    std::string FeedRate;
    std::optional<std::string> RemovalRate;
    std::optional<std::string> CutTime;
    std::optional<std::string> PowerFactor;  ///< the entry, rounded to four places
    std::optional<std::string> Power;
    bool Skipped = false;  ///< a step faulted
};

/// One decimal, without a digit before the point for values below 1.
inline constexpr std::string_view ResultMask = ".0";

/// Works through all sections whose entries hold text. A step that faults is skipped: its result stays 0 and the next
/// one runs, so no fault comes out. The power needs a removal rate on show: one that is left from an earlier
/// calculation will do, but then the power is 0: intended. All results but the time are written by `mask`.
[[nodiscard]] Results Calculate(const Entries& entries, Unit unit, Machine machine, double pi, bool rateOnShow,
                                std::string_view mask = ResultMask);

/// Minutes as text: "30 Sec." below 1, else hours, minutes and seconds with ":" between. Seconds that round up to 60
/// are carried and yet shown as 60, with the blank of the number in front of the carried minutes: intended. Throws
/// Fault for a time at the very end of the range of numbers.
[[nodiscard]] std::string TimeText(double minutes);

}  // namespace brindlex::speedsfeeds
