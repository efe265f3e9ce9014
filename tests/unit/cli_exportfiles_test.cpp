// The texts of drawing exchange files, pictures, tables and JSON.
#include "cli/exportdxf.h"
#include "cli/exportsvg.h"
#include "cli/exporttables.h"

#include "unit/cli_exportfixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace brindlex::cli {
namespace {

using geometry::Unit;

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(CliExportDxf, NamesItsUnit) {
    EXPECT_TRUE(Contains(DxfText(SmallSheet(Unit::Inch)), "9\n$INSUNITS\n70\n1\n9\n$MEASUREMENT\n70\n0\n"));
    EXPECT_TRUE(Contains(DxfText(SmallSheet(Unit::Millimeter)), "9\n$INSUNITS\n70\n4\n9\n$MEASUREMENT\n70\n1\n"));
}

TEST(CliExportDxf, ShapesStandOnTheirLayers) {
    const std::string text = DxfText(SmallSheet(Unit::Inch));
    EXPECT_TRUE(Contains(text, "100\nAcDbCircle\n10\n0.1\n20\n-0.2\n30\n0\n40\n1\n"));
    EXPECT_TRUE(Contains(text, "100\nAcDbLine\n"));
    EXPECT_TRUE(Contains(text, "10\n-1\n20\n0\n30\n0\n11\n3\n21\n4\n31\n0\n"));
    EXPECT_TRUE(Contains(text, "100\nAcDbPoint\n10\n0\n20\n1.5\n30\n0\n"));
    EXPECT_TRUE(Contains(text, "8\nCIRCLES\n"));
    EXPECT_FALSE(Contains(text, "BOLT_CIRCLE"));
    EXPECT_TRUE(text.ends_with("  0\nEOF\n") || text.ends_with("\n0\nEOF\n"));
}

TEST(CliExportDxf, TheSameSheetGivesTheSameBytes) {
    const std::string text = DxfText(SmallSheet(Unit::Inch));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(DxfText(SmallSheet(Unit::Inch)), text);
    }
    // Dimensions are written in the style that stands before them.
    const auto behind = [&](const std::string& words) { return text.substr(text.find(words) + words.size(), 3); };
    EXPECT_EQ(behind("0\nSTYLE\n5\n"), behind("284\n8\n340\n"));
}

TEST(CliExportDxf, LargeAndSmallNumbersKeepAllDigits) {
    Sheet sheet{Unit::Inch, {{Layer::Points, 1, {geometry::Kind::Point, 1, {1.2345678901234567e300, 1e-300, 0, 0}}}}};
    EXPECT_TRUE(Contains(DxfText(sheet), "10\n1.2345678901234567e+300\n20\n1e-300\n"));
    sheet.Shapes[0].Record.Values[1] = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ExportFailureOf([&] { (void)DxfText(sheet); }), "3 a value is too large to be worked with");
}

