// The Bolt Circles form: loading, entries, refusals, angles only, editing, looks.
#include "boltcircle/form8.h"
#include "form8fixture.h"
#include "frame/fontwidths.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace brindlex::boltcircle {
namespace {

TEST_F(Form8Test, LoadsBare) {
    EXPECT_EQ(F().Caption(), Title);
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    EXPECT_TRUE(F().Command1.Default());
    EXPECT_EQ(F().ActiveControl(), &F().Text1);
    EXPECT_EQ(F().Picture1.DrawStyle(), 3);
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 1U);
    EXPECT_EQ(program->Shared().DigitsB, "4");
    EXPECT_EQ(program->Shared().MaskB, ".0000");
    EXPECT_EQ(folder.Get("boltcirc.ini"), "");
    EXPECT_EQ(F().Check1.ToolTipText(), "Toggles between Angles and Coordinates");
    EXPECT_EQ(F().InnerWidth(), 7416);
    EXPECT_EQ(F().InnerHeight(), 6096);
    EXPECT_FALSE(F().Picture2.Visible());
}

TEST_F(Form8Test, StoredRoundingIsComparedAsText) {
    const struct {
        const char* file;
        const char* digits;
        const char* mask;
    } rows[] = {{"Rounding=6\r\n", "4", ".0000"},
                {"Rounding=10\r\n", "10", ".0000000000"},
                {"Rounding=1\r\n", "1", ".0"},
                {"Rounding=16\r\n", "4", ".0000"},
                {"\r\nRounding=10\r\n", "4", ".0000"},
                {"anything12\r\n", "4", ".0000"},
                {"anything 12\r\n", "12", ".000000000000"},
                {"Round", "4", ".0000"}};
    for (const auto& row : rows) {
        folder.Put("boltcirc.ini", row.file);
        Begin();
        EXPECT_EQ(program->Shared().DigitsB, row.digits) << row.file;
        EXPECT_EQ(program->Shared().MaskB, row.mask) << row.file;
    }
}

TEST_F(Form8Test, CalculatesAndGoesBackToTheFirstEntry) {
    Solve({"0", "0", "10", "4", ""});
    EXPECT_EQ(F().Text5.Text(), "0");
    EXPECT_EQ(F().Text6.Text(), FourHoles);
    EXPECT_EQ(F().ActiveControl(), &F().Text1);
    EXPECT_EQ(F().Text1.SelText(), "0");
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 9U);
    EXPECT_TRUE(F().RoundNumbers.Enabled());
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Form8Test, EnterCalculates) {
    Enter({"0", "0", "10", "4", "0"});
    F().TypeByPerson(F().Text5, 13);
    EXPECT_EQ(F().Text6.Text(), FourHoles);
}

TEST_F(Form8Test, AnyChangeWipesTheResults) {
    for (TextBox* const box : {&F().Text1, &F().Text2, &F().Text3, &F().Text4, &F().Text5}) {
        Solve({"0", "0", "10", "4", "0"});
        F().Label6.Caption("Inches");
        box->Text("1");
        EXPECT_EQ(F().Text6.Text(), "");
        EXPECT_EQ(F().Label6.Caption(), "");
        EXPECT_EQ(F().Picture1.Drawn().Items().size(), 1U);
        EXPECT_EQ(F().Picture1.DrawStyle(), 0);
        EXPECT_EQ(box->ToolTipText(), "1");
    }
}

TEST_F(Form8Test, RoundNumbersFollowsTheFirstFourEntries) {
    Enter({"0", "0", "10"});
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    F().Text5.Text("30");
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    F().Text4.Text("4");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
    F().Text5.Text("");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
    F().Text2.Text("");
    EXPECT_FALSE(F().RoundNumbers.Enabled());
}

TEST_F(Form8Test, Refusals) {
    const struct {
        Texts entries;
        const char* message;
        TextBox* focus;
    } rows[] = {
        {{"", "0", "10", "4", "0"}, NotCompleted, &F().Text5}, {{"0", "", "10", "4", "0"}, NotCompleted, &F().Text5},
        {{"0", "0", "", "4", "0"}, NotCompleted, &F().Text5},  {{"0", "0", "10", "", "0"}, NotCompleted, &F().Text5},
        {{"0", "0", "0", "4", "0"}, ZeroDiameter, &F().Text3}, {{"0", "0", "10", "0", "0"}, ZeroHoles, &F().Text4}};
    for (const auto& row : rows) {
        F().Text5.SetFocus();
        Solve(row.entries);
        EXPECT_EQ(Boxes(), Texts{row.message});
        EXPECT_EQ(Entered(), row.entries);
        EXPECT_EQ(F().Text6.Text(), "");
        EXPECT_EQ(F().ActiveControl(), row.focus);
    }
    EXPECT_EQ(F().Text4.SelText(), "0");
}

