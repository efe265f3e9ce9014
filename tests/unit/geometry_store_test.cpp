// The live drawing on the disk: what each operation leaves in the folder; and the rules over its lines.
#include "geometry/store.h"

#include "geometry/rules.h"
#include "unit/geometryrecords.h"
#include "unit/smalldisk.h"
#include "unit/testfolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

TEST(GeometryStore, AppendsRecords) {
    const TestFolder folder;
    const Store store(folder.Files());
    EXPECT_TRUE(store.Append(PointLine(1, "1.50", "2")));
    EXPECT_TRUE(store.Append(Lines{"two", "three"}));
    EXPECT_TRUE(store.Append(Lines{}));
    EXPECT_EQ(folder.Get("geometry.dat"), PointLine(1, "1.50", "2") + "\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(store.Lines(), (Lines{PointLine(1, "1.50", "2"), "two", "three"}));
}

TEST(GeometryStore, AppendsNothingToAnUnfinishedLine) {
    const TestFolder folder;
    folder.Put("geometry.dat", "left by an editor");
    EXPECT_TRUE(Store(folder.Files()).Append("new"));
    EXPECT_EQ(folder.Get("geometry.dat"), "left by an editor\r\nnew\r\n");
}

TEST(GeometryStore, AFullDiskLeavesThePresentDrawing) {
    const TestFolder folder;
    const Store store(folder.Files());
    const std::string old = PointLine(1, "1.50", "2") + "\r\n";
    folder.Put("geometry.dat", old);
    // A short record goes to the disk when the file is closed, a long one at once.
    for (const std::string& record : {PointLine(2, "3", "4"), std::string(5000, 'x')}) {
        for (const rlim_t more : {rlim_t{0}, rlim_t{1}, rlim_t{record.size()}, rlim_t{record.size() + 1}}) {
            {
                const SmallDisk disk(old.size() + more);
                EXPECT_FALSE(store.Append(record));
            }
            EXPECT_EQ(folder.Get("geometry.dat"), old);
        }
    }
    EXPECT_TRUE(store.Append("two"));
    EXPECT_EQ(folder.Get("geometry.dat"), old + "two\r\n");
}

TEST(GeometryStore, MissingReadsAsEmpty) {
    const TestFolder folder;
    const Store store(folder.Files());
    EXPECT_EQ(store.Lines(), Lines{});
    EXPECT_EQ(store.TryLines(), Lines{});
    EXPECT_EQ(store.Count(), 0);
    EXPECT_EQ(store.FirstLine(), "");
    EXPECT_TRUE(store.CheckTangents());
    EXPECT_EQ(folder.Get("geometry.dat"), "");
}

TEST(GeometryStore, UnreadableIsNeverWrittenOver) {
    const TestFolder folder;
    std::filesystem::create_directory(folder.Path() / "geometry.dat");
    const Store store(folder.Files());
    EXPECT_EQ(store.Lines(), Lines{});
    EXPECT_EQ(store.TryLines(), std::nullopt);
    EXPECT_FALSE(store.CheckTangents());
    EXPECT_FALSE(store.Append("x"));
    EXPECT_FALSE(store.Rewrite(scratch::Delete, {"x"}));
    EXPECT_FALSE(store.Clear());
    EXPECT_EQ(store.FirstLine(), "");
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "geometry.dat"));
}

TEST(GeometryStore, RewritesInOneStepAndLeavesNoScratchFile) {
    const TestFolder folder;
    const Store store(folder.Files());
    folder.Put("geometry.dat", "old\r\n");
    folder.Put("geo.tmp", "left over from a crash\r\n");
    EXPECT_TRUE(store.Rewrite(scratch::Delete, {"a", "b"}));
    EXPECT_EQ(folder.Get("geometry.dat"), "a\r\nb\r\n");
    EXPECT_EQ(folder.Names(), Lines{"geometry.dat"});
}

