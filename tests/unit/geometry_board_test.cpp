// The arrays of the drawing: what a reload puts where, what bounds leave out, who has a number.
#include "geometry/board.h"

#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

constexpr Scale Plain{10, -6};  // halves 5 and -3

TEST(GeometryBoard, ReloadsInPictureCoordinates) {
    Board board;
    board.EntNum = 40;
    board.CircleTop = 8;
    board.Reload({CircleLine(1, " 3", "1", "-2"), LineLine(7, "1", "2", "3", "4"), PointLine(5, "-1", ".5")}, Plain);
    EXPECT_EQ(board.EntNum, 7);
    EXPECT_EQ(board.CircleTop, 4);
    EXPECT_EQ(board.LineTop, 5);
    EXPECT_EQ(board.PointTop, 3);
    EXPECT_EQ(board.CircleIdx, 4);
    EXPECT_EQ(board.LineIdx, 5);
    EXPECT_EQ(board.PointIdx, 3);
    const auto head = [](const auto& values, std::size_t count) {
        return std::vector<double>(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count));
    };
    EXPECT_EQ(head(board.CircleArr, 5), (std::vector<double>{6, -5, 1.5, 1, 0}));
    EXPECT_EQ(head(board.LineArr, 6), (std::vector<double>{6, -1, 8, 1, 7, 0}));
    EXPECT_EQ(head(board.PointArr, 4), (std::vector<double>{4, -2.5, 5, 0}));
}

TEST(GeometryBoard, EmptyStore) {
    Board board;
    board.EntNum = 3;
    board.Reload({}, Plain);
    EXPECT_EQ(board.EntNum, 0);
    EXPECT_TRUE(board.Empty());
}

TEST(GeometryBoard, NumberOfTheHighestFallsOnlyAtAReload) {
    Board board;
    const std::vector<std::string> three{PointLine(1, "0", "0"), PointLine(3, "0", "0")};
    board.Reload(three, Plain);
    EXPECT_EQ(board.EntNum, 3);
    board.ReloadKeepingNumber({three[0]}, Plain);
    EXPECT_EQ(board.EntNum, 3);
    EXPECT_EQ(board.PointTop, 3);
    board.Reload({three[0]}, Plain);
    EXPECT_EQ(board.EntNum, 1);
    EXPECT_EQ(board.NextNumber(), 2);
    EXPECT_EQ(board.EntNum, 2);
    board.EntNum = 32767;
    EXPECT_EQ(board.NextNumber(), 32767);
}

TEST(GeometryBoard, HundredReadsAsTen) {
    Board board;
    board.Reload({PointLine(100, "0", "0")}, Plain);
    EXPECT_EQ(board.EntNum, 10);
    EXPECT_TRUE(board.Has(Kind::Point, 10));
    EXPECT_FALSE(board.Has(Kind::Point, 100));
}

TEST(GeometryBoard, LinesThatAreNoRecordsArePassedOver) {
    Board board;
    board.Reload({"", " 9 a note", " 5            Line", "99"}, Plain);
    EXPECT_EQ(board.EntNum, 5);
    EXPECT_EQ(board.LineTop, 5);
    EXPECT_EQ(board.CircleTop + board.PointTop, 0);
}

TEST(GeometryBoard, WhatIsBeyondTheBoundsIsLeftOut) {
    std::vector<std::string> lines;
    for (int i = 1; i <= 20; ++i) {
        lines.push_back(CircleLine(i, " 2", "1", "1"));
        lines.push_back(LineLine(20 + i, "0", "0", "1", "1"));
        lines.push_back(PointLine(40 + i, "0", "0"));
    }
    Board board;
    board.Reload(lines, Plain);
    EXPECT_EQ(board.CircleTop, 80);
    EXPECT_EQ(board.CircleIdx, 80);
    EXPECT_EQ(board.Count(Kind::Circle), 12);
    EXPECT_EQ(board.Count(Kind::Line), 14);
    EXPECT_EQ(board.Count(Kind::Point), 14);
    EXPECT_EQ(board.Count(Kind::None), 0);
    EXPECT_TRUE(board.Has(Kind::Circle, 12));
    EXPECT_FALSE(board.Has(Kind::Circle, 13));
    EXPECT_TRUE(board.Has(Kind::Line, 34));
    EXPECT_FALSE(board.Has(Kind::Line, 35));
    EXPECT_TRUE(board.Has(Kind::Point, 54));
    EXPECT_FALSE(board.Has(Kind::Point, 55));
    EXPECT_EQ(board.EntNum, 60);
}

}  // namespace
}  // namespace brindlex::geometry
