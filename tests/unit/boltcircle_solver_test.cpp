// Bolt circles: checks of the entries, holes, and reports to the blank.
#include "boltcircle/report.h"
#include "boltcircle/solver.h"
#include "faultof.h"
#include "radians.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace brindlex::boltcircle {
namespace {

const std::string Degree = "\xB0";

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

std::string ReportOf(const Entries& entries, const std::string& mask = ".0000") {
    return ReportText(SolveBoltCircle(entries, mask, Rad), entries.StartAngle, mask);
}

Pattern PatternOf(const std::string& holes, const std::string& startAngle = "0") {
    return SolveBoltCircle({"0", "0", "10", holes, startAngle}, ".0000", Rad);
}

TEST(BoltCircleReport, CoordinatesFromZero) {
    EXPECT_EQ(ReportOf({"0", "0", "10", "4", "0"}), Lines({
                                                        "Holes:  4",
                                                        "Chordal Distance:  7.0711",
                                                        "Angle Spacing:  90" + Degree,
                                                        "Diameter Of Circle: 10",
                                                        "Center at: X= 0, Y= 0",
                                                        "Start Angle: 0" + Degree,
                                                        "Hole 1: X=  5 , Y=  0",
                                                        "Hole 2: X=  0 , Y=  5",
                                                        "Hole 3: X= -5 , Y=  0",
                                                        "Hole 4: X=  0 , Y= -5",
                                                    }));
}

// A flange with six holes on 4.5, centre at 3, 2: the chord of a sixth is the radius; 2.25 times cos 30 is 1.948557.
TEST(BoltCircleReport, CoordinatesOfSixHoleFlange) {
    EXPECT_EQ(ReportOf({"3", "2", "4.5", "6", "30"}), Lines({
                                                          "Holes:  6",
                                                          "Chordal Distance:  2.25",
                                                          "Angle Spacing:  60" + Degree,
                                                          "Diameter Of Circle: 4.5",
                                                          "Center at: X= 3 , Y= 2",
                                                          "Start Angle: 30" + Degree,
                                                          "Hole 1: X=  4.9486 , Y=  3.125",
                                                          "Hole 2: X=  3 , Y=  4.25",
                                                          "Hole 3: X=  1.0514 , Y=  3.125",
                                                          "Hole 4: X=  1.0514 , Y=  .875",
                                                          "Hole 5: X=  3 , Y= -.25",
                                                          "Hole 6: X=  4.9486 , Y=  .875",
                                                      }));
}

// 360/7 is 51.428571, that is 51 degrees 25 minutes 42.857143 seconds; the chord is 10 times sin(180/7), 4.338837.
TEST(BoltCircleReport, AnglesFromZero) {
    EXPECT_EQ(ReportOf({"0", "0", "10", "7", "0", true}), Lines({
                                                              "Holes:  7",
                                                              "Chordal Distance:  4.3388",
                                                              "Angle Spacing:  51.4286" + Degree,
                                                              "Diameter Of Circle: 10",
                                                              "Center at: X=  0 , Y=  0",
                                                              "Hole 1= 0" + Degree,
                                                              "Hole 2=  51" + Degree + "  25'  42.8571\"",
                                                              "Hole 3=  102" + Degree + "  51'  25.7143\"",
                                                              "Hole 4=  154" + Degree + "  17'  8.5714\"",
                                                              "Hole 5=  205" + Degree + "  42'  51.4286\"",
                                                              "Hole 6=  257" + Degree + "  8'  34.2857\"",
                                                              "Hole 7=  308" + Degree + "  34'  17.1429\"",
                                                          }));
}

TEST(BoltCircleReport, AnglesFromAnotherAngleTakeOneTurnOff) {
    EXPECT_EQ(ReportOf({"1.23456789", "-2", "10", "4", "300", true}), Lines({
                                                                          "Holes:  4",
                                                                          "Chordal Distance:  7.0711",
                                                                          "Angle Spacing:  90.0000" + Degree,
                                                                          "Diameter Of Circle: 10",
                                                                          "Center at: X=  1.23456789 , Y= -2",
                                                                          "Hole 1=  300" + Degree,
                                                                          "Hole 2=  30" + Degree,
                                                                          "Hole 3=  120" + Degree,
                                                                          "Hole 4=  210" + Degree,
                                                                      }));
    // A second turn stays on.
    EXPECT_NE(ReportOf({"0", "0", "10", "2", "700", true}).find("Hole 2=  520" + Degree), std::string::npos);
}

// With one decimal the centre .04 counts as 0 from the head on, and hole 1 adds the radius as it is.
TEST(BoltCircleReport, CentreIsRoundedBeforeTheHolesAreAndTheRadiusIsNot) {
    EXPECT_EQ(ReportOf({".04", "0", "10.1", "4", "0"}, ".0"), Lines({
                                                                  "Holes:  4",
                                                                  "Chordal Distance:  7.1",
                                                                  "Angle Spacing:  90" + Degree,
                                                                  "Diameter Of Circle: 10.1",
                                                                  "Center at: X= 0, Y= 0",
                                                                  "Start Angle: 0" + Degree,
                                                                  "Hole 1: X=  5.05 , Y=  0",
                                                                  "Hole 2: X=  0 , Y=  5.1",
                                                                  "Hole 3: X= -5.1 , Y=  0",
                                                                  "Hole 4: X=  0 , Y= -5.1",
                                                              }));
}

TEST(BoltCircleReport, StartAngleStandsAsItsText) {
    EXPECT_NE(ReportOf({"0", "0", "10", "1", "0.50"}).find("Start Angle: 0.50" + Degree + "\r\n"), std::string::npos);
}

TEST(BoltCircleReport, AngleTexts) {
    const struct {
        double angle;
        std::string text;
    } rows[] = {
        {0, " 0" + Degree},
        {30, " 30" + Degree},
        {30.5, " 30" + Degree + "  30'"},
        {10.005, " 10" + Degree + "  0'  18.0000\""},
        {30.504, " 30" + Degree + "  30'  14.4000\""},
        {29.99999999, " 29" + Degree + "  59'  60.0000\""},  // seconds are rounded only as they are written
        {32767, " 32767" + Degree},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToDegrees(row.angle, ".0000"), row.text);
    }
    EXPECT_EQ(FaultOf([] { (void)ToDegrees(32768, ".0000"); }), FaultNumber::Overflow);
}

