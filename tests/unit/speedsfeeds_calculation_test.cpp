// Spindle speed, feed rate, removal rate, time in cut and power; the checks before them; ranges and conversions.
#include "radians.h"
#include "speedsfeeds/calculation.h"

#include "faultof.h"
#include "speedsfeeds/captions.h"
#include "speedsfeeds/ranges.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace brindlex::speedsfeeds {
namespace {

Entries Inch() {
    Entries entries;
    entries.SurfSpeed = "100";
    entries.Feed = ".002";
    entries.Diameter = ".5";
    entries.Teeth = "4";
    return entries;
}

Results Work(const Entries& entries, Unit unit = Unit::Inch, Machine machine = Machine::Mill, bool onShow = false) {
    return Calculate(entries, unit, machine, Pi, onShow);
}

TEST(CuttingCalculation, HalfAPairOfEntriesGivesNothing) {
    Entries entries = Inch();
    entries.CutDepth = "1";
    entries.CutLength = "1";
    EXPECT_EQ(Work(entries).RemovalRate, std::nullopt);
    EXPECT_EQ(Work(entries).CutTime, std::nullopt);
    std::swap(entries.CutDepth, entries.CutWidth);
    std::swap(entries.CutLength, entries.CutCount);
    EXPECT_EQ(Work(entries).RemovalRate, std::nullopt);
    EXPECT_EQ(Work(entries).CutTime, std::nullopt);
}

TEST(CuttingRanges, AZeroAtEitherEnd) {
    Entries entries = Inch();
    // The second one reads as 0 and -3, the ends in order are -3 and 0.
    for (const char* const range : {"0-500", "0--3", "500-0"}) {
        entries.SpeedRange = range;
        const auto refusal = OutOfRange(entries, Machine::Mill);
        ASSERT_TRUE(refusal) << range;
        EXPECT_NE(refusal->Message.find("Can't Contain a Value of 0."), std::string::npos) << range;
    }
    EXPECT_EQ(ConvertRanges({"100-0", ".001-.002"}, Unit::Metric), std::nullopt);
    EXPECT_EQ(ConvertRanges({"0-100", ".001-.002"}, Unit::Metric), std::nullopt);
    EXPECT_EQ(ConvertRanges({"1-100", ".001-0"}, Unit::Metric), std::nullopt);
}

TEST(CuttingCalculation, AMillInMetricDividesBySixtyThousand) {
    Entries entries;
    entries.SurfSpeed = "60";
    entries.Feed = "1";
    entries.Diameter = "1";
    entries.Teeth = "1";
    entries.CutDepth = "1";
    entries.CutWidth = "60000";
    // With a pi of 1: 60000 turns, 60000 a minute, and 60000 x 60000 / 60000.
    EXPECT_EQ(Calculate(entries, Unit::Metric, Machine::Mill, 1, false).RemovalRate, "60000.0");
}

TEST(CuttingCalculation, AHalfInchEndMill) {
    Entries entries = Inch();
    Results results = Work(entries);
    EXPECT_EQ(results.SpindleSpeed, "763.9");  // 1200 / 1.570796
    EXPECT_EQ(results.FeedRate, "6.1");        // 763.944 x .008 = 6.1115
    EXPECT_EQ(results.RemovalRate, std::nullopt);
    EXPECT_EQ(results.CutTime, std::nullopt);
    EXPECT_EQ(results.Power, std::nullopt);
    EXPECT_EQ(results.PowerFactor, std::nullopt);
    entries.CutDepth = "3";
    entries.CutWidth = "5";
    entries.PowerFactor = ".123456";
    entries.CutLength = "10";
    entries.CutCount = "2";
    results = Work(entries);
    EXPECT_EQ(results.RemovalRate, "91.7");  // 15 x 6.11155 = 91.673
    EXPECT_EQ(results.PowerFactor, " .1235");
    EXPECT_EQ(results.Power, "11.3");       // 91.673 x .1235 = 11.322
    EXPECT_EQ(results.CutTime, "0:13:05");  // 31.41593 / 2.4 = 13.08997
    EXPECT_FALSE(results.Skipped);
    results = Calculate(entries, Unit::Inch, Machine::Mill, 3.14159265358979, false, ".000");
    EXPECT_EQ(results.SpindleSpeed, "763.944");
    EXPECT_EQ(results.FeedRate, "6.112");
    EXPECT_EQ(results.RemovalRate, "91.673");
    EXPECT_EQ(results.Power, "11.322");
}

TEST(CuttingCalculation, MetricAndLathe) {
    Entries entries;
    entries.SurfSpeed = "100";
    entries.Feed = ".25";
    entries.Diameter = "50";
    entries.Teeth = "6";
    entries.CutDepth = "2";
    entries.CutWidth = "40";
    // 100000 / 157.07963 = 636.61977; x .25 x 6 = 954.92966 / 1000; 80 x 954.92966 / 60000 = 1.27324.
    Results results = Work(entries, Unit::Metric);
    EXPECT_EQ(results.SpindleSpeed, "636.6");
    EXPECT_EQ(results.FeedRate, "1.0");
    EXPECT_EQ(results.RemovalRate, "1.3");
    // 636.61977 x 12 x .25 x 2 = 3819.719 / 1000; 100 / 60 x 40 x 2 = 133.333.
    results = Work(entries, Unit::Metric, Machine::Lathe);
    EXPECT_EQ(results.SpindleSpeed, "636.6");
    EXPECT_EQ(results.FeedRate, "3.8");
    EXPECT_EQ(results.RemovalRate, "133.3");
    // 1200 / 157.07963 = 7.639437; x 12 x .25 x 2 = 45.83662; 100 x 40 x 2 x 12 = 96000.
    results = Work(entries, Unit::Inch, Machine::Lathe);
    EXPECT_EQ(results.SpindleSpeed, "7.6");
    EXPECT_EQ(results.FeedRate, "45.8");
    EXPECT_EQ(results.RemovalRate, "96000.0");
    // The feed rate of a lathe wants a depth, and its removal rate no teeth.
    entries.CutDepth = "";
    entries.Teeth = "";
    results = Work(entries, Unit::Inch, Machine::Lathe);
    EXPECT_EQ(results.FeedRate, ".0");
    EXPECT_EQ(results.RemovalRate, std::nullopt);
}

TEST(CuttingCalculation, TheRateOfAnEarlierCalculationHasNoPower) {
    Entries entries = Inch();
    entries.PowerFactor = "1";
    EXPECT_EQ(Work(entries).Power, std::nullopt);
    const Results results = Work(entries, Unit::Inch, Machine::Mill, true);
    EXPECT_EQ(results.RemovalRate, std::nullopt);
    EXPECT_EQ(results.Power, ".0");
    EXPECT_EQ(results.PowerFactor, " 1");
}

TEST(CuttingCalculation, FaultsLeaveZeros) {
    const struct {
        const char* what;
        const char* speed;
        const char* diameter;
        const char* length;
        const char* rpm;
        const char* time;
    } cases[] = {
        {"no diameter", "100", "0", "10", ".0", "00 Sec."},
        {"no speed", "0", ".5", "10", ".0", "00 Sec."},
        {"neither", "0", "0", "10", ".0", "00 Sec."},
        {"words", "fast", "thick", "long", ".0", "00 Sec."},
        {"beyond numbers", "1E999", ".5", "10", ".0", "00 Sec."},
        {"a product beyond numbers", "1E308", ".5", "10", ".0", "00 Sec."},
        {"a time beyond numbers", "100", ".5", "1E308", "763.9", "00 Sec."},
        {"negative", "-100", ".5", "10", "-763.9", "-785 Sec."},  // -31.41593 / 2.4 = -13.08997 minutes
    };
    for (const auto& c : cases) {
        Entries entries = Inch();
        entries.SurfSpeed = c.speed;
        entries.Diameter = c.diameter;
        entries.CutLength = c.length;
        entries.CutCount = "2";
        entries.CutDepth = "0";
        entries.CutWidth = "1";
        entries.PowerFactor = "1E999";
        const Results results = Work(entries);
        EXPECT_EQ(results.SpindleSpeed, c.rpm) << c.what;
        EXPECT_EQ(results.CutTime, c.time) << c.what;
        EXPECT_EQ(results.RemovalRate, ".0") << c.what;
        EXPECT_EQ(results.Power, ".0") << c.what;
        EXPECT_EQ(results.PowerFactor, "1E999") << c.what;
        EXPECT_TRUE(results.Skipped) << c.what;
    }
}

TEST(CuttingCalculation, ATimeAtTheEndOfAllNumbersIsNone) {
    // 1.7976931348623157E308 minutes: its fifteen digits round up beyond the range.
    constexpr double Largest = std::numeric_limits<double>::max();
    EXPECT_EQ(FaultOf([] { static_cast<void>(TimeText(Largest)); }), FaultNumber::Overflow);
    Entries entries;
    entries.SurfSpeed = ".001";
    entries.Feed = "1";
    entries.Teeth = "1";
    entries.Diameter = "1";
    entries.CutLength = "1.7976931348623157E308";
    entries.CutCount = "1";
    const Results results = Calculate(entries, Unit::Metric, Machine::Mill, 1, false);
    EXPECT_EQ(results.CutTime, "00 Sec.");
    EXPECT_TRUE(results.Skipped);
}

TEST(TimeText, AllForms) {
    const struct {
        double minutes;
        const char* text;
    } cases[] = {
        {0, "00 Sec."},
        {.01, "01 Sec."},
        {.5, "30 Sec."},
        {.99, "59 Sec."},
        {.995, "60 Sec."},
        {1, "0:1:00"},
        {1.5, "0:1:30"},
        {5.991, "0:5:59"},    // .991 x 60 = 59.46
        {5.995, "0: 6:60"},   // .995 x 60 = 59.7
        {9.992, "0: 10:60"},  // 59.52
        {13.08997, "0:13:05"},
        {59.5, "0:59:30"},
        {59.995, "1:00:60"},   // the 59 and one more
        {59.9999, "1:00:00"},  // 60.000
        {60, "1:00:00"},
        {61, "1:01:00"},
        {90, "1:30:00"},
        {119, "1:59:00"},       // 1.9833 hours: 58.998
                                // minutes
        {119.995, "1:60:60"},   // and one more
        {119.9999, "2:00:00"},  // 120.000
        {600.5, "10:00:30"},
        {6000, "100:00:00"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TimeText(c.minutes), c.text) << c.minutes;
    }
}

std::string Said(const std::optional<Refusal>& refusal) {
    return refusal ? refusal->Message : "";
}

TEST(CuttingChecks, DataAreAskedForInOrder) {
    Record record;
    const struct {
        std::string Record::*field;
        Entry at;
        const char* mill;
        const char* lathe;
    } rows[] = {
        {&Record::Tool, Entry::Tool, "What Type Of Tool? Drill etc.", "What Type Of Tool? Drill etc."},
        {&Record::ToolMaterial, Entry::ToolMaterial, "What Tool Material? High Speed, Carbide etc.",
         "What Tool Material? High Speed, Carbide etc."},
        {&Record::WorkMaterial, Entry::WorkMaterial, "What Material? Stainless-406, Tool Steel-D2 etc.",
         "What Material? Stainless-406, Tool Steel-D2 etc."},
        {&Record::SpeedRange, Entry::SpeedRange, "What Suggested Range For SFM/SMM?",
         "What Suggested Range For SFM/SMM?"},
        {&Record::FeedRange, Entry::FeedRange, "What Suggested Range For Feed Per Tooth?",
         "What Suggested Range For Feed Per Revolution?"},
    };
    for (const auto& row : rows) {
        const std::optional<Refusal> refusal = MissingData(record, Machine::Mill);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->At, row.at);
        EXPECT_EQ(refusal->Message, row.mill);
        EXPECT_EQ(Said(MissingData(record, Machine::Lathe)), row.lathe);
        record.*row.field = "x";
    }
    EXPECT_FALSE(MissingData(record, Machine::Mill));  // the factor may be empty
}