TEST_F(Form8Test, TrapClearsTheForm) {
    for (const char* const holes : {"32768", "99999999999", "1E999"}) {
        Solve({"1", "2", "10", holes, "30"});
        EXPECT_EQ(Boxes(), Texts{Trap});
        EXPECT_EQ(Entered(), (Texts{"", "", "", "", ""}));
        EXPECT_EQ(F().ActiveControl(), &F().Text1);
        EXPECT_EQ(F().Picture1.Drawn().Items().size(), 1U);
    }
    // A mark of minutes that stands before the degree sign.
    Solve({"5'30" + Degree, "2", "10", "4", "30"});
    EXPECT_EQ(Boxes(), Texts{Trap});
}

TEST_F(Form8Test, TrapWithAnglesOnlyClearsTheCheckWhichFillsTheCentre) {
    Enter({"1", "2", "10", "4", "30"});
    F().Check1.Value(1);
    Solve({"1", "2", "10", "4", "40000"});
    EXPECT_EQ(Boxes(), Texts{Trap});
    EXPECT_EQ(Entered(), (Texts{"0", "0", "", "", ""}));
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());
}

TEST_F(Form8Test, DivisionByZeroSaysNothingAndLeavesTheReport) {
    Solve({"0", "0", "10", "4", "0"});
    Enter({"0", "0", "10", "0.0", "0"});
    F().Text6.Text("kept");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(), Texts{});
    EXPECT_EQ(F().Text6.Text(), "kept");
    EXPECT_EQ(F().Text4.Text(), "0.0");
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 1U);
}

TEST_F(Form8Test, MostHolesAreShownWithoutNumbers) {
    Solve({"0", "0", "10", "32767", "0"});
    EXPECT_EQ(Boxes(), Texts{});
    const std::string& report = F().Text6.Text();
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 32773);
    EXPECT_EQ(F().Picture1.Drawn().Items().size(), 32769U);
}

TEST_F(Form8Test, DegreeTextGivesWayToItsNumber) {
    Solve({"0", "0", "10", "2", "30" + Degree + "  30'"});
    EXPECT_EQ(F().Text5.Text(), " 30.5");
    EXPECT_NE(F().Text6.Text().find("Start Angle:  30.5" + Degree + "\r\n"), std::string::npos);
}

// Angles only.

TEST_F(Form8Test, AnglesOnlyFillsTheCentreAndCalculates) {
    Enter({"", "", "10", "4", "300"});
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Entered(), (Texts{"0", "0", "10", "4", "300"}));
    EXPECT_FALSE(F().Units.Enabled());
    EXPECT_EQ(F().Text6.Text(), "Holes:  4\r\nChordal Distance:  7.0711\r\nAngle Spacing:  90.0000" + Degree +
                                    "\r\nDiameter Of Circle: 10\r\nCenter at: X=  0 , Y=  0\r\nHole 1=  300" + Degree +
                                    "\r\nHole 2=  30" + Degree + "\r\nHole 3=  120" + Degree + "\r\nHole 4=  210" +
                                    Degree + "\r\n");
    F().PressByPerson(F().Check1);
    EXPECT_TRUE(F().Units.Enabled());
    EXPECT_NE(F().Text6.Text().find("Hole 1: X=  2.5 , Y= -4.3301"), std::string::npos);
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Form8Test, AnglesOnlyRefusesMissingEntries) {
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Boxes(), Texts{ZeroDiameter});
    EXPECT_EQ(F().ActiveControl(), &F().Text3);
    EXPECT_EQ(Entered(), (Texts{"0", "0", "", "", ""}));
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());

    Enter({"3", "4", "10"});
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Boxes(), Texts{ZeroHoles});
    EXPECT_EQ(F().ActiveControl(), &F().Text4);
    EXPECT_EQ(Entered(), (Texts{"0", "0", "10", "", ""}));
}

TEST_F(Form8Test, ZeroIsRefusedOnceMoreWhenTheCheckIsCleared) {
    Enter({"0", "0", "0", "4", "0"});
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Boxes(), (Texts{ZeroDiameter, ZeroDiameter}));
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());
    Enter({"0", "0", "10", "0", "0"});
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Boxes(), (Texts{ZeroHoles, ZeroHoles}));
    EXPECT_EQ(F().Text4.SelText(), "0");
}

TEST_F(Form8Test, UnitsComeBackWhenClearingTheCheckIsRefused) {
    Enter({"0", "0", "10", "4", "0"});
    F().Check1.Value(1);
    EXPECT_FALSE(F().Units.Enabled());
    F().Text3.Text("0");
    F().PressByPerson(F().Check1);
    EXPECT_EQ(Boxes(), Texts{ZeroDiameter});
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());
}

TEST_F(Form8Test, AnglesOnlyWithoutHolesSaysNothing) {
    Enter({"0", "0", "10", "4", "0"});
    F().Check1.Value(1);
    F().Text4.Text("");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(), Texts{});
    EXPECT_EQ(F().Text6.Text(), "");
    EXPECT_EQ(F().Check1.Value(), 1);
}

TEST_F(Form8Test, RefusalWithAnglesOnlyGoesBackToCoordinates) {
    Enter({"0", "0", "10", "4", "0"});
    F().Check1.Value(1);
    F().Text1.Text("");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(), Texts{NotCompleted});
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());
    EXPECT_EQ(F().Text6.Text(), FourHoles);
}

