// The Geometry form: its life, its store under odd hands, tools, pointer, printing.
#include "geometry/form17.h"

#include "form17fixture.h"
#include "geometryrecords.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace brindlex::geometry {
namespace {

TEST_F(Form17Test, LeavesNoTraceOnAnyWayOut) {
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"aaaa.tmp", "geometry.dat"}));
    PlaceCircle("0", "0", "1");
    form->Exit.FireClick();
    EXPECT_TRUE(folder.Names().empty());
    EXPECT_TRUE(form->Loaded());
    EXPECT_TRUE(program.Get("Form11").Visible());
    form->Show();
    PlaceCircle("0", "0", "1");
    EXPECT_EQ(folder.Get("geometry.dat"), CircleLine(1, " 1", "0", "0") + End);
    form->Unload();
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(Form17Test, LoadsAfreshAfterItsCloseBox) {
    PlaceCircle("0", "0", "1");
    Tool("UnZoom");
    form->Unload();
    form->Show();
    EXPECT_EQ(form->Work.Entities.EntNum, 0);
    EXPECT_EQ(form->Work.ZoomFactor, 0);
    EXPECT_EQ(form->Picture1.ScaleWidth(), 4.475);
    EXPECT_EQ(form->ActiveControl(), &form->Frame1.Text3);
    EXPECT_EQ(folder.Get("geometry.dat"), "");
}

TEST_F(Form17Test, AStoreThatVanishesEndsNothing) {
    PlaceCircle("0", "0", "1");
    std::filesystem::remove(folder.Path() / "geometry.dat");
    Tool("Zoom");
    EXPECT_EQ(form->Work.Entities.CircleTop, 0);
    PlaceCircle("0", "0", "2");
    EXPECT_EQ(folder.Get("geometry.dat"), CircleLine(1, " 2", "0", "0") + End);
    EXPECT_TRUE(Messages().empty());
    EXPECT_FALSE(program.Ended());
}

TEST_F(Form17Test, AStoreThatCanNotBeReadEndsNothing) {
    PlaceCircle("0", "0", "1");
    std::filesystem::remove(folder.Path() / "geometry.dat");
    std::filesystem::create_directory(folder.Path() / "geometry.dat");
    Down(-1, 1);
    Move(1, -1, LeftButton);
    Up(1, -1);
    form->Command2.Value(true);
    for (const char* const key : {"Zoom", "UnZoom", "Fit", "Line", "Point", "Circle"}) {
        Tool(key);
    }
    PlaceCircle("0", "0", "1");
    form->ResizeByPerson(9000, 9000);
    form->NewGeo.FireClick();
    form->PrntWin.FireClick();
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Nothing to Print!"}));
    EXPECT_FALSE(program.Ended());
    form->Exit.FireClick();
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(program.Get("Form11").Visible());
}

TEST_F(Form17Test, ConnectFollowsTheRecordsOnlyWithItsPanel) {
    PlaceCircle("0", "0", "1");
    EXPECT_FALSE(form->Toolbar1.Buttons("Connect").Enabled);
    PlaceCircle("0", "0", "1");
    EXPECT_EQ(form->Toolbar1.Buttons("Connect").Enabled, Session::HasTool("Connect"));
    form->ResizeByPerson(8000, 7000);
    EXPECT_EQ(form->Toolbar1.Buttons("Connect").Enabled, Session::HasTool("Connect"));
    folder.Put("geometry.dat", CircleLine(1, " 1", "0", "0") + End);
    form->ResizeByPerson(8000, 7100);
    EXPECT_FALSE(form->Toolbar1.Buttons("Connect").Enabled) << "never with fewer than two";
}

TEST_F(Form17Test, TheToolbarHasThirteenEntriesInOrder) {
    std::vector<std::string> keys;
    for (const ToolButton& tool : form->Toolbar1.Buttons()) {
        keys.push_back(tool.Key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"Circle", "Line", "Point", "Connect", "CircTan", "PotInt", "ID", "",
                                              "Zoom", "UnZoom", "Fit", "", "Delete"}));
}

TEST_F(Form17Test, TheToolbarsLayoutIsKeptUnderItsNames) {
    form->Toolbar1.Fire(form->Toolbar1.Change, "Change");
    ASSERT_EQ(run.Toolbars.size(), 1U);
    EXPECT_EQ(run.Toolbars.front(), (decltype(run.Toolbars)::value_type{"Toolbar1", "Geometry", "Brindlex 3.0.2- "}));
    program.PassTime(1);
    EXPECT_FALSE(form->Timer1.Enabled());
}

