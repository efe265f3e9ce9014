// Corners of the services that no calculator comes to: words of a Boolean, widths of characters, numbers beyond all.
#include "frame/fontwidths.h"
#include "frame/text.h"
#include "services/words.h"
#include "unit/faultof.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace brindlex {
namespace {

TEST(BooleanWords, NumbersCountToo) {
    const struct {
        const char* word;
        std::optional<bool> value;
    } cases[] = {
        {"True", true},          {"FALSE", false},      {"1", true},          {"0", false},
        {" -2.5", true},         {"0.0", false},        {"+9", true},         {"", std::nullopt},
        {"truer", std::nullopt}, {"1e5", std::nullopt}, {"no", std::nullopt}, {"0,1", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(BooleanFromWord(c.word), c.value) << c.word;
    }
    EXPECT_EQ(BooleanWord(true), "True");
    EXPECT_EQ(BooleanWord(false), "False");
}

TEST(FontWidths, CodesAroundTheTable) {
    // Thousandths of 10 points, 20 twips each: a width of 500 is 100 twips.
    const struct {
        const char* text;
        double regular;
        double bold;
    } cases[] = {
        {"\x1F", 111.2, 111.2},   {" ", 55.6, 55.6},
        {"!", 55.6, 66.6},        {"~", 116.8, 116.8},
        {"\x7F", 111.2, 111.2},   {"\xAF", 111.2, 111.2},
        {"\xB0", 80, 80},         {"\xB1", 111.2, 111.2},
        {"\xFF", 111.2, 111.2},   {"", 0, 0},
        {"~\xB0 ", 252.4, 252.4},
    };
    for (const auto& c : cases) {
        EXPECT_NEAR(TextWidth(c.text, 10, false), c.regular, 1e-9) << c.text;
        EXPECT_NEAR(TextWidth(c.text, 10, true), c.bold, 1e-9) << c.text;
    }
}

TEST(Mid, FromTheFirstCharacterOn) {
    EXPECT_EQ(Mid("abc", 1, 2), "ab");
    EXPECT_EQ(Mid("abc", 1, 0), "");
    EXPECT_EQ(Mid("abc", 1), "abc");
    EXPECT_EQ(Mid("", 1, 1), "");
}

TEST(Str, ExponentsAroundTen) {
    EXPECT_EQ(Str(1e-8), " 1E-08");
    EXPECT_EQ(Str(1e-9), " 1E-09");
    EXPECT_EQ(Str(1e-10), " 1E-10");
    EXPECT_EQ(Str(-2.5e-11), "-2.5E-11");
    EXPECT_EQ(Str(1e99), " 1E+99");
}

TEST(Val, ExponentsBeyondAllCounting) {
    for (const char* const text :
         {"1E1000000000000", "1E5000000000000", "1E9223372036854775807", "-1E+9999999999999"}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(Val(text)); }), FaultNumber::Overflow) << text;
    }
    for (const char* const text : {"1E-1000000000000", "1E-5000000000000", "1E-9223372036854775807",
                                   "0E9223372036854775807", "0.000E99999999999999999999"}) {
        EXPECT_EQ(Val(text), 0.0) << text;
    }
}

}  // namespace
}  // namespace brindlex
