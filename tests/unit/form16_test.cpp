// Polygons: sides and parity, dimension types, results, units, documents, and what no person can type.
#include "polygon/form16.h"
#include "form16fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::polygon {
namespace {

TEST_F(Polygons, FirstLoad) {
    EXPECT_EQ(F().Caption(), Title);
    EXPECT_EQ(F().Combo1.Text(), "6");
    EXPECT_EQ(F().Combo1.ListCount(), 34);
    EXPECT_EQ(F().Combo1.List(0), " 3");
    EXPECT_EQ(F().Combo1.List(33), " 36");
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_FALSE(F().Option2.Enabled());
    EXPECT_TRUE(F().Option4.Value());
    EXPECT_TRUE(F().Picture1.AutoRedraw());
    EXPECT_EQ(FigureSides(), 6);
    EXPECT_TRUE(F().Command1.Default());
    ExpectNoResults();
}

TEST_F(Polygons, HexagonAcrossFlats) {
    Solve("1");
    EXPECT_EQ(F().Text2.Text(), "1.1547");
    EXPECT_EQ(F().Label1.Caption(), "Area= .86603");
    EXPECT_EQ(F().Label1.ToolTipText(), " .866025403784439");
    EXPECT_EQ(CircleRadius(), 1200);
    EXPECT_EQ(Focus(), "Text2");
    EXPECT_FALSE(F().Paste.Enabled());
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 14U);
    F().Command1.Value(true);
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 14U);
}

TEST_F(Polygons, AnswerFollowsTheOptionsAtOnce) {
    Solve("1");
    F().Option5.Value(true);
    EXPECT_EQ(F().Text2.Text(), "1.0000");
    EXPECT_NEAR(CircleRadius(), 1039.23048454133, 1e-10);
    F().Option3.Value(true);
    EXPECT_EQ(F().Text2.Text(), "1.7321");
    EXPECT_EQ(F().Label1.Caption(), "Area= 2.59808");
    F().Option4.Value(true);
    EXPECT_EQ(F().Text2.Text(), "2.0000");
    EXPECT_EQ(CircleRadius(), 1200);
    EXPECT_EQ(FigureSides(), 6);
}

TEST_F(Polygons, OptionsKeepTheUnitNote) {
    Solve("1");
    F().Inch2MM.FireClick();
    F().Option5.Value(true);
    EXPECT_EQ(F().Label3.Caption(), "Millimeters");
    EXPECT_EQ(F().Text2.Text(), "25.4000");
    EXPECT_FALSE(F().Inch2.Enabled());
}

TEST_F(Polygons, ParityTiesTheOptions) {
    F().Combo1.Text(" 7");
    EXPECT_FALSE(F().Option1.Enabled());
    EXPECT_TRUE(F().Option2.Enabled());
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_FALSE(F().Option1.Value());
    F().Combo1.Text(" 8");
    EXPECT_TRUE(F().Option1.Enabled());
    EXPECT_FALSE(F().Option2.Enabled());
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_EQ(FigureSides(), 8);
}

TEST_F(Polygons, ParityKeepsOneFlat) {
    F().Option3.Value(true);
    F().Combo1.Text(" 7");
    EXPECT_TRUE(F().Option3.Value());
    EXPECT_FALSE(F().Option1.Enabled());
    EXPECT_TRUE(F().Option2.Enabled());
    F().Combo1.Text(" 8");
    EXPECT_TRUE(F().Option3.Value());
    EXPECT_TRUE(F().Option1.Enabled());
    EXPECT_FALSE(F().Option2.Enabled());
}

TEST_F(Polygons, TriangleRows) {
    F().Combo1.Text(" 3");
    Solve("3");
    EXPECT_EQ(F().Text2.Text(), "4.0000");
    EXPECT_EQ(CircleRadius(), 1200);
    F().Option5.Value(true);
    EXPECT_EQ(F().Text2.Text(), "2.0000");
    EXPECT_EQ(CircleRadius(), 600);
    F().Option3.Value(true);
    EXPECT_EQ(F().Text2.Text(), "1.2990");  // three quarters of sqrt 3: intended
    EXPECT_EQ(CircleRadius(), 600);
    F().Option4.Value(true);
    EXPECT_EQ(F().Text2.Text(), "3.4641");  // 2 * sqrt 3, the last row
}

