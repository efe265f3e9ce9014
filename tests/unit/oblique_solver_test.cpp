// Oblique triangles: the table of cases, exact cases worked out by hand, refusals.
#include "faultof.h"
#include "oblique/solver.h"
#include "obliquecase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brindlex::oblique {
namespace {

// The table.

TEST(ObliqueCases, AreNineteenInTheOrderOfTheList) {
    const std::vector<std::string> expected = {
        "Angle A, Angle B, side a", "Angle A, Angle C, side a", "Angle B, Angle C, side a", "Angle A, Angle B, side b",
        "Angle A, Angle C, side b", "Angle B, Angle C, side b", "Angle A, Angle B, side c", "Angle A, Angle C, side c",
        "Angle B, Angle C, side c", "Angle A, side a, side b",  "Angle A, side a, side c",  "Angle A, side b, side c",
        "Angle B, side a, side b",  "Angle B, side a, side c",  "Angle B, side b, side c",  "Angle C, side a, side b",
        "Angle C, side a, side c",  "Angle C, side b, side c",  "Side a, side b, side c"};
    std::vector<std::string> entries;
    for (const Case& row : Cases()) {
        entries.emplace_back(row.Entry);
    }
    EXPECT_EQ(entries, expected);
}

TEST(ObliqueCases, NameTheirEntriesAndFindTheOthers) {
    for (const Case& row : Cases()) {
        std::string name;
        std::set<Element> elements;
        for (const Element element : row.Given) {
            name += (name.empty() ? "" : ", ") + std::string(LabelOf(element));
            elements.insert(element);
        }
        elements.insert(row.Found.begin(), row.Found.end());
        EXPECT_EQ(elements.size(), ElementCount) << row.Entry;
        // The entry is the names, with a small letter on every side but a first one.
        std::string entry(row.Entry);
        std::replace(entry.begin(), entry.end(), 's', 'S');
        std::replace(name.begin(), name.end(), 's', 'S');
        EXPECT_EQ(name, entry);
    }
}

TEST(ObliqueCases, SixAreAmbiguous) {
    std::vector<std::string> ambiguous;
    for (const Case& row : Cases()) {
        if (row.Kind == Family::Ambiguous) {
            ambiguous.emplace_back(row.Entry);
        }
    }
    EXPECT_EQ(ambiguous, (std::vector<std::string>{"Angle A, side a, side b", "Angle A, side a, side c",
                                                   "Angle B, side a, side b", "Angle B, side b, side c",
                                                   "Angle C, side a, side c", "Angle C, side b, side c"}));
}

TEST(ObliqueCases, ThreeAnglesAreKnownButNoCase) {
    EXPECT_EQ(FindCase("Angle A, Angle B, Angle C"), nullptr);
    EXPECT_EQ(EntriesOf("Angle A, Angle B, Angle C"), (std::array{Element::A, Element::B, Element::C}));
    EXPECT_EQ(EntriesOf("Angle A"), std::nullopt);
    EXPECT_EQ(EntriesOf(""), std::nullopt);
}

// Exact cases, worked out by hand.

struct Solved {
    std::string_view entry;
    double first, second, third;
    bool again;
    double A, B, C, a, b, c;
};

class ObliqueSolved : public ::testing::TestWithParam<Solved> {};

TEST_P(ObliqueSolved, GivesTheTriangle) {
    const Solved& e = GetParam();
    Triangle t;
    ASSERT_EQ(RunCase(t, e.entry, e.first, e.second, e.third, e.again), Refusal::None);
    EXPECT_NEAR(t.A, e.A, 1e-10);
    EXPECT_NEAR(t.B, e.B, 1e-10);
    EXPECT_NEAR(t.C, e.C, 1e-10);
    EXPECT_NEAR(t.a, e.a, 1e-10);
    EXPECT_NEAR(t.b, e.b, 1e-10);
    EXPECT_NEAR(t.c, e.c, 1e-10);
    for (const Element element : AllElements) {
        EXPECT_EQ(t.Kept(element), t.Working(element));
    }
}

// sin 80 / sin 40 = 2 cos 40. In the ambiguous ones the third side is 10 cos 30 plus or minus the root of 11.
// In 7, 3, 8 with 60 degrees: 9 + 64 - 24 = 49, cos B = 104/112.
constexpr double B30 = 56.4426902380793;
constexpr double Plus = 11.9768788281998;
constexpr double Minus = 5.34362924748899;
INSTANTIATE_TEST_SUITE_P(
    ByHand, ObliqueSolved,
    ::testing::Values(
        Solved{"Angle A, Angle B, side a", 40, 60, 10, false, 40, 60, 80, 10, 13.4729635533386, 15.3208888623796},
        Solved{"Angle A, Angle B, side c", 45, 45, 10, false, 45, 45, 90, 7.07106781186548, 7.07106781186548, 10},
        Solved{"Angle A, side a, side b", 30, 6, 10, false, 30, B30, 150 - B30, 6, 10, Plus},
        Solved{"Angle A, side a, side b", 30, 6, 10, true, 30, 180 - B30, B30 - 30, 6, 10, Minus},
        Solved{"Angle A, side a, side c", 30, 6, 10, false, 30, 150 - B30, B30, 6, Plus, 10},
        Solved{"Angle A, side a, side c", 30, 6, 10, true, 30, B30 - 30, 180 - B30, 6, Minus, 10},
        Solved{"Angle B, side a, side b", 30, 10, 6, false, B30, 30, 150 - B30, 10, 6, Plus},
        Solved{"Angle B, side a, side b", 30, 10, 6, true, 180 - B30, 30, B30 - 30, 10, 6, Minus},
        Solved{"Angle C, side a, side c", 30, 10, 6, false, B30, 150 - B30, 30, 10, Plus, 6},
        Solved{"Angle C, side b, side c", 30, 10, 6, false, 150 - B30, B30, 30, Plus, 10, 6},
        // The one case with the obtuse solution first.
        Solved{"Angle B, side b, side c", 30, 6, 10, false, B30 - 30, 30, 180 - B30, Minus, 6, 10},
        Solved{"Angle B, side b, side c", 30, 6, 10, true, 150 - B30, 30, B30, Plus, 6, 10},
        Solved{"Angle A, side b, side c", 60, 3, 8, false, 60, 21.7867892982618, 98.2132107017382, 7, 3, 8},
        Solved{"Angle B, side a, side c", 60, 8, 3, false, 98.2132107017382, 60, 21.7867892982618, 8, 7, 3},
        Solved{"Angle C, side a, side b", 60, 3, 8, false, 21.7867892982618, 98.2132107017382, 60, 3, 8, 7},
        Solved{"Side a, side b, side c", 3, 4, 5, false, 36.869897645844, 53.130102354156, 90, 3, 4, 5},
        Solved{"Side a, side b, side c", 7, 3, 8, false, 60, 21.7867892982618, 98.2132107017382, 7, 3, 8}));

struct Refused {
    std::string_view entry;
    double first, second, third;
    bool again;
    Refusal refusal;
};

class ObliqueRefused : public ::testing::TestWithParam<Refused> {};

TEST_P(ObliqueRefused, SaysWhy) {
    const Refused& e = GetParam();
    Triangle t;
    t.KeptA = 1;
    t.KeptSideC = 2;
    EXPECT_EQ(RunCase(t, e.entry, e.first, e.second, e.third, e.again), e.refusal);
    EXPECT_EQ(t.KeptA, 1);
    EXPECT_EQ(t.KeptSideC, 2);
    EXPECT_EQ(t.KeptB, 0);
}

INSTANTIATE_TEST_SUITE_P(
    NotPositive, ObliqueRefused,
    ::testing::Values(Refused{"Angle A, Angle B, side a", 100, 90, 10, false, Refusal::NotPositive},
                      Refused{"Angle A, Angle B, side a", 40, 140, 10, false, Refusal::NotPositive},
                      Refused{"Angle A, Angle B, side a", 40, 60, 0, false, Refusal::NotPositive},
                      Refused{"Angle A, Angle B, side a", 40, 60, -10, false, Refusal::NotPositive},
                      Refused{"Angle A, Angle B, side a", 40, 0, 10, false, Refusal::NotPositive},
                      Refused{"Angle A, side a, side b", 90, 5, 5, false, Refusal::NotPositive},
                      Refused{"Angle A, side a, side b", 90, 5, 5, true, Refusal::NotPositive},
                      Refused{"Angle A, side a, side b", 30, 3, 10, false, Refusal::NotPositive},
                      Refused{"Angle A, side a, side b", 30, 3, 10, true, Refusal::NotPositive},
                      // The sine would be 1.06, hardly above 1.
                      Refused{"Angle A, side a, side b", 45, 2, 3, false, Refusal::NotPositive},
                      Refused{"Angle A, side a, side b", 80, 6, 5, true, Refusal::NotPositive},
                      Refused{"Angle B, side b, side c", 80, 6, 5, false, Refusal::NotPositive},
                      Refused{"Angle C, side b, side c", 30, 10, 3, true, Refusal::NotPositive},
                      Refused{"Angle A, side b, side c", -60, 3, 8, false, Refusal::NotPositive}));

INSTANTIATE_TEST_SUITE_P(
    Faults, ObliqueRefused,
    ::testing::Values(Refused{"Side a, side b, side c", 1, 2, 3, false, Refusal::DivisionByZero},
                      Refused{"Side a, side b, side c", 3, 2, 1, false, Refusal::DivisionByZero},
                      Refused{"Side a, side b, side c", 1, 2, 4, false, Refusal::IllegalFunctionCall},
                      Refused{"Side a, side b, side c", 0, 2, 3, false, Refusal::DivisionByZero},
                      Refused{"Side a, side b, side c", 0, 2, 2, false, Refusal::Overflow},
                      Refused{"Side a, side b, side c", 0, 0, 0, false, Refusal::Overflow},
                      Refused{"Side a, side b, side c", 3e200, 4e200, 5e200, false, Refusal::Overflow},
                      Refused{"Side a, side b, side c", 3e-200, 4e-200, 5e-200, false, Refusal::Overflow},
                      Refused{"Angle A, side a, side b", 30, 0, 10, false, Refusal::DivisionByZero},
                      Refused{"Angle A, side a, side b", 30, 0, 0, false, Refusal::Overflow},
                      Refused{"Angle A, side a, side b", 30, 1e-300, 1e100, false, Refusal::Overflow},
                      Refused{"Angle A, Angle B, side a", 0, 60, 10, false, Refusal::DivisionByZero},
                      Refused{"Angle A, Angle B, side a", 0, 60, 0, false, Refusal::Overflow},
                      Refused{"Angle A, Angle B, side a", 1e-9, 60, 1e308, false, Refusal::Overflow},
                      // Side c comes before side a here, so a side that isn't 0 meets the divisor first.
                      Refused{"Angle A, Angle C, side b", 0, 180, 10, false, Refusal::DivisionByZero},
                      Refused{"Angle A, side b, side c", 0, 5, 5, false, Refusal::Overflow},
                      Refused{"Angle A, side b, side c", 0, 3, 8, false, Refusal::DivisionByZero},
                      Refused{"Angle C, side a, side b", 60, 0, 8, false, Refusal::DivisionByZero}));

TEST(ObliqueSolver, ARightAngleIsExact) {
    for (const bool again : {false, true}) {
        Triangle t;
        SolveOblique(t, "Angle A, side a, side b", 90, 5, 5, again);
        EXPECT_EQ(t.B, 90);
        EXPECT_EQ(t.C, 0);
    }
}

TEST(ObliqueSolver, AnImpossibleSineLeavesRadians) {
    // x = 10 sin 30 / 3, t = 1 - x·x = -16/9, so the angle is minus the arc tangent of 4/3, in radians.
    Triangle t;
    SolveOblique(t, "Angle A, side a, side b", 30, 3, 10, false);
    EXPECT_NEAR(t.B, -0.927295218001612, 1e-12);
    SolveOblique(t, "Angle A, side a, side b", 30, 3, 10, true);
    EXPECT_NEAR(t.B, 180.927295218002, 1e-10);
}

TEST(ObliqueSolver, ArcsineAndArccosineHaveEachItsOwnFactor) {
    const double Pi = 4 * std::atan(1.0);
    const double Rad = Pi / 180;
    const double Deg = 180 / Pi;
    constexpr double Literal = 57.2957795130824;
    ASSERT_NE(Deg, Literal);

    Triangle t;
    SolveOblique(t, "Angle A, side a, side b", 30, 6, 10, false);
    const double x = 10 * std::sin(30 * Rad) / 6;
    const double arc = std::atan(x / std::sqrt(1 - x * x));
    EXPECT_EQ(t.B, arc * Literal);
    EXPECT_NE(t.B, arc * Deg);

    SolveOblique(t, "Side a, side b, side c", 7, 3, 8, false);
    const double y = (64.0 + 49.0 - 9.0) / (2.0 * 8 * 7);
    const double rest = Pi / 2 - std::atan(y / std::sqrt(1 - y * y));
    EXPECT_EQ(t.B, rest * Deg);
    EXPECT_NE(t.B, rest * Literal);
}

TEST(ObliqueSolver, WhatIsNoCaseLeavesTheValuesAsTheyStand) {
    Triangle t;
    for (const char* const entry : {"Angle A, Angle B, Angle C", "", "nonsense"}) {
        EXPECT_EQ(RunCase(t, entry, 60, 60, 60), Refusal::NotPositive);
    }
    ASSERT_EQ(RunCase(t, "Side a, side b, side c", 3, 4, 5), Refusal::None);
    EXPECT_EQ(RunCase(t, "Angle A, Angle B, Angle C", 60, 60, 60), Refusal::None);
    EXPECT_EQ(t.a, 3);
    EXPECT_EQ(t.KeptSideA, 3);
}

TEST(ObliqueSolver, AFaultKeepsWhatWasReached) {
    Triangle t;
    EXPECT_EQ(RunCase(t, "Angle A, Angle B, side a", 0, 60, 10), Refusal::DivisionByZero);
    EXPECT_EQ(t.B, 60);
    EXPECT_EQ(t.C, 120);
    EXPECT_EQ(t.b, 0);
}

TEST(ObliqueSolver, HasAResultOnceOneIsAccepted) {
    Triangle t;
    EXPECT_FALSE(t.HasResult());
    EXPECT_EQ(RunCase(t, "Side a, side b, side c", 1, 2, 3), Refusal::DivisionByZero);
    EXPECT_FALSE(t.HasResult());
    EXPECT_EQ(RunCase(t, "Side a, side b, side c", 3, 4, 5), Refusal::None);
    EXPECT_TRUE(t.HasResult());
}

TEST(ObliqueArea, IsHalfTheProductOfTwoSidesAndTheSineBetween) {
    EXPECT_DOUBLE_EQ(ObliqueArea(3, 4, 90), 6);
    EXPECT_NEAR(ObliqueArea(10, 10, 30), 25, 1e-12);
    EXPECT_NEAR(ObliqueArea(10, 10, 150), 25, 1e-12);
    EXPECT_EQ(FaultOf([] { (void)ObliqueArea(1e200, 1e200, 90); }), FaultNumber::Overflow);
}

TEST(ObliqueRefusals, HaveTheirWords) {
    const std::string head = "These Values Are Not Valid For Calculating\rSolutions To An Oblique Triangle.\rError: ";
    EXPECT_EQ(RefusalText(Refusal::None), "");
    EXPECT_EQ(RefusalText(Refusal::NotPositive), "Sorry, Brindlex Does Not Calculate Negative Values.");
    EXPECT_EQ(RefusalText(RefusalOf(FaultNumber::Overflow)), head + "OVERFLOW");
    EXPECT_EQ(RefusalText(RefusalOf(FaultNumber::BadArgument)), head + "ILLEGAL FUNCTION CALL");
    EXPECT_EQ(RefusalText(RefusalOf(FaultNumber::DivisionByZero)), head + "DIVISION BY ZERO");
    EXPECT_EQ(RefusalText(RefusalOf(FaultNumber::OutOfMemory)), "An Unknown Error Has Ocurred");
}

}  // namespace
}  // namespace brindlex::oblique
