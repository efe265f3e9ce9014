// The Right Triangles form: settings, entries, the calculation and what stands on the picture afterwards, and what
// happens with values that no formula can take.
#include "righttri/form1.h"
#include "drawingtext.h"
#include "fakeruntime.h"
#include "frame/form11.h"
#include "frame/form7.h"
#include "frame/program.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex::righttri {
namespace {

using Lines = std::vector<std::string>;

class RightTriangles : public ::testing::Test {
protected:
    RightTriangles() {
        program.Register("Form1", [](Program& owner) { return std::make_unique<Form1>(owner); });
        program.Register("Form3", [](Program& owner) { return MakeMinutesSecondsDialog(owner, "Form3"); });
        program.Register("Form5", [](Program& owner) { return MakeRoundNumbersDialog(owner, "Form5"); });
        program.Register("Form7", [](Program& owner) { return std::make_unique<Form7>(owner); });
        program.Register("Form11", [](Program& owner) { return std::make_unique<Form11>(owner); });
        program.Start();
    }

    /// The form, shown for the first time by this, with the settings file as it stands then.
    Form1& Right() {
        auto& form = dynamic_cast<Form1&>(program.Get("Form1"));
        form.Show();
        return form;
    }
    void Settings(const std::string& dms, const std::string& shape, const std::string& text,
                  const std::string& rounding = "4") {
        folder.Put("brindr.ini",
                   "DMS=" + dms + "\r\nShape=" + shape + "\r\nText=" + text + "\r\nRounding=" + rounding + "\r\n");
    }
    static void Enter(Form1& form, const std::string& text1, const std::string& text2) {
        form.Text1.Text(text1);
        form.Text2.Text(text2);
    }
    static void Solve(Form1& form, const std::string& text1, const std::string& text2) {
        Enter(form, text1, text2);
        form.Command1.Value(true);
    }
    static void Choose(Form1& form, const std::string& name) { form.Combo1.Text(name); }
    static Lines Results(const Form1& form) {
        return {form.Text3.Text(), form.Text4.Text(), form.Text5.Text(),
                form.Text6.Text(), form.Text7.Text(), form.Text8.Text()};
    }
    SharedState& Shared() { return program.Shared(); }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime{run};
    Program program{runtime, folder.Files()};
};

const Lines NoResults{"", "", "", "", "", ""};
const Lines SketchWithInnerLetters{
    "line 1600 2750 1600 600 blue", "line 1600 600 3750 2750 blue", "line 3750 2750 1600 2750 blue",
    "text A 1625 2575 red bold",    "text B 1610 700 black",        "text C 3500 2575 black",
    "text a 2650 1475 red bold",    "text b 2600 2575 red bold",    "text c 1625 1575 black",
};

TEST_F(RightTriangles, FirstLoadWithoutSettings) {
    const Form1& form = Right();
    EXPECT_EQ(form.Caption(), "Brindlex 3.0.2- Solutions To Right Triangles");
    EXPECT_FALSE(form.DIDMS.Checked());
    EXPECT_TRUE(form.ShapeR.Checked());
    EXPECT_TRUE(form.TextOn.Checked());
    EXPECT_EQ(Shared().DigitsR, "4");
    EXPECT_EQ(form.Combo1.Text(), "Side a and side b");
    EXPECT_EQ(form.Combo1.ListCount(), 9);
    EXPECT_FALSE(form.Check1.Enabled());
    EXPECT_TRUE(form.Text3.Visible());
    EXPECT_TRUE(form.Command1.Default());
    EXPECT_EQ(DrawingText(form.Picture1), SketchWithInnerLetters);
    EXPECT_TRUE(program.Get("Form5").Loaded());
    EXPECT_EQ(folder.Get("brindr.ini"), "");
    // 1024 by 768 pixels are 15360 by 11520 twips.
    EXPECT_EQ(form.Left(), (15360 - form.Width()) / 2);
    EXPECT_EQ(form.Top(), (11520 - form.Height()) / 2);
}

TEST_F(RightTriangles, DesignStandsOnOneGridWithinTheForm) {
    const Form1& form = Right();
    EXPECT_EQ(form.InnerWidth(), 7296);
    EXPECT_EQ(form.InnerHeight(), 5436);
    for (const Control* const control : form.Controls()) {
        const auto* const label = dynamic_cast<const Label*>(control);
        if (dynamic_cast<const CommonDialog*>(control) != nullptr || (label != nullptr && label->AutoSize())) {
            continue;
        }
        const Control* const outer = control->Container().ContainerControl();
        const double width = outer != nullptr ? outer->Width() : form.InnerWidth();
        const double height = outer != nullptr ? outer->Height() : form.InnerHeight();
        EXPECT_GE(control->Left(), 0) << control->Name();
        EXPECT_LE(control->Left() + control->Width(), width) << control->Name();
        EXPECT_LE(control->Top() + control->Height(), height) << control->Name();
    }
}

TEST_F(RightTriangles, SettingsAreReadByLengthAlone) {
    folder.Put("brindr.ini", "abc:-1\r\nxxxxxx0\r\nText=0\r\nrounding:12\r\n");
    const Form1& form = Right();
    EXPECT_TRUE(form.DIDMS.Checked());
    EXPECT_FALSE(form.ShapeR.Checked());
    EXPECT_FALSE(form.TextOn.Checked());
    EXPECT_EQ(Shared().DigitsR, "12");
    EXPECT_FALSE(form.Text3.Visible());
}

TEST_F(RightTriangles, SettingsThatCanNotBeUsedTakeTheDefaults) {
    for (const char* const content : {"DMS=1\r\nShape=yes\r\nText=\r\nRounding=6\r\n", "\r\nDMS=-1\r\n", "x",
                                      "\x00\x01", "DMS=2\r\n\r\nText=0\r\nRounding=15\r\n"}) {
        folder.Put("brindr.ini", content);
        Form1& form = Right();
        EXPECT_FALSE(form.DIDMS.Checked()) << content;
        EXPECT_TRUE(form.ShapeR.Checked()) << content;
        EXPECT_TRUE(form.TextOn.Checked()) << content;
        EXPECT_EQ(Shared().DigitsR, "4") << content;
        form.Unload();
    }
}

TEST_F(RightTriangles, SettingsAreWrittenWhenTheFormIsLeft) {
    Settings("-1", "-1", "0", "10");
    Form1& form = Right();
    form.ShapeR.FireClick();
    form.Menu.FireClick();
    EXPECT_EQ(folder.Get("brindr.ini"), "DMS=-1\r\nShape=0\r\nText=0\r\nRounding=10\r\n");
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(form.Loaded());
    EXPECT_TRUE(program.Get("Form11").Visible());
}

TEST_F(RightTriangles, TheWaysToGeometryAndToSpeedsWriteNoSettings) {
    folder.Put("brindr.ini", "as it was");
    for (const char* const name : {"Form17", "Form19"}) {
        program.Register(name, [name](Program& owner) { return std::make_unique<Form>(owner, name, 7000, 5000); });
    }
    Form1& form = Right();
    for (MenuItem* const item : {&form.Geometry, &form.SpdFd}) {
        form.Show();
        item->FireClick();
        EXPECT_FALSE(form.Visible());
        EXPECT_EQ(folder.Get("brindr.ini"), "as it was");
    }
    EXPECT_TRUE(program.Get("Form17").Visible());
    EXPECT_TRUE(program.Get("Form19").Visible());
}

TEST_F(RightTriangles, WaysToFormsThatDoNotExistAreDisabled) {
    const Form1& form = Right();
    EXPECT_FALSE(form.Geometry.Enabled());
    EXPECT_TRUE(form.Menu.Enabled());
}

TEST_F(RightTriangles, CloseBoxUnloadsAndTheNextShowStartsAfresh) {
    Form1& form = Right();
    Solve(form, "5", "3");
    form.CloseByPerson();
    EXPECT_FALSE(form.Loaded());
    EXPECT_TRUE(program.Get("Form11").Visible());
    EXPECT_EQ(folder.Get("brindr.ini"), "DMS=0\r\nShape=-1\r\nText=-1\r\nRounding=4\r\n");
    form.Show();
    EXPECT_EQ(form.Text1.Text(), "");
    EXPECT_EQ(Results(form), NoResults);
    EXPECT_EQ(DrawingText(form.Picture1), SketchWithInnerLetters);
}

TEST_F(RightTriangles, SolvedWithTextOnAndShape) {
    Form1& form = Right();
    Solve(form, "5", "4");
    EXPECT_EQ(Results(form), (Lines{"90\xB0", " 53.1301\xB0", " 36.8699\xB0", " 5", " 4", " 3"}));
    EXPECT_TRUE(form.Text3.FontBold());
    EXPECT_FALSE(form.Text4.FontBold());
    EXPECT_TRUE(form.Text6.FontBold());
    EXPECT_EQ(form.Text6.ForeColor(), Red);
    EXPECT_EQ(form.Text8.ForeColor(), Black);
    // y = 2750 - 3 / 4 * 2150
    EXPECT_EQ(DrawingText(form.Picture1),
              (Lines{"line 1600 2750 1600 600 blue", "line 1600 600 3750 2750 blue", "text A 1625 2575 red bold",
                     "text B 1610 700 black", "text C 3500 2575 black", "text a 2650 1475 red bold",
                     "text b 2600 2575 red bold", "text c 1625 1575 black", "line 1600 1137.5 1600 600 grey",
                     "line 1600 600 3750 2750 grey", "line 1600 2750 1600 1137.5 blue",
                     "line 1600 1137.5 3750 2750 blue", "line 3750 2750 1600 2750 blue"}));
    EXPECT_EQ(form.Label2.Caption(), "Area= 6.00000");
    EXPECT_EQ(form.Label2.ToolTipText(), " 6");
    EXPECT_EQ(form.Label2.Left(), 4800);
    EXPECT_EQ(form.ActiveControl(), &form.Text1);
    EXPECT_EQ(form.Text1.SelLength(), 1);
    EXPECT_TRUE(run.Boxes.empty());
    EXPECT_EQ(run.Beeps, 0);
}

TEST_F(RightTriangles, SolvedWithTextOffAndTheSketch) {
    Settings("0", "0", "0");
    Form1& form = Right();
    Solve(form, "5", "4");
    EXPECT_EQ(DrawingText(form.Picture1),
              (Lines{"text A= 90\xB0 1500 2750 red bold", "text B= 53.1301\xB0 1500 400 black",
                     "text C= 36.8699\xB0 3750 2750 black", "text a= 5 2850 1475 red bold",
                     "text b= 4 2675 2950 red bold", "text c= 3 500 1575 black", "line 1600 2750 1600 600 blue",
                     "line 1600 600 3750 2750 blue", "line 3750 2750 1600 2750 blue"}));
    EXPECT_FALSE(form.Picture1.FontBold());
    EXPECT_EQ(Results(form), NoResults);
}

TEST_F(RightTriangles, SharedVariablesHoldRoundedAndUnroundedValues) {
    Form1& form = Right();
    Solve(form, "2", "1");
    EXPECT_EQ(Shared().SideC, 1.7321);
    EXPECT_NEAR(Shared().KeepC, 1.7320508075688772, 1e-15);
    EXPECT_EQ(Shared().AngleB, 30);
    EXPECT_EQ(Shared().AngleC, 60);
    EXPECT_NE(Shared().KeepAngleB, 30);  // the literal degrees per radian
    EXPECT_EQ(Shared().NumIn, "");
    EXPECT_EQ(Shared().NumOut, "60.");
    EXPECT_NEAR(Shared().Pi, 3.141592653589793, 1e-15);
    EXPECT_EQ(form.Label2.Caption(), "Area= .86605");  // 1 * 1.7321 / 2 from the rounded legs
    EXPECT_EQ(form.Label2.ToolTipText(), " .86605");
}

TEST_F(RightTriangles, DegreesMinutesSecondsLeaveTheAnglesUnrounded) {
    Settings("-1", "-1", "-1");
    Form1& form = Right();
    Choose(form, "Angle B and side a");
    Solve(form, "10", "30.25");
    // 30 15' and 59 45'
    EXPECT_EQ(Results(form), (Lines{"90", " 30\xB0  15'  0\"", " 59\xB0  45'  0\"", " 10", " 5.0377", " 8.6384"}));
    EXPECT_EQ(Shared().AngleB, 30.25);
    EXPECT_EQ(Shared().DmsTextB, " 30\xB0  15'  0\"");
    EXPECT_EQ(Shared().Sec1, 0);
}

TEST_F(RightTriangles, SecondsAndMinutesCarry) {
    Settings("-1", "-1", "-1");
    Form1& form = Right();
    Choose(form, "Angle B and side a");
    Solve(form, "1", "29.999999999");
    EXPECT_EQ(form.Text4.Text(), " 30\xB0  0'  0\"");
    EXPECT_EQ(form.Text5.Text(), " 60\xB0  0'  0\"");
}

TEST_F(RightTriangles, MissingEntriesAreAskedFor) {
    Settings("0", "-1", "0");
    Form1& form = Right();
    form.Command1.Value(true);
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "What is Length of side a");
    EXPECT_EQ(run.Boxes[0].Style, 32);
    EXPECT_EQ(run.Beeps, 1);
    EXPECT_EQ(form.ActiveControl(), &form.Text1);
    Solve(form, "5", "");
    ASSERT_EQ(run.Boxes.size(), 2U);
    EXPECT_EQ(run.Boxes[1].Text, "What is Length of side b");
    EXPECT_EQ(form.ActiveControl(), &form.Text2);
    EXPECT_EQ(form.Text1.Text(), "5");
    EXPECT_EQ(DrawingText(form.Picture1).size(), 9U);
}

