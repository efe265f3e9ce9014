// Numbers in text, masks and slices. Each row holds an input and what it must give.
#include "frame/text.h"

#include "frame/fault.h"
#include "unit/faultof.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Limits = std::numeric_limits<double>;

TEST(Val, ReadsTheLongestNumericPrefix) {
    const struct {
        std::string text;
        double value;
    } cases[] = {
        {"5", 5.0},         {"1.50", 1.5},
        {".5", 0.5},        {"5.", 5.0},
        {"-.25", -0.25},    {"+7", 7.0},
        {"   12", 12.0},    {"  -12abc", -12.0},
        {"1 2", 1.0},       {"- 5", 0.0},
        {"12.5.7", 12.5},   {"..5", 0.0},
        {"1,5", 1.0},       {"30\xB0 15' 2\"", 30.0},
        {" 5\"", 5.0},      {"007", 7.0},
        {"--5", 0.0},       {"+-5", 0.0},
        {"0x10", 0.0},      {"&H10", 0.0},
        {"inf", 0.0},       {"nan", 0.0},
        {"-infinity", 0.0}, {"\t5", 0.0},
        {"5\t6", 5.0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
    }
}

TEST(Val, ReadsExponents) {
    const struct {
        std::string text;
        double value;
    } cases[] = {
        {"1E3", 1000.0},   {"1e3", 1000.0},   {"1.5E-05", 0.000015}, {"2E+2", 200.0}, {"-.5e1", -5.0},
        {"5.e1", 50.0},    {"1E", 1.0},       {"1E+", 1.0},          {"1E-x", 1.0},   {"1E 3", 1.0},
        {"1E3.5", 1000.0}, {"1E3E3", 1000.0}, {"E3", 0.0},           {".E3", 0.0},    {"1D3", 1.0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
    }
}

TEST(Val, NothingIsZero) {
    for (const char* text : {"", " ", "     ", "-", "+", ".", "-.", "abc", "\xB0", "E"}) {
        EXPECT_EQ(Val(text), 0.0) << '"' << text << '"';
        EXPECT_FALSE(std::signbit(Val(text))) << '"' << text << '"';
    }
    EXPECT_EQ(Val(std::string("\0"
                              "5",
                              2)),
              0.0);
    EXPECT_EQ(Val(std::string("5\0"
                              "6",
                              3)),
              5.0);
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_FALSE(std::signbit(Val("-0.000")));
}

TEST(Val, OverflowsBeyondTheRange) {
    const std::string nines(400, '9');
    for (const std::string& text :
         std::vector<std::string>{"1E309", "-1E309", "1E99999999999999999999", nines, "-" + nines + ".5",
                                  nines + "E-50", "." + std::string(500, '0') + "1E900"}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Val(text)); }), FaultNumber::Overflow) << text;
    }
    EXPECT_EQ(Val("1.7976931348623157E308"), Limits::max());
}

TEST(Val, UnderflowIsNoFault) {
    const std::string zeros(400, '0');
    for (const std::string& text :
         std::vector<std::string>{"1E-400", "-1E-400", "1E-99999999999999999999", "." + zeros + "1",
                                  "0E99999999999999999999", zeros + "E400"}) {
        EXPECT_EQ(Val(text), 0.0) << text;
    }
    EXPECT_EQ(Val("4.94065645841247E-324"), Limits::denorm_min());
    EXPECT_EQ(Val("1" + zeros + "E-400"), 1.0);
    EXPECT_EQ(Val("." + zeros + "1E401"), 1.0);
    // What ends the number ends it before the exponent too: a second point, and the first character behind the digits.
    for (const char* const rest : {"1.5E900", "1:5E900", "1/5E900", "1 E900"}) {
        EXPECT_EQ(Val("." + zeros + rest), 0.0) << rest;
    }
}

TEST(Val, AgreesWithTheSystemsReader) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-320, 306);
    for (int i = 0; i < 2000; ++i) {
        char text[64];
        std::snprintf(text, sizeof text, "%.*fE%d", i % 18, mantissa(random), exponent(random));
        EXPECT_EQ(Val(text), std::strtod(text, nullptr)) << text;
    }
}

