// Masks, trailing zeros, the rounding slots, stored digits.
#include "services/rounding.h"

#include "frame/fault.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Rounding, MaskHasAsManyZerosAsTheTextSays) {
    struct Case {
        const char* digits;
        const char* mask;
        int loopAfter;
    };
    for (const Case& c : {Case{"1", ".0", 2}, Case{"4", ".0000", 5}, Case{"15", ".000000000000000", 16},
                          Case{"", ".", 1}, Case{"-3", ".", 1}, Case{"2.5", ".00", 3}, Case{"3.5", ".0000", 5}}) {
        SharedState shared;
        EXPECT_EQ(RoundingMask(c.digits, shared), c.mask) << c.digits;
        EXPECT_EQ(shared.LoopI, c.loopAfter) << c.digits;
    }
}

TEST(Rounding, MaskOfMoreThanSixteenBitsOverflows) {
    SharedState shared;
    try {
        (void)RoundingMask("40000", shared);
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.Number(), FaultNumber::Overflow);
    }
}

TEST(Rounding, TrailingZerosGoAndThePointStays) {
    struct Case {
        const char* text;
        const char* left;
    };
    for (const Case& c :
         {Case{"12.3400", "12.34"}, Case{"12.0000", "12."}, Case{".0000", "."}, Case{"1.2345", "1.2345"},
          Case{"100", "1"}, Case{"000", ""}, Case{"", ""}, Case{"-.5000", "-.5"}}) {
        EXPECT_EQ(DropTrailingZeros(c.text), c.left) << c.text;
    }
}

TEST(Rounding, SlotsTakeANumberInAndGiveItBack) {
    struct Case {
        const char* in;
        const char* digits;
        const char* out;
    };
    for (const Case& c :
         {Case{" 12.34", "4", "12.34"}, Case{" 12", "4", "12."}, Case{" .00001", "4", "."}, Case{" .5", "4", ".5"},
          Case{"-1.23456", "3", "-1.235"}, Case{" .333333333333333", "15", ".333333333333333"},
          Case{" 1.005", "2", "1.01"}, Case{"", "4", "."}, Case{"-.00001", "4", "."}}) {
        SharedState shared;
        shared.NumIn = c.in;
        shared.NumOut = "old";
        RoundThroughSlots(shared, c.digits);
        EXPECT_EQ(shared.NumOut, c.out) << c.in;
        EXPECT_EQ(shared.NumIn, c.in);
    }
}

TEST(Rounding, ThirdAtFifteenPlacesHasNoZeroToDrop) {
    SharedState shared;
    EXPECT_EQ(RoundedForDisplay(1.0 / 3.0, shared, "15"), .333333333333333);
    EXPECT_EQ(shared.NumIn, " .333333333333333");
    EXPECT_EQ(shared.NumOut, ".333333333333333");
}

TEST(Rounding, TooSmallForThePlacesIsZero) {
    SharedState shared;
    EXPECT_EQ(RoundedForDisplay(0.00001, shared, "4"), 0.0);
    EXPECT_EQ(shared.NumOut, ".");
    EXPECT_EQ(RoundedForDisplay(12.34567, shared, "4"), 12.3457);
    EXPECT_EQ(RoundedForDisplay(-12.34567, shared, "1"), -12.3);
    EXPECT_EQ(RoundedForDisplay(1e300, shared, "4"), 1e300);
}

TEST(Rounding, AFaultLeavesTheOutSlotEmpty) {
    SharedState shared;
    shared.NumIn = " 1E+999";
    shared.NumOut = "old";
    EXPECT_THROW(RoundThroughSlots(shared, "4"), Fault);
    EXPECT_EQ(shared.NumOut, "");
}

TEST(Rounding, StoredDigitsAreComparedAsTexts) {
    for (const char* const kept : {"1", "10", "11", "12", "13", "14", "15"}) {
        EXPECT_EQ(AcceptedDigits(kept), kept);
    }
    for (const char* const refused : {"",    "0",  "2",   "3",  "4",  "5",  "6",   "7",     "8",   "9",     "16",
                                      "100", "01", "1.5", "1 ", " 1", "-1", "1e1", "14abc", "abc", "15\xB0"}) {
        EXPECT_EQ(AcceptedDigits(refused), "4") << refused;
    }
}

}  // namespace
}  // namespace brindlex