TEST_F(RightTriangles, InvalidValuesAreRefusedAndTheLegsSetToZero) {
    Form1& form = Right();
    Solve(form, "5", "4");
    Solve(form, "3", "3");
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "These Values Are Not Valid For Calculating\rSolutions To A Right Triangle.");
    EXPECT_EQ(run.Boxes[0].Style, 48);
    EXPECT_EQ(run.Beeps, 1);
    EXPECT_EQ(form.Text1.Text(), "");
    EXPECT_EQ(form.Text2.Text(), "");
    EXPECT_EQ(Shared().SideA, 5);
    EXPECT_EQ(Shared().SideB, 0);
    EXPECT_EQ(Shared().SideC, 0);
    EXPECT_EQ(Shared().KeepB, 4);
    EXPECT_EQ(DrawingText(form.Picture1), SketchWithInnerLetters);
    EXPECT_EQ(form.ActiveControl(), &form.Text1);
}

TEST_F(RightTriangles, DisplayShapeAfterARefusalShowsTheBareSketch) {
    Settings("0", "0", "-1");
    Form1& form = Right();
    Solve(form, "5", "4");
    Solve(form, "3", "3");
    form.ShapeR.FireClick();
    EXPECT_TRUE(form.ShapeR.Checked());
    const Lines drawn = DrawingText(form.Picture1);
    EXPECT_EQ(Lines(drawn.end() - 3, drawn.end()),
              (Lines{"line 1600 2750 1600 600 blue", "line 1600 600 3750 2750 blue", "line 3750 2750 1600 2750 blue"}));
    EXPECT_FALSE(program.Ended());
}