TEST(CuttingChecks, EntriesAreAskedForInOrder) {
    Entries entries;
    const struct {
        std::string Entries::*field;
        Entry at;
        const char* mill;
        const char* lathe;
    } rows[] = {
        {&Entries::SurfSpeed, Entry::SurfSpeed, "How Many Surface Feet?", "How Many Surface Feet?"},
        {&Entries::Feed, Entry::Feed, "What is Feed Per Tooth?", "What is Feed Per Revolution?"},
        {&Entries::Diameter, Entry::Diameter, "What is the Tool Diameter?", "What is the Work Diameter?"},
        {&Entries::Teeth, Entry::Teeth, "How Many Teeth?", ""},
    };
    for (const auto& row : rows) {
        const std::optional<Refusal> refusal = MissingEntry(entries, Machine::Mill);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->At, row.at);
        EXPECT_EQ(refusal->Message, row.mill);
        EXPECT_EQ(Said(MissingEntry(entries, Machine::Lathe)), row.lathe);
        entries.*row.field = "0";
    }
    EXPECT_FALSE(MissingEntry(entries, Machine::Mill));
}

TEST(CuttingChecks, Ranges) {
    const std::string notWithin = "Chosen SFM/SMM Is Not Within The\r\nRange of ";
    const std::string illegal = "SFM/SMM Range Contains an Illegal Value.\r\nSFM/SMM Range Can't Contain a Value of 0.";
    const struct {
        const char* range;
        const char* chosen;
        std::string message;
        Entry at = Entry::SurfSpeed;
    } cases[] = {
        {"", "7", ""},
        {"100-500", "200", ""},
        {"100-500", "100", ""},
        {"100-500", "500", ""},
        {"500-100", "200", ""},
        {"500-100", "50", notWithin + "100-500 Specified."},
        {"100-500", "99.9", notWithin + "100-500 Specified."},
        {"100-500", "500.1", notWithin + "100-500 Specified."},
        {"100-500", "", notWithin + "100-500 Specified."},
        {"0500.0-0100", "50", notWithin + "0100-0500.0 Specified."},  // as they are written
        {"100", "100.0", ""},
        {"100", "101", notWithin + "100 Specified."},
        {"0-100", "50", illegal, Entry::SpeedRange},
        {"100-", "100", illegal, Entry::SpeedRange},
        {"-100", "100", illegal, Entry::SpeedRange},
        {"-", "0", illegal, Entry::SpeedRange},
        {"a-b", "5", illegal, Entry::SpeedRange},
        {"words", "0", ""},
        {"100-200-300", "250", notWithin + "100-200-300 Specified."},  // 200 is what the right part reads
        {"1E999-5", "5", illegal, Entry::SpeedRange},
        {"1-2", "1E999", notWithin + "1-2 Specified."},
    };
    for (const auto& c : cases) {
        Entries entries;
        entries.SpeedRange = c.range;
        entries.SurfSpeed = c.chosen;
        const std::optional<Refusal> refusal = OutOfRange(entries, Machine::Mill);
        EXPECT_EQ(Said(refusal), c.message) << c.range << " with " << c.chosen;
        if (refusal) {
            EXPECT_EQ(refusal->At, c.at) << c.range;
        }
    }
}

