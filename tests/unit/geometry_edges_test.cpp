// Corners of the drawing's rules: numbers of 0 and below, marks in odd places, a disk that refuses, circles that meet.
#include "geometry/board.h"
#include "geometry/connect.h"
#include "geometry/geofile.h"
#include "geometry/report.h"
#include "geometry/rules.h"
#include "geometry/store.h"
#include "geometry/tangentmend.h"
#include "geometry/tips.h"
#include "geometry/viewport.h"
#include "unit/failing.h"
#include "unit/geometryrecords.h"
#include "unit/testfolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

constexpr double Infinity = std::numeric_limits<double>::infinity();
const std::string In(10, ' ');

TEST(GeometryBoardEdges, NothingHasANumberOfNoKind) {
    Board board;
    board.EnterPoint({1, 2}, 5, {10, -10});
    EXPECT_TRUE(board.Has(Kind::Point, 5));
    EXPECT_FALSE(board.Has(Kind::None, 5));
    EXPECT_EQ(board.Count(Kind::None), 0);
}

TEST(GeometryConnectEdges, ALineWithoutAKindIsNoEntity) {
    const Lines lines{" 1  scribble", PointRecord(1, "3", "4"), PointRecord(2, "5", "6")};
    const std::vector<Segment> found = Connect(lines, {Kind::Point, "1"}, {Kind::Point, "2"}, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Start.X, 3);
    EXPECT_EQ(found[0].Start.Y, 4);
    EXPECT_EQ(found[0].End.X, 5);
    EXPECT_EQ(found[0].End.Y, 6);
}

TEST(GeometryConnectEdges, ACircleThatIsNotThereIsAPointAtTheOrigin) {
    const Lines lines{PointRecord(2, "5", "6")};
    const std::vector<Segment> found = Connect(lines, {Kind::Circle, "1"}, {Kind::Point, "2"}, Tangents::AsRuled);
    ASSERT_EQ(found.size(), 2U);
    for (const Segment& line : found) {
        EXPECT_EQ(line.Start.X, 0);
        EXPECT_EQ(line.Start.Y, 0);
        EXPECT_EQ(line.End.X, 5);
        EXPECT_EQ(line.End.Y, 6);
    }
}

bool Touches(double radius, Position centre, const Segment& line) {
    const Lines lines{CircleRecord(1, 2 * radius, std::to_string(centre.X), std::to_string(centre.Y))};
    return EveryLineTouches(lines, {Kind::Circle, "1"}, {Kind::Point, "2"}, {line});
}

TEST(GeometryConnectEdges, TheToleranceIsAPartOfTheRadius) {
    EXPECT_TRUE(Touches(1000, {0, 0}, {{1000.0001, 0}, {1000.0001, 5}}));
    EXPECT_FALSE(Touches(1000, {0, 0}, {{1000.01, 0}, {1000.01, 5}}));
    EXPECT_TRUE(Touches(.001, {0, 0}, {{.001, 0}, {.001, 5}}));
    EXPECT_FALSE(Touches(.001, {0, 0}, {{.0011, 0}, {.0011, 5}}));
    // A circle without a radius is touched by what goes through its centre, a line without a length too.
    EXPECT_TRUE(Touches(0, {1, 2}, {{1, 2}, {1, 2}}));
    EXPECT_FALSE(Touches(0, {1, 2}, {{1, 3}, {1, 3}}));
}

TEST(GeometryConnectEdges, AVeryShortLineIsItsStart) {
    // Its direction, through the centre, says nothing: it is shorter than a billionth of the radius.
    EXPECT_TRUE(Touches(1000, {0, 0}, {{1000, 0}, {1000.00000001, 0}}));
    EXPECT_FALSE(Touches(1000, {0, 0}, {{1000, 0}, {1000.00001, 0}}));
}

// What follows the lines that every block has.

