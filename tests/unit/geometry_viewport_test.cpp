// Scale, zoom, extents, scroll ranges, fit.
#include "geometry/viewport.h"

#include "frame/text.h"

#include <gtest/gtest.h>

namespace brindlex::geometry {
namespace {

constexpr double Near = 1e-9;
const Scale Centred{0, 0};  // so that picture and drawing coordinates are the same

Extents ExtentsOf(const Board& board, Unit unit = Unit::Inch) {
    Extents extents;
    GetExtents(extents, board, unit);
    return extents;
}

TEST(Viewport, TheFirstViewIsTheSameInBothUnits) {
    EXPECT_EQ(FirstView(Unit::Inch).Width, 4.475);
    EXPECT_EQ(FirstView(Unit::Inch).Height, -2.391667);
    EXPECT_EQ(FirstView(Unit::Millimeter).Width, 113.665);
    EXPECT_EQ(FirstView(Unit::Millimeter).Height, -60.7483418);
    EXPECT_NEAR(FirstView(Unit::Millimeter).Width / FirstView(Unit::Inch).Width, 25.4, Near);
    EXPECT_NEAR(CrossSize(Unit::Millimeter), 2.24536, Near);
}

TEST(Extents, OfNothingAreLeftAsTheyAre) {
    Extents extents{1, 2, 3, 4};
    GetExtents(extents, Board(), Unit::Inch);
    EXPECT_EQ(extents, (Extents{1, 2, 3, 4}));
}

TEST(Extents, TheFirstEntitySetsThemWhateverStoodThere) {
    Board board;
    board.EnterCircle({10, 20}, 2, 1, Centred);
    Extents extents{-100, 100, -100, 100};
    GetExtents(extents, board, Unit::Inch);
    EXPECT_EQ(extents, (Extents{8, 12, 18, 22}));
}

TEST(Extents, TakeCirclesLinesAndPoints) {
    Board board;
    board.EnterCircle({0, 0}, 1, 1, Centred);
    board.EnterCircle({3, 0}, 2, 2, Centred);
    board.EnterLine({{4, -7}, {-2, 1}}, 3, Centred);
    EXPECT_EQ(ExtentsOf(board), (Extents{-2, 5, -7, 2}));
    board.EnterPoint({-2, 6}, 4, Centred);
    const Extents all = ExtentsOf(board);
    EXPECT_NEAR(all.MinX, -2.0884, Near);
    EXPECT_NEAR(all.MaxY, 6.0884, Near);
    EXPECT_EQ(all.MaxX, 5);
}

TEST(Extents, ALaterCircleOfNoRadiusIsLeftOut) {
    Board board;
    board.EnterCircle({0, 0}, 0, 1, Centred);
    EXPECT_EQ(ExtentsOf(board), (Extents{0, 0, 0, 0}));
    board.EnterCircle({50, 50}, 0, 2, Centred);
    EXPECT_EQ(ExtentsOf(board), (Extents{0, 0, 0, 0}));
}

TEST(Extents, OfAPointAreItsCross) {
    Board board;
    board.EnterPoint({1, 2}, 1, Centred);
    const Extents millimeters = ExtentsOf(board, Unit::Millimeter);
    EXPECT_NEAR(millimeters.MinX, 1 - 2.24536, Near);
    EXPECT_NEAR(millimeters.MaxY, 2 + 2.24536, Near);
}

TEST(Extents, WhatIsBeyondADoubleIsLeftOut) {
    Board board;
    board.EnterCircle({1e308, 0}, 1e308, 1, Centred);
    board.EnterLine({{0, 0}, {1, 1}}, 2, Centred);
    EXPECT_EQ(ExtentsOf(board), (Extents{0, 1, 0, 1}));
}

TEST(ScrollRanges, AreNeverBelowTwenty) {
    EXPECT_EQ(ScrollRangesFor({-3, 4, -5, 6}, Centred), (ScrollRanges{20, -20, -20, 20}));
    EXPECT_EQ(ScrollRangesFor({-30, 40, -50, 60}, Centred), (ScrollRanges{60, -50, -30, 40}));
}

TEST(ScrollRanges, AreRoundedToEvenAndCutToSixteenBits) {
    EXPECT_EQ(ScrollRangesFor({-20.5, 21.5, -21.5, 22.5}, Centred), (ScrollRanges{22, -22, -20, 22}));
    EXPECT_EQ(ScrollRangesFor({-1e6, 1e6, -1e300, 1e300}, Centred), (ScrollRanges{32767, -32768, -32768, 32767}));
}

TEST(ScrollRanges, CountFromTheOrigin) {
    EXPECT_EQ(ScrollRangesFor({-25, 125, -125, -25}, {100, -100}), (ScrollRanges{25, -75, -75, 75}));
}

TEST(FitTo, AWideDrawingFillsTheWidth) {
    const auto fit = FitTo({0, 32, 0, 2}, Centred);
    ASSERT_TRUE(fit);
    EXPECT_EQ(fit->View.Width, 32);
    EXPECT_NEAR(fit->View.Height, -32 * 0.53445068, Near);
    EXPECT_EQ(fit->HValue, 16);
    EXPECT_EQ(fit->VValue, 1);
}

TEST(FitTo, AHighOrSquareDrawingFillsTheHeight) {
    const auto square = FitTo({-1, 1, -1, 1}, Centred);
    ASSERT_TRUE(square);
    EXPECT_EQ(square->View.Height, -2);
    EXPECT_NEAR(square->View.Width, 3.74216008, Near);
    const auto high = FitTo({0, 1, 0, 10}, Centred);
    ASSERT_TRUE(high);
    EXPECT_NEAR(high->View.Width, 18.7108004, Near);
}

TEST(FitTo, ASquareStaysOneUnderTheLastBitOfASum) {
    const double halfWidth = 4.475 / 2;
    const double halfHeight = -2.391667 / 2;
    for (double x = -3; x < 3; x += 0.173) {
        const double cx = x + halfWidth;
        const double cy = 0.7 * x + halfHeight;
        const auto fit = FitTo({cx - 0.3, cx + 0.3, cy - 0.3, cy + 0.3}, {4.475, -2.391667});
        ASSERT_TRUE(fit);
        EXPECT_NEAR(fit->View.Width, 0.6 * 1.87108004, Near) << x;
    }
}

TEST(FitTo, RefusesWhatIsTooSmallOrTooLarge) {
    EXPECT_FALSE(FitTo({}, Centred));
    EXPECT_FALSE(FitTo({0, 0.002, 0, 0}, Centred));
    EXPECT_TRUE(FitTo({0, 0.0021, 0, 0}, Centred));
    EXPECT_FALSE(FitTo({0, 31000, 0, 0}, Centred));
    EXPECT_TRUE(FitTo({0, 30999, 0, 0}, Centred));
    EXPECT_FALSE(FitTo({-1e308, 1e308, -1e308, 1e308}, Centred));
}

TEST(Zoom, HalvesAndDoublesBetweenItsEnds) {
    EXPECT_EQ(ZoomedIn({4, -2})->Width, 2);
    EXPECT_EQ(ZoomedIn({4, -2})->Height, -1);
    EXPECT_EQ(ZoomedOut({4, -2})->Height, -4);
    EXPECT_FALSE(ZoomedIn({0.004, -1}));
    EXPECT_TRUE(ZoomedIn({0.0041, -1}));
    EXPECT_FALSE(ZoomedOut({15500, -1}));
    EXPECT_TRUE(ZoomedOut({15499, -1}));
}

}  // namespace
}  // namespace brindlex::geometry