TEST_F(RightTriangles, AFaultOfTheArithmeticEndsSilentlyAndKeepsTheEntries) {
    Form1& form = Right();
    struct Row {
        const char* name;
        const char* text1;
        const char* text2;
    };
    for (const Row& row : std::vector<Row>{{"Side a and side b", "3", "-5"},
                                           {"Side a and side b", "1e999", "3"},
                                           {"Side b and side c", "1e300", "1e300"},
                                           {"Angle B and side b", "1e308", "1e-5"},
                                           {"Angle C and side a", "1", "5'\xB0"}}) {
        Choose(form, row.name);
        Solve(form, row.text1, row.text2);
        EXPECT_EQ(form.Text1.Text(), row.text1);
        EXPECT_EQ(form.Text2.Text(), row.text2);
        EXPECT_EQ(DrawingText(form.Picture1), Lines{});
        EXPECT_EQ(form.Label2.Caption(), "");
    }
    EXPECT_TRUE(run.Boxes.empty());
    EXPECT_EQ(run.Beeps, 0);
    EXPECT_FALSE(program.Ended());
}

TEST_F(RightTriangles, AnAreaOutOfRangeLeavesTheTriangleWithoutIt) {
    Form1& form = Right();
    Choose(form, "Angle B and side a");
    Solve(form, "1e200", "45");
    EXPECT_EQ(form.Text6.Text(), " 1E+200");
    EXPECT_EQ(form.Label2.Caption(), "");
    EXPECT_TRUE(run.Boxes.empty());
}