TEST(Str, WritesFifteenDigitsAtMost) {
    const struct {
        double number;
        std::string text;
    } cases[] = {
        {0.0, " 0"},
        {-0.0, " 0"},
        {1.0, " 1"},
        {-1.0, "-1"},
        {0.5, " .5"},
        {-0.5, "-.5"},
        {-1.25, "-1.25"},
        {100.0, " 100"},
        {0.1 + 0.2, " .3"},
        {1.0 / 3.0, " .333333333333333"},
        {2.0 / 3.0, " .666666666666667"},
        {-200.0 / 3.0, "-66.6666666666667"},
        {3.141592653589793, " 3.14159265358979"},
        {123456789012345.0, " 123456789012345"},
        {12345678901234.5, " 12345678901234.5"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Str(c.number), c.text);
    }
}

TEST(Str, ExponentFormBelowMinusFourAndAboveFourteen) {
    const struct {
        double number;
        std::string text;
    } cases[] = {
        {0.0001, " .0001"},
        {0.000123, " .000123"},
        {0.00009, " 9E-05"},
        {0.00001, " 1E-05"},
        {0.000015, " 1.5E-05"},
        {-0.000015, "-1.5E-05"},
        {1e14, " 100000000000000"},
        {1e15, " 1E+15"},
        {-1.5e15, "-1.5E+15"},
        {1234567890123456.0, " 1.23456789012346E+15"},
        {1e-10, " 1E-10"},
        {1e100, " 1E+100"},
        {2.5e-300, " 2.5E-300"},
        {Limits::max(), " 1.79769313486232E+308"},
        {Limits::denorm_min(), " 4.94065645841247E-324"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Str(c.number), c.text);
    }
}

TEST(Str, TheExponentIsTheRoundedNumbers) {
    EXPECT_EQ(Str(999999999999999.0), " 999999999999999");
    EXPECT_EQ(Str(999999999999999.9), " 1E+15");
    EXPECT_EQ(Str(0.00009999999999999999), " .0001");
    EXPECT_EQ(Str(0.0000999999999999999), " 9.99999999999999E-05");
}

TEST(Str, RefusesWhatIsNoNumber) {
    for (const double number : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Str(number)); }), FaultNumber::Overflow);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Format(number, "0")); }), FaultNumber::Overflow);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Round(number)); }), FaultNumber::Overflow);
    }
}

TEST(Str, HoldsTheNumberToFifteenDigits) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-290, 290);
    for (int i = 0; i < 2000; ++i) {
        const double number = mantissa(random) * std::pow(10.0, exponent(random));
        char digits[40];
        std::snprintf(digits, sizeof digits, "%.14e", number);
        EXPECT_EQ(Val(Str(number)), std::strtod(digits, nullptr)) << digits;
    }
}

TEST(Format, FollowsItsMask) {
    const struct {
        double number;
        std::string mask;
        std::string text;
    } cases[] = {
        {0.5, ".0000", ".5000"},
        {12.5, ".0000", "12.5000"},
        {0.0, ".0000", ".0000"},
        {-0.5, ".0000", "-.5000"},
        {0.5, "0.0000", "0.5000"},
        {0.0, "0", "0"},
        {5.0, "0.", "5."},
        {5.4, "0", "5"},
        {0.0, "0.", "0."},
        {5.0, ".", "5."},
        {0.2, ".", "."},
        {7.0, "00.00", "07.00"},
        {-7.125, "000.0", "-007.1"},
        {123.456, "00.00", "123.46"},
        {0.004, "00.00", "00.00"},
        {25.4, ".000000000000000", "25.400000000000000"},
        {1.0 / 3.0, ".000000000000000", ".333333333333333"},
        {1e20, ".00", "100000000000000000000.00"},
        {123456789012345678.0, "0", "123456789012346000"},
        {1e-20, ".0000", ".0000"},
        {99.99995, ".0000", "100.0000"},
        {0.99999, ".0000", "1.0000"},
        {0.96, "0.0", "1.0"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Format(c.number, c.mask), c.text) << c.number << " by " << c.mask;
    }
}

TEST(Format, TiesOfTheDecimalFormGoAwayFromZero) {
    // 1.005 lies below its decimal form as a double; the 15-digit form decides.
    const struct {
        double number;
        std::string mask;
        std::string text;
    } cases[] = {
        {1.005, ".00", "1.01"},
        {-1.005, ".00", "-1.01"},
        {0.285, ".00", ".29"},
        {0.5, "0", "1"},
        {-0.5, "0", "-1"},
        {1.5, "0", "2"},
        {2.5, "0", "3"},
        {0.49999999999999994, "0", "1"},
        {0.4999, "0", "0"},
        {0.05, ".0", ".1"},
        {0.04999, ".0", ".0"},
        {2.00005, ".0000", "2.0001"},
        {8.00095, ".0000", "8.0010"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Format(c.number, c.mask), c.text) << c.number << " by " << c.mask;
    }
}