TEST(GeometryStore, CountsRecordsOnly) {
    const TestFolder folder;
    const Store store(folder.Files());
    store.Append(Lines{PointLine(1, "1", "2"), "", "a note", CircleLine(2, " 1", "0", "0")});
    EXPECT_EQ(store.Count(), 2);
    EXPECT_EQ(store.FirstLine(), PointLine(1, "1", "2"));
}

TEST(GeometryStore, BeginsAndEnds) {
    const TestFolder folder;
    const Store store(folder.Files());
    folder.Put("geometry.dat", "old\r\n");
    folder.Put("aaaa.tmp", "old\r\n");
    EXPECT_TRUE(store.Begin());
    EXPECT_EQ(folder.Names(), (Lines{"aaaa.tmp", "geometry.dat"}));
    EXPECT_EQ(folder.Get("aaaa.tmp") + folder.Get("geometry.dat"), "");
    for (const char* name :
         {"geo.tmp", "geometry.tmp", "geochk.tmp", "tmp.tmp", "bbbb.tmp", "convert.dat", "mine.geo"}) {
        folder.Put(name, "x");
    }
    store.End();
    EXPECT_EQ(folder.Names(), Lines{"mine.geo"});
    store.End();
    EXPECT_TRUE(store.Clear());
    EXPECT_EQ(folder.Get("geometry.dat"), "");
}

TEST(GeometryStore, BeginDropsWhatAKilledRunLeftHalfWritten) {
    const TestFolder folder;
    for (const char* name : {".brindlex-4711-0.tmp", ".brindlex-4711-0.geo", "my.brindlex-1.tmp"}) {
        folder.Put(name, "half a rec");
    }
    EXPECT_TRUE(Store(folder.Files()).Begin());
    EXPECT_EQ(folder.Names(), (Lines{".brindlex-4711-0.geo", "aaaa.tmp", "geometry.dat", "my.brindlex-1.tmp"}));
}

TEST(GeometryStore, CopyOfTheLineRecords) {
    const TestFolder folder;
    const Store store(folder.Files());
    folder.Put("aaaa.tmp", "left over\r\n");
    const Lines lines{CircleLine(1, " 1", "0", "0"), LineLine(2, "0", "0", "1", "1"), "note",
                      LineLine(3, "0", "1", "1", "0")};
    EXPECT_TRUE(store.WriteLineCopy(lines));
    EXPECT_EQ(folder.Get("aaaa.tmp"), lines[1] + "\r\n" + lines[3] + "\r\n");
    EXPECT_EQ(store.TakeLineCopy(), (Lines{lines[1], lines[3]}));
    EXPECT_EQ(folder.Names(), Lines{});
    EXPECT_EQ(store.TakeLineCopy(), std::nullopt);
}

TEST(GeometryStore, RepairsTailsWhosePartnersWent) {
    const TestFolder folder;
    const Store store(folder.Files());
    const std::string pair = PairText(" 2 ", " 3 ", " 0", " 0");
    const std::string tangent = LineTangentRecord(4, {{0, 0}, {1, 1}}, "1", "2");
    const std::string circle = CircleTangentRecord(5, 1, {0, 1}, pair, {1, 2}, {3, 4});
    folder.Put("geometry.tmp", "left over");
    store.Append(
        Lines{CircleLine(1, " 1", "0", "0"), LineLine(3, "0", "0", "1", "1"), tangent, circle, "note 2 Tangent"});
    EXPECT_TRUE(store.CheckTangents());
    EXPECT_EQ(store.Lines(),
              (Lines{CircleLine(1, " 1", "0", "0"), LineLine(3, "0", "0", "1", "1"),
                     RepairedRecord(tangent, true, false), RepairedRecord(circle, false, true), "note 2 Tangent"}));
    EXPECT_EQ(folder.Names(), Lines{"geometry.dat"});
}

