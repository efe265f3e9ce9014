// Sine Plates: entries, types, units, results, documents, and what happens with what no person can type.
#include "sineplate/form12.h"
#include "form12fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex::sineplate {
namespace {

TEST_F(SinePlates, FirstLoad) {
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sine Plates");
    EXPECT_EQ(F().Combo1.Text(), "5\"");
    EXPECT_EQ(F().Combo1.ListCount(), 20);
    EXPECT_EQ(F().Combo1.List(0), " 1\" ");
    EXPECT_EQ(F().Combo1.List(19), " 20\" ");
    EXPECT_TRUE(F().Option1.Value());
    EXPECT_FALSE(F().Option2.Value());
    EXPECT_EQ(F().Label1.Caption(), "Required Angle:");
    EXPECT_EQ(F().Label3.Caption(), "            Buildup=");
    for (const Control* const control : std::vector<Control*>{&F().Label2, &F().Text2, &F().Check2}) {
        EXPECT_FALSE(control->Visible()) << control->Name();
    }
    ExpectNoResults();
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_TRUE(F().Millimeters.Enabled());
    EXPECT_TRUE(F().Command1.Default());
    EXPECT_EQ(program.Shared().DigitsS, 4);
}

TEST_F(SinePlates, FiveInchBarAtThirtyDegrees) {
    Regular("30");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    EXPECT_TRUE(F().Text3.Visible());
    EXPECT_TRUE(F().Label3.Visible());
    EXPECT_FALSE(F().Text4.Visible());
    EXPECT_EQ(F().Label7.Caption(), "Inches");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sines");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
    EXPECT_EQ(Focus(), "Text1");
    EXPECT_EQ(F().Text1.SelLength(), 2);
    EXPECT_EQ(Boxes(0), Texts{});
}

TEST_F(SinePlates, SpacingIsTheLeadingNumberOfItsText) {
    F().Combo1.Text(" 10\" ");
    Regular("30");
    EXPECT_EQ(F().Text3.Text(), "5.0000");
    F().Combo1.Text("2.5");
    F().Command1.Value(true);
    EXPECT_EQ(F().Text3.Text(), "1.2500");
    F().Combo1.Text("five");
    F().Command1.Value(true);
    EXPECT_EQ(F().Text3.Text(), ".0000");
}

TEST_F(SinePlates, CompoundPlate) {
    F().Combo1.Text(" 10\" ");
    Compound("45", "60");
    EXPECT_EQ(F().Label1.Caption(), "Bottom Angle:");
    EXPECT_EQ(F().Label3.Caption(), "Bottom Buildup=");
    EXPECT_EQ(F().Text3.Text(), "4.4721");
    EXPECT_EQ(F().Text4.Text(), "8.6603");
    EXPECT_TRUE(F().Label5.Visible());
    EXPECT_TRUE(F().Text4.Visible());
}

TEST_F(SinePlates, SwitchingTheTypeClearsAllBoxes) {
    Regular("30");
    F().Option2.Value(true);
    ExpectNoResults();
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_TRUE(F().Text2.Visible());
    EXPECT_TRUE(F().Check2.Visible());
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    Compound("45", "60");
    F().Option1.Value(true);
    ExpectNoResults();
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_EQ(F().Text2.Text(), "");
    EXPECT_FALSE(F().Text2.Visible());
    EXPECT_EQ(F().Label1.Caption(), "Required Angle:");
    EXPECT_EQ(F().Label3.Caption(), "            Buildup=");
}

TEST_F(SinePlates, RoundNumbersFollowsTheAnglesThatShow) {
    F().Text1.Text("30");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
    F().Text1.Text("");
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    F().Option2.Value(true);
    F().Text1.Text("30");
    EXPECT_FALSE(F().RoundNumbers.Enabled());
    F().Text2.Text("20");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
}

TEST_F(SinePlates, UnitsChangeTheResultsAlone) {
    Regular("30");
    F().Inches2Millimeters.FireClick();
    EXPECT_EQ(F().Text3.Text(), "63.5000");
    EXPECT_EQ(F().Label7.Caption(), "Millimeters");
    EXPECT_EQ(F().Text1.Text(), "30");
    EXPECT_EQ(F().Combo1.Text(), "5\"");
    EXPECT_FALSE(F().Inches.Enabled());
    EXPECT_TRUE(F().Millimeters.Enabled());
    F().Millimeters2Inches.FireClick();
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    EXPECT_EQ(F().Label7.Caption(), "Inches");
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_FALSE(F().Millimeters.Enabled());
}

TEST_F(SinePlates, AnyChangeOfAnAngleReturnsToInches) {
    Compound("45", "60");
    F().Inches2Millimeters.FireClick();
    F().Text2.Text("61");
    ExpectNoResults();
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_FALSE(F().Millimeters.Enabled());
    F().Inches2Millimeters.FireClick();
    F().Text1.Text("46");
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_FALSE(F().Millimeters.Enabled());
}

TEST_F(SinePlates, NothingIsCalculatedInNeitherUnit) {
    F().Text1.Text("30");
    F().Millimeters.Enabled(true);
    F().Command1.Value(true);
    EXPECT_EQ(F().Text3.Text(), "");
    EXPECT_FALSE(F().Text3.Visible());
    EXPECT_EQ(Boxes(0), Texts{});
}

TEST_F(SinePlates, MissingEntriesAreAskedFor) {
    F().Combo1.SetFocus();
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(0), Texts{Incomplete});
    EXPECT_EQ(Focus(), "Text1");
    F().Option2.Value(true);
    F().Text1.Text("30");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(0), Texts{Incomplete});
    EXPECT_EQ(Focus(), "Text2");
    F().Text2.Text("20");
    F().Combo1.Text("");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(0), Texts{Incomplete});
    EXPECT_EQ(Focus(), "Combo1");
    EXPECT_EQ(F().Text1.Text(), "30");
    EXPECT_EQ(F().Text2.Text(), "20");
}