TEST(Format, NoMinusWhenNothingButZerosRemain) {
    EXPECT_EQ(Format(-0.0, ".00"), ".00");
    EXPECT_EQ(Format(-0.004, ".00"), ".00");
    EXPECT_EQ(Format(-0.4, "0"), "0");
    EXPECT_EQ(Format(-0.4, "0."), "0.");
    EXPECT_EQ(Format(-1e-300, ".0000"), ".0000");
    EXPECT_EQ(Format(-0.005, ".00"), "-.01");
}

TEST(Format, AgreesWithWholeNumberArithmetic) {
    // k / 1000 to two places is (k + 5) / 10 hundredths.
    for (int k = 0; k < 30000; k += 7) {
        const int hundredths = (k + 5) / 10;
        char text[16];
        std::snprintf(text, sizeof text, "%d.%02d", hundredths / 100, hundredths % 100);
        ASSERT_EQ(Format(k / 1000.0, "0.00"), text) << k;
        ASSERT_EQ(Format(-k / 1000.0, "0.00"), (hundredths == 0 ? "" : "-") + std::string(text)) << k;
    }
}

TEST(Format, RefusesOtherMasks) {
    for (const char* mask : {"#", "0.0.0", "0,0", "General", " 0"}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Format(1.0, mask)); }), FaultNumber::BadArgument) << mask;
    }
}

TEST(Round, TiesOfTheDecimalFormGoToEven) {
    const struct {
        double number;
        int decimals;
        double rounded;
    } cases[] = {
        {0.5, 0, 0.0},      {1.5, 0, 2.0},      {2.5, 0, 2.0},    {3.5, 0, 4.0},           {-0.5, 0, 0.0},
        {-1.5, 0, -2.0},    {-2.5, 0, -2.0},    {0.51, 0, 1.0},   {0.49, 0, 0.0},          {9.5, 0, 10.0},
        {99.5, 0, 100.0},   {1.005, 2, 1.0},    {1.015, 2, 1.02}, {0.285, 2, 0.28},        {0.125, 2, 0.12},
        {0.375, 2, 0.38},   {12.345, 2, 12.34}, {5.0, 2, 5.0},    {1234.5678, 1, 1234.6},  {0.0004, 3, 0.0},
        {0.0006, 3, 0.001}, {1e20, 5, 1e20},    {0.05, 0, 0.0},   {-999.9996, 3, -1000.0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Round(c.number, c.decimals), c.rounded) << c.number << " to " << c.decimals;
    }
    EXPECT_EQ(Round(2.5), 2.0);
}

TEST(Round, KeepsFifteenDigits) {
    EXPECT_EQ(Round(0.1 + 0.2, 22), 0.3);
    EXPECT_EQ(Round(1.0 / 3.0, 15), 0.333333333333333);
    EXPECT_EQ(Round(1.0 / 3.0, 4), 0.3333);
    EXPECT_EQ(Round(Limits::max(), 22), Limits::max());
    EXPECT_EQ(Round(Limits::lowest(), 0), Limits::lowest());
}

TEST(Round, NeverGivesNegativeZero) {
    for (const double number : {-0.0, -0.4, -0.5, -1e-300}) {
        EXPECT_EQ(Round(number), 0.0);
        EXPECT_FALSE(std::signbit(Round(number))) << number;
    }
}

TEST(Round, AgreesWithWholeNumberArithmetic) {
    for (int k = 0; k < 30000; k += 5) {
        const int floor = k / 10;
        const int rest = k % 10;
        const bool up = rest > 5 || (rest == 5 && floor % 2 == 1);
        ASSERT_EQ(Round(k / 1000.0, 2), (floor + (up ? 1 : 0)) / 100.0) << k;
    }
}

TEST(Round, RefusesOtherDecimals) {
    EXPECT_EQ(FaultOf([] { static_cast<void>(Round(1.0, -1)); }), FaultNumber::BadArgument);
    EXPECT_EQ(FaultOf([] { static_cast<void>(Round(1.0, 23)); }), FaultNumber::BadArgument);
}

TEST(Fix, TruncatesTowardZero) {
    EXPECT_EQ(Fix(2.9), 2.0);
    EXPECT_EQ(Fix(-2.9), -2.0);
    EXPECT_EQ(Fix(-0.9), 0.0);
    EXPECT_FALSE(std::signbit(Fix(-0.9)));
    EXPECT_EQ(Fix(1e20), 1e20);
}

