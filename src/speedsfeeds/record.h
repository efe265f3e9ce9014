// One line of cutting data: "I_tool!tool material@work material#speed range$feed range%power factor^", "I" for inch
// data and "M" for metric data. The marks part the fields; nothing keeps a field from holding one.
// Includes no control, form or runtime.
#pragma once

#include "speedsfeeds/setup.h"

#include <string>
#include <string_view>

namespace brindlex::speedsfeeds {

/// The fields as they were entered. Ranges are one number, or low and high with "-" between.
struct Record {
    std::string Tool;
    std::string ToolMaterial;
    std::string WorkMaterial;
    std::string SpeedRange;   ///< surface feet, or meters, per minute
    std::string FeedRange;    ///< inches, or millimeters, per tooth or per revolution
    std::string PowerFactor;  ///< horse power, or kilowatts, per removal rate; may be empty
};

/// The record as a line. Of a pasted field only the first line counts: the rest would part the record.
[[nodiscard]] std::string RecordLine(Unit unit, const Record& record);

/// Whether a line's tag is that of the unit.
[[nodiscard]] bool IsOfUnit(std::string_view line, Unit unit);

// The fields of any line, each between the first two of its marks. Where the second mark is missing, or stands before
// the first, the field is empty; where the first is missing, the field begins with the line.

[[nodiscard]] std::string_view ToolOf(std::string_view line);
[[nodiscard]] std::string_view ToolMaterialOf(std::string_view line);
[[nodiscard]] std::string_view WorkMaterialOf(std::string_view line);
[[nodiscard]] std::string_view SpeedRangeOf(std::string_view line);
[[nodiscard]] std::string_view FeedRangeOf(std::string_view line);
[[nodiscard]] std::string_view PowerFactorOf(std::string_view line);

}  // namespace brindlex::speedsfeeds