// Edit.

TEST_F(Form8Test, CopyAndPasteWorkOnTheBoxThatHadTheFocus) {
    Solve({"1", "2", "10", "4", "0"});
    F().Text3.SetFocus();
    F().Copy.FireClick();
    EXPECT_EQ(runtime->Clipboard, "10");
    F().Text5.SetFocus();
    F().Paste.FireClick();
    EXPECT_EQ(F().Text5.Text(), "10");

    F().Command1.Value(true);
    F().Text6.SetFocus();
    EXPECT_EQ(program->Shared().ActiveText, "Text6");
    F().Copy.FireClick();
    EXPECT_EQ(runtime->Clipboard, F().Text6.Text());
    F().Text6.SelStart(0);
    F().Text6.SelLength(5);
    F().Copy.FireClick();
    EXPECT_EQ(runtime->Clipboard, "Holes");
    F().Paste.FireClick();
    EXPECT_EQ(F().Text6.Text(), "Holes");
}

TEST_F(Form8Test, PasteFollowsTheClipboardAndTheFocus) {
    F().Edit.FireClick();
    EXPECT_FALSE(F().Paste.Enabled());
    F().Text6.SetFocus();
    EXPECT_TRUE(F().Paste.Enabled());
    F().Edit.FireClick();
    EXPECT_FALSE(F().Paste.Enabled());
    runtime->Clipboard = "5";
    F().Edit.FireClick();
    EXPECT_TRUE(F().Paste.Enabled());
}

TEST_F(Form8Test, RoundNumbersAsksAndCalculates) {
    Solve({"0", "0", "10", "3", "0"});
    EXPECT_NE(F().Text6.Text().find("Hole 2: X= -2.5 , Y=  4.3301\r\n"), std::string::npos);
    run.ModalLoop = [](Form& dialog) {
        auto& round = dynamic_cast<RoundNumbersDialog&>(dialog);
        round.Combo1.Text("2");
        round.Command1.Value(true);
    };
    F().RoundNumbers.FireClick();
    EXPECT_EQ(program->Shared().MaskB, ".00");
    EXPECT_NE(F().Text6.Text().find("Hole 2: X= -2.5 , Y=  4.33\r\n"), std::string::npos);
    run.ModalLoop = [](Form& dialog) {
        auto& round = dynamic_cast<RoundNumbersDialog&>(dialog);
        EXPECT_EQ(round.Combo1.Text(), "2");
        round.Combo1.Text("12345678");
        round.Command1.Value(true);
    };
    F().RoundNumbers.FireClick();
    EXPECT_EQ(program->Shared().MaskB, ".00");
}

TEST_F(Form8Test, MinutesAndSecondsGoIntoTheStartAngle) {
    Enter({"0", "0", "10", "4", "30.7"});
    run.ModalLoop = [](Form& dialog) {
        auto& minutes = dynamic_cast<MinutesSecondsDialog&>(dialog);
        EXPECT_EQ(minutes.Name(), "Form15");
        EXPECT_EQ(minutes.Label1.Caption(), "Degrees");
        minutes.Text2.Text("15");
        minutes.Command1.Value(true);
    };
    F().PressByPerson(F().Check2);
    EXPECT_EQ(F().Text5.Text(), "30.25");
    EXPECT_EQ(F().Check2.Value(), 0);
}

// Looks.

TEST_F(Form8Test, CaptionsFitTheirControls) {
    for (const Control* const control : F().Controls()) {
        if (const auto* const label = dynamic_cast<const Label*>(control)) {
            EXPECT_LE(TextWidth(label->Caption(), label->FontSize(), false), label->Width()) << label->Name();
            EXPECT_GE(label->Height(), TextHeight(label->FontSize())) << label->Name();
        } else if (const auto* const check = dynamic_cast<const CheckBox*>(control)) {
            EXPECT_LE(TextWidth(check->Caption(), check->FontSize(), false) + 300, check->Width()) << check->Name();
        }
    }
    EXPECT_LE(TextWidth("Millimeters", F().Label6.FontSize(), false), F().Label6.Width());
}

TEST_F(Form8Test, ControlsStandApartInsideTheForm) {
    std::vector<const Control*> seen;
    for (const Control* const control : F().Controls()) {
        if (!control->Visible() || control->Width() == 0 || &control->Container() != &F()) {
            continue;
        }
        EXPECT_GE(control->Left(), 240) << control->Name();
        EXPECT_LE(control->Left() + control->Width(), 7416 - 240) << control->Name();
        EXPECT_LE(control->Top() + control->Height(), 6096 - 240) << control->Name();
        for (const Control* const other : seen) {
            const bool apart = control->Left() >= other->Left() + other->Width() ||
                               other->Left() >= control->Left() + control->Width() ||
                               control->Top() >= other->Top() + other->Height() ||
                               other->Top() >= control->Top() + control->Height();
            EXPECT_TRUE(apart) << control->Name() << " on " << other->Name();
        }
        seen.push_back(control);
    }
    EXPECT_EQ(seen.size(), 15U);
}

}  // namespace
}  // namespace brindlex::boltcircle
