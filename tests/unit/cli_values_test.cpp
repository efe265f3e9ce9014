// Numbers, lengths and angles as they are typed.
#include "cli/values.h"

#include "cli/failure.h"

#include <gtest/gtest.h>

namespace brindlex::cli {
namespace {

Arguments Given(std::string_view text) {
    Arguments given;
    given.Set("--x", text);
    return given;
}

/// What a reader gives, or its refusal.
template <class Read>
std::string Outcome(Read&& read) {
    try {
        return read();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Code(), Exit::Usage);
        return failure.what();
    }
}

struct ReadRow {
    std::string_view Text;
    std::string Expected;
};

class AngleValues : public testing::TestWithParam<ReadRow> {};

// 30 15' 20" is 30 + 15/60 + 20/3600 = 30.25555..., to 15 digits; 12 0' 30.5" is 12.00847222...
TEST_P(AngleValues, AreDecimalOrInMinutes) {
    EXPECT_EQ(Outcome([] { return AngleFrom(Given(GetParam().Text), "--x", Sign::Positive); }), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, AngleValues,
    testing::Values(
        ReadRow{"30", "30"}, ReadRow{"30.5", "30.5"}, ReadRow{" 30.5 deg", "30.5"}, ReadRow{"30.5d", "30.5"},
        ReadRow{"30.5\xC2\xB0", "30.5"}, ReadRow{"1e1", "1e1"}, ReadRow{"30:15:20", " 30.2555555555556"},
        ReadRow{"30d15m20s", " 30.2555555555556"}, ReadRow{"30\xC2\xB0 15' 20\"", " 30.2555555555556"},
        ReadRow{"30 deg 15 min", " 30.25"}, ReadRow{"12:0:30.5", " 12.0084722222222"}, ReadRow{"0:30", " .5"},
        ReadRow{"0", "--x 0: this must be above 0"}, ReadRow{"0:0:0", "--x 0:0:0: this must be above 0"},
        ReadRow{"-3", "--x -3: this must be above 0"}, ReadRow{"30:", "--x 30:: this is no angle"},
        ReadRow{"30:15:", "--x 30:15:: this is no angle"}, ReadRow{"30::15", "--x 30::15: this is no angle"},
        ReadRow{"30.5:15", "--x 30.5:15: this is no angle"}, ReadRow{"30:-15", "--x 30:-15: this is no angle"},
        ReadRow{"30:1.5:2", "--x 30:1.5:2: this is no angle"}, ReadRow{"1:2:3:4", "--x 1:2:3:4: this is no angle"},
        ReadRow{"30:60", "--x 30:60: minutes and seconds must be below 60"},
        ReadRow{"30:0:60", "--x 30:0:60: minutes and seconds must be below 60"},
        ReadRow{"32768:0", "--x 32768:0: this is out of range"}, ReadRow{"30m", "--x 30m: this is no angle"},
        ReadRow{"1e999", "--x 1e999: this is out of range"}, ReadRow{"", "--x : this is no number"}));

class Lengths : public testing::TestWithParam<ReadRow> {};

TEST_P(Lengths, MayNameTheirUnit) {
    EXPECT_EQ(Outcome([] { return LengthFrom(Given(GetParam().Text), "--x", Unit::Inch, Sign::NotNegative); }),
              GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Lengths,
    testing::Values(ReadRow{"5", "5"}, ReadRow{".5in", ".5"}, ReadRow{"5\"", "5"}, ReadRow{"+5. in", "+5."},
                    ReadRow{"0", "0"}, ReadRow{"5mm", "--x 5mm: the unit here is in"},
                    ReadRow{"5cm", "--x 5cm: this is no length"}, ReadRow{"in", "--x in: this is no number"},
                    ReadRow{"5 5", "--x 5 5: this is no length"}, ReadRow{".", "--x .: this is no number"},
                    ReadRow{"-1", "--x -1: this must not be below 0"}));

TEST(Numbers, StandAlone) {
    for (const std::string_view text : {"5", "-5", "+.5", "5.", "1e3", "1E-3", "-0"}) {
        EXPECT_TRUE(IsNumber(text)) << text;
    }
    for (const std::string_view text : {"", ".", "-", "5 ", " 5", "1e", "1e+", "5,5", "0x1", "nan", "inf", "5-6"}) {
        EXPECT_FALSE(IsNumber(text)) << text;
    }
}

TEST(Counts, AreWholeAndInRange) {
    const auto count = [](std::string_view text) {
        return Outcome([&] { return std::to_string(CountFrom(Given(text), "--x", 3, 36)); });
    };
    EXPECT_EQ(count("3"), "3");
    EXPECT_EQ(count("3.6e1"), "36");
    EXPECT_EQ(count("2"), "--x 2: this must be from 3 to 36");
    EXPECT_EQ(count("37"), "--x 37: this must be from 3 to 36");
    EXPECT_EQ(count("4.5"), "--x 4.5: this must be a whole number");
    EXPECT_EQ(Outcome([] { return std::to_string(CountFrom({}, "--x", 3, 36)); }), "--x is missing");
}

TEST(OneOf, IsGivenOnce) {
    static constexpr std::string_view Options[] = {"--a", "--b", "--c"};
    Arguments given;
    const auto one = [&] { return std::string(OnlyOneOf(given, Options)); };
    EXPECT_EQ(Outcome(one), "--a, --b or --c is missing");
    given.Set("--b", "1");
    EXPECT_EQ(Outcome(one), "--b");
    given.Set("--c", "1");
    EXPECT_EQ(Outcome(one), "--b and --c exclude each other");
}

}  // namespace
}  // namespace brindlex::cli