TEST_F(Polygons, ChoosingSidesClearsTheDimension) {
    Solve("1");
    F().Combo1.Text(" 7");
    EXPECT_EQ(F().Text1.Text(), "");
    ExpectNoResults();
    EXPECT_EQ(Focus(), "Text1");
    EXPECT_EQ(FigureSides(), 7);
    Solve("1");
    F().Combo1.Text(" 7");
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Polygons, TypingSidesActsAsChoosingButLeavesTheFocus) {
    Solve("1");
    F().Combo1.SetFocus();
    F().Combo1.SelectAll();
    F().TypeByPerson(F().Combo1, '9');
    EXPECT_EQ(F().Combo1.Text(), "9");
    EXPECT_EQ(F().Text1.Text(), "");
    ExpectNoResults();
    EXPECT_TRUE(F().Option2.Value());
    EXPECT_EQ(FigureSides(), 9);
    EXPECT_EQ(Focus(), "Combo1");
}

TEST_F(Polygons, ThirtySixSidesPassAndNotOneMore) {
    F().Combo1.Text("36");
    EXPECT_EQ(FigureSides(), 36);
    EXPECT_EQ(Boxes(), Texts{});
    for (const std::string& sides : {std::string("37"), std::string("36.4"), std::string(400, '9')}) {
        F().Text1.Text("1");
        F().Combo1.Text(sides);
        EXPECT_EQ(Boxes(), Texts{TooMany});
        EXPECT_EQ(F().Combo1.Text(), "6");
        EXPECT_EQ(Focus(), "Combo1");
        EXPECT_EQ(F().Text1.Text(), "");
        EXPECT_EQ(FigureSides(), 6);
    }
}

TEST_F(Polygons, TooFewSidesAreRefused) {
    for (const char* const sides : {"2", "1", "0", "", "words", "-40000", "2.5"}) {
        F().Combo1.Text(sides);
        EXPECT_TRUE(F().Picture1.Drawn().Items().empty()) << sides;
        Solve("1");
        EXPECT_EQ(Boxes(), Texts{TooFew}) << sides;
        EXPECT_EQ(F().Combo1.Text(), "6");
        EXPECT_EQ(F().Text1.Text(), "");
        ExpectNoResults();
        EXPECT_EQ(FigureSides(), 6);
        EXPECT_EQ(Focus(), "Combo1");
        EXPECT_EQ(F().Combo1.SelLength(), 1);
    }
}

TEST_F(Polygons, FractionsOfASideAreRounded) {
    F().Combo1.Text("5.7");
    Solve("1");
    EXPECT_EQ(FigureSides(), 6);
    EXPECT_EQ(F().Text2.Text(), "1.1547");
    F().Combo1.Text("2.6");
    EXPECT_EQ(FigureSides(), 3);
}

TEST_F(Polygons, MissingDimensionIsAskedFor) {
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(), Texts{Incomplete});
    EXPECT_EQ(Focus(), "Text1");
    F().Inch2MM.FireClick();
    EXPECT_EQ(Boxes(), Texts{Incomplete});
    F().MM2Inch.FireClick();
    EXPECT_EQ(Boxes(), Texts{Incomplete});
    F().SaveFileAs.FireClick();
    EXPECT_EQ(Boxes(), Texts{Incomplete});
    F().Print.FireClick();
    EXPECT_EQ(Boxes(), Texts{"Nothing to Print!"});
    EXPECT_TRUE(run.Dialogs.empty());
}

TEST_F(Polygons, ChangeOfTheDimensionWipesTheResults) {
    Solve("1");
    F().Inch2MM.FireClick();
    F().Text1.Text("2");
    ExpectNoResults();
    EXPECT_EQ(FigureSides(), 6);
}