TEST(CuttingChecks, TheFeedComesAfterTheSpeedInTheWordsOfTheMachine) {
    Entries entries;
    entries.FeedRange = ".001-.004";
    entries.Feed = ".005";
    EXPECT_EQ(Said(OutOfRange(entries, Machine::Mill)),
              "Chosen Feed Per Tooth Is Not Within The\r\nRange of .001-.004 Specified.");
    EXPECT_EQ(OutOfRange(entries, Machine::Mill)->At, Entry::Feed);
    EXPECT_EQ(Said(OutOfRange(entries, Machine::Lathe)),
              "Chosen Feed Per Revolution Is Not Within The\r\nRange of .001-.004 Specified.");
    entries.FeedRange = ".004-0";
    EXPECT_EQ(Said(OutOfRange(entries, Machine::Mill)),
              "Feed Per Tooth Range Contains an Illegal Value.\r\nFeed Per Tooth Range Can't Contain a Value of 0.");
    EXPECT_EQ(OutOfRange(entries, Machine::Mill)->At, Entry::FeedRange);
    EXPECT_EQ(Said(OutOfRange(entries, Machine::Lathe)),
              "Feed Per Revolution Range Contains an Illegal Value.\r\n"
              "Feed Per Revolution Range Can't Contain a Value of 0.");
    entries.SpeedRange = "100";
    entries.SurfSpeed = "50";
    EXPECT_EQ(OutOfRange(entries, Machine::Mill)->At, Entry::SurfSpeed);
}