// The box runs from (-1, -1.2) to (3, 4), and 10 mm further on each side. Y is negated. The line rises at 45 degrees,
// its number ends .8 mm from it towards the upper left: .8 * .7071067811865475 = .565685424949238.
TEST(CliExportSvg, WholePictureInMillimeters) {
    EXPECT_EQ(SvgText(SmallSheet(Unit::Millimeter)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"24mm\" height=\"25.2mm\" "
              "viewBox=\"-11 -14 24 25.2\">\n"
              "<title>Brindlex, scale 1:1, millimeters</title>\n"
              "<g id=\"CIRCLES\" fill=\"none\" stroke=\"black\" stroke-width=\"0.25\">\n"
              "<circle cx=\"0.1\" cy=\"0.2\" r=\"1\"/>\n</g>\n"
              "<g id=\"LINES\" fill=\"none\" stroke=\"black\" stroke-width=\"0.25\">\n"
              "<line x1=\"-1\" y1=\"0\" x2=\"3\" y2=\"-4\"/>\n</g>\n"
              "<g id=\"POINTS\" fill=\"none\" stroke=\"black\" stroke-width=\"0.25\">\n"
              "<path d=\"M0 -1.5m-1.5 0h3.0m-1.5 -1.5v3.0\"/>\n</g>\n"
              "<g id=\"NUMBERS\" fill=\"black\" font-family=\"sans-serif\" font-size=\"3\">\n"
              "<text x=\"-1.7\" y=\"0.2\" text-anchor=\"end\">1</text>\n"
              "<text x=\"-0.2324\" y=\"-1.899\" text-anchor=\"end\">2</text>\n"
              "<text x=\"0.8\" y=\"-2.3\" text-anchor=\"start\">3</text>\n"
              "</g>\n</svg>\n");
}

TEST(CliExportSvg, InchesAndBoltCircles) {
    // A bolt circle of 2 inches at the origin with one hole of .5 at (1, 0): from -1 to 1.25 across, -1 to 1 upwards,
    // and 10/25.4 on each side: 2.25 + .7874015748031496 by 2 + .7874015748031496.
    const HolePattern pattern{{0, 0}, 2, 0, {{1, {1, 0}, 0}}};
    const std::string text = SvgText(SheetOf(pattern, Unit::Inch, .5));
    EXPECT_TRUE(Contains(text, "width=\"3.0374015748031495in\" height=\"2.7874015748031495in\"")) << text;
    EXPECT_TRUE(Contains(text, "<circle cx=\"0\" cy=\"0\" r=\"1\" stroke-dasharray=")) << text;
    EXPECT_TRUE(Contains(text, "<circle cx=\"1\" cy=\"0\" r=\"0.25\"/>")) << text;
    EXPECT_TRUE(
        Contains(text, "font-size=\"3\" transform=\"scale(0.03937007874015748)\">\n<text x=\"18.25\" y=\"0.0\""))
        << text;
}

TEST(CliExportSvg, TooLargeToBePaper) {
    const Sheet sheet{Unit::Inch, {{Layer::Lines, 1, {geometry::Kind::Line, 1, {-1e308, 0, 1e308, 0}}}}};
    EXPECT_EQ(ExportFailureOf([&] { (void)SvgText(sheet); }), "3 a value is too large to be worked with");
}

TEST(CliExportTables, EntitiesCsv) {
    EXPECT_EQ(EntitiesCsv(SmallSheet(Unit::Inch)),
              "number,kind,x,y,x2,y2,diameter,unit\r\n"
              "1,circle,0.1,-0.2,,,2,in\r\n"
              "2,line,-1,0,3,4,,in\r\n"
              "3,point,0,1.5,,,,in\r\n");
}

TEST(CliExportTables, PairsCsv) {
    EXPECT_EQ(PairsCsv({{1, 2, {1, 1}, 90, true}, {1, 103, {-1.5, 3}, 45.5, false}}, Unit::Millimeter),
              "first,second,meet,x,y,angle,unit\r\n"
              "1,2,crossing,1,1,90,mm\r\n"
              "1,103,extended,-1.5,3,45.5,mm\r\n");
}

TEST(CliExportTables, HolesCsv) {
    EXPECT_EQ(HolesCsv(FourHoles(), Unit::Millimeter),
              "hole,x,y,angle,unit\r\n1,1,7,90,mm\r\n2,-4,2,180,mm\r\n3,1,-3,270,mm\r\n4,6,2,0,mm\r\n");
}

TEST(CliExportTables, DrawingJson) {
    Sheet sheet = SmallSheet(Unit::Inch);
    sheet.Shapes.erase(sheet.Shapes.begin() + 1, sheet.Shapes.end());
    EXPECT_EQ(DrawingJson(sheet, {{4, 5, {.5, -1}, 30, true}}),
              "{\n  \"unit\": \"in\",\n  \"entities\": [\n    {\n      \"number\": 1,\n      \"kind\": \"circle\",\n"
              "      \"x\": 0.1,\n      \"y\": -0.2,\n      \"diameter\": 2\n    }\n  ],\n  \"pairs\": [\n    {\n"
              "      \"first\": 4,\n      \"second\": 5,\n      \"meet\": \"crossing\",\n      \"x\": 0.5,\n"
              "      \"y\": -1,\n      \"angle\": 30\n    }\n  ]\n}\n");
}

TEST(CliExportTables, HolesJson) {
    HolePattern pattern = FourHoles();
    pattern.Holes.resize(1);
    EXPECT_EQ(HolesJson(pattern, Unit::Inch),
              "{\n  \"unit\": \"in\",\n  \"center\": {\n    \"x\": 1,\n    \"y\": 2\n  },\n  \"diameter\": 10,\n"
              "  \"startAngle\": 90,\n  \"holes\": [\n    {\n      \"hole\": 1,\n      \"x\": 1,\n      \"y\": 7,\n"
              "      \"angle\": 90\n    }\n  ]\n}\n");
    // JSON has no infinity, and null would be no number.
    pattern.Centre.X = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ExportFailureOf([&] { (void)HolesJson(pattern, Unit::Inch); }),
              "3 a value is too large to be worked with");
}

}  // namespace
}  // namespace brindlex::cli