TEST(GeometryRules, PartnersAreLookedUpByFourCharacters) {
    const std::string tangent = LineTangentRecord(3, {{0, 0}, {1, 1}}, " 100", "2");
    EXPECT_EQ(CheckTangents({PointLine(100, "0", "0"), PointLine(2, "0", "0"), tangent}).back(), tangent);
    EXPECT_EQ(CheckTangents({PointLine(10, "0", "0"), PointLine(2, "0", "0"), tangent}).back(),
              RepairedRecord(tangent, false, true));
    // A blank side reads as 0, and that is never there; nor is a line that is no record.
    const std::string lone = RepairedRecord(tangent, false, true);
    EXPECT_EQ(CheckTangents({PointLine(0, "0", "0"), PointLine(2, "0", "0"), lone}).back(), lone);
    EXPECT_EQ(CheckTangents({" 2  note", lone}).back(), RepairedRecord(lone, false, false));
}

TEST(GeometryRules, Limits) {
    Board board;
    board.CircleTop = 44;
    board.LineTop = 65;
    board.PointTop = 39;
    for (const Kind kind : {Kind::Circle, Kind::Line, Kind::Point, Kind::None}) {
        EXPECT_EQ(LimitMessage(board, kind), "");
    }
    board.CircleTop = 48;
    board.LineTop = 70;
    board.PointTop = 42;
    EXPECT_EQ(LimitMessage(board, Kind::Circle), "Sorry. Only 12 Circles Can Be Created!");
    EXPECT_EQ(LimitMessage(board, Kind::Line), "Sorry. Only 14 Lines Can Be Created!");
    EXPECT_EQ(LimitMessage(board, Kind::Point), "Sorry. Only 14 Points Can Be Created!");
}

TEST(GeometryRules, ListsEntities) {
    const Lines lines{CircleLine(1, " 1", "0", "0"), PointLine(0, "1", "1"), " 7 note",
                      LineLine(12, "0", "0", "1", "1"), PointLine(100, "0", "0")};
    EXPECT_EQ(EntityItems(lines),
              (Lines{" 1               /Circle", " 12               /Line", " 100               /Point"}));
    EXPECT_EQ(ItemNumber(" 12               /Line"), 12);
    EXPECT_EQ(ItemNumber(" 1234 /Line"), 123);
    EXPECT_EQ(ItemNumber(""), 0);
}

TEST(GeometryRules, DeletesWhatTheListsName) {
    const Lines lines{CircleLine(1, " 1", "0", "0"), " 1  note", PointLine(2, "1", "1"), PointLine(100, "0", "0"),
                      PointLine(10, "0", "0")};
    EXPECT_EQ(WithoutItems(lines, {" 1      /Circle", "", "", "", "", ""}),
              (Lines{lines[1], lines[2], lines[3], lines[4]}));
    EXPECT_EQ(WithoutItems(lines, {" 100    /Point", " 2   /Point"}), (Lines{lines[0], lines[1], lines[4]}));
    EXPECT_EQ(WithoutItems(lines, {"", ""}), lines);
}

TEST(GeometryRules, KeepsAllButTheCandidatesNamed) {
    const Lines lines{CircleLine(1, " 1", "0", "0"), PointLine(2, "1", "1"), " 2  note", PointLine(10, "0", "0"),
                      PointLine(100, "0", "0")};
    EXPECT_EQ(WithoutCandidates(lines, {" 2", "", " 1", ""}), (Lines{lines[2], lines[3], lines[4]}));
    // The numbers of records are compared by three characters, so that 10 takes 100 along: intended.
    EXPECT_EQ(WithoutCandidates(lines, {" 10"}), (Lines{lines[0], lines[1], lines[2]}));
    EXPECT_EQ(WithoutCandidates(lines, {" 100"}), lines);
    EXPECT_EQ(WithoutCandidates(lines, {"", "", "", ""}), lines);
}

Board BoardOf(int points) {
    Board board;
    for (int i = 1; i <= points; ++i) {
        board.EnterPoint({0, 0}, i, {});
    }
    return board;
}

std::vector<int> PointsLeft(int points, const std::vector<int>& picks) {
    Board board = BoardOf(points);
    RemovePicked(board, {{}, {}, picks});
    EXPECT_EQ(board.PointIdx, board.PointTop);
    std::vector<int> left;
    for (int i = 2; i < board.PointTop; i += 3) {
        left.push_back(static_cast<int>(board.PointArr.at(static_cast<std::size_t>(i))));
    }
    return left;
}