TEST(GeometryReportEdges, ATangentCircleWithoutPartners) {
    const std::string line = At({{1, "-1"}, {15, " 2"}, {43, " 0"}, {71, " 0"}, {99, "Circle Tangent"}});
    EXPECT_EQ(ReportText({line}, Unit::Inch, {}), "Scale: Inches\r\n\r\n-1 Circle:\r\n" + In + "Center X  0,  Y 0\r\n" +
                                                      In + "Diameter:  2\r\n" + In + "Radius:  1\r\n" + In +
                                                      "Area:  3.14159265358979\r\n" + In +
                                                      "Circumference:  6.28318530717959\r\n\r\n");
}

std::string LevelLine(const std::string& number, const std::string& tail) {
    return At({{1, number}, {15, " 0"}, {43, " 0"}, {71, " 3"}, {99, " 0"}, {127, "Line Tangent"}, {155, tail}});
}

std::string LevelBlock(const std::string& partners) {
    return "Scale: Inches\r\n\r\n 1 Line:\r\n" + In + "Start: X  0,  Y  0\r\n" + In + "End: X  3,  Y  0\r\n" + In +
           "Length:  3\r\n" + In + "Angle:  0" + partners + "\r\n\r\n";
}

TEST(GeometryReportEdges, SixColumnsBeforeTheCommaAreThePartner) {
    const auto report = [](const std::string& pair) {
        return ReportText({At({{1, " 3"}, {15, " 2"}, {43, " 0"}, {71, " 0"}, {99, "Circle Tangent"}, {127, pair}})},
                          Unit::Inch, {});
    };
    EXPECT_NE(report("9 12345,").find("Tangent to   12345 at:"), std::string::npos) << report("9 12345,");
    EXPECT_NE(report("9123456,").find("Tangent to   123456 at:"), std::string::npos) << report("9123456,");
    EXPECT_NE(report(",123456").find("Tangent to   123456 at:"), std::string::npos) << report(",123456");
}

TEST(GeometryReportEdges, ACrossingWithoutACommaHasNoFirstLine) {
    const std::string line = LineLine(7, "0", "0", "3", "0");
    const std::string block = "Scale: Inches\r\n\r\n 7 Line:\r\n" + In + "Start: X  0,  Y  0\r\n" + In +
                              "End: X  3,  Y  0\r\n" + In + "Length:  3\r\n" + In + "Angle:  0";
    EXPECT_EQ(ReportText({line}, Unit::Inch, {"7" + std::string(20, ' ') + "/1\\2"}),
              block + "\r\n" + In + "Intersects Line  0 at X  1,  Y  2\r\n\r\n");
    EXPECT_EQ(ReportText({line}, Unit::Inch, {"7", ""}), block + "\r\n\r\n");
}

TEST(GeometryReportEdges, SevenColumnsBehindTheWordAreThePartner) {
    const std::string line =
        At({{1, " 1"}, {15, " 0"}, {43, " 0"}, {71, " 3"}, {99, " 0"}, {127, "Line Tangent1234567890"}});
    EXPECT_EQ(ReportText({line}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "  1234567 at: X  0,  Y  0\r\n" + In + "  890 at: X  3,  Y  0"));
}

TEST(GeometryReportEdges, ACommaAmongTheFirstColumns) {
    EXPECT_EQ(ReportText({LevelLine(" 1,", "")}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "Intersects Line  1 at: X  0,  Y  0"));
    EXPECT_EQ(ReportText({LevelLine(" 1 ,", "")}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "Intersects Line  1 at: X  0,  Y  0"));
}

TEST(GeometryReportEdges, ACommaInTheFirstColumns) {
    const std::string report = ReportText({LevelLine("12,", "")}, Unit::Inch, {});
    EXPECT_NE(report.find("Intersects Line  12 at:"), std::string::npos) << report;
    const Partners partners = PartnersOf(At({{1, ",5"}, {99, "Circle Tangent"}}));
    EXPECT_EQ(partners.First, 0);
    EXPECT_EQ(partners.Second, 5);
}

TEST(GeometryReportEdges, FourColumnsBeforeTheCommaAreALinesPartner) {
    EXPECT_EQ(ReportText({LevelLine(" 1", "91234, 5")}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "  1234 at: X  0,  Y  0\r\n" + In + "  5 at: X  3,  Y  0"));
}

