// Drawing files: their lines, the recovery of what was left over, the change of unit.
#include "geometry/geofile.h"

#include "frame/fault.h"
#include "geometry/unitchange.h"
#include "testfolder.h"
#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

using Lines = std::vector<std::string>;

TEST(GeometryGeoFile, OnlyTheBareLettersNameAUnit) {
    EXPECT_EQ(UnitOf("I"), Unit::Inch);
    EXPECT_EQ(UnitOf("M"), Unit::Millimeter);
    for (const char* const line : {"", "i", "m", "I ", " I", "MM", "Inches"}) {
        EXPECT_EQ(UnitOf(line), std::nullopt) << line;
    }
}

TEST(GeometryGeoFile, LinesOfAFile) {
    EXPECT_EQ(GeoLines({}, Unit::Inch), (Lines{"I"}));
    EXPECT_EQ(GeoLines({"a", "", "b"}, Unit::Millimeter), (Lines{"M", "a", "", "b"}));
}

TEST(GeometryGeoFile, RecoversUnderFreeNames) {
    const TestFolder folder;
    const Store store(folder.Files());
    const std::string point = PointLine(1, "0", "0");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), std::nullopt);
    store.Append("a note");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), std::nullopt);
    store.Append(point);
    EXPECT_EQ(RecoverLeftOver(folder.Files()), "recovered.geo");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), "recovered-2.geo");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), "recovered-3.geo");
    InputFile file = folder.Files().OpenInput("recovered-2.geo");
    EXPECT_EQ(file.LineInput(), "I");
    EXPECT_EQ(file.LineInput(), "a note");
    EXPECT_EQ(file.LineInput(), point);
    EXPECT_TRUE(file.Eof());
}

TEST(GeometryGeoFile, TheTenThousandthNameIsTheLast) {
    const TestFolder folder;
    const std::string point = PointLine(1, "0", "0");
    folder.Put("recovered.geo", "old");
    for (int count = 2; count < 10000; ++count) {
        std::filesystem::create_hard_link(folder.Path() / "recovered.geo",
                                          folder.Path() / ("recovered-" + std::to_string(count) + ".geo"));
    }
    Store(folder.Files()).Append(point);
    // It is taken over and over rather than looked for without end.
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(RecoverLeftOver(folder.Files()), "recovered-10000.geo");
        EXPECT_EQ(folder.Get("recovered-10000.geo"), "I\r\n" + point + "\r\n");
    }
    EXPECT_EQ(folder.Get("recovered-9999.geo"), "old");
}

TEST(GeometryGeoFile, ADrawingThatCanNotBeReadTakesTheNameItself) {
    const TestFolder folder;
    // A device of that kind is not read from.
    std::filesystem::create_symlink("/dev/zero", folder.Path() / "geometry.dat");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), "recovered.geo");
    EXPECT_EQ(folder.Names(), Lines{"recovered.geo"});
    // A folder is no drawing.
    std::filesystem::create_directory(folder.Path() / "geometry.dat");
    EXPECT_EQ(RecoverLeftOver(folder.Files()), std::nullopt);
}

TEST(GeometryUnitChange, TheWayToInchesMultiplies) {
    EXPECT_EQ(FactorTo(Unit::Millimeter), 25.4);
    EXPECT_EQ(FactorTo(Unit::Inch), 1 / 25.4);
    // 1 / 25.4 in 15 digits.
    EXPECT_EQ(ConvertedLines({PointLine(1, "1", "25.4")}, Unit::Inch),
              (Lines{PointLine(1, " .0393700787401575", " 1")}));
}

TEST(GeometryUnitChange, TailsAndOtherLinesStay) {
    const std::string tangent = At(
        {{1, " 3"}, {15, " 1"}, {43, " 2"}, {71, " 3"}, {99, "Circle Tangent"}, {127, " 1  ,  2 "}, {155, "# 1$ 2"}});
    const std::string converted = At({{1, " 3"},
                                      {15, " 25.4"},
                                      {43, " 50.8"},
                                      {71, " 76.2"},
                                      {99, "Circle Tangent"},
                                      {127, " 1  ,  2 "},
                                      {155, "# 1$ 2"}});
    EXPECT_EQ(ConvertedLines({"a note", tangent}, Unit::Millimeter), (Lines{"a note", converted}));
}

TEST(GeometryUnitChange, RefusesABlankLineAndWhatHasNoRange) {
    EXPECT_EQ(ConvertedLines({PointLine(1, "1", "1"), ""}, Unit::Inch), std::nullopt);
    EXPECT_THROW(static_cast<void>(ConvertedLines({PointLine(1, "1E+308", "1")}, Unit::Millimeter)), Fault);
}

}  // namespace
}  // namespace brindlex::geometry