TEST_F(RightTriangles, AWideAreaEndsOnThePicture) {
    Form1& form = Right();
    Choose(form, "Side b and side c");
    Solve(form, "1e20", "1e20");
    EXPECT_EQ(form.Label2.Caption(), "Area= 5" + std::string(39, '0') + ".00000");
    EXPECT_EQ(form.Label2.Left() + form.Label2.Width(), 4770 + 6564 - 4800);
    EXPECT_LT(form.Label2.Left(), 4800);
}

TEST_F(RightTriangles, ARedisplayThatFaultsLeavesTheDisplayAsItWas) {
    Form1& form = Right();
    Choose(form, "Angle B and side a");
    // Degrees of this size have no place in a 16-bit integer.
    Solve(form, "10", "-40000");
    const Lines before = DrawingText(form.Picture1);
    const Lines texts = Results(form);
    EXPECT_EQ(texts[1], "-40000\xB0");
    form.DIDMS.FireClick();
    EXPECT_TRUE(form.DIDMS.Checked());
    EXPECT_EQ(DrawingText(form.Picture1), before);
    EXPECT_EQ(Results(form), texts);
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(run.Boxes.empty());
}

TEST_F(RightTriangles, ValuesTooLargeToConvertAreRefusedAndKept) {
    Form1& form = Right();
    for (const auto& [text1, text2] : {std::pair{"1e308", "5"}, std::pair{"5", "1e308"}, std::pair{"1e999", "1"}}) {
        run.Boxes.clear();
        Enter(form, text1, text2);
        form.Inches2Millimeters.FireClick();
        ASSERT_EQ(run.Boxes.size(), 1U);
        EXPECT_EQ(run.Boxes[0].Text, "These Values Are Too Large To Convert!");
        EXPECT_EQ(form.Text1.Text(), text1);
        EXPECT_EQ(form.Text2.Text(), text2);
        EXPECT_TRUE(form.Inches.Enabled());
        EXPECT_EQ(form.Label1.Caption(), "");
    }
    EXPECT_FALSE(program.Ended());
}

