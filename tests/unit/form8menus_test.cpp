// The menus of the Bolt Circles form: units, documents, settings, ways out, paper.
#include "form8fixture.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <variant>

namespace brindlex::boltcircle {
namespace {

// Units.

TEST_F(Form8Test, UnitsConvertTheLengthsAndCalculate) {
    Solve({"1", "-2", "10", "4", "0"});
    F().Inches2Millimeters.FireClick();
    EXPECT_EQ(Entered(), (Texts{"25.400000000000000", "-50.800000000000000", "254.000000000000000", "4", "0"}));
    EXPECT_FALSE(F().Inches.Enabled());
    EXPECT_TRUE(F().Millimeters.Enabled());
    EXPECT_EQ(F().Label6.Caption(), "Millimeters");
    EXPECT_NE(F().Text6.Text().find("Hole 1: X=  152.4 , Y= -50.8\r\n"), std::string::npos);
    F().Millimeters2Inches.FireClick();
    EXPECT_EQ(Entered(), (Texts{"1.000000000000000", "-2.000000000000000", "10.000000000000000", "4", "0"}));
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_FALSE(F().Millimeters.Enabled());
    EXPECT_EQ(F().Label6.Caption(), "Inches");
    F().TypeByPerson(F().Text1, '3');
    EXPECT_TRUE(F().Millimeters.Enabled());
    EXPECT_EQ(F().Label6.Caption(), "");
}

TEST_F(Form8Test, UnitsWithAMissingLengthOnlyCalculate) {
    Enter({"1", "2", ""});
    F().Millimeters2Inches.FireClick();
    EXPECT_EQ(Boxes(), Texts{NotCompleted});
    EXPECT_EQ(Entered(), (Texts{"1", "2", "", "", ""}));
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_TRUE(F().Millimeters.Enabled());
    EXPECT_EQ(F().Label6.Caption(), "");
}

TEST_F(Form8Test, UnitsOfLengthsPastTheRangeEndInTheTrap) {
    Enter({"1", "2", "1E308", "4", "0"});
    F().Inches2Millimeters.FireClick();
    EXPECT_EQ(Boxes(), Texts{Trap});
    EXPECT_TRUE(F().Inches.Enabled());
    EXPECT_FALSE(program->Ended());
}

TEST_F(Form8Test, RightButtonPopsUpUnits) {
    F().Picture1.MouseUp.Call({LeftButton, 0, 100, 100});
    EXPECT_EQ(run.Popup, "");
    F().Picture1.MouseUp.Call({RightButton, 0, 100, 100});
    EXPECT_EQ(run.Popup, "Units");
    run.Popup.clear();
    Enter({"0", "0", "10", "4", "0"});
    F().Check1.Value(1);
    F().Picture1.MouseUp.Call({RightButton, 0, 100, 100});
    EXPECT_EQ(run.Popup, "");
}

// Documents and settings.

TEST_F(Form8Test, SavesSixLinesAndOpensThem) {
    Solve({"1.5", "-2", "10", "4", "30"});
    run.Files.emplace_back("flange.bcf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("flange.bcf"), "1.5\r\n-2\r\n10\r\n4\r\n30\r\n 0 \r\n");
    F().Check1.Value(1);
    run.Files.emplace_back("angles.bcf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(folder.Get("angles.bcf"), "1.5\r\n-2\r\n10\r\n4\r\n30\r\n 1 \r\n");
    ASSERT_EQ(run.Dialogs.size(), 2U);
    EXPECT_EQ(run.Dialogs[0].Kind, DialogKind::Save);
    EXPECT_EQ(run.Dialogs[0].Flags, 14);
    EXPECT_EQ(run.Dialogs[0].Filter, "Bolt Circle Files(*.bcf)|*.bcf");

    Begin();
    Open("flange.bcf");
    EXPECT_EQ(run.Dialogs.back().Kind, DialogKind::Open);
    EXPECT_EQ(run.Dialogs.back().Flags, 12);
    EXPECT_EQ(run.Dialogs.back().Filter, "Bolt Circle Files(*.bcf)|*.bcf");
    EXPECT_EQ(Entered(), (Texts{"1.5", "-2", "10", "4", "30"}));
    EXPECT_EQ(F().Caption(), "Brindlex 3.0.2- flange.bcf");
    EXPECT_NE(F().Text6.Text().find("Hole 1: X=  5.8301 , Y=  .5\r\n"), std::string::npos);
    F().Command1.Value(true);
    EXPECT_EQ(F().Caption(), Title);
    Open("angles.bcf");
    EXPECT_EQ(F().Check1.Value(), 1);
    EXPECT_FALSE(F().Units.Enabled());
    EXPECT_NE(F().Text6.Text().find("Hole 1=  30" + Degree + "\r\n"), std::string::npos);
    Open("flange.bcf");
    EXPECT_EQ(F().Check1.Value(), 0);
    EXPECT_TRUE(F().Units.Enabled());
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Form8Test, SaveNeedsAReport) {
    Enter({"0", "0", "10", "4", "0"});
    run.Files.emplace_back("flange.bcf");
    F().SaveFileAs.FireClick();
    EXPECT_EQ(Boxes(), Texts{NotCompleted});
    EXPECT_TRUE(run.Dialogs.empty());
    EXPECT_EQ(folder.Get("flange.bcf"), "(missing)");
}

TEST_F(Form8Test, CancelledDialogsChangeNothing) {
    Solve({"0", "0", "10", "4", "0"});
    F().SaveFileAs.FireClick();
    F().OpenFile.FireClick();
    EXPECT_EQ(folder.Names(), Texts{"boltcirc.ini"});
    EXPECT_EQ(F().Text6.Text(), FourHoles);
    Open("not-there.bcf");
    EXPECT_EQ(Entered(), (Texts{"0", "0", "10", "4", "0"}));
    EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(Form8Test, DocumentsCutOffAnywhere) {
    const struct {
        const char* content;
        Texts entries;
        const char* message;
    } rows[] = {{"", {"", "", "", "", ""}, NotCompleted},
                {"1\r\n", {"1", "", "", "", ""}, NotCompleted},
                {"1\r\n2\r\n", {"1", "2", "", "", ""}, NotCompleted},
                {"1\r\n2\r\n\r\n4\r\n", {"1", "2", "", "", ""}, NotCompleted},
                {"1\r\n2\r\n10\r\n", {"1", "2", "10", "", ""}, NotCompleted},
                {"1\r\n2\r\n10\r\n4\r\n", {"1", "2", "10", "4", "0"}, nullptr},
                {"1\r\n2\r\n10\r\n4\r\n30", {"1", "2", "10", "4", "30"}, nullptr},
                {"1\r\n2\r\n10\r\n4\r\n30\r\nword\r\n", {"1", "2", "10", "4", "30"}, nullptr},
                {"1\r\n2\r\n10\r\n4\r\n30\r\n7\r\n", {"1", "2", "10", "4", "30"}, nullptr},
                {"1\r\n2\r\n10\r\n4\r\n30\r\n9E999\r\n", {"1", "2", "10", "4", "30"}, nullptr},
                {"1\r\n2\r\n10\r\n4\r\n30\r\n 0 \r\nmore\r\n", {"1", "2", "10", "4", "30"}, nullptr},
                {"one\r\ntwo\r\nten\r\nfour\r\nnone\r\n", {"one", "two", "ten", "four", "none"}, nullptr}};
    for (const auto& row : rows) {
        folder.Put("cut.bcf", row.content);
        Begin();
        Open("cut.bcf");
        EXPECT_EQ(Entered(), row.entries) << row.content;
        EXPECT_EQ(F().Check1.Value(), 0);
        EXPECT_EQ(Boxes(), row.message != nullptr ? Texts{row.message} : Texts{}) << row.content;
    }
}

TEST_F(Form8Test, FailedSaveLeavesTheOldFile) {
    Solve({"0", "0", "10", "4", "0"});
    run.Files.emplace_back("no-such-folder/flange.bcf");
    F().SaveFileAs.FireClick();
    EXPECT_TRUE(run.Boxes.empty());
    EXPECT_EQ(F().CommonDialog1.FileName(), "");
    EXPECT_FALSE(program->Ended());
    EXPECT_EQ(F().Text6.Text(), FourHoles);
}

TEST_F(Form8Test, EveryWayOutWritesTheSettings) {
    MenuItem* const ways[] = {&F().ExitPgm, &F().GoToRight, &F().GoToOblique, &F().Sines,
                              &F().Poly,    &F().Geometry,  &F().SpdFd,       &F().Menu};
    const char* const targets[] = {"Form11", "Form1", "Form2", "Form12", "Form16", "Form17", "Form19", "Form11"};
    for (std::size_t i = 0; i < std::size(ways); ++i) {
        EXPECT_EQ(ways[i]->Enabled(), program->Knows(targets[i])) << targets[i];
        if (!ways[i]->Enabled()) {
            continue;
        }
        folder.Put("boltcirc.ini", "");
        program->Shared().DigitsB = "7";
        ways[i]->FireClick();
        EXPECT_EQ(folder.Get("boltcirc.ini"), "Rounding=7\r\n") << targets[i];
        EXPECT_FALSE(F().Visible());
        EXPECT_TRUE(F().Loaded());
        EXPECT_TRUE(program->Get(targets[i]).Visible());
        program->Get(targets[i]).GoTo("Form8");
    }
}

TEST_F(Form8Test, CloseBoxWritesTheSettingsAndForgetsTheEntries) {
    Solve({"0", "0", "10", "4", "0"});
    F().CloseByPerson();
    EXPECT_EQ(folder.Get("boltcirc.ini"), "Rounding=4\r\n");
    EXPECT_FALSE(F().Loaded());
    EXPECT_TRUE(program->Get("Form11").Visible());
    program->Get("Form11").GoTo("Form8");
    EXPECT_EQ(Entered(), (Texts{"", "", "", "", ""}));
}

TEST_F(Form8Test, AboutAndCalculatorLeaveTheFormUp) {
    bool shown = false;
    run.ModalLoop = [&](Form& dialog) { shown = dialog.Name() == "Form7"; };
    F().AboutIt.FireClick();
    EXPECT_TRUE(shown);
    F().WinCalc.FireClick();
    EXPECT_EQ(run.Started, Texts{"CALC.EXE"});
    EXPECT_TRUE(F().Visible());
    EXPECT_EQ(folder.Get("boltcirc.ini"), "");
}

// Paper.

class Form8Printing : public Form8Test {
protected:
    void Print(MenuItem& item, int copies) {
        run.Printers.emplace_back(PrinterChoice{copies, 0, 0});
        item.FireClick();
    }
    /// A page as a list: texts as they stand, pictures as "picture".
    Texts Page(std::size_t document) {
        Texts items;
        if (document >= run.Printed.size() || run.Printed[document].Pages.size() != 1) {
            return {"no such page"};
        }
        for (const auto& item : run.Printed[document].Pages[0].Items) {
            if (const auto* const text = std::get_if<PrintedText>(&item)) {
                items.push_back(text->Text);
                EXPECT_EQ(text->Font.Name, "Times New Roman");
                EXPECT_EQ(text->Font.Size, 18);
                EXPECT_TRUE(text->Font.Bold);
            } else {
                const auto& picture = std::get<PrintedPicture>(item);
                items.emplace_back("picture");
                EXPECT_EQ(picture.Where, (Place{0, 0, 11520, 11520}));
                EXPECT_EQ(picture.Picture.Labels.size(), 1U);
                EXPECT_EQ(picture.Picture.Labels.front().Text, F().Label6.Caption());
                EXPECT_EQ(picture.Picture.Drawn->Items().size(), F().Picture1.Drawn().Items().size());
            }
        }
        return items;
    }
};

TEST_F(Form8Printing, NothingToPrint) {
    for (MenuItem* const item : {&F().EntFrm, &F().TextOnly, &F().Both}) {
        item->FireClick();
        EXPECT_EQ(Boxes(), Texts{"Nothing to Print!"});
        EXPECT_TRUE(run.Dialogs.empty());
    }
}

TEST_F(Form8Printing, ReportOnceForEachCopy) {
    Solve({"0", "0", "10", "4", "0"});
    Print(F().TextOnly, 2);
    ASSERT_EQ(run.Printed.size(), 2U);
    for (const std::size_t copy : {0U, 1U}) {
        EXPECT_EQ(Page(copy), (Texts{"", "Brindlex Bolt Circle Report", "", "", FourHoles}));
    }
    EXPECT_EQ(run.Dialogs.back().Kind, DialogKind::Printer);
}

TEST_F(Form8Printing, PictureWithItsUnit) {
    Solve({"0", "0", "10", "4", "0"});
    F().Inches2Millimeters.FireClick();
    Print(F().EntFrm, 1);
    EXPECT_EQ(Page(0), (Texts{"", "", "Brindlex Bolt Circle Report", "", "", "picture"}));
    EXPECT_EQ(&F().Label6.Container(), &F().Picture1);
    EXPECT_TRUE(F().Picture2.Picture().Empty());
}

TEST_F(Form8Printing, Both) {
    Solve({"0", "0", "10", "4", "0"});
    Print(F().Both, 1);
    Texts expected{"", "", "Brindlex Bolt Circle Report", "", "", "picture"};
    expected.insert(expected.end(), 10, "");
    expected.emplace_back(FourHoles);
    EXPECT_EQ(Page(0), expected);
}

TEST_F(Form8Printing, CancelledOrRefused) {
    Solve({"0", "0", "10", "4", "0"});
    F().Both.FireClick();
    EXPECT_TRUE(run.Printed.empty());
    EXPECT_EQ(Boxes(), Texts{});
    runtime->PrinterRefusal = Fault(FaultNumber::FileIo, "Out of paper");
    Print(F().Both, 1);
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "Out of paper");
    EXPECT_FALSE(program->Ended());
    EXPECT_EQ(F().Text6.Text(), FourHoles);
}

}  // namespace
}  // namespace brindlex::boltcircle
