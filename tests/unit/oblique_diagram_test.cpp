// What is drawn of an oblique triangle, item by item.
#include "oblique/diagram.h"

#include "fakeruntime.h"
#include "frame/program.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::oblique {
namespace {

class PictureForm : public Form {
public:
    explicit PictureForm(Program& program) : Form(program, "PictureForm", 7392, 5352) {}
    PictureBox Picture1{*this, "Picture1", {240, 1920, 6852, 3132}};
};

class ObliqueDiagram : public ::testing::Test {
protected:
    ObliqueDiagram() : runtime(run), program(runtime, folder.Files()), form(program) { form.KeepDesign(); }

    [[nodiscard]] std::vector<DrawItem> Items() const {
        return {form.Picture1.Drawn().Items().begin(), form.Picture1.Drawn().Items().end()};
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime;
    Program program;
    PictureForm form;
    PictureBox& picture = form.Picture1;
};

void ExpectLine(const DrawItem& item, double x1, double y1, double x2, double y2) {
    EXPECT_EQ(item.Kind, DrawKind::Line);
    EXPECT_NEAR(item.X1, x1, 1e-9);
    EXPECT_NEAR(item.Y1, y1, 1e-9);
    EXPECT_NEAR(item.X2, x2, 1e-9);
    EXPECT_NEAR(item.Y2, y2, 1e-9);
    EXPECT_EQ(item.Ink, Blue);
}

void ExpectText(const DrawItem& item, const std::string& text, double x, double y, bool known) {
    EXPECT_EQ(item.Kind, DrawKind::Text);
    EXPECT_EQ(item.Text, text);
    EXPECT_EQ(item.X1, x) << text;
    EXPECT_EQ(item.Y1, y) << text;
    EXPECT_EQ(item.Bold, known) << text;
    EXPECT_EQ(item.Ink, known ? Red : Black) << text;
}

/// The kept values of a triangle; the three other values don't matter to the picture.
Triangle Kept(double a, double b, double c, double A) {
    Triangle triangle;
    triangle.KeptSideA = a;
    triangle.KeptSideB = b;
    triangle.KeptSideC = c;
    triangle.KeptA = A;
    return triangle;
}

TEST_F(ObliqueDiagram, SchematicTriangle) {
    DrawOblique(picture);
    const auto items = Items();
    ASSERT_EQ(items.size(), 3U);
    ExpectLine(items[0], 750, 2350.5, 1850, 445.5);
    ExpectLine(items[1], 1850, 445.5, 2950, 2350.5);
    ExpectLine(items[2], 2950, 2350.5, 750, 2350.5);
    EXPECT_TRUE(picture.AutoRedraw());
}

TEST_F(ObliqueDiagram, LettersOutside) {
    picture.FontBold(true);
    DoLetters(picture, KnownFrom({"Angle A", "Angle C", "Side b"}));
    const auto items = Items();
    ASSERT_EQ(items.size(), 6U);
    ExpectText(items[0], "A", 200, 2400, true);
    ExpectText(items[1], "B", 1750, 200, false);
    ExpectText(items[2], "C", 3200, 2400, true);
    ExpectText(items[3], "a", 2500, 1125, false);
    ExpectText(items[4], "b", 1750, 2700, true);
    ExpectText(items[5], "c", 775, 1400, false);
    EXPECT_FALSE(picture.FontBold());
    EXPECT_EQ(picture.ForeColor(), Black);
    EXPECT_TRUE(picture.AutoRedraw());
}

TEST_F(ObliqueDiagram, LettersInside) {
    DoLetters2(picture, KnownFrom({"Side a", "Side b", "Side c"}));
    const auto items = Items();
    ASSERT_EQ(items.size(), 6U);
    ExpectText(items[0], "A", 850, 2175, false);
    ExpectText(items[1], "B", 1775, 600, false);
    ExpectText(items[2], "C", 2700, 2175, false);
    ExpectText(items[3], "a", 2200, 1275, true);
    ExpectText(items[4], "b", 1775, 2175, true);
    ExpectText(items[5], "c", 1412, 1275, true);
    EXPECT_FALSE(picture.FontBold());
    EXPECT_EQ(picture.ForeColor(), Black);
}

TEST_F(ObliqueDiagram, ValuesStandWhereTheLettersStood) {
    PrintValues(picture, KnownFrom({"Angle B", "Side a", "Side c"}), {" 1", " 2", " 3", " 4", " 5", " 6"});
    const auto items = Items();
    ASSERT_EQ(items.size(), 6U);
    ExpectText(items[0], "A= 1", 200, 2400, false);
    ExpectText(items[1], "B= 2", 1750, 200, true);
    ExpectText(items[2], "C= 3", 3200, 2400, false);
    ExpectText(items[3], "a= 4", 2500, 1125, true);
    ExpectText(items[4], "b= 5", 1750, 2700, false);
    ExpectText(items[5], "c= 6", 775, 1400, true);
}

TEST_F(ObliqueDiagram, LongestSideIsScaledTo2200) {
    // 7, 3, 8 with 60 degrees between 3 and 8: c is the longest, b = 3/8 of 2200, the top lies above 1100.
    SmallObl(picture, Kept(7, 3, 8, 60));
    const auto items = Items();
    ASSERT_EQ(items.size(), 3U);
    const double height = 2200 * 0.8660254037844386;
    ExpectLine(items[0], 4000, 2350.5, 4825, 2350.5);
    ExpectLine(items[1], 4825, 2350.5, 5100, 2350.5 - height);
    ExpectLine(items[2], 5100, 2350.5 - height, 4000, 2350.5);
    EXPECT_TRUE(picture.AutoRedraw());
}

TEST_F(ObliqueDiagram, SideALongest) {
    // 5, 4, 3 with a right angle at A.
    SmallObl(picture, Kept(5, 4, 3, 90));
    const auto items = Items();
    ASSERT_EQ(items.size(), 3U);
    ExpectLine(items[0], 4000, 2350.5, 5760, 2350.5);
    ExpectLine(items[1], 5760, 2350.5, 4000, 1030.5);
    ExpectLine(items[2], 4000, 1030.5, 4000, 2350.5);
}

TEST_F(ObliqueDiagram, SideBLongest) {
    // 3, 5, 4 has its right angle at B; cos A = 4/5, so the top is 1760 · 4/5 to the right and 1760 · 3/5 up.
    SmallObl(picture, Kept(3, 5, 4, 36.86989764584402));
    const auto items = Items();
    ASSERT_EQ(items.size(), 3U);
    ExpectLine(items[0], 4000, 2350.5, 6200, 2350.5);
    ExpectLine(items[1], 6200, 2350.5, 5408, 1294.5);
}

TEST_F(ObliqueDiagram, EqualLongestSidesAreBothScaledTo2200) {
    SmallObl(picture, Kept(3, 3, 3, 60));
    ExpectLine(Items()[0], 4000, 2350.5, 6200, 2350.5);
    picture.Cls();
    // b = c above a.
    SmallObl(picture, Kept(1, 4, 4, 14.36151172));
    ExpectLine(Items()[0], 4000, 2350.5, 6200, 2350.5);
}

TEST_F(ObliqueDiagram, AnAngleAbove105MovesTheLeftEnd) {
    SmallObl(picture, Kept(5, 3, 3.5, 105));
    EXPECT_EQ(Items()[0].X1, 4000);
    picture.Cls();
    SmallObl(picture, Kept(5, 3, 3.5, 105.0000001));
    EXPECT_EQ(Items()[0].X1, 5000);
}

TEST_F(ObliqueDiagram, GreyCircle) {
    DrawCircle(picture);
    const auto items = Items();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].Kind, DrawKind::Circle);
    EXPECT_EQ(items[0].X1, 1800);
    EXPECT_EQ(items[0].Y1, 1800);
    EXPECT_EQ(items[0].Radius, 1400);
    EXPECT_EQ(items[0].Ink, (Colour{200, 200, 200}));
}

TEST(ObliqueLabels, HoldOnlyCertainElements) {
    // In the order of the elements: which of the three labels can hold it.
    const std::array<std::array<bool, 3>, ElementCount> expected{{{true, false, false},
                                                                  {true, true, false},
                                                                  {true, true, true},
                                                                  {true, true, true},
                                                                  {false, true, true},
                                                                  {false, false, true}}};
    for (const Element element : AllElements) {
        for (std::size_t label = 0; label < 3; ++label) {
            const auto held = ElementHeld(label, LabelOf(element));
            EXPECT_EQ(held.has_value(), expected[Index(element)][label]) << LabelOf(element) << " " << label;
            if (held) {
                EXPECT_EQ(*held, element);
            }
        }
    }
    EXPECT_EQ(ElementHeld(0, ""), std::nullopt);
    EXPECT_EQ(ElementHeld(0, "Angle a"), std::nullopt);
}

}  // namespace
}  // namespace brindlex::oblique