TEST(BoltCircleSolver, HolesAreCountedToTheEvenNeighbour) {
    const struct {
        const char* holes;
        std::size_t further;
    } rows[] = {{"1", 0},   {"2", 1},  {"2.5", 2}, {"3.5", 2},      {"0.5", 0},
                {"0.4", 0}, {"-6", 0}, {"4.6", 4}, {"32767", 32766}};
    for (const auto& row : rows) {
        EXPECT_EQ(PatternOf(row.holes).Further.size(), row.further) << row.holes;
    }
    EXPECT_EQ(PatternOf("2.5").AngleSpacing, 144);
}

TEST(BoltCircleSolver, AnglesGrowByRepeatedAddition) {
    const double increment = 360.0 / 23;
    double angle = 0;
    const Pattern pattern = PatternOf("23", "12.3");
    ASSERT_EQ(pattern.Further.size(), 22U);
    bool differsFromProduct = false;
    for (std::size_t i = 0; i < pattern.Further.size(); ++i) {
        angle += increment;
        if (i == 0) {
            angle += 12.3;
        }
        EXPECT_EQ(pattern.Further[i].Angle, angle);
        differsFromProduct = differsFromProduct || angle != 12.3 + increment * static_cast<double>(i + 1);
    }
    EXPECT_TRUE(differsFromProduct);
}

TEST(BoltCircleSolver, ThreeHolesFromThirty) {
    const Pattern pattern = PatternOf("3", "30");
    EXPECT_EQ(pattern.StartAngle, 30);
    ASSERT_EQ(pattern.Further.size(), 2U);
    EXPECT_EQ(pattern.Further[0].Angle, 150);
    EXPECT_EQ(pattern.Further[1].Angle, 270);
}