TEST_F(Form17Test, ThePictureFollowsTheForm) {
    // Inner size in inches: 5.175 by 4.6333; .4083 are left under the picture.
    EXPECT_NEAR(form->Picture1.Left(), .278, 1e-12);
    EXPECT_NEAR(form->Picture1.Height(), 4.633333 - .408333 - 1.75, 1e-5);
    form->ResizeByPerson(20 * 1440, 10 * 1440);
    const double height = 10 - .408333 - 1.75;
    EXPECT_NEAR(form->Picture1.Height(), height, 1e-5);
    EXPECT_NEAR(form->Picture1.Width(), height / .53445071, 1e-5);
    EXPECT_NEAR(form->VScroll1.Left(), .278 + height / .53445071, 1e-5);
    EXPECT_NEAR(form->HScroll1.Top(), 1.75 + height, 1e-5);
    double top = 1.75;
    for (const Label* const label :
         {&form->Label11, &form->Label13, &form->Label12, &form->Label14, &form->Label15, &form->Label16}) {
        EXPECT_GT(label->Left(), form->VScroll1.Left() + form->VScroll1.Width());
        EXPECT_NEAR(label->Top(), top, 1e-9) << label->Name();
        top += .275;
    }
    form->ResizeByPerson(0, 0);
    EXPECT_EQ(form->Picture1.Height(), 0);
}

TEST_F(Form17Test, ThePlusShowsOnAFormThatNearlyFillsTheScreen) {
    // The screen is 11520 twips high, the frame of the window 810.
    form->ResizeByPerson(15000, .9 * 11520 - 810);
    EXPECT_TRUE(form->Command9.Visible());
    form->ResizeByPerson(15000, .9 * 11520 - 811);
    EXPECT_FALSE(form->Command9.Visible());
}

TEST_F(Form17Test, AResizeEndsTheEnlargedPictureInOrder) {
    form->ResizeByPerson(15000, 10500);
    form->Command9.Value(true);
    EXPECT_FALSE(form->Command1.Visible());
    Tool("Line");
    EXPECT_FALSE(form->Command1.Visible());
    form->ResizeByPerson(15000, 8000);
    EXPECT_EQ(form->Command9.Caption(), "+");
    EXPECT_TRUE(form->Command1.Visible());
    EXPECT_TRUE(form->Command1.Enabled());
    EXPECT_EQ(form->Frame2.Top(), form->Frame1.Top());
}

TEST_F(Form17Test, TheEnlargedPictureCopiesTheKeepButtons) {
    form->Toolbar1.ButtonValue("Connect", 1);
    form->Frame4.Command4.Caption(" 7");
    form->Frame4.Command6.Caption(" 9");
    form->ResizeByPerson(15000, 10500);
    form->Command9.Value(true);
    EXPECT_EQ(form->Command8.Caption(), " 7");
    EXPECT_TRUE(form->Command8.IsUsable());
    EXPECT_FALSE(form->Command10.Visible());
    EXPECT_EQ(form->Command11.Caption(), " 9");
    EXPECT_TRUE(form->Label34.Visible());
    EXPECT_TRUE(form->Command14.IsUsable());
    EXPECT_TRUE(form->Command15.IsUsable());
    form->Command9.Value(true);
    for (const Control* const control : std::vector<const Control*>{&form->Command8, &form->Command11, &form->Command14,
                                                                    &form->Command15, &form->Label34}) {
        EXPECT_FALSE(control->Visible()) << control->Name();
    }
}

TEST_F(Form17Test, CancelLosingTheFocusGivesThePickUp) {
    PlaceCircle("0", "0", "1");
    Down(-1, .9);
    Move(1, -1, LeftButton);
    Up(1, -1);
    ASSERT_TRUE(form->Command3.IsUsable());
    form->Command3.SetFocus();
    form->Frame1.Text1.SetFocus();
    EXPECT_FALSE(form->Command3.Visible());
    EXPECT_FALSE(form->RemoveIt.Enabled());
    EXPECT_TRUE(form->Command1.Enabled());
}

TEST_F(Form17Test, TheFocusDoesNotComeToCancelByItself) {
    PlaceCircle("0", "0", "1");
    form->Command1.SetFocus();
    Down(-1, .9);
    Move(1, -1, LeftButton);
    EXPECT_FALSE(form->Command1.Enabled());
    EXPECT_EQ(form->ActiveControl(), nullptr);
    EXPECT_TRUE(form->Command3.Visible());
}

