// The report: blocks to the blank.
#include "geometry/report.h"

#include "unit/geometryrecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::geometry {
namespace {

const std::string Indented(10, ' ');
const std::string DeepIn(21, ' ');

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

std::string TangentCircleLine(const std::string& pair, const std::string& marks) {
    return At({{1, " 3"}, {15, " 2"}, {43, " 0"}, {71, " 0"}, {99, "Circle Tangent"}, {127, pair}, {183, marks}});
}

TEST(GeometryReport, NoRecords) {
    EXPECT_EQ(ReportText({}, Unit::Inch, {}), "Scale: Inches\r\n\r\n");
    EXPECT_EQ(ReportText({"", "a note", "M"}, Unit::Millimeter, {}), "Scale: Millimeters\r\n\r\n");
}

TEST(GeometryReport, PointsToTheWhole) {
    struct PointCase {
        const char* X;
        const char* Y;
        const char* Text;
    };
    const PointCase cases[] = {
        {".4", "12.7", "X .,  Y 13."}, {"-.4", "-2.5", "X .,  Y -3."}, {"0", "1.49", "X .,  Y 1."}};
    for (const PointCase& each : cases) {
        EXPECT_EQ(ReportText({PointLine(4, each.X, each.Y)}, Unit::Inch, {}),
                  Joined({"Scale: Inches", "", " 4 Point:", Indented + each.Text, ""}));
    }
}

TEST(GeometryReport, CircleWithOnePartnerLeft) {
    const std::string head = Joined(
        {"Scale: Inches", "", "3 Circle:", Indented + "Center X  0,  Y 0", Indented + "Diameter:  2",
         Indented + "Radius:  1", Indented + "Area:  3.14159265358979", Indented + "Circumference:  6.28318530717959"});
    // The partner is not there, so its kind is empty.
    EXPECT_EQ(ReportText({TangentCircleLine(" 4  ,", "# 1$ 2")}, Unit::Inch, {}),
              head + Joined({Indented + "Tangent to   4 at:", DeepIn + "X  1", DeepIn + "Y  2", ""}));
    EXPECT_EQ(ReportText({TangentCircleLine(" , 5 ", "^ 3& 4")}, Unit::Inch, {}),
              head + Joined({Indented + "Tangent to   5 at:", DeepIn + "X  3", DeepIn + "Y  4", ""}));
}

TEST(GeometryReport, LineWithALonePartner) {
    const auto line = [](const std::string& tail) {
        return At({{1, " 3"}, {15, " 1"}, {43, " 2"}, {71, " 1"}, {99, " 5"}, {127, "Line Tangent"}, {141, tail}});
    };
    const auto block = [](const std::string& partner) {
        return Joined({"Scale: Inches", "", " 1 Point:", Indented + "X 1.,  Y 1.", "",
                       " 3 Line:", Indented + "Start: X  1,  Y  2", Indented + "End: X  1,  Y  5",
                       Indented + "Length:  3", Indented + "Angle:  90", Indented + partner, ""});
    };
    const std::string point = PointLine(1, ".6", ".6");
    const auto report = [&](const std::string& tail) { return ReportText({point, line(tail)}, Unit::Inch, {}); };
    EXPECT_EQ(report(" 1  ,"), block("Intersects Point  1 at: X  1,  Y  2"));
    EXPECT_EQ(report(" , 1 "), block("Intersects Point  1 at: X  1,  Y  5"));
}

TEST(GeometryReport, ALineInSeveralCrossingsGetsALineForEach) {
    const std::vector<std::string> crossings{PairText(" 1 ", " 2 ", " .5", " 0"), PairText(" 3 ", " 1 ", "-1", " 2"),
                                             PairText(" 4 ", " 5 ", " 9", " 9")};
    EXPECT_EQ(ReportText({LineLine(1, "0", "0", "0", "0")}, Unit::Inch, crossings),
              Joined({"Scale: Inches", "", " 1 Line:", Indented + "Start: X  0,  Y  0", Indented + "End: X  0,  Y  0",
                      Indented + "Length:  0", Indented + "Angle:  0", Indented + "Intersects Line  2 at X  .5,  Y  0",
                      Indented + "Intersects Line  3 at X -1,  Y  2", ""}));
}

TEST(GeometryReport, ValuesOutOfRangeReadZero) {
    const std::string text = ReportText({CircleLine(1, "1E+200", "0", "0")}, Unit::Inch, {});
    EXPECT_NE(text.find("Area:  0\r\n"), std::string::npos);
    EXPECT_NE(text.find("Radius:  5E+199\r\n"), std::string::npos);
}

TEST(GeometryReport, AnyLineIsTaken) {
    std::string word(13, ' ');
    std::string circle = word;
    word.append("Line Tangent");
    circle.append("Circle Tangent,");
    EXPECT_NE(ReportText({word, circle}, Unit::Inch, {"", ",", "/", "\\"}).find(" 0 Line:"), std::string::npos);
}

}  // namespace
}  // namespace brindlex::geometry
