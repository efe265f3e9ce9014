// The Oblique Triangles form: case, entries, calculation, area, places of its controls.
#include "oblique/form2.h"
#include "form2fixture.h"
#include "frame/fontwidths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace brindlex::oblique {
namespace {

TEST_F(Form2Test, EveryCaseNamesItsEntries) {
    Form2& form = Shown();
    ASSERT_EQ(form.Combo1.ListCount(), 19);
    for (int i = 0; i < form.Combo1.ListCount(); ++i) {
        form.Combo1.ListIndex(i);
        std::string names = form.Label1.Caption() + ", " + form.Label2.Caption() + ", " + form.Label3.Caption();
        for (std::size_t at = names.find(", Side"); at != std::string::npos; at = names.find(", Side")) {
            names[at + 2] = 's';
        }
        EXPECT_EQ(names, form.Combo1.Text());
        EXPECT_EQ(form.Check1.Enabled(), form.Label1.Caption().rfind("Angle", 0) == 0);
        EXPECT_EQ(form.Check2.Enabled(), form.Label2.Caption().rfind("Angle", 0) == 0);
    }
}

TEST_F(Form2Test, AnotherCaseClearsTheSecondSolutionWithoutCalculating) {
    Form2& form = Shown();
    Solve(form, "Angle A, side a, side b", "30", "6", "10");
    form.Check3.Value(1);
    form.Text3.Text("11");
    form.Combo1.Text("Angle B, side a, side b");
    EXPECT_EQ(form.Check3.Value(), 0);
    EXPECT_TRUE(form.Check3.Enabled());
    EXPECT_EQ(form.Label5.Caption(), "");
    EXPECT_EQ(form.Text1.Text(), "");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Form2Test, ThreeAnglesAreNamedButNotSolved) {
    Form2& form = Shown();
    form.Combo1.AddItem("Angle A, Angle B, Angle C");
    Solve(form, "Angle A, Angle B, Angle C", "60", "60", "60");
    EXPECT_EQ(form.Label3.Caption(), "Angle C");
    EXPECT_FALSE(form.Check3.Enabled());
    EXPECT_EQ(Messages(), std::vector<std::string>{"Sorry, Brindlex Does Not Calculate Negative Values."});
    EXPECT_EQ(form.Text1.Text(), "");
}

TEST_F(Form2Test, AFaultKeepsTheSecondSolutionAndARefusalClearsIt) {
    Form2& form = Shown();
    Enter(form, "Angle A, side a, side b", "30", "0", "10");
    form.Check3.Value(1);  // calculates at once
    EXPECT_EQ(form.Check3.Value(), 1);
    ASSERT_EQ(Messages().size(), 1U);
    form.Text1.Text("80");
    form.Text2.Text("6");
    form.Text3.Text("5");
    form.Command1.Value(true);
    EXPECT_EQ(form.Check3.Value(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{"Sorry, Brindlex Does Not Calculate Negative Values."});
    EXPECT_EQ(run.Beeps, 2);
}

TEST_F(Form2Test, ValuesOutOfRangeAreNeverAnUnhandledFault) {
    for (const std::string value : {"1E999", "1.7976931348623157E+308", "1E308", "5E-324", "-1E308", "1E-400", "\xB0",
                                    "'\xB0\"", "1\xB0'", "nonsense", "..", " ", "\r\n", "-0"}) {
        for (const Case& row : Cases()) {
            Form2& form = Shown();
            for (const bool textOn : {false, true}) {
                form.TextOn.Checked(textOn);
                Solve(form, std::string(row.Entry), value, value, value);
                Enter(form, std::string(row.Entry), "30", value, "40");
                form.Inches2Millimeters.FireClick();
                Enter(form, std::string(row.Entry), value, "50", value);
                form.Millimeters2Inches.FireClick();
                form.DIDMSO.FireClick();
                form.RNO.FireClick();
                form.TextOn.FireClick();
                form.Check3.Value(1 - form.Check3.Value());
                ASSERT_FALSE(program.Ended()) << row.Entry << " " << value;
                ASSERT_TRUE(form.Visible());
            }
        }
    }
}

TEST_F(Form2Test, AnAnswerWhoseAreaOverflowsIsAFault) {
    Form2& form = Shown();
    Solve(form, "Angle A, Angle B, side c", "60", "60", "1E200");
    EXPECT_EQ(Messages(), std::vector<std::string>{OverflowText});
    EXPECT_EQ(form.Text1.Text(), "");
    EXPECT_EQ(form.Label5.Caption(), "");
    EXPECT_EQ(Texts(form), Letters);
}

TEST_F(Form2Test, ALongAreaIsMovedLeft) {
    Form2& form = Shown();
    Solve(form, "Side a, side b, side c", "3", "4", "5");
    EXPECT_EQ(form.Label5.Caption(), "Area= 6.00000");
    EXPECT_EQ(form.Label5.Left(), 5160);
    Solve(form, "Side a, side b, side c", "30000000", "40000000", "50000000");
    EXPECT_EQ(form.Label5.Caption(), "Area= 600000000000000.00000");
    const double width = form.Label5.Width();
    EXPECT_EQ(width, std::ceil(TextWidth("Area= 600000000000000.00000", 8.25, false) / 15) * 15);
    ASSERT_GE(5160 + width, 6804);
    EXPECT_EQ(form.Label5.Left(), 5130 - (5160 + width - 6804));
}

TEST_F(Form2Test, TheAreaIsFormedFromDisplayedSidesAndAngle) {
    Form2& form = Shown();
    program.Shared().DigitsO = "1";
    // C = 98.2107... shows as 98.2; the area is 7 · 3 · 0.5 · sin 98.2.
    Solve(form, "Side a, side b, side c", "7", "3", "8");
    EXPECT_NEAR(std::stod(form.Label5.ToolTipText()), 10.5 * std::sin(98.2 * std::acos(-1.0) / 180), 1e-12);
    form.DIDMSO.Checked(true);
    form.Command1.Value(true);
    // In degrees, minutes and seconds the unrounded angle counts: half the product of the sides times sin C, 6 root 3.
    EXPECT_NEAR(std::stod(form.Label5.ToolTipText()), 6 * std::sqrt(3.0), 1e-11);
}

TEST_F(Form2Test, NothingIsClippedAndNothingOverlaps) {
    Form2& form = Shown();
    EXPECT_EQ(form.InnerWidth(), 7392);
    EXPECT_EQ(form.InnerHeight(), 5352);
    EXPECT_EQ(form.Picture1.PlaceInTwips(), (Place{240, 1920, 6852, 3132}));
    const auto overlap = [](const Place& a, const Place& b) {
        return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
               b.Top < a.Top + a.Height;
    };
    Solve(form, "Side a, side b, side c", "3", "4", "5");
    form.Label4.Caption("Millimeters");
    for (Control* const control : form.Controls()) {
        if (dynamic_cast<CommonDialog*>(control) != nullptr || control == &form.Picture2) {
            continue;
        }
        const Place place = control->PlaceInTwips();
        Control* const container = control->Container().ContainerControl();
        EXPECT_LE(place.Left + place.Width, container != nullptr ? container->Width() : 7392) << control->Name();
        EXPECT_LE(place.Top + place.Height, container != nullptr ? container->Height() : 5352) << control->Name();
        EXPECT_EQ(std::fmod(place.Left, 15), 0) << control->Name();
        for (Control* const other : control->Container().Children()) {
            if (other != control && other != &form.Picture2 && dynamic_cast<CommonDialog*>(other) == nullptr) {
                EXPECT_FALSE(overlap(place, other->PlaceInTwips())) << control->Name() << " " << other->Name();
            }
        }
    }
    constexpr double CheckMark = 285;
    constexpr double BoxMargins = 120;
    for (const CheckBox* const check : {&form.Check1, &form.Check2, &form.Check3}) {
        EXPECT_LE(TextWidth(check->Caption(), 8.25, false) + CheckMark, check->Width()) << check->Name();
    }
    EXPECT_LE(TextWidth("Angle C", 8.25, false), form.Label1.Width());
    EXPECT_LE(TextWidth("Millimeters", 8.25, false), form.Label4.Width());
    EXPECT_LE(TextWidth(" 80\xB0  15'  30.1234\"", 8.25, true) + BoxMargins, form.Text8.Width());
    EXPECT_LE(TextWidth(" 1234.5678", 8.25, true) + BoxMargins, form.Text9.Width());
}

TEST_F(Form2Test, TabGoesThroughTheEntriesToTheButton) {
    Form2& form = Shown();
    form.Combo1.Text("Angle A, Angle B, side a");
    std::vector<std::string> order;
    for (int i = 0; i < 8; ++i) {
        order.push_back(form.ActiveControl()->Name());
        form.TabByPerson();
    }
    EXPECT_EQ(order,
              (std::vector<std::string>{"Combo1", "Text1", "Text2", "Text3", "Check1", "Check2", "Command1", "Text8"}));
    EXPECT_EQ(form.DefaultButton(), &form.Command1);
}

}  // namespace
}  // namespace brindlex::oblique
