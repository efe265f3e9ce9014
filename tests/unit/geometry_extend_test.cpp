// Extending two lines to the point where they meet.
#include "geometry/extend.h"

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

const std::string Level = LineLine(1, "0", "0", "1", "0");

struct ExtendCase {
    const char* Name;
    std::string A;
    std::string B;
    std::string Meeting;  ///< the item
    Lines Result;
};

TEST(GeometryExtend, FiveColumnsAreTheNumber) {
    const Lines store{LineLine(1234, "0", "0", "1", "0"), LineLine(5678, "3", "2", "3", "5")};
    EXPECT_EQ(Extend(store, PairText(" 1234", " 5678", " 3", " 0")),
              (Lines{LineLine(1234, " 0", " 0", " 3", " 0"), LineLine(5678, " 3", " 5", " 3", " 0")}));
    // Of a number of five digits and its blank the last digit is cut off.
    const Lines wide{LineLine(12345, "0", "0", "1", "0"), LineLine(2, "3", "2", "3", "5")};
    EXPECT_EQ(Extend(wide, PairText(" 12345", " 2 ", " 3", " 0")), std::nullopt);
}

TEST(GeometryExtend, FifteenDecimalsTellAnEndFromThePlaceBeforeIt) {
    // The upright line says how far along the level one of length 1 they meet. The item names another place, so that
    // it shows whether the level line was moved there.
    const struct {
        const char* along;
        const char* from;
        const char* to;
    } cases[] = {
        {"1", " 0", " 7"},
        {".9999999999999996", " 0", " 7"},
        {".999999999999996", " 0", " 1"},
        {"0", " 1", " 7"},
        {"4E-16", " 1", " 7"},
        {"6E-16", " 0", " 1"},
    };
    for (const auto& c : cases) {
        const auto found =
            Extend({Level, LineLine(2, c.along, "-.5", c.along, ".5")}, PairText(" 1 ", " 2 ", " 7", " 0"));
        ASSERT_TRUE(found);
        EXPECT_EQ(found->front(), LineLine(1, c.from, " 0", c.to, " 0")) << c.along;
    }
}

TEST(GeometryExtend, ALineThatIsMetInAnEndStays) {
    const Lines expected{LineLine(1, " 0", " 0", " 4", " 0"), LineLine(2, " 3", " 5", " 3", " 0")};
    const std::string across = LineLine(1, "0", "0", "4", "0");
    EXPECT_EQ(Extend({across, LineLine(2, "3", "0", "3", "5")}, PairText(" 1 ", " 2 ", " 3", " 0")), expected);
    EXPECT_EQ(Extend({across, LineLine(2, "3", "5", "3", "0")}, PairText(" 1 ", " 2 ", " 3", " 0")), expected);
}

TEST(GeometryExtend, EveryRow) {
    const ExtendCase cases[] = {
        {"far end of A, near end of B",
         Level,
         LineLine(2, "3", "2", "3", "5"),
         PairText(" 1 ", " 2 ", " 3", " 0"),
         {LineLine(1, " 0", " 0", " 3", " 0"), LineLine(2, " 3", " 5", " 3", " 0")}},
        {"near end of A, far end of B",
         Level,
         LineLine(2, "-3", "5", "-3", "2"),
         PairText(" 1 ", " 2 ", "-3", " 0"),
         {LineLine(1, " 1", " 0", "-3", " 0"), LineLine(2, "-3", " 5", "-3", " 0")}},
        {"A already ends there",
         LineLine(1, "0", "0", "3", "0"),
         LineLine(2, "3", "5", "3", "2"),
         PairText(" 1 ", " 2 ", " 3", " 0"),
         {LineLine(1, " 0", " 0", " 3", " 0"), LineLine(2, " 3", " 5", " 3", " 0")}},
        {"A begins there",
         LineLine(1, "3", "0", "9", "0"),
         LineLine(2, "3", "5", "3", "2"),
         PairText(" 1 ", " 2 ", " 3", " 0"),
         {LineLine(1, " 9", " 0", " 3", " 0"), LineLine(2, " 3", " 5", " 3", " 0")}},
        {"A reaches across, its start is further",
         LineLine(1, "0", "0", "4", "0"),
         LineLine(2, "3", "5", "3", "2"),
         PairText(" 1 ", " 2 ", " 3", " 0"),
         {LineLine(1, " 0", " 0", " 3", " 0"), LineLine(2, " 3", " 5", " 3", " 0")}},
        {"A reaches across, its end is further",
         LineLine(1, "0", "0", "4", "0"),
         LineLine(2, "1", "5", "1", "2"),
         PairText(" 1 ", " 2 ", " 1", " 0"),
         {LineLine(1, " 4", " 0", " 1", " 0"), LineLine(2, " 1", " 5", " 1", " 0")}},
        {"A is cut in its middle and dropped",
         LineLine(1, "0", "0", "4", "0"),
         LineLine(2, "2", "5", "2", "2"),
         PairText(" 1 ", " 2 ", " 2", " 0"),
         {LineLine(2, " 2", " 5", " 2", " 0")}},
        {"B is cut in its middle and dropped",
         LineLine(1, "2", "5", "2", "2"),
         LineLine(2, "0", "0", "4", "0"),
         PairText(" 1 ", " 2 ", " 2", " 0"),
         {LineLine(1, " 2", " 5", " 2", " 0")}},
        {"both cross already: both stay",
         LineLine(1, "0", "0", "4", "0"),
         LineLine(2, "2", "5", "2", "-1"),
         PairText(" 1 ", " 2 ", " 2", " 0"),
         {LineLine(1, " 0", " 0", " 4", " 0"), LineLine(2, " 2", " 5", " 2", "-1")}},
    };
    for (const ExtendCase& c : cases) {
        const auto found = Extend({c.A, c.B}, c.Meeting);
        ASSERT_TRUE(found) << c.Name;
        EXPECT_EQ(*found, c.Result) << c.Name;
    }
}