TEST_F(RightTriangles, RoundingChangesOnlyTheDisplay) {
    Form1& form = Right();
    Solve(form, "2", "1");
    run.ModalLoop = [](Form& dialog) {
        auto& round = dynamic_cast<RoundNumbersDialog&>(dialog);
        round.Combo1.Text("2");
        round.Command1.Value(true);
    };
    form.RN.FireClick();
    EXPECT_EQ(form.Text8.Text(), " 1.73");
    EXPECT_EQ(Shared().SideC, 1.73);
    EXPECT_EQ(form.Label2.Caption(), "Area= .86605");  // the area is not formed anew
}

TEST_F(RightTriangles, DegreesClickLooksAtTheRoundedAnglesRoundNumbersAtTheKeptOnes) {
    Form1& form = Right();
    Choose(form, "Angle B and side a");
    Solve(form, "10", "0.00001");
    EXPECT_EQ(Shared().AngleB, 0);
    const Lines texts = Results(form);
    EXPECT_EQ(texts[1], " 0\xB0");
    form.DIDMS.FireClick();
    EXPECT_EQ(Results(form), texts);
    run.ModalLoop = [](Form& dialog) { dynamic_cast<RoundNumbersDialog&>(dialog).Command1.Value(true); };
    form.RN.FireClick();
    EXPECT_EQ(form.Text4.Text(), " 0\xB0  0'  .036\"");
}

