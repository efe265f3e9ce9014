// Pairs of lines that cross and that would.
#include "geometry/crossings.h"

#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

TEST(GeometryCrossings, Items) {
    // 1 and 2 cross in (1, 1); 3 would meet 1 in (3, 3) and 2 in (-1, 3), if they were longer.
    const Lines store{LineLine(1, "0", "0", "2", "2"), CircleLine(9, " 1", "0", "0"), LineLine(2, "0", "2", "2", "0"),
                      "note", LineLine(3, "0", "3", "1", "3")};
    const Crossings found = FindCrossings(store);
    EXPECT_EQ(found.Crossing, Lines{" 1  ,  2                /"
                                    " 1\\ 1"});
    EXPECT_EQ(found.Potential, (Lines{PairText(" 1 ", " 3 ", " 3", " 3"), PairText(" 2 ", " 3 ", "-1", " 3")}));
}

TEST(GeometryCrossings, EndsCountAsWithin) {
    // A corner at (1, 0), and a line that ends upon another.
    const Lines corner{LineLine(1, "0", "0", "1", "0"), LineLine(2, "1", "0", "1", "5")};
    EXPECT_EQ(FindCrossings(corner).Crossing, Lines{PairText(" 1 ", " 2 ", " 1", " 0")});
    EXPECT_TRUE(FindCrossings(corner).Potential.empty());
    const Lines foot{LineLine(10, "-1", "0", "1", "0"), LineLine(11, ".25", "2", ".25", "0")};
    EXPECT_EQ(FindCrossings(foot).Crossing, Lines{PairText(" 10", " 11", " .25", " 0")});
}

TEST(GeometryCrossings, ParallelLinesAreNeverListed) {
    // The pair 1, 3 leaves the flag of a potential pair behind; 2 and 4 are parallel to others all the same.
    const Lines store{LineLine(1, "0", "0", "1", "0"), LineLine(3, "5", "1", "5", "2"), LineLine(4, "0", "1", "1", "1"),
                      LineLine(5, "7", "1", "7", "2")};
    const Crossings found = FindCrossings(store);
    EXPECT_TRUE(found.Crossing.empty());
    EXPECT_EQ(found.Potential, (Lines{PairText(" 1 ", " 3 ", " 5", " 0"), PairText(" 1 ", " 5 ", " 7", " 0"),
                                      PairText(" 3 ", " 4 ", " 5", " 1"), PairText(" 4 ", " 5 ", " 7", " 1")}));
    EXPECT_TRUE(FindCrossings({LineLine(1, "0", "0", "0", "0"), LineLine(2, "1", "1", "1", "1")}).Potential.empty());
}

TEST(GeometryCrossings, TheRatioIsRoundedForTheFirstListOnly) {
    // Line B runs from (0, 0) to (9E14, 0) and crosses x = 1E14 at the parameter 1/9: rounded to .111111111111111 it
    // gives 99999999999999.9, unrounded 1E14.
    const std::string longLine = LineLine(2, "0", "0", "900000000000000", "0");
    EXPECT_EQ(FindCrossings({LineLine(1, "100000000000000", "-1", "100000000000000", "1"), longLine}).Crossing,
              Lines{PairText(" 1 ", " 2 ", " 99999999999999.9", " 0")});
    EXPECT_EQ(FindCrossings({LineLine(1, "100000000000000", "1", "100000000000000", "2"), longLine}).Potential,
              Lines{PairText(" 1 ", " 2 ", " 100000000000000", " 0")});
    // The same upright.
    const std::string highLine = LineLine(2, "0", "0", "0", "900000000000000");
    EXPECT_EQ(FindCrossings({LineLine(1, "-1", "100000000000000", "1", "100000000000000"), highLine}).Crossing,
              Lines{PairText(" 1 ", " 2 ", " 0", " 99999999999999.9")});
    EXPECT_EQ(FindCrossings({LineLine(1, "1", "100000000000000", "2", "100000000000000"), highLine}).Potential,
              Lines{PairText(" 1 ", " 2 ", " 0", " 100000000000000")});
    // At 1/90 fifteen decimals are fourteen digits: .011111111111111.
    EXPECT_EQ(FindCrossings({LineLine(1, "100000000000000", "-1", "100000000000000", "1"),
                             LineLine(2, "0", "0", "9000000000000000", "0")})
                  .Crossing,
              Lines{PairText(" 1 ", " 2 ", " 99999999999999", " 0")});
}