TEST_F(Form17Test, ThePickBoxIsDottedAndRedUnderTheDrawing) {
    PlaceCircle("0", "0", "1");
    Down(-1, .9);
    Move(.4, -1, LeftButton);
    const DrawItem& box = form->Picture1.Drawn().Items().front();
    EXPECT_EQ(box.Kind, DrawKind::Box);
    EXPECT_EQ(box.Ink, ink::Taken);
    EXPECT_EQ(box.DrawStyle, 2);
    EXPECT_FALSE(box.Filled);
    EXPECT_NEAR(box.X1, 2.2375 - 1, 1e-12);
    EXPECT_NEAR(box.Y1, -1.1958335 + .9, 1e-12);
    EXPECT_NEAR(box.X2, 2.2375 + .4, 1e-12);
    EXPECT_NEAR(box.Y2, -1.1958335 - 1, 1e-12);
    EXPECT_EQ(form->Picture1.Drawn().Items().back().DrawStyle, 0);
}

TEST_F(Form17Test, TheRightButtonPicksOnlyUnderTheConnectPanel) {
    PlaceCircle("0", "0", "1");
    PlaceCircle("1", "0", "1");
    Down(-1, .9, RightButton);
    Move(.4, -1, RightButton);
    EXPECT_EQ(form->Work.Pass.Pick.Number, 0);
    form->Frame1.Visible(false);
    form->Frame4.Visible(true);
    Down(-1, .9, RightButton);
    Move(.4, -1, RightButton);
    EXPECT_EQ(form->Work.Pass.Pick.Number, 1);
    EXPECT_EQ(form->Work.Pass.Pick.Shape, Kind::Circle);
    EXPECT_EQ(form->Picture1.Drawn().Items().front().Ink, ink::Named);
    EXPECT_EQ(Count(DrawKind::Circle, ink::Named), 1);
}

TEST_F(Form17Test, ARemovalTakesWhatStandsTwice) {
    PlaceCircle("0", "0", "1");
    PlaceCircle("1", "0", "1");
    Down(.6, .5);
    Move(1.4, -.5, LeftButton);
    EXPECT_EQ(form->Work.Pass.Marks.Hits.Circles, (std::vector<int>{4}));
    Up(1.4, -.5);
    EXPECT_EQ(form->Work.Pass.Marks.Hits.Circles, (std::vector<int>{4, 4}));
    form->RemoveIt.FireClick();
    EXPECT_EQ(folder.Get("geometry.dat"), CircleLine(1, " 1", "0", "0") + End);
    EXPECT_EQ(form->Work.Entities.CircleTop, 4);
    EXPECT_EQ(form->Work.Entities.EntNum, 2) << "it falls only at a reload";
    EXPECT_TRUE(form->Work.Pass.Marks.Hits.Circles.empty());
}

TEST_F(Form17Test, AHundredThousandMovesDoNotGrowAnything) {
    PlaceCircle("0", "0", "2");
    for (int i = 0; i < 100000; ++i) {
        Move(1 - 1e-6 * i, 0);
    }
    EXPECT_LE(form->Picture1.Drawn().Items().size(), 4U);
    EXPECT_LE(form->Work.Pass.Marks.Hits.Circles.size(), 48U);
}

TEST_F(Form17Test, TheWindowIsPrintedOnceForEachCopy) {
    PlaceCircle("0", "0", "2");
    run.Printers.push_back(PrinterChoice{2, 0, 0});
    form->PrntWin.FireClick();
    EXPECT_EQ(run.Printed.size(), 2U);
    EXPECT_TRUE(form->Picture2.Picture().Empty());
}

TEST_F(Form17Test, ThePictureIsPrintedUnderTheTitle) {
    PlaceCircle("0", "0", "2");
    run.Printers.push_back(PrinterChoice{1, 0, 0});
    form->PrntPic.FireClick();
    ASSERT_EQ(run.Printed.size(), 1U);
    const auto& items = run.Printed.front().Pages.at(0).Items;
    ASSERT_EQ(items.size(), 6U);
    const auto& title = std::get<PrintedText>(items[2]);
    EXPECT_EQ(title.Text, "    Brindlex 3.0.2- Geometry");
    EXPECT_EQ(title.Font.Name, "Times New Roman");
    EXPECT_EQ(title.Font.Size, 18);
    EXPECT_TRUE(title.Font.Bold);
    EXPECT_EQ(std::get<PrintedText>(items[4]).Text, "");
    const auto& picture = std::get<PrintedPicture>(items[5]);
    EXPECT_EQ(picture.Where.Left, 1500);
    EXPECT_EQ(picture.Where.Top, 1000);
    EXPECT_NEAR(picture.Where.Width / picture.Where.Height, form->Picture1.Width() / form->Picture1.Height(), 1e-9);
}

}  // namespace
}  // namespace brindlex::geometry