TEST(Int, RoundsDown) {
    EXPECT_EQ(Int(2.9), 2.0);
    EXPECT_EQ(Int(-2.1), -3.0);
    EXPECT_EQ(Int(-2.0), -2.0);
    EXPECT_FALSE(std::signbit(Int(-0.0)));
}

TEST(CInt, TiesToEven) {
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-0.5), 0);
    EXPECT_EQ(CInt(-1.5), -2);
    EXPECT_EQ(CInt(7.49), 7);
}

TEST(CInt, OverflowsOutsideSixteenBits) {
    EXPECT_EQ(CInt(32767.0), 32767);
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
    for (const double number : {32767.5, 32768.0, -32768.6, 1e300, -1e300, Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(CInt(number)); }), FaultNumber::Overflow) << number;
    }
}

TEST(InStr, FindsFromAStart) {
    EXPECT_EQ(InStr("Line Tangent", "Tangent"), 6);
    EXPECT_EQ(InStr("a,b,c", ","), 2);
    EXPECT_EQ(InStr("a,b,c", ",", 2), 2);
    EXPECT_EQ(InStr("a,b,c", ",", 3), 4);
    EXPECT_EQ(InStr("a,b,c", ",", 5), 0);
    EXPECT_EQ(InStr("abc", "C"), 0);
    EXPECT_EQ(InStr("abc", "abcd"), 0);
    EXPECT_EQ(InStr("30\xB0", "\xB0"), 3);
    EXPECT_EQ(InStr(std::string("a\0b", 3), "b"), 3);
}

TEST(InStr, EmptyTexts) {
    EXPECT_EQ(InStr("abc", ""), 1);
    EXPECT_EQ(InStr("abc", "", 3), 3);
    EXPECT_EQ(InStr("abc", "", 4), 0);
    EXPECT_EQ(InStr("", ""), 0);
    EXPECT_EQ(InStr("", "a"), 0);
    EXPECT_EQ(InStr("abc", "a", std::numeric_limits<int>::max()), 0);
}

TEST(Slices, TakeWhatIsThere) {
    EXPECT_EQ(Left("Rounding", 5), "Round");
    EXPECT_EQ(Left("abc", 9), "abc");
    EXPECT_EQ(Left("abc", 0), "");
    EXPECT_EQ(Left("", 3), "");
    EXPECT_EQ(Right("Rounding=4", 1), "4");
    EXPECT_EQ(Right("abc", 9), "abc");
    EXPECT_EQ(Right("abc", 0), "");
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 5, 9), "ef");
    EXPECT_EQ(Mid("abcdef", 6, 1), "f");
    EXPECT_EQ(Mid("abcdef", 7, 1), "");
    EXPECT_EQ(Mid("abcdef", std::numeric_limits<int>::max(), std::numeric_limits<int>::max()), "");
    EXPECT_EQ(Mid("abcdef", 2, 0), "");
    EXPECT_EQ(Mid("abcdef", 4), "def");
    EXPECT_EQ(Mid("abc", 4), "");
}

TEST(Slices, RefuseBadArguments) {
    const std::function<void()> steps[] = {
        [] { static_cast<void>(Left("abc", -1)); },
        [] { static_cast<void>(Right("abc", -1)); },
        [] { static_cast<void>(Mid("abc", 0, 1)); },
        [] { static_cast<void>(Mid("abc", 1, -1)); },
        [] { static_cast<void>(Mid("abc", -5)); },
        [] { static_cast<void>(InStr("abc", "a", 0)); },
        [] { static_cast<void>(InStr("abc", "", -1)); },
        [] { static_cast<void>(Space(-1)); },
        [] { static_cast<void>(Asc("")); },
        [] { static_cast<void>(Chr(-1)); },
        [] { static_cast<void>(Chr(256)); },
    };
    int row = 0;
    for (const auto& step : steps) {
        EXPECT_EQ(FaultOf(step), FaultNumber::BadArgument) << "row " << row;
        ++row;
    }
}

TEST(Characters, CodesRunToTwoHundredAndFiftyFive) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("30\xB0"), 3);
    EXPECT_EQ(Space(0), "");
    EXPECT_EQ(Space(3), "   ");
    EXPECT_EQ(Asc("A"), 65);
    EXPECT_EQ(Asc("\xB0x"), 176);
    EXPECT_EQ(Chr(176), std::string(1, DegreeSign));
    for (int code = 0; code <= 255; ++code) {
        EXPECT_EQ(Asc(Chr(code)), code);
    }
}

}  // namespace
}  // namespace brindlex