TEST(GeometryCrossings, EqualNumbersMakeNoPair) {
    EXPECT_TRUE(FindCrossings({LineLine(1, "0", "0", "2", "2"), LineLine(1, "0", "2", "2", "0")}).Crossing.empty());
    // 100 reads as 10 by three characters: intended.
    EXPECT_TRUE(FindCrossings({LineLine(10, "0", "0", "2", "2"), LineLine(100, "0", "2", "2", "0")}).Crossing.empty());
}

TEST(GeometryCrossings, OverflowSkipsThePair) {
    const Crossings found = FindCrossings(
        {LineLine(1, "-1E200", "-1E200", "1E200", "1E200"), LineLine(2, "-1E200", "1E200", "1E200", "-1E200")});
    EXPECT_TRUE(found.Crossing.empty() && found.Potential.empty());
    EXPECT_TRUE(FindCrossings({}).Crossing.empty());
    EXPECT_TRUE(FindCrossings({"", "note", "Line"}).Potential.empty());
}

TEST(GeometryCrossings, AFileOfAnyLengthIsNoStall) {
    // All lines go through (0, 0), each in a direction of its own.
    Lines store;
    for (int i = 1; i <= 20000; ++i) {
        store.push_back(ExtendedLineRecord(i % 99 + 1, {{0, 0}, {1, i * .001}}));
    }
    // Of the first 200 records 97 numbers stand there twice and two of them three times: 103 pairs of equal numbers.
    EXPECT_EQ(FindCrossings(store).Crossing.size(), 200U * 199U / 2U - 103U);
}

TEST(GeometryCrossings, ReadsItems) {
    const PairItem pair = ReadPair(PairText(" 12", " 4 ", "-1.5", " 2E-05"));
    EXPECT_EQ(pair.NumberA, 12);
    EXPECT_EQ(pair.NumberB, 4);
    EXPECT_EQ(pair.Crossing.X, -1.5);
    EXPECT_EQ(pair.Crossing.Y, 2e-5);
    EXPECT_EQ(ReadPair("12,34/5\\6").NumberA, 12);
    EXPECT_EQ(ReadPair("12,34/5\\6").NumberB, 34);
    for (const char* text : {"", ",", "/", "\\", "\\/,", "no item"}) {
        EXPECT_EQ(ReadPair(text).NumberA + ReadPair(text).NumberB, 0) << text;
        EXPECT_EQ(ReadPair(text).Crossing.X, 0) << text;
        EXPECT_EQ(ReadPair(text).Crossing.Y, 0) << text;
    }
}

TEST(GeometryCrossings, Selection) {
    const Lines items{"a", "b"};
    EXPECT_EQ(SelectionAfter(items, "b"), "b");
    EXPECT_EQ(SelectionAfter(items, "gone"), "a");
    EXPECT_EQ(SelectionAfter(items, ""), "a");
    EXPECT_EQ(SelectionAfter({}, "b"), "");
}

TEST(GeometryCrossings, MeetingText) {
    EXPECT_EQ(MeetingText(PairText(" 1 ", " 2 ", " .5", "-1.2345678")), "X .500000, Y -1.234568");
}

/// The side of a line on which a point lies: the sign of a triangle's area.
double Side(const Segment& line, Position p) {
    return (line.End.X - line.Start.X) * (p.Y - line.Start.Y) - (line.End.Y - line.Start.Y) * (p.X - line.Start.X);
}

TEST(GeometryCrossings, PiecesCrossWhereTheEndsLieOnBothSides) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> place(-10, 10);
    int crossing = 0;
    for (int i = 0; i < 20000; ++i) {
        const Segment a{{place(random), place(random)}, {place(random), place(random)}};
        const Segment b{{place(random), place(random)}, {place(random), place(random)}};
        const Crossings found = FindCrossings({ExtendedLineRecord(1, a), ExtendedLineRecord(2, b)});
        const bool expected = Side(a, b.Start) * Side(a, b.End) < 0 && Side(b, a.Start) * Side(b, a.End) < 0;
        ASSERT_EQ(found.Crossing.size(), expected ? 1U : 0U);
        ASSERT_EQ(found.Potential.size(), expected ? 0U : 1U);
        const Position meeting = ReadPair(expected ? found.Crossing[0] : found.Potential[0]).Crossing;
        const double length = std::hypot(a.End.X - a.Start.X, a.End.Y - a.Start.Y);
        const double far = 1 + std::hypot(meeting.X, meeting.Y);
        ASSERT_LT(std::fabs(Side(a, meeting)) / length / far, 1e-10);
        crossing += expected ? 1 : 0;
    }
    EXPECT_GT(crossing, 3000);
}

}  // namespace
}  // namespace brindlex::geometry