struct RemovalCase {
    std::vector<int> Picks;  ///< indices of points: 0, 3, 6, ...
    std::vector<int> Left;
};

TEST(GeometryRules, RemovesByTheSecondToTheMiddleEntry) {
    const RemovalCase cases[] = {
        {{}, {1, 2, 3, 4}},
        {{3, 3}, {1, 3, 4}},        // a pick stands twice: half of 2 is 1, entry 1 is the point
        {{0, 3, 0, 3}, {3, 4}},     // entries 1 and 2
        {{0, 3, 6, 0, 3, 6}, {4}},  // entries 1 to 3
        {{0, 3, 6}, {1, 4}},        // half of 3 is 2 (ties to even): entry 0 is not looked at
        {{0, 3, 6, 9, 9}, {1, 4}},  // half of 5 is 2: entries 1 and 2
        {{0}, {}},                  // half of 1 is 0: nothing is compared, so nothing is kept
        {{0, 0, 0, 0}, {2, 3, 4}},
    };
    for (const RemovalCase& c : cases) {
        EXPECT_EQ(PointsLeft(4, c.Picks), c.Left) << c.Picks.size();
    }
    // With one entity, and that picked, no comparison ever sets the keep mark.
    EXPECT_EQ(PointsLeft(1, {0, 0}), std::vector<int>{});
}

TEST(GeometryRules, TheKeepMarkStaysSetFromKindToKind) {
    Board board = BoardOf(2);
    board.EnterCircle({0, 0}, 1, 3, {});
    board.EnterCircle({0, 0}, 1, 4, {});
    RemovePicked(board, {{0, 0}, {}, {0}});
    EXPECT_EQ(board.CircleTop, 4);
    EXPECT_EQ(board.CircleArr[3], 4);
    EXPECT_EQ(board.CircleArr[7], 0);
    EXPECT_EQ(board.PointTop, 6);
}

TEST(GeometryRules, NumbersOfWhatWasPicked) {
    Board board = BoardOf(2);
    board.EnterCircle({0, 0}, 1, 9, {});
    board.EnterLine({{0, 0}, {1, 1}}, 4, {});
    board.EnterLine({{0, 0}, {1, 1}}, 3, {});
    EXPECT_EQ(NumbersPicked(board, {{0, 0}, {5, 0, 5}, {3}}), (std::vector<double>{2, 3, 4, 9}));
    EXPECT_TRUE(NumbersPicked(board, {}).empty());
}

TEST(GeometryRules, LinesLeftAfterARemoval) {
    const Lines lines{CircleLine(1, " 1", "0", "0"), "note", PointLine(2, "0", "0"), PointLine(3, "0", "0"),
                      PointLine(9, "0", "0")};
    Board before;
    before.Reload({lines[0], lines[2], lines[3]}, {});
    Board after = before;
    RemovePicked(after, {{}, {}, {0, 0}});
    EXPECT_EQ(LinesLeft(lines, before, after), (Lines{lines[0], lines[1], lines[3], lines[4]}));
    // Two kinds whose numbers read alike: each record once for each array.
    const Lines alike{CircleLine(10, " 1", "0", "0"), PointLine(100, "0", "0")};
    Board both;
    both.Reload(alike, {});
    EXPECT_EQ(LinesLeft(alike, both, both), (Lines{alike[0], alike[0], alike[1], alike[1]}));
}

TEST(GeometryRules, WhatFoundNoRoomOnTheBoardStays) {
    Lines lines;
    for (int i = 1; i <= 16; ++i) {
        lines.push_back(PointLine(i, "0", "0"));
    }
    Board before;
    before.Reload(lines, {});
    Board after = before;
    RemovePicked(after, {{}, {}, {3, 3}});
    Lines expected = lines;
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(after.PointTop, 39);
    EXPECT_EQ(LinesLeft(lines, before, after), expected);
}

}  // namespace
}  // namespace brindlex::geometry