TEST(BoltCircleSolver, Faults) {
    const struct {
        const char* what;
        Entries entries;
        FaultNumber fault;
    } rows[] = {
        {"no holes", {"0", "0", "10", "0.0", "0"}, FaultNumber::DivisionByZero},
        {"no number of holes", {"0", "0", "10", "", "0", true}, FaultNumber::DivisionByZero},
        {"a word for holes", {"0", "0", "10", "six", "0"}, FaultNumber::DivisionByZero},
        {"one hole too many", {"0", "0", "10", "32768", "0"}, FaultNumber::Overflow},
        {"far too many holes", {"0", "0", "10", "1E9", "0"}, FaultNumber::Overflow},
        {"a number past the range", {"1E999", "0", "10", "4", "0"}, FaultNumber::Overflow},
        {"a square past the range", {"0", "0", "1E200", "4", "0"}, FaultNumber::Overflow},
        {"a sum past the range", {"1.7E308", "0", "1E200", "4", "0", true}, FaultNumber::Overflow},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FaultOf([&] { (void)SolveBoltCircle(row.entries, ".0000", Rad); }), row.fault) << row.what;
    }
    EXPECT_EQ(FaultOf([] { (void)ReportOf({"0", "0", "10", "4", "40000", true}); }), FaultNumber::Overflow);
    EXPECT_EQ(FaultOf([] { (void)ReportOf({"0", "0", "10", "4", "40000"}); }), std::nullopt);
}

TEST(BoltCircleSolver, MostHolesAreReported) {
    const std::string report = ReportOf({"0", "0", "10", "32767", "0"});
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 32767 + 6);
    EXPECT_NE(report.find("Hole 32767: X=  5 , Y= -.001\r\n"), std::string::npos);  // 5 sin(360/32767) is .00096
}

TEST(BoltCircleSolver, Validation) {
    const struct {
        Entries entries;
        Refusal refusal;
    } rows[] = {
        {{"0", "0", "10", "4", ""}, Refusal::None},
        {{"", "0", "10", "4", "0"}, Refusal::NotCompleted},
        {{"0", "", "10", "4", "0"}, Refusal::NotCompleted},
        {{"0", "0", "", "4", "0"}, Refusal::NotCompleted},
        {{"0", "0", "10", "", "0"}, Refusal::NotCompleted},
        {{"0", "0", "10", "", "0", true}, Refusal::None},
        {{"0", "0", "", "4", "0", true}, Refusal::NotCompleted},
        {{"0", "0", "0", "", "0"}, Refusal::NotCompleted},
        {{"0", "0", "0", "0", "0"}, Refusal::ZeroDiameter},
        {{"0", "0", "10", "0", "0"}, Refusal::ZeroHoles},
        {{"0", "0", "0", "0", "0", true}, Refusal::None},
        {{"0", "0", "0.0", "0.0", "0"}, Refusal::None},
        {{"0", "0", " 0", "4", "0"}, Refusal::None},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Validate(row.entries), row.refusal) << row.entries.Diameter << ' ' << row.entries.Holes;
    }
}

TEST(BoltCircleSolver, DegreeTextIsNormalizedInAllEntries) {
    Entries entries{"10" + Degree + "  30'  36\"", "-2", "4" + Degree, "6", "30" + Degree + "  15'"};
    Normalize(entries);
    EXPECT_EQ(entries.CenterX, " 10.51");
    EXPECT_EQ(entries.CenterY, "-2");
    EXPECT_EQ(entries.Diameter, " 4.51");  // takes the minutes and seconds of the entry before
    EXPECT_EQ(entries.Holes, "6");
    EXPECT_EQ(entries.StartAngle, " 30.26");  // 15 minutes and the 36 seconds from before
    Entries broken{"5'30" + Degree, "0", "10", "4", "0"};
    EXPECT_EQ(FaultOf([&] { Normalize(broken); }), FaultNumber::BadArgument);
}

}  // namespace
}  // namespace brindlex::boltcircle
