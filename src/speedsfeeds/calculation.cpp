// The formulas, in the order in which they are to be evaluated.
#include "speedsfeeds/calculation.h"

#include "frame/checked.h"
#include "frame/fault.h"
#include "frame/text.h"
#include "speedsfeeds/ranges.h"

namespace brindlex::speedsfeeds {

namespace {

constexpr double InchesPerFoot = 12;
constexpr double MillimetersPerMeter = 1000;
constexpr double RemovalDivisor = 60000;
constexpr double MinutesPerHour = 60;
constexpr double SecondsPerMinute = 60;
constexpr const char* FactorMask = ".0000";
constexpr const char* MinuteMask = ".000";
constexpr const char* HourMask = ".0000";
constexpr const char* TwoDigits = "00";

/// The entries as numbers; one that can't be read is 0.
struct Numbers {
    explicit Numbers(const Entries& entries)
        : SurfSpeed(NumberOf(entries.SurfSpeed)),
          Feed(NumberOf(entries.Feed)),
          Diameter(NumberOf(entries.Diameter)),
          Teeth(NumberOf(entries.Teeth)),
          CutDepth(NumberOf(entries.CutDepth)),
          CutWidth(NumberOf(entries.CutWidth)),
          CutLength(NumberOf(entries.CutLength)),
          CutCount(NumberOf(entries.CutCount)) {}

    Checked SurfSpeed;
    Checked Feed;
    Checked Diameter;
    Checked Teeth;
    Checked CutDepth;
    Checked CutWidth;
    Checked CutLength;
    Checked CutCount;
};

/// Feet into inches, or meters into millimeters.
Checked UnitsPerLength(Unit unit) {
    return unit == Unit::Inch ? InchesPerFoot : MillimetersPerMeter;
}

/// A step's result; 0 where it faults, which is noted then.
template <class Step>
Checked OrZero(bool& skipped, Step&& step) {
    Checked result;
    skipped = !Guarded([&] { result = step(); }) || skipped;
    return result;
}

Checked RatePerMinute(const Numbers& n, Checked rpm, Machine machine) {
    if (machine == Machine::Mill) {
        return rpm * n.Feed * n.Teeth;
    }
    // The 12 stands here in metric too: intended.
    return rpm * InchesPerFoot * n.Feed * n.CutDepth;
}

Checked RemovalRate(const Numbers& n, Checked feedRate, Unit unit, Machine machine) {
    if (machine == Machine::Mill) {
        const Checked volume = n.CutDepth * n.CutWidth * feedRate;
        return unit == Unit::Inch ? volume : volume / RemovalDivisor;
    }
    if (unit == Unit::Inch) {
        return n.SurfSpeed * n.CutWidth * n.CutDepth * UnitsPerLength(unit);
    }
    return (n.SurfSpeed / SecondsPerMinute) * n.CutWidth * n.CutDepth;
}

/// The way along the work over the feed of a tool with one tooth, the teeth of a mill aside: intended.
Checked MinutesInCut(const Numbers& n, Unit unit, double pi) {
    return (n.CutLength * n.CutCount * (Checked(pi) * n.Diameter)) / (n.SurfSpeed * n.Feed * UnitsPerLength(unit));
}

/// What stands left of the point of a number through a mask, and the part from the point on.
struct Parted {
    Parted(double number, const char* mask) {
        const std::string text = Format(number, mask);
        const std::size_t point = text.find('.');
        Whole = text.substr(0, point);
        Part = Val(text.substr(point));
    }

    std::string Whole;
    double Part = 0;
};

/// Whether a number of at most two digits reads 60.
bool Reads60(const std::string& text) {
    return Val(text) == 60;
}

std::string OneMore(const std::string& number) {
    return Str(Val(number) + 1);
}

std::string MinutesText(double minutes) {
    Parted minute(minutes, MinuteMask);
    std::string hourText = "0";
    const std::string seconds = Format(SecondsPerMinute * minute.Part, TwoDigits);
    if (Reads60(seconds)) {
        minute.Whole = OneMore(minute.Whole);
    }
    if (Reads60(minute.Whole)) {
        hourText = "1";
        minute.Whole = TwoDigits;
    }
    return hourText + ":" + minute.Whole + ":" + seconds;
}

std::string HoursText(double minutes) {
    const Parted minute(minutes, MinuteMask);
    const std::string seconds = Format(SecondsPerMinute * minute.Part, TwoDigits);
    const Parted hour(Val(minute.Whole) / MinutesPerHour, HourMask);
    double minutesLeft = MinutesPerHour * hour.Part;
    // Not carried into the hours, so that the minutes may show as 60 too: intended. Before that they are 59 at most, as
    // 59 / 60 in four places is less than 59 and a half.
    if (Reads60(seconds)) {
        minutesLeft += 1;
    }
    return hour.Whole + ":" + Format(minutesLeft, TwoDigits) + ":" + seconds;
}

}  // namespace

std::string TimeText(double minutes) {
    if (minutes < 1) {
        bool skipped = false;
        const Checked seconds = OrZero(skipped, [&] { return Checked(minutes) * SecondsPerMinute; });
        return Format(seconds.Value(), TwoDigits) + " Sec.";
    }
    return minutes < MinutesPerHour ? MinutesText(minutes) : HoursText(minutes);
}

Results Calculate(const Entries& entries, Unit unit, Machine machine, double pi, bool rateOnShow,
                  std::string_view mask) {
    const Numbers n(entries);
    Results results;
    const auto tried = [&](auto&& step) { return OrZero(results.Skipped, step); };

    const Checked rpm = tried([&] { return (UnitsPerLength(unit) * n.SurfSpeed) / (Checked(pi) * n.Diameter); });
    results.SpindleSpeed = Format(rpm.Value(), mask);

    const Checked feedRate = tried([&] { return RatePerMinute(n, rpm, machine); });
    results.FeedRate = Format(unit == Unit::Inch ? feedRate.Value() : (feedRate / MillimetersPerMeter).Value(), mask);

    Checked removalRate;
    if (!entries.CutDepth.empty() && !entries.CutWidth.empty()) {
        removalRate = tried([&] { return RemovalRate(n, feedRate, unit, machine); });
        results.RemovalRate = Format(removalRate.Value(), mask);
    }
    if (!entries.CutLength.empty() && !entries.CutCount.empty()) {
        const Checked minutes = tried([&] { return MinutesInCut(n, unit, pi); });
        results.CutTime = TimeText(0);
        results.Skipped = !Guarded([&] { results.CutTime = TimeText(minutes.Value()); }) || results.Skipped;
    }
    if ((results.RemovalRate || rateOnShow) && !entries.PowerFactor.empty()) {
        std::string factor = entries.PowerFactor;
        Guarded([&] { factor = Str(Val(Format(Val(factor), FactorMask))); });
        const Checked power = tried([&] { return removalRate * Val(factor); });
        results.PowerFactor = factor;
        results.Power = Format(power.Value(), mask);
    }
    return results;
}

}  // namespace brindlex::speedsfeeds