TEST_F(SinePlates, HiddenZeroIsRefusedToo) {
    F().Text1.SetFocus();
    F().Text2.Text("0");
    Regular("30");
    EXPECT_EQ(Boxes(0), Texts{Incomplete});
    EXPECT_EQ(Focus(), "Text1");
    EXPECT_EQ(F().Text3.Text(), "");
}

TEST_F(SinePlates, TooLargeAnglesAreCleared) {
    Compound("91", "60");
    EXPECT_EQ(Boxes(0), Texts{TooLarge});
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_EQ(F().Text2.Text(), "60");
    EXPECT_EQ(Focus(), "Text1");
    F().Text1.Text("90");
    F().Text2.Text("90.5");
    F().Command1.Value(true);
    EXPECT_EQ(Boxes(0), Texts{TooLarge});
    EXPECT_EQ(F().Text1.Text(), "90");
    EXPECT_EQ(F().Text2.Text(), "");
    EXPECT_EQ(Focus(), "Text2");
}

TEST_F(SinePlates, DegreeTextIsReadBack) {
    // 30 degrees 30 minutes is 30.5 degrees; the sine of it is .507538362960704.
    Regular(" 30\xB0  30'  0\"");
    EXPECT_EQ(F().Text1.Text(), " 30.5");
    EXPECT_EQ(F().Text3.Text(), "2.5377");
    EXPECT_TRUE(F().RoundNumbers.Enabled());
}

TEST_F(SinePlates, DegreeTextReturnsAConversionToInches) {
    F().Text1.Text(" 30\xB0  0'  0\"");
    F().Inches2Millimeters.FireClick();
    EXPECT_EQ(F().Text1.Text(), " 30");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    EXPECT_EQ(F().Label7.Caption(), "Inches");
}

TEST_F(SinePlates, RoundNumbersKeepsTrailingZeros) {
    Regular("30");
    run.ModalLoop = [](Form& dialog) {
        auto& rounding = dynamic_cast<RoundNumbersDialog&>(dialog);
        EXPECT_EQ(rounding.Combo1.Text(), "4");
        rounding.Combo1.Text("15");
        rounding.Command1.Value(true);
    };
    F().RoundNumbers.FireClick();
    EXPECT_EQ(program.Shared().DigitsS, 15);
    EXPECT_EQ(F().Text3.Text(), "2.500000000000000");
}

TEST_F(SinePlates, MinutesAndSecondsServeTheCheckedAngle) {
    F().Option2.Value(true);
    F().Text1.Text("10");
    F().Text2.Text("30.75");
    run.ModalLoop = [this](Form& dialog) {
        EXPECT_EQ(dialog.Name(), "Form13");
        auto& minutes = dynamic_cast<MinutesSecondsDialog&>(dialog);
        EXPECT_EQ(minutes.Label1.Caption(), "Top Angle:");
        EXPECT_EQ(F().Text2.Text(), "30");
        minutes.Text2.Text("30");
        minutes.Command1.Value(true);
    };
    F().Check2.Value(1);
    EXPECT_EQ(F().Text2.Text(), "30.5");
    EXPECT_EQ(F().Text1.Text(), "10");
    EXPECT_EQ(F().Check2.Value(), 0);
}