TEST(GeometryReportEdges, ACirclesPartnersAreLookedForFromColumnFourteenOn) {
    const auto report = [](std::size_t comma) {
        // In the columns behind a comma in the fourteenth, the last that counts is the thirty-fifth.
        return ReportText({At({{comma, ","}, {35, "56"}, {40, "Circle Tangent"}})}, Unit::Inch, {});
    };
    EXPECT_NE(report(14).find("Tangent to   5 at:"), std::string::npos) << report(14);
    const std::string before = ReportText({At({{13, ",5"}, {40, "Circle Tangent"}})}, Unit::Inch, {});
    EXPECT_EQ(before.find("Tangent to"), std::string::npos) << before;
}

TEST(GeometryReportEdges, NumbersTouchTheComma) {
    EXPECT_EQ(ReportText({LevelLine(" 1", "34,58")}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "  34 at: X  0,  Y  0\r\n" + In + "  58 at: X  3,  Y  0"));
    const std::string first = ReportText({At({{1, ",5"}, {127, "Line Tangent"}})}, Unit::Inch, {});
    EXPECT_NE(first.find(In + "  5 at: X  0,  Y  0\r\n"), std::string::npos) << first;
    const auto crossing = [](const std::string& item) {
        return ReportText({LineLine(12, "0", "0", "3", "0")}, Unit::Inch, {item});
    };
    EXPECT_NE(crossing("12,5" + std::string(15, ' ') + "/1\\2").find("Intersects Line  5 at X  1,  Y  2"),
              std::string::npos);
    // Fifteen columns less than stand before the slash count, from the comma on: here those up to the twelfth.
    const std::string far = crossing(At({{1, "12 ,"}, {5, "123456789"}, {23, "/1\\2"}}));
    EXPECT_NE(far.find("Intersects Line  12345678 at X"), std::string::npos) << far;
}

TEST(GeometryReportEdges, PartnersThatAreNotThereHaveNoKind) {
    EXPECT_EQ(ReportText({LevelLine(" 1", " 7  , 8 ")}, Unit::Inch, {}),
              LevelBlock("\r\n" + In + "  7 at: X  0,  Y  0\r\n" + In + "  8 at: X  3,  Y  0"));
}

TEST(GeometryRulesEdges, NumberZeroIsNobodysPartner) {
    const std::string tangent = At({{1, " 3"},
                                    {15, " 2"},
                                    {43, " 0"},
                                    {71, " 0"},
                                    {99, "Circle Tangent"},
                                    {127, "   0  ,  1 "},
                                    {155, "# 1$ 2^ 3& 4"}});
    const Lines lines{PointLine(0, "1", "1"), PointLine(1, "2", "2"), tangent};
    EXPECT_EQ(CheckTangents(lines), (Lines{lines[0], lines[1], RepairedRecord(tangent, false, true)}));
    EXPECT_NE(RepairedRecord(tangent, false, true), tangent);
}

TEST(GeometryRulesEdges, ARecordOfNumberZeroStays) {
    const Lines zero{PointLine(0, "1", "1")};
    EXPECT_EQ(WithoutItems(zero, {" 0" + std::string(15, ' ') + "/Point"}), zero);
    EXPECT_EQ(WithoutCandidates(zero, {"0", ""}), zero);
}

TEST(GeometryStoreEdges, ALoneReturnEndsALine) {
    const TestFolder folder;
    folder.Put("geometry.dat", "left\r");
    EXPECT_TRUE(Store(folder.Files()).Append("new"));
    EXPECT_EQ(folder.Get("geometry.dat"), "left\rnew\r\n");
}

TEST(GeometryStoreEdges, OneByteIsALineWithoutItsEnd) {
    const TestFolder folder;
    folder.Put("geometry.dat", "x");
    EXPECT_TRUE(Store(folder.Files()).Append("new"));
    EXPECT_EQ(folder.Get("geometry.dat"), "x\r\nnew\r\n");
}

