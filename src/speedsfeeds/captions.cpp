// The table of captions.
#include "speedsfeeds/captions.h"

namespace brindlex::speedsfeeds {

namespace {

constexpr std::string_view InchFrame = "REQUIRED DATA (Units: INCHES)";
constexpr std::string_view MetricFrame = "REQUIRED DATA (Units: METRIC)";
constexpr std::string_view InchPower = "To Calculate Required H.P.";
constexpr std::string_view MetricPower = "To Calculate Required KW";
constexpr std::string_view InchMode = "ENTER New INCH Data";
constexpr std::string_view MetricMode = "ENTER New METRIC Data";
constexpr std::string_view InchFactor = "Power Constant/HP Factor";
constexpr std::string_view MetricFactor = "Power Constant/KW Factor";
constexpr std::string_view ToMetric = "CONVERT To Metric Data";
constexpr std::string_view ToInch = "CONVERT To Inch Data";

constexpr CaptionRow Rows[] = {
    // name, inch mill, metric mill, inch lathe, metric lathe
    {"Frame1", InchFrame, MetricFrame, InchFrame, MetricFrame},
    {"Frame4", InchPower, MetricPower, InchPower, MetricPower},
    {"DataOp", InchMode, MetricMode, InchMode, MetricMode},
    {"Label5", "Range: SFM", "Range: SMM", "Range: SFM", "Range: SMM"},
    {"Label6", "Range: FPT", "Range: FPT", "Range: FPR", "Range: FPR"},
    {"Label7", "Choose SFM", "Choose SMM", "Choose SFM", "Choose SMM"},
    {"Label8", "Choose FPT", "Choose FPT", "Choose FPR", "Choose FPR"},
    {"Label9", "Tool Dia.", "Tool Dia.", "Work Dia.", "Work Dia."},
    {"Label12", "Width of Cut", "Width of Cut", "IPR", "IPR"},
    {"Label13", InchFactor, MetricFactor, InchFactor, MetricFactor},
    {"Label17", "IPM", "MPM", "FPM", "MPM"},
    {"Label20", "Req. H.P.", "Req. KW", "Req. H.P.", "Req. KW"},
    {"ConvDat", ToMetric, ToInch, ToMetric, ToInch},
};

}  // namespace

std::string_view CaptionRow::For(Unit unit, Machine machine) const {
    if (machine == Machine::Mill) {
        return unit == Unit::Inch ? InchMill : MetricMill;
    }
    return unit == Unit::Inch ? InchLathe : MetricLathe;
}

bool CaptionRow::OfUnitAlone() const {
    return InchMill == InchLathe && MetricMill == MetricLathe;
}

std::span<const CaptionRow> CaptionRows() {
    return Rows;
}

std::string_view ConvertedFeedRateCaption(Unit unit) {
    return unit == Unit::Inch ? "IPM" : "MMPM";
}

}  // namespace brindlex::speedsfeeds