TEST_F(RightTriangles, ADocumentThatIsNoneIsRefusedAndTheEntriesStay) {
    Form1& form = Right();
    Enter(form, "5", "4");
    folder.Put("notes.rgt", "Some notes\r\n1\r\n2\r\n");
    run.Files.emplace_back((folder.Path() / "notes.rgt").string());
    form.OPenFile.FireClick();
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "This Is Not A Right Triangle File!");
    EXPECT_EQ(form.Text1.Text(), "5");
    EXPECT_EQ(form.Combo1.Text(), "Side a and side b");
    EXPECT_EQ(form.CommonDialog1.FileName(), "");
}

TEST_F(RightTriangles, ADocumentThatCanNotBeReadEndsQuietly) {
    Form1& form = Right();
    Enter(form, "5", "4");
    run.Files.emplace_back((folder.Path() / "missing.rgt").string());
    form.OPenFile.FireClick();
    EXPECT_TRUE(run.Boxes.empty());
    EXPECT_EQ(form.Text1.Text(), "5");
    EXPECT_EQ(form.CommonDialog1.FileName(), "");
}

TEST_F(RightTriangles, ASavedEntryHoldsNoLineEnds) {
    Form1& form = Right();
    Solve(form, "5\r\n", "4");
    const std::string path = (folder.Path() / "part.rgt").string();
    run.Files.emplace_back(path);
    form.SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("part.rgt"), "Side a and side b\r\n5\r\n4\r\n");
    ASSERT_EQ(run.Dialogs.size(), 1U);
    EXPECT_EQ(run.Dialogs[0].Flags, 14);
    EXPECT_EQ(run.Dialogs[0].Filter, "Right Triangle Files(*.rgt)|*.rgt");
}

TEST_F(RightTriangles, PrintPictureCarriesTheBoxesAndGivesThemBack) {
    Form1& form = Right();
    Solve(form, "5", "4");
    run.Printers.emplace_back(PrinterChoice{2, 0, 0});
    form.PrntPic.FireClick();
    EXPECT_EQ(run.Printed.size(), 2U);
    EXPECT_EQ(&form.Text4.Container(), &form.Picture1);
    EXPECT_EQ(&form.Label2.Container(), &form.Picture1);
    EXPECT_FALSE(form.Picture2.Visible());
}

TEST_F(RightTriangles, ARunOfAllMenusBeforeAnythingWasSolvedFaultsNowhere) {
    Form1& form = Right();
    for (MenuItem* const item : {&form.DIDMS, &form.ShapeR, &form.TextOn, &form.RN, &form.Copy, &form.Paste,
                                 &form.Inches2Millimeters, &form.Millimeters2Inches, &form.SaveFileAs, &form.OPenFile,
                                 &form.PrntWin, &form.PrntPic, &form.DIDMS, &form.ShapeR, &form.TextOn}) {
        item->FireClick();
        EXPECT_FALSE(program.Ended()) << item->Name();
    }
}

}  // namespace
}  // namespace brindlex::righttri