TEST(GeometryStoreEdges, WhatALinkLeadsToIsNotEmptied) {
    for (const char* const name : {"geometry.dat", "aaaa.tmp"}) {
        const TestFolder folder;
        folder.Put("mine.txt", "mine");
        fs::create_symlink("mine.txt", folder.Path() / name);
        EXPECT_TRUE(Store(folder.Files()).Begin());
        EXPECT_EQ(folder.Get("mine.txt"), "mine") << name;
        EXPECT_EQ(folder.Get(name), "") << name;
    }
    const TestFolder folder;
    folder.Put("mine.txt", "mine");
    fs::create_symlink("mine.txt", folder.Path() / "aaaa.tmp");
    EXPECT_TRUE(Store(folder.Files()).WriteLineCopy({LineLine(1, "0", "0", "1", "1")}));
    EXPECT_EQ(folder.Get("mine.txt"), "mine");
    EXPECT_EQ(folder.Get("aaaa.tmp"), LineLine(1, "0", "0", "1", "1") + "\r\n");
}

TEST(GeometryStoreEdges, AnAppendGoesOnWhereTheEndCannotBeLookedAt) {
    const TestFolder folder;
    folder.Put("geometry.dat", "left");
    bool appended = false;
    {
        const NoDescriptors one(1);
        appended = Store(folder.Files()).Append("new");
    }
    EXPECT_TRUE(appended);
    EXPECT_EQ(folder.Get("geometry.dat"), "leftnew\r\n");
}

TEST(GeometryStoreEdges, BeginningTellsWhatItCouldNotMake) {
    const TestFolder folder;
    const Folder gone(folder.Path() / "gone");
    EXPECT_FALSE(Store(gone).Begin());
    EXPECT_TRUE(Store(folder.Files()).Begin());
    EXPECT_EQ(folder.Names(), (Lines{"aaaa.tmp", "geometry.dat"}));
    fs::remove(folder.Path() / "aaaa.tmp");
    fs::create_directory(folder.Path() / "aaaa.tmp");
    EXPECT_FALSE(Store(folder.Files()).Begin());
    fs::remove(folder.Path() / "aaaa.tmp");
    fs::remove(folder.Path() / "geometry.dat");
    fs::create_directory(folder.Path() / "geometry.dat");
    EXPECT_FALSE(Store(folder.Files()).Begin());
}

TEST(GeometryStoreEdges, ARepairThatCannotBeWritten) {
    const TestFolder folder;
    folder.Put("geometry.dat", "a note\r\n");
    const Store store(folder.Files());
    EXPECT_TRUE(store.CheckTangents());
    const Failing failing("rename", EACCES);
    EXPECT_FALSE(store.CheckTangents());
    EXPECT_EQ(folder.Get("geometry.dat"), "a note\r\n");
}

TEST(GeometryStoreEdges, OwnsTheDrawingAndItsScratchFiles) {
    const TestFolder folder;
    const Store store(folder.Files());
    for (const char* const name : {"geometry.dat", "aaaa.tmp", "./geometry.dat"}) {
        EXPECT_TRUE(store.Owns(name)) << name;
    }
    for (const char* const name : {"aaaa.dat", "geometry.geo", "sub/geometry.dat", ""}) {
        EXPECT_FALSE(store.Owns(name)) << name;
    }
    EXPECT_FALSE(store.Owns(std::string_view("geometry.dat\0", 13)));
}

TEST(GeometryGeoFileEdges, WaysToRecover) {
    constexpr int Always = 1000;
    const std::string point = PointLine(1, "0", "0") + "\r\n";
    // How often a write and a rename fail and whether the drawing can be read; the file that the drawing is in then.
    const struct {
        int writes;
        int renames;
        int reads;
        const char* name;
        std::string content;
    } cases[] = {
        {0, 0, 0, "recovered.geo", "I\r\n" + point},
        {1, 0, 0, "recovered.geo", point},                 // the drawing itself takes the name
        {0, Always, 0, "recovered.geo", "I\r\n" + point},  // written where it stands
        {Always, Always, 0, nullptr, point},
        {0, 0, Always, "recovered.geo", point},
        {0, Always, Always, nullptr, point},
    };
    for (const auto& c : cases) {
        const TestFolder folder;
        folder.Put("geometry.dat", point);
        std::optional<std::string> name;
        {
            const Failing full("write", ENOSPC, 1, c.writes);
            const Failing refused("rename", EACCES, 1, c.renames);
            const Failing torn("read", EIO, 1, c.reads);
            name = RecoverLeftOver(folder.Files());
        }
        EXPECT_EQ(name, c.name == nullptr ? std::nullopt : std::optional<std::string>(c.name));
        EXPECT_EQ(folder.Get(name.value_or("geometry.dat")), c.content) << c.writes << c.renames << c.reads;
        EXPECT_EQ(folder.Files().Exists("recovered.geo"), name.has_value());
    }
}