TEST_F(Polygons, UnitsConvertTheDimension) {
    F().Option5.Value(true);
    Solve("2");
    F().Inch2MM.FireClick();
    EXPECT_EQ(F().Text1.Text(), "50.800000000000000");
    EXPECT_EQ(F().Text2.Text(), "50.8000");
    EXPECT_EQ(F().Label3.Caption(), "Millimeters");
    EXPECT_FALSE(F().Inch2.Enabled());
    EXPECT_TRUE(F().Mill2.Enabled());
    F().MM2Inch.FireClick();
    EXPECT_EQ(F().Text1.Text(), "2.000000000000000");
    EXPECT_EQ(F().Text2.Text(), "2.0000");
    EXPECT_EQ(F().Label3.Caption(), "Inches");
    EXPECT_TRUE(F().Inch2.Enabled());
    EXPECT_FALSE(F().Mill2.Enabled());
}

TEST_F(Polygons, RightButtonOnThePicturePopsUpTheUnits) {
    F().Picture1.Fire(F().Picture1.MouseUp, "MouseUp", Mouse{LeftButton, 0, 10, 10});
    EXPECT_EQ(run.Popup, "");
    F().Picture1.Fire(F().Picture1.MouseUp, "MouseUp", Mouse{RightButton, 0, 10, 10});
    EXPECT_EQ(run.Popup, "Units");
}

TEST_F(Polygons, CopyAndPaste) {
    Solve("1");
    F().Copy.FireClick();
    EXPECT_EQ(runtime.Clipboard, "1.1547");
    F().Text1.SetFocus();
    EXPECT_TRUE(F().Paste.Enabled());
    runtime.Clipboard = "3";
    F().Paste.FireClick();
    EXPECT_EQ(F().Text1.Text(), "3");
    F().Text2.SetFocus();
    EXPECT_FALSE(F().Paste.Enabled());
    F().Edit.FireClick();
    EXPECT_TRUE(F().Paste.Enabled());
    F().Paste.FireClick();
    EXPECT_EQ(F().Text2.Text(), "3");
    runtime.Clipboard.reset();
    F().Edit.FireClick();
    EXPECT_FALSE(F().Paste.Enabled());
}

// Values out of range.

TEST_F(Polygons, DimensionsBeyondADoubleAreToldAndStay) {
    for (const std::string& dimension : {std::string("1E308"), std::string("1E400"), std::string(400, '9')}) {
        Solve(dimension);
        EXPECT_EQ(Boxes(), Texts{NotValid});
        EXPECT_EQ(F().Text1.Text(), dimension);
        EXPECT_EQ(Focus(), "Text1");
        ExpectNoResults();
    }
    F().Inch2MM.FireClick();
    EXPECT_EQ(Boxes(), Texts{"These Values Are Too Large To Convert!"});
    EXPECT_EQ(F().Text1.Text(), std::string(400, '9'));
    EXPECT_TRUE(F().Inch2.Enabled());
}

TEST_F(Polygons, ChoosingSidesTellsOfADimensionOutOfRangeWhereTheParityChanges) {
    for (const auto& [sides, told] : {std::pair{" 8", Texts{}}, std::pair{" 7", Texts{NotValid}}}) {
        Solve("1E308");
        Boxes();
        F().Combo1.Text(sides);
        EXPECT_EQ(Boxes(), told);
        EXPECT_EQ(F().Text1.Text(), "");
        EXPECT_EQ(Focus(), "Text1");
        ExpectNoResults();
    }
}

TEST_F(Polygons, LeavingAndClosing) {
    Solve("1");
    F().ExitPgm.FireClick();
    EXPECT_FALSE(F().Visible());
    EXPECT_TRUE(program.Get("Form11").Visible());
    program.Get("Form11").GoTo("Form16");
    EXPECT_EQ(F().Text2.Text(), "1.1547");
    F().CloseByPerson();
    EXPECT_FALSE(F().Loaded());
    program.Get("Form11").GoTo("Form16");
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_EQ(folder.Names(), Texts{});
}

}  // namespace
}  // namespace brindlex::polygon