TEST(Ranges, StartingValue) {
    const struct {
        const char* range;
        const char* value;
    } cases[] = {{"", ""},   {"100", "100"},          {"80-120", "80"},   {"120-80", "80"},
                 {"-5", ""}, {".004-.0010", ".0010"}, {"words", "words"}, {"100-100.0", "100"},
                 {"7-", ""}, {"1-2-3", "1"}};
    for (const auto& c : cases) {
        EXPECT_EQ(StartingValue(c.range), c.value) << c.range;
    }
}

TEST(Ranges, Conversion) {
    const struct {
        const char* speed;
        const char* feed;
        Unit to;
        const char* newSpeed;
        const char* newFeed;
    } cases[] = {
        {"80-120", ".001-.004", Unit::Metric, "24-37", ".0254-.1016"},  // 24.384, 36.576
        {"120-80", ".004-.001", Unit::Metric, "37-24", ".1016-.0254"},  // as they stand
        {"24-37", ".0254-.1016", Unit::Inch, "79-121", ".0010-.0040"},  // 78.74, 121.39
        {"1-2", ".001-.004", Unit::Metric, "0-1", ".0254-.1016"},       // .3048, .6096
        {"100", ".001-.004", Unit::Metric, "", ""},
        {"80-120", ".002", Unit::Metric, "", ""},
        {"0-120", ".001-.004", Unit::Metric, "", ""},
        {"80-120", "a-.004", Unit::Inch, "", ""},
        {"80-1E308", ".001-1E308", Unit::Metric, "", ""},
        {"", "", Unit::Metric, "", ""},
    };
    for (const auto& c : cases) {
        const std::optional<RangePair> converted = ConvertRanges({c.speed, c.feed}, c.to);
        EXPECT_EQ(converted ? converted->Speed : "", c.newSpeed) << c.speed;
        EXPECT_EQ(converted ? converted->Feed : "", c.newFeed) << c.feed;
    }
}