TEST(GeometryGeoFileEdges, AFolderOfTheDrawingsNameIsNoDrawing) {
    const TestFolder folder;
    fs::create_directory(folder.Path() / "geometry.dat");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), std::nullopt);
    EXPECT_EQ(folder.Names(), Lines{"geometry.dat"});
}

// Lines along the axes: the four circles of radius 1 have their centres at (+-1, +-1).

void ExpectAt(Position found, Position expected, std::size_t circle) {
    EXPECT_NEAR(found.X, expected.X, 1e-15) << circle;
    EXPECT_NEAR(found.Y, expected.Y, 1e-15) << circle;
}

void ExpectMended(std::array<TangentCircle, 4> circles, const std::array<Position, 4>& centres) {
    const LinePair axes{{{-5, 0}, {5, 0}}, {{0, -5}, {0, 5}}};
    MendCircles(circles, axes, {0, 0}, 1);
    for (std::size_t i = 0; i < circles.size(); ++i) {
        ExpectAt(circles[i].Centre, centres[i], i);
        ExpectAt(circles[i].OnA, {centres[i].X, 0}, i);
        ExpectAt(circles[i].OnB, {0, centres[i].Y}, i);
    }
}

TEST(GeometryTangentMendEdges, WhatIsTrueToATenBillionthOfTheRadiusStays) {
    const LinePair axes{{{-5, 0}, {5, 0}}, {{0, -5}, {0, 5}}};
    for (const double r : {1.0, 100.0}) {
        for (const double part : {5e-11, 3e-10}) {
            const double x = r + part * r;
            std::array<TangentCircle, 4> circles{{{{x, r}, {r, 0}, {0, r}},
                                                  {{x, -r}, {r, 0}, {0, -r}},
                                                  {{-x, r}, {-r, 0}, {0, r}},
                                                  {{-x, -r}, {-r, 0}, {0, -r}}}};
            MendCircles(circles, axes, {0, 0}, r);
            for (std::size_t i = 0; i < circles.size(); ++i) {
                const double expected = part < 1e-10 ? x : r;
                EXPECT_EQ(circles[i].Centre.X, i < 2 ? expected : -expected) << r << ' ' << part;
                EXPECT_EQ(circles[i].OnA.X, i < 2 ? r : -r) << r << ' ' << part;
            }
        }
    }
}

