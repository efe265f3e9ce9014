// The nine cases of the right triangle, their limits and refusals. Expected values come from Pythagorean triples and
// from the exact sines of 30, 45 and 60 degrees.
#include "frame/fault.h"
#include "radians.h"
#include "righttri/solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace brindlex::righttri {
namespace {

constexpr double Root3 = 1.7320508075688772;
constexpr double Tolerance = 1e-9;
// The acute angles of the 3-4-5 triangle.
constexpr double Small345 = 36.86989764584402;
constexpr double Large345 = 53.13010235415598;

Solution SolveTexts(const std::string& name, const std::string& text1, const std::string& text2) {
    Entries entries{text1, text2};
    return Solve(name, entries, Rad);
}

struct CaseTest {
    const char* name;
    const char* text1;
    const char* text2;
    Triangle expected;
};

void ExpectTriangle(const CaseTest& test) {
    SCOPED_TRACE(std::string(test.name) + ": " + test.text1 + ", " + test.text2);
    const Solution solution = SolveTexts(test.name, test.text1, test.text2);
    EXPECT_EQ(solution.Refused, Refusal::None);
    EXPECT_NEAR(solution.Found.SideA, test.expected.SideA, Tolerance);
    EXPECT_NEAR(solution.Found.SideB, test.expected.SideB, Tolerance);
    EXPECT_NEAR(solution.Found.SideC, test.expected.SideC, Tolerance);
    EXPECT_NEAR(solution.Found.AngleB, test.expected.AngleB, Tolerance);
    EXPECT_NEAR(solution.Found.AngleC, test.expected.AngleC, Tolerance);
}

TEST(RightTriangleSolver, AllNineCases) {
    const Triangle wide{5, 4, 3, Large345, Small345};
    const Triangle tall{5, 3, 4, Small345, Large345};
    const Triangle half{10, 5, 5 * Root3, 30, 60};
    for (const CaseTest& test : std::vector<CaseTest>{
             {"Side a and side b", "5", "4", wide},
             {"Side a and side b", "5", "3", tall},
             {"Side a and side c", "5", "3", wide},
             {"Side a and side c", "5", "4", tall},
             {"Side b and side c", "4", "3", wide},
             {"Side b and side c", "3", "4", tall},
             {"Angle B and side a", "10", "30", half},
             {"Angle B and side b", "5", "30", half},
             {"Angle B and side c", "8.660254037844386", "30", half},
             {"Angle C and side a", "10", "60", half},
             {"Angle C and side b", "5", "60", half},
             {"Angle C and side c", "8.660254037844386", "60", half},
         }) {
        ExpectTriangle(test);
    }
}

TEST(RightTriangleSolver, OtherTriples) {
    // 5-12-13 and 8-15-17; tan B = b / c.
    ExpectTriangle({"Side a and side b", "13", "5", {13, 5, 12, 22.619864948040426, 67.38013505195957}});
    ExpectTriangle({"Side b and side c", "8", "15", {17, 8, 15, 28.072486935852957, 61.92751306414704}});
    ExpectTriangle({"Angle B and side b", "1", "45", {std::numbers::sqrt2, 1, 1, 45, 45}});
}

TEST(RightTriangleSolver, ListsItsCasesInOrderWithTheNamesOfTheEntries) {
    struct Row {
        const char* name;
        const char* label1;
        const char* label2;
    };
    const std::vector<Row> expected{
        {"Side a and side b", "Length of side a", "Length of side b"},
        {"Side a and side c", "Length of side a", "Length of side c"},
        {"Side b and side c", "Length of side b", "Length of side c"},
        {"Angle B and side a", "Length of side a", "Angle B"},
        {"Angle B and side b", "Length of side b", "Angle B"},
        {"Angle B and side c", "Length of side c", "Angle B"},
        {"Angle C and side a", "Length of side a", "Angle C"},
        {"Angle C and side b", "Length of side b", "Angle C"},
        {"Angle C and side c", "Length of side c", "Angle C"},
    };
    ASSERT_EQ(Cases().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(Cases()[i].Name, expected[i].name);
        EXPECT_EQ(Cases()[i].InputLabel1, expected[i].label1);
        EXPECT_EQ(Cases()[i].InputLabel2, expected[i].label2);
        EXPECT_EQ(FindCase(expected[i].name)->InputLabel2, expected[i].label2);
    }
    EXPECT_FALSE(FindCase("Side b and side a").has_value());
}

TEST(RightTriangleSolver, DegreesPerRadianIsTheLiteralOfFifteenDigits) {
    // 57.2957795130824 times Pi/4 lies above 45, 180/Pi times Pi/4 does not.
    const Solution solution = SolveTexts("Side b and side c", "1", "1");
    EXPECT_DOUBLE_EQ(solution.Found.AngleB, 57.2957795130824 * std::atan(1.0));
    EXPECT_GT(solution.Found.AngleB, 45.0);
    EXPECT_GT(solution.Found.AngleC, 45.0);
}

TEST(RightTriangleSolver, RefusesInOrder) {
    struct Row {
        const char* text1;
        const char* text2;
        Refusal expected;
    };
    for (const Row& row : std::vector<Row>{
             {"", "", Refusal::Text1Missing},
             {"", "0", Refusal::Text1Missing},
             {"", "3", Refusal::Text1Missing},
             {"5", "", Refusal::Text2Missing},
             {"0", "", Refusal::Text2Missing},
             {"0", "3", Refusal::InvalidValues},
             {"5", "0", Refusal::InvalidValues},
             {".", "3", Refusal::InvalidValues},
             {"5", "pasted words", Refusal::InvalidValues},
             {" ", "3", Refusal::InvalidValues},
         }) {
        EXPECT_EQ(SolveTexts("Side a and side b", row.text1, row.text2).Refused, row.expected)
            << row.text1 << ", " << row.text2;
    }
}

TEST(RightTriangleSolver, RefusesZeroBesideAnAngle) {
    for (const char* const name : {"Angle B and side a", "Angle C and side b"}) {
        EXPECT_EQ(SolveTexts(name, "0", "30").Refused, Refusal::InvalidValues) << name;
        EXPECT_EQ(SolveTexts(name, "5", "0").Refused, Refusal::InvalidValues) << name;
        EXPECT_EQ(SolveTexts(name, "-1", "30").Refused, Refusal::None) << name;
    }
}

TEST(RightTriangleSolver, ALegMustBeBelowTheHypotenuse) {
    for (const char* const name : {"Side a and side b", "Side a and side c"}) {
        EXPECT_EQ(SolveTexts(name, "3", "3").Refused, Refusal::InvalidValues);
        EXPECT_EQ(SolveTexts(name, "3", "3.0000001").Refused, Refusal::InvalidValues);
        EXPECT_EQ(SolveTexts(name, "3.0000001", "3").Refused, Refusal::None);
    }
    EXPECT_EQ(SolveTexts("Side b and side c", "3", "300").Refused, Refusal::None);
}

TEST(RightTriangleSolver, AnAngleIsAtMost89Point99999) {
    for (const char* const name : {"Angle B and side a", "Angle B and side b", "Angle B and side c",
                                   "Angle C and side a", "Angle C and side b", "Angle C and side c"}) {
        EXPECT_EQ(SolveTexts(name, "1", "89.99999").Refused, Refusal::None) << name;
        EXPECT_EQ(SolveTexts(name, "1", "89.999990001").Refused, Refusal::InvalidValues) << name;
        EXPECT_EQ(SolveTexts(name, "1", "90").Refused, Refusal::InvalidValues) << name;
    }
}

TEST(RightTriangleSolver, RefusesACaseThatItDoesNotKnow) {
    EXPECT_EQ(SolveTexts("", "5", "4").Refused, Refusal::InvalidValues);
    EXPECT_EQ(SolveTexts("side a and side b", "5", "4").Refused, Refusal::InvalidValues);
}

TEST(RightTriangleSolver, PastedNegativeNumbersGoIntoTheFormulas) {
    // Two negative legs still have a hypotenuse; their angles are those of the positive ones.
    ExpectTriangle({"Side b and side c", "-4", "-3", {5, -4, -3, Large345, Small345}});
    ExpectTriangle({"Angle B and side a", "10", "-30", {10, -5, 5 * Root3, -30, 120}});
}

TEST(RightTriangleSolver, TakesTheNumberThatAPastedTextBeginsWith) {
    ExpectTriangle({"Side a and side b", "  5 in.", "3.0mm", {5, 3, 4, Small345, Large345}});
    ExpectTriangle({"Side a and side b", "5.0.0", "3\r\n", {5, 3, 4, Small345, Large345}});
}

TEST(RightTriangleSolver, ReadsDegreeTextAndWritesItsNumberBack) {
    // 45 + 30/60 + 15/3600 = 45.504166666666667
    Entries entries{"1", " 45\xB0  30'  15\""};
    const Solution solution = Solve("Angle B and side a", entries, Rad);
    EXPECT_EQ(entries.Text1, "1");
    EXPECT_EQ(entries.Text2, " 45.5041666666667");
    EXPECT_NEAR(solution.Found.AngleB, 45.5041666666667, 1e-12);
    EXPECT_NEAR(solution.Found.AngleC, 44.4958333333333, 1e-12);
    EXPECT_NEAR(solution.Found.SideB, 0.7133014188282, 1e-12);  // sin 45°30'15"
}

TEST(RightTriangleSolver, MinutesAndSecondsAreSharedBetweenTheEntries) {
    // The second entry has no minutes and no seconds, so it takes those of the first.
    Entries entries{" 2\xB0  30'  36\"", " 60\xB0"};
    const Solution solution = Solve("Angle B and side a", entries, Rad);
    EXPECT_EQ(solution.Refused, Refusal::None);
    EXPECT_EQ(entries.Text1, " 2.51");
    EXPECT_EQ(entries.Text2, " 60.51");
    // A new calculation starts without any.
    Entries fresh{"2", " 60\xB0"};
    EXPECT_EQ(Solve("Angle B and side a", fresh, Rad).Refused, Refusal::None);
    EXPECT_EQ(fresh.Text2, " 60");
}

TEST(RightTriangleSolver, DegreeTextIsReadEvenWhereTheValuesAreRefusedThen) {
    Entries entries{"1", " 90\xB0  0'  0\""};
    EXPECT_EQ(Solve("Angle C and side b", entries, Rad).Refused, Refusal::InvalidValues);
    EXPECT_EQ(entries.Text2, " 90");
}

TEST(RightTriangleSolver, WhatTheArithmeticCanNotTakeComesOutAsAFault) {
    struct Row {
        const char* name;
        const char* text1;
        const char* text2;
        FaultNumber expected;
    };
    for (const Row& row : std::vector<Row>{
             {"Side a and side b", "1e999", "3", FaultNumber::Overflow},
             {"Side a and side b", "1e200", "3", FaultNumber::Overflow},
             {"Side b and side c", "3", "1e200", FaultNumber::Overflow},
             {"Side a and side b", "3", "-5", FaultNumber::BadArgument},
             {"Side a and side b", "1e-170", "1e-171", FaultNumber::DivisionByZero},
             {"Angle B and side b", "1e308", "1e-5", FaultNumber::Overflow},
             {"Angle B and side a", "1", "5'\xB0", FaultNumber::BadArgument},
         }) {
        SCOPED_TRACE(std::string(row.name) + ": " + row.text1 + ", " + row.text2);
        try {
            const Solution solution = SolveTexts(row.name, row.text1, row.text2);
            ADD_FAILURE() << "no fault, refusal " << static_cast<int>(solution.Refused);
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.Number(), row.expected);
        }
    }
}

TEST(RightTriangleSolver, AFaultInTheSecondEntryLeavesTheFirstAsItsNumber) {
    Entries entries{" 1\xB0  30'  0\"", "5'\xB0 1"};
    EXPECT_THROW((void)Solve("Angle B and side a", entries, Rad), Fault);
    EXPECT_EQ(entries.Text1, " 1.5");
    EXPECT_EQ(entries.Text2, "5'\xB0 1");
}

}  // namespace
}  // namespace brindlex::righttri
