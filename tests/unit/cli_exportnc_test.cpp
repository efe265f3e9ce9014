// Drilling programs.
#include "cli/exportnc.h"

#include "unit/cli_exportfixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace brindlex::cli {
namespace {

using geometry::Unit;

Drilling Sound() {
    return {25, 2, -12, 120, 900, std::nullopt, std::nullopt, std::nullopt};
}

TEST(CliExportNc, OnePlunge) {
    EXPECT_EQ(NcText(FourHoles(), Unit::Millimeter, Sound(), "flange.bcf"),
              "(BRINDLEX: 4 HOLES ON A BOLT CIRCLE, FROM FLANGE.BCF)\n"
              "(CHECK THIS PROGRAM BEFORE IT IS RUN ON A MACHINE)\n"
              "(LENGTHS IN MILLIMETERS, Z 0 IS THE TOP OF THE WORK)\n"
              "(CENTER X1.0 Y2.0, DIAMETER 10.0, START ANGLE 90.0)\n"
              "(ONE PLUNGE TO Z-12.0, FEED FROM Z2.0, WAYS AT Z25.0)\n"
              "G21 G17 G40 G80 G90 G94\n"
              "S900 M3\n"
              "G0 Z25.0\n"
              "G0 X1.0 Y7.0\n"
              "G98 G81 X1.0 Y7.0 Z-12.0 R2.0 F120.0\n"
              "X-4.0 Y2.0\n"
              "X1.0 Y-3.0\n"
              "X6.0 Y2.0\n"
              "G80\n"
              "G0 Z25.0\n"
              "M5\n"
              "M2\n");
}

TEST(CliExportNc, PecksInInchesWithAToolOfItsOwn) {
    HolePattern pattern = FourHoles();
    pattern.Holes = {{1, {1.23456789, -0.0000004}, 0}, {2, {-2.0000006, 3}, 180}};
    Drilling drilling{1, .1, -.5, 3.5, 1200, .125, 7, std::nullopt};
    const std::string text = NcText(pattern, Unit::Inch, drilling, "a");
    EXPECT_NE(text.find("(PECKS OF 0.125 TO Z-0.5, FEED FROM Z0.1, WAYS AT Z1.0)\n"
                        "G20 G17 G40 G80 G90 G94\n"
                        "T7 M6\n"
                        "G43 H7\n"
                        "S1200 M3\n"
                        "G0 Z1.0\n"
                        "G0 X1.234568 Y0.0\n"
                        "G98 G83 X1.234568 Y0.0 Z-0.5 R0.1 Q0.125 F3.5\n"
                        "X-2.000001 Y3.0\n"
                        "G80\n"),
              std::string::npos)
        << text;
    drilling.Places = 3;
    EXPECT_NE(NcText(pattern, Unit::Inch, drilling, "a").find("G83 X1.235 Y0.0 Z-0.5"), std::string::npos);
}

TEST(CliExportNc, DefaultPlacesKeepHolesWithinFiveHundredThousandths) {
    // Half of the last decimal: .00005 mm, and .0000005 in, which are .0000127 mm.
    EXPECT_EQ(DefaultPlaces(Unit::Millimeter), 4);
    EXPECT_EQ(DefaultPlaces(Unit::Inch), 6);
}

TEST(CliExportNc, ValuesThatCouldBreakATool) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const struct {
        double Drilling::*value;
        double given;
        const char* failure;
    } rows[] = {
        {&Drilling::Depth, 12,
         "2 --depth is the Z of the bottom of the holes, with Z 0 at the top of the work: it must be below 0, not 12"},
        {&Drilling::Depth, 0,
         "2 --depth is the Z of the bottom of the holes, with Z 0 at the top of the work: it must be below 0, not 0"},
        {&Drilling::Depth, -.00004,
         "2 --depth is the Z of the bottom of the holes, with Z 0 at the top of the work: it must be below 0, not "
         "-0.00004"},
        {&Drilling::Retract, 0,
         "2 --retract is the Z where the feed begins: it must be above the work, that is above 0, not 0"},
        {&Drilling::SafeHeight, -1, "2 --safe-height must be above the work, that is above 0, not -1"},
        {&Drilling::SafeHeight, 1.5, "2 --safe-height must not be below --retract, not 1.5"},
        {&Drilling::Feed, 0, "2 --feed must be above 0, not 0"},
        {&Drilling::Feed, .00001, "2 --feed must be above 0, not 0.00001"},
        {&Drilling::SafeHeight, 100000, "2 a length is too large for a machine: it must be below 100000, not 100000"},
        {&Drilling::Depth, -Infinity, "3 a value is too large to be worked with"},
    };
    for (const auto& row : rows) {
        Drilling drilling = Sound();
        drilling.*row.value = row.given;
        EXPECT_EQ(ExportFailureOf([&] { (void)NcText(FourHoles(), Unit::Millimeter, drilling, "a"); }), row.failure);
    }
}

TEST(CliExportNc, PecksToolsPlacesAndFarHoles) {
    const auto failure = [](const Drilling& drilling) {
        return ExportFailureOf([&] { (void)NcText(FourHoles(), Unit::Millimeter, drilling, "a"); });
    };
    Drilling drilling = Sound();
    drilling.Peck = 0;
    EXPECT_EQ(failure(drilling), "2 --peck must be above 0, not 0");
    drilling.Peck = -3;
    EXPECT_EQ(failure(drilling), "2 --peck must be above 0, not -3");
    drilling = Sound();
    drilling.Spindle = 0;
    EXPECT_EQ(failure(drilling), "2 --spindle must be 1 to 999999 revolutions, not 0");
    drilling = Sound();
    drilling.Tool = 0;
    EXPECT_EQ(failure(drilling), "2 --tool must be 1 to 9999, not 0");
    drilling = Sound();
    for (const int places : {0, 7}) {
        drilling.Places = places;
        EXPECT_EQ(failure(drilling), "2 --places must be 1 to 6 for a drilling program, not " + std::to_string(places));
    }
    HolePattern far = FourHoles();
    far.Holes[2].Place.Y = -100000;
    EXPECT_EQ(ExportFailureOf([&] { (void)NcText(far, Unit::Millimeter, Sound(), "a"); }),
              "3 hole 3 is too far away for a machine");
    EXPECT_EQ(ExportFailureOf([&] {
                  (void)NcText({{0, 0}, 1, 0, {}}, Unit::Millimeter, Sound(), "a");
              }),
              "3 there are no holes");
}

TEST(CliExportNc, CommentsHoldNothingThatEndsThem) {
    EXPECT_EQ(CommentText("Flange (2nd); a_b%\n\xB0.bcf"), "FLANGE  2ND   A B   .BCF");
    EXPECT_EQ(CommentText(std::string(100, 'x')), std::string(60, 'X'));
}

}  // namespace
}  // namespace brindlex::cli