TEST(GeometryTangentMendEdges, CirclesInOneSectorSpreadOverTheFreeOnes) {
    const TangentCircle good{{1, 1}, {1, 0}, {0, 1}};
    ExpectMended({good, good, good, good}, {{{1, 1}, {1, -1}, {-1, 1}, {-1, -1}}});
    const TangentCircle low{{-1, -1}, {-1, 0}, {0, -1}};
    ExpectMended({low, low, good, low}, {{{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}});
}

TEST(GeometryTangentMendEdges, ACircleThatTouchesOneLineOnly) {
    const TangentCircle one{{1, 1}, {1, 0}, {0, 1}};
    const TangentCircle two{{1, -1}, {1, 0}, {0, -1}};
    const TangentCircle three{{-1, 1}, {-1, 0}, {0, 1}};
    // The last one touches A, the first one B; each goes into the sector that is left.
    ExpectMended({one, two, three, {{3, 1}, {3, 0}, {0, 1}}}, {{{1, 1}, {1, -1}, {-1, 1}, {-1, -1}}});
    ExpectMended({TangentCircle{{1, 4}, {1, 0}, {0, 4}}, two, three, {{-1, -1}, {-1, 0}, {0, -1}}},
                 {{{1, 1}, {1, -1}, {-1, 1}, {-1, -1}}});
}

TEST(GeometryTangentMendEdges, ACircleWithoutARadiusTouchesInItsCentre) {
    const LinePair axes{{{-5, 0}, {5, 0}}, {{0, -5}, {0, 5}}};
    const TangentCircle dot{{0, 0}, {0, 0}, {0, 0}};
    EXPECT_TRUE(TouchesLines(dot, axes, 0, 1e-10));
    EXPECT_TRUE(PointsTouch(dot, axes, 0, 1e-10));
    EXPECT_FALSE(PointsTouch({{0, 0}, {0, 0}, {0, 1}}, axes, 0, 1e-10));
}

TEST(GeometryTipsEdges, AnglesOfShortAndLongLines) {
    // From the start to the end, counted from the right to the left.
    const struct {
        Position end;
        double degrees;
    } cases[] = {{{.5, 0}, 0},    {{-.5, 0}, 180},  {{0, .5}, 90},     {{0, -.5}, 270},  {{2, 2}, 45},
                 {{.5, .5}, 45},  {{-.5, .5}, 135}, {{-.5, -.5}, 225}, {{.5, -.5}, 315}, {{-2, 2}, 135},
                 {{-2, -2}, 225}, {{2, -2}, 315},   {{0, 0}, 0}};
    for (const auto& c : cases) {
        EXPECT_NEAR(AngleOf({{0, 0}, c.end}), c.degrees, 1e-12) << c.end.X << ' ' << c.end.Y;
    }
}

TEST(GeometryTangentMendEdges, PointsThatMissBecomeFeet) {
    // On its line, but not on the circle; and on the circle, but not on its line.
    const TangentCircle missesA{{1, 1}, {3, 0}, {0, 1}};
    const TangentCircle missesB{{1, -1}, {1, 0}, {1, -2}};
    ExpectMended({missesA, missesB, {{-1, 1}, {-1, 0}, {0, 1}}, {{-1, -1}, {-1, 0}, {0, -1}}},
                 {{{1, 1}, {1, -1}, {-1, 1}, {-1, -1}}});
}

TEST(GeometryViewportEdges, ALineReachesFromEndToEnd) {
    // In the picture all stands 1 to the right and 3 down.
    const Scale scale{2, -6};
    for (const Segment& line : {Segment{{9, 2}, {4, 30}}, {{4, 30}, {9, 2}}, {{4, 2}, {9, 30}}, {{9, 30}, {4, 2}}}) {
        Board board;
        board.EnterLine(line, 1, scale);
        Extents extents;
        GetExtents(extents, board, Unit::Inch);
        EXPECT_EQ(extents, (Extents{5, 10, -1, 27}));
        board.EnterCircle({3, 20}, 1, 2, scale);
        GetExtents(extents, board, Unit::Inch);
        EXPECT_EQ(extents, (Extents{3, 10, -1, 27}));
    }
}

TEST(GeometryViewportEdges, WhatIsBeyondTheRangeIsLeftOut) {
    Board board;
    const Scale scale{10, -10};
    board.EnterPoint({0, 1e308}, 1, scale);
    board.EnterPoint({1e308, 0}, 2, scale);
    board.EnterPoint({2, 3}, 3, scale);
    Extents extents;
    GetExtents(extents, board, Unit::Inch);
    // 5 to the right and 5 down in the picture, and half a cross of .0884 to each side.
    EXPECT_NEAR(extents.MinX, 7 - .0884, 1e-12);
    EXPECT_NEAR(extents.MaxX, 7 + .0884, 1e-12);
    EXPECT_NEAR(extents.MinY, -2 - .0884, 1e-12);
    EXPECT_NEAR(extents.MaxY, -2 + .0884, 1e-12);
}

TEST(GeometryViewportEdges, AScrollValueThatIsNoNumberIsZero) {
    EXPECT_EQ(ScrollRangesFor({Infinity, Infinity, Infinity, Infinity}, {Infinity, Infinity}),
              (ScrollRanges{20, -20, -20, 20}));
    EXPECT_EQ(ScrollRangesFor({-1e9, 1e9, -1e9, 1e9}, {2, 2}), (ScrollRanges{32767, -32768, -32768, 32767}));
}

}  // namespace
}  // namespace brindlex::geometry
