// Degrees, minutes and seconds: splitting, carries, texts, and reading texts back.
#include "services/degrees.h"

#include "faultof.h"
#include "services/rounding.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brindlex {
namespace {

const std::string Sign = "\xB0";

// To as many places as a calculator with these digits.
DegreeParts SplitAt(double degrees, const char* digits) {
    SharedState shared;
    return SplitDegrees(degrees, [&](double seconds) { return RoundedForDisplay(seconds, shared, digits); });
}

TEST(Degrees, SplitsIntoThreeParts) {
    struct Case {
        double degrees;
        int wholeDegrees;
        double minutes;
        double seconds;
    };
    // The fractions are exact in binary, so that nothing is rounded on the way.
    for (const Case& c : {Case{0, 0, 0, 0}, Case{45.5, 45, 30, 0}, Case{45.75, 45, 45, 0}, Case{10.125, 10, 7, 30},
                          Case{10.0625, 10, 3, 45}, Case{-45.5, -45, -30, 0}, Case{359.03125, 359, 1, 52.5}}) {
        const DegreeParts parts = SplitDegrees(c.degrees);
        EXPECT_EQ(parts.Degrees, c.wholeDegrees) << c.degrees;
        EXPECT_EQ(parts.Minutes, c.minutes) << c.degrees;
        EXPECT_EQ(parts.Seconds, c.seconds) << c.degrees;
    }
}

TEST(Degrees, SecondsAreRoundedAndCarried) {
    struct Case {
        double degrees;
        const char* digits;
        const char* text;
    };
    const Case cases[] = {
        {45 + 30 / 60.0 + 15 / 3600.0, "4", " 45\xB0  30'  15\""},
        {36.869897645844, "4", " 36\xB0  52'  11.6315\""},
        // 59 seconds and more that round to 60 carry into the minutes, and these into the degrees.
        {59 + 59 / 60.0 + 59.99999 / 3600, "4", " 60\xB0  0'  0\""},
        {29.9999999999, "4", " 30\xB0  0'  0\""},
        {12 + 34 / 60.0 + 59.97 / 3600, "1", " 12\xB0  35'  0\""},
        {12 + 34 / 60.0 + 59.97 / 3600, "2", " 12\xB0  34'  59.97\""},
        // Below zero all parts are negative, and nothing carries.
        {-10.125, "4", "-10\xB0 -7' -30\""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DegreeText(SplitAt(c.degrees, c.digits)), c.text) << c.degrees;
    }
}

TEST(Degrees, CarryNeedsExactlySixty) {
    const auto to = [](double value) { return [value](double) { return value; }; };
    EXPECT_EQ(DegreeText(SplitDegrees(1.5, to(60))), " 1" + Sign + "  31'  0\"");
    EXPECT_EQ(DegreeText(SplitDegrees(1.5, to(std::nextafter(60, 0)))), " 1" + Sign + "  30'  60\"");
    EXPECT_EQ(DegreeText(SplitDegrees(1.984375, to(60))), " 2" + Sign + "  0'  0\"");
    EXPECT_EQ(DegreeText(SplitDegrees(-1.5, to(-60))), "-1" + Sign + " -30' -60\"");
}

TEST(Degrees, SixteenBitsHoldTheDegrees) {
    EXPECT_EQ(SplitDegrees(32767.5).Degrees, 32767);
    EXPECT_EQ(SplitDegrees(-32768.5).Degrees, -32768);
    EXPECT_EQ(FaultOf([] { (void)SplitDegrees(32768); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { (void)SplitDegrees(-32769); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { (void)SplitDegrees(32767.9999, [](double) { return 60.0; }); }), FaultNumber::Overflow);
}

TEST(Degrees, TextIsReadBack) {
    struct Case {
        const char* text;
        const char* number;
    };
    const Case cases[] = {
        {" 45\xB0  30'  15\"", " 45.5041666666667"},
        {" 45\xB0  30'  0\"", " 45.5"},
        // A part begins at the third place behind a mark: with one blank too few, 0 minutes and 5 seconds are read.
        {"45\xB0 30' 15\"", " 45.0013888888889"},
        {" 45\xB0", " 45"},
        {"\xB0", " 0"},
        // The minus signs of the smaller parts stand where a blank is expected.
        {"-10\xB0 -7' -30\"", "-9.875"},
        {" .5\xB0", " .5"},
        {"45.504", "45.504"},
        {"", ""},
        {" 30' 15\"", " 30' 15\""},
    };
    for (const Case& c : cases) {
        DegreeReader reader;
        EXPECT_EQ(reader.NormalizeDmsText(c.text), c.number) << c.text;
    }
}

TEST(Degrees, MinutesAndSecondsStayForTheNextField) {
    DegreeReader reader;
    EXPECT_EQ(reader.NormalizeDmsText(" 10\xB0  30'  18\""), " 10.505");
    EXPECT_EQ(reader.NormalizeDmsText("20\xB0"), " 20.505");
    EXPECT_EQ(reader.NormalizeDmsText("7"), "7");
    EXPECT_EQ(reader.NormalizeDmsText(" 1\xB0  15'"), " 1.255");
    DegreeReader fresh;
    EXPECT_EQ(fresh.NormalizeDmsText("20\xB0"), " 20");
}

TEST(Degrees, SecondsWithoutMinutesBeginAtTheThirdCharacter) {
    DegreeReader reader;
    // From "36" behind the first two characters up to the quote: 36 seconds, one hundredth of a degree.
    EXPECT_EQ(reader.NormalizeDmsText("5\xB0"
                                      "36\""),
              " 5.01");
}

TEST(Degrees, MarksTooEarlyAreABadArgument) {
    DegreeReader reader;
    for (const char* const text : {"45\xB0'", "45\xB0 '", "'45\xB0", "45\xB0  30'\"", "\"45\xB0  30'", "\"\xB0"}) {
        EXPECT_EQ(FaultOf([&] { (void)reader.NormalizeDmsText(text); }), FaultNumber::BadArgument) << text;
    }
}

TEST(Degrees, NumbersOutOfRangeOverflow) {
    DegreeReader reader;
    EXPECT_EQ(FaultOf([&] { (void)reader.NormalizeDmsText("1E999\xB0"); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([&] { (void)reader.NormalizeDmsText("1.79E308\xB0  1.79E308'"); }), FaultNumber::Overflow);
}

}  // namespace
}  // namespace brindlex
