// The lines of cutting data, read without a form: what the fields of a line hold makes a line that reads the same, and
// ranges, conversions and the calculation from them let no fault out.
#include "readfuzz.h"

#include "frame/fault.h"
#include "speedsfeeds/calculation.h"
#include "speedsfeeds/ranges.h"
#include "speedsfeeds/record.h"

#include <numbers>

namespace {

using namespace brindlex;
using namespace brindlex::speedsfeeds;

Record RecordOf(std::string_view line) {
    return {std::string(ToolOf(line)),       std::string(ToolMaterialOf(line)), std::string(WorkMaterialOf(line)),
            std::string(SpeedRangeOf(line)), std::string(FeedRangeOf(line)),    std::string(PowerFactorOf(line))};
}

std::string AllOf(const Record& record) {
    return record.Tool + record.ToolMaterial + record.WorkMaterial + record.SpeedRange + record.FeedRange +
           record.PowerFactor;
}

void CheckWriting(std::string_view line, const Record& record) {
    const Unit unit = IsOfUnit(line, Unit::Metric) ? Unit::Metric : Unit::Inch;
    const std::string written = RecordLine(unit, record);
    const Record back = RecordOf(written);
    Demand(IsOfUnit(written, unit) && !IsOfUnit(written, Other(unit)));
    Demand(back.Tool == record.Tool && back.ToolMaterial == record.ToolMaterial);
    Demand(back.WorkMaterial == record.WorkMaterial && back.SpeedRange == record.SpeedRange);
    Demand(back.FeedRange == record.FeedRange && back.PowerFactor == record.PowerFactor);
}

void CheckNumbers(const Record& record) {
    for (const std::string& range : {record.SpeedRange, record.FeedRange}) {
        DemandFinite({NumberOf(range)});
        if (const auto sorted = SortedRange(range)) {
            Demand(sorted->Left.Value <= sorted->Right.Value);
        }
        Demand(range.starts_with(StartingValue(range)) || range.ends_with(StartingValue(range)));
    }
    for (const Unit unit : {Unit::Inch, Unit::Metric}) {
        static_cast<void>(ConvertRanges({record.SpeedRange, record.FeedRange}, unit));
        Guarded([&] { static_cast<void>(ConvertNumber(record.PowerFactor, KilowattFactor, unit)); });
        Entries entries{StartingValue(record.SpeedRange),
                        StartingValue(record.FeedRange),
                        record.Tool,
                        "4",
                        "1",
                        record.WorkMaterial,
                        record.PowerFactor,
                        record.ToolMaterial,
                        "2",
                        record.SpeedRange,
                        record.FeedRange};
        const Results results = Calculate(entries, unit, Machine::Mill, std::numbers::pi, true);
        Demand((results.SpindleSpeed + results.FeedRate).find_first_not_of("-.0123456789") == std::string::npos);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The lines of a file know nothing of each other.
    constexpr std::size_t MostLines = 2;
    std::string_view text = TextOf(data, size);
    for (std::size_t lines = 0; lines < MostLines && !text.empty(); ++lines) {
        const std::string_view line = TakeLine(text);
        const Record record = RecordOf(line);
        const std::string all = AllOf(record);
        // Nothing keeps a field from holding a mark, and then it reads as something else.
        if (all.find_first_of("_!@#$%^") == std::string::npos) {
            CheckWriting(line, record);
        }
        // A record of nothing is the same every time, and its faults take long.
        if (!all.empty()) {
            CheckNumbers(record);
        }
    }
    return 0;
}