TEST_F(SinePlates, RightButtonPopsUpTheUnits) {
    F().MouseUpByPerson({LeftButton, 0, 10, 10});
    EXPECT_EQ(run.Popup, "");
    F().MouseUpByPerson({RightButton, 0, 10, 10});
    EXPECT_EQ(run.Popup, "Units");
}

TEST_F(SinePlates, CopyAndPasteGoByTheActiveBox) {
    Compound("45", "60");
    F().Text4.SetFocus();
    F().Copy.FireClick();
    EXPECT_EQ(runtime.Clipboard, "4.3301");
    F().Text2.SetFocus();
    EXPECT_EQ(F().Text2.SelLength(), 2);
    runtime.Clipboard = "25";
    F().Edit.FireClick();
    EXPECT_TRUE(F().Paste.Enabled());
    F().Paste.FireClick();
    EXPECT_EQ(F().Text2.Text(), "25");
    F().Command1.Value(true);
    F().Text3.SetFocus();
    F().Paste.FireClick();
    EXPECT_EQ(F().Text3.Text(), "25");
    runtime.Clipboard.reset();
    F().Edit.FireClick();
    EXPECT_FALSE(F().Paste.Enabled());
}

// Values out of range.

TEST_F(SinePlates, SpacingBeyondADoubleIsToldAndTheEntriesStay) {
    for (const std::string& spacing : {std::string("1E400"), std::string(400, '9')}) {
        F().Combo1.Text(spacing);
        Regular("30");
        EXPECT_EQ(Boxes(1), Texts{NotValid});
        EXPECT_EQ(F().Text1.Text(), "30");
        EXPECT_EQ(F().Combo1.Text(), spacing);
        EXPECT_EQ(Focus(), "Text1");
    }
}

TEST_F(SinePlates, ConversionBeyondADoubleLeavesNoStaleResult) {
    F().Combo1.Text("1E308");
    Regular("90");
    EXPECT_EQ(F().Text3.Text(), "1" + std::string(308, '0') + ".0000");
    F().Inches2Millimeters.FireClick();
    EXPECT_EQ(Boxes(1), Texts{NotValid});
    ExpectNoResults();
    EXPECT_EQ(F().Text1.Text(), "90");
    F().Millimeters2Inches.FireClick();
    EXPECT_EQ(F().Label7.Caption(), "Inches");
}

TEST_F(SinePlates, AnglesBeyondADouble) {
    Regular(std::string(400, '9'));
    EXPECT_EQ(Boxes(0), Texts{TooLarge});
    Regular("-1E400");
    EXPECT_EQ(Boxes(1), Texts{NotValid});
    EXPECT_EQ(F().Text1.Text(), "-1E400");
    Regular("words");
    EXPECT_EQ(F().Text3.Text(), ".0000");
    Regular("-30");
    EXPECT_EQ(F().Text3.Text(), "-2.5000");
}

TEST_F(SinePlates, SpoiltDegreeTextIsToldAndStays) {
    const std::string spoilt = "'30\xB0";
    Regular(spoilt);
    EXPECT_EQ(Boxes(1), Texts{NotValid});
    EXPECT_EQ(F().Text1.Text(), spoilt);
    EXPECT_FALSE(program.Ended());
}

TEST_F(SinePlates, LeavingAndClosing) {
    Regular("30");
    F().Exit.FireClick();
    EXPECT_FALSE(F().Visible());
    EXPECT_TRUE(program.Get("Form11").Visible());
    program.Get("Form11").GoTo("Form12");
    EXPECT_EQ(F().Text3.Text(), "2.5000");
    F().CloseByPerson();
    EXPECT_TRUE(program.Get("Form11").Visible());
    EXPECT_FALSE(F().Loaded());
    program.Get("Form11").GoTo("Form12");
    EXPECT_EQ(F().Text1.Text(), "");
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- Solutions To Sine Plates");
    EXPECT_EQ(folder.Names(), Texts{});
}

}  // namespace
}  // namespace brindlex::sineplate