TEST(GeometryExtend, LeavesOthersAndDropsTails) {
    const std::string tangent = LineTangentRecord(4, {{0, 0}, {1, 0}}, "9", "10");
    const std::string note = " 4 a note";
    const Lines store{CircleLine(9, " 1", "5", "5"), tangent, note, PointLine(10, "1.50", "2"),
                      LineLine(12, "3", "2", "3", "5")};
    EXPECT_EQ(
        Extend(store, PairText(" 4 ", " 12", " 3", " 0")),
        (Lines{store[0], LineLine(4, " 0", " 0", " 3", " 0"), note, store[3], LineLine(12, " 3", " 5", " 3", " 0")}));
}

TEST(GeometryExtend, PairsThatAreGoneChangeNothing) {
    const Lines store{Level, LineLine(2, "0", "1", "1", "1"), CircleLine(3, " 1", "0", "0"),
                      LineLine(100, "3", "2", "3", "5")};
    EXPECT_EQ(Extend(store, PairText(" 1 ", " 7 ", " 3", " 0")), std::nullopt);
    EXPECT_EQ(Extend(store, PairText(" 7 ", " 2 ", " 3", " 0")), std::nullopt);
    EXPECT_EQ(Extend(store, PairText(" 1 ", " 3 ", " 3", " 0")), std::nullopt);  // no line
    EXPECT_EQ(Extend(store, PairText(" 1 ", " 2 ", " 3", " 0")), std::nullopt);  // parallel
    EXPECT_EQ(Extend(store, PairText(" 1 ", " 10", " 3", " 0")), std::nullopt);  // 100 reads as 100 here
    EXPECT_EQ(Extend(store, ""), std::nullopt);
    EXPECT_EQ(Extend({}, PairText(" 1 ", " 2 ", " 3", " 0")), std::nullopt);
    EXPECT_EQ(Extend({LineLine(1, "-1E200", "0", "1E200", "1E200"), LineLine(2, "0", "1E200", "5", "-1E200")},
                     PairText(" 1 ", " 2 ", " 3", " 0")),
              std::nullopt);  // overflow
}

TEST(GeometryExtend, EveryPairMeetsInThePointShown) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> place(-10, 10);
    int checked = 0;
    while (checked < 10000) {
        const Lines store{ExtendedLineRecord(1, {{place(random), place(random)}, {place(random), place(random)}}),
                          ExtendedLineRecord(2, {{place(random), place(random)}, {place(random), place(random)}})};
        const Crossings before = FindCrossings(store);
        if (before.Potential.empty()) {
            continue;
        }
        const Position meeting = ReadPair(before.Potential[0]).Crossing;
        if (std::hypot(meeting.X, meeting.Y) > 1000) {
            continue;  // next to parallel
        }
        ++checked;
        const auto after = Extend(store, before.Potential[0]);
        ASSERT_TRUE(after && after->size() == 2);
        for (std::size_t i = 0; i < 2; ++i) {
            const Segment old = ReadRecord(store[i]).Ends();
            const Segment moved = ReadRecord((*after)[i]).Ends();
            ASSERT_EQ(moved.End.X, meeting.X);
            ASSERT_EQ(moved.End.Y, meeting.Y);
            const bool startStayed = moved.Start.X == old.Start.X && moved.Start.Y == old.Start.Y;
            const bool endStayed = moved.Start.X == old.End.X && moved.Start.Y == old.End.Y;
            ASSERT_TRUE(startStayed || endStayed);
            // What stays is the end further from the point.
            const double kept = std::hypot(moved.Start.X - meeting.X, moved.Start.Y - meeting.Y);
            const Position lost = startStayed ? old.End : old.Start;
            ASSERT_GE(kept, std::hypot(lost.X - meeting.X, lost.Y - meeting.Y));
        }
    }
}

}  // namespace
}  // namespace brindlex::geometry