TEST(Ranges, Numbers) {
    EXPECT_EQ(ConvertNumber("100", MetersPerFoot, Unit::Metric), "30.4800");
    EXPECT_EQ(ConvertNumber("30.48", MetersPerFoot, Unit::Inch), "100.0000");
    EXPECT_EQ(ConvertNumber(".5", MillimetersPerInch, Unit::Metric), "12.7000");
    EXPECT_EQ(ConvertNumber("1", MillimetersPerInch, Unit::Inch), ".0394");
    EXPECT_EQ(ConvertNumber(" .8", KilowattFactor, Unit::Metric), "2.1840");
    EXPECT_EQ(ConvertNumber("", KilowattFactor, Unit::Metric), ".0000");
}

TEST(Captions, EachRowByUnitAndMachine) {
    const CaptionRow row{"Label17", "IPM", "MPM", "FPM", "mpm"};
    EXPECT_EQ(row.For(Unit::Inch, Machine::Mill), "IPM");
    EXPECT_EQ(row.For(Unit::Metric, Machine::Mill), "MPM");
    EXPECT_EQ(row.For(Unit::Inch, Machine::Lathe), "FPM");
    EXPECT_EQ(row.For(Unit::Metric, Machine::Lathe), "mpm");
    EXPECT_TRUE((CaptionRow{"Label7", "SFM", "SMM", "SFM", "SMM"}.OfUnitAlone()));
    EXPECT_FALSE((CaptionRow{"Label17", "IPM", "MPM", "FPM", "MPM"}.OfUnitAlone()));
    EXPECT_FALSE((CaptionRow{"Label17", "IPM", "MPM", "IPM", "mpm"}.OfUnitAlone()));
    EXPECT_EQ(ConvertedFeedRateCaption(Unit::Metric), "MMPM");
    EXPECT_EQ(ConvertedFeedRateCaption(Unit::Inch), "IPM");
    for (const CaptionRow& each : CaptionRows()) {
        for (const std::string_view text : {each.InchMill, each.MetricMill, each.InchLathe, each.MetricLathe}) {
            EXPECT_FALSE(text.empty()) << each.Name;
        }
    }
    EXPECT_EQ(MachineOf("Lathe"), Machine::Lathe);
    EXPECT_EQ(MachineOf("Mill"), Machine::Mill);
    EXPECT_EQ(MachineOf("lathe"), Machine::Mill);
}

}  // namespace
}  // namespace brindlex::speedsfeeds
