// The rules of firing and focus of the form surface, on a small form.
#include "frame/form.h"
#include "fakeruntime.h"
#include "frame/combobox.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/program.h"
#include "frame/scrollbar.h"
#include "frame/textbox.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace brindlex {
namespace {

class RowsForm : public Form {
public:
    RowsForm(Program& program, std::vector<std::string>& log) : Form(program, "Sample", 3000, 2000), log_(log) {
        Command1.Default(true);
        for (TextBox* const box : {&Text1, &Text2}) {
            box->Change.Bind([this, box] { log_.push_back(box->Name() + "_Change " + box->Text()); });
            box->GotFocus.Bind([this, box] { log_.push_back(box->Name() + "_GotFocus"); });
            box->LostFocus.Bind([this, box] { log_.push_back(box->Name() + "_LostFocus"); });
            box->KeyPress.Bind([this, box](int& key) {
                log_.push_back(box->Name() + "_KeyPress " + std::to_string(key));
                if (key == 'x') {
                    key = 0;
                }
            });
        }
        Command1.Click.Bind([this] { log_.push_back("Command1_Click"); });
        Command2.Click.Bind([this] { log_.push_back("Command2_Click"); });
        Check1.Click.Bind([this] { log_.push_back("Check1_Click " + std::to_string(Check1.Value())); });
        Option1.Click.Bind([this] { log_.emplace_back("Option1_Click"); });
        Option2.Click.Bind([this] { log_.emplace_back("Option2_Click"); });
        Combo1.Click.Bind([this] { log_.push_back("Combo1_Click " + Combo1.Text()); });
        Combo1.Change.Bind([this] { log_.push_back("Combo1_Change " + Combo1.Text()); });
        Bar1.Change.Bind([this] { log_.push_back("Bar1_Change " + std::to_string(Bar1.Value())); });
        Bar1.Scroll.Bind([this] { log_.push_back("Bar1_Scroll " + std::to_string(Bar1.Value())); });
        Timer1.Timer.Bind([this] { log_.emplace_back("Timer1_Timer"); });
        Edit.Click.Bind([this] { log_.emplace_back("Edit_Click"); });
        Copy.Click.Bind([this] { log_.emplace_back("Copy_Click"); });
    }

    TextBox Text1{*this, "Text1", {0, 0, 900, 300}};
    Frame Frame1{*this, "Frame1", {0, 300, 1500, 900}, "Box"};
    TextBox Text2{Frame1, "Text2", {0, 0, 900, 300}};
    OptionButton Option1{Frame1, "Option1", {0, 300, 900, 300}, "One", true};
    OptionButton Option2{Frame1, "Option2", {0, 600, 900, 300}, "Two"};
    CheckBox Check1{*this, "Check1", {0, 1200, 900, 300}, "Check"};
    ComboBox Combo1{*this, "Combo1", {0, 1500, 900, 300}, "start"};
    CommandButton Command1{*this, "Command1", {1500, 0, 900, 300}, "&One"};
    CommandButton Command2{*this, "Command2", {1500, 300, 900, 300}, "&Two"};
    ScrollBar Bar1{*this, "Bar1", {2700, 0, 255, 1800}, ScrollBar::Direction::Vertical};
    TimerControl Timer1{*this, "Timer1"};
    PictureBox Picture1{*this, "Picture1", {1500, 600, 1000, 1000}};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "Copy"};

    std::function<void()> OnLoad;

protected:
    void Form_Initialize() override { log_.emplace_back("Form_Initialize"); }
    void Form_Load() override {
        log_.emplace_back("Form_Load");
        if (OnLoad) {
            OnLoad();
        }
    }
    void Form_Resize() override { log_.emplace_back("Form_Resize"); }
    void Form_Unload() override { log_.emplace_back("Form_Unload"); }

private:
    std::vector<std::string>& log_;
};

class FormTest : public ::testing::Test {
protected:
    FormTest() {
        program.Register("Sample", [this](Program& owner) { return std::make_unique<RowsForm>(owner, log); });
        form = dynamic_cast<RowsForm*>(&program.Get("Sample"));
    }
    std::vector<std::string> Log() { return std::exchange(log, {}); }
    using Lines = std::vector<std::string>;

    DrivenRun run;
    FakeRuntime runtime{run};
    std::vector<std::string> log;
    Program program{runtime, Folder(std::filesystem::temp_directory_path())};
    RowsForm* form = nullptr;
};

TEST_F(FormTest, FirstShowLoadsInitialisesResizesAndFocuses) {
    form->Show();
    EXPECT_EQ(Log(), (Lines{"Form_Initialize", "Form_Load", "Form_Resize", "Text1_GotFocus"}));
    form->Hide();
    form->Show();
    EXPECT_EQ(Log(), (Lines{"Text1_GotFocus"}));
}

TEST_F(FormTest, UnloadLetsTheNextShowStartFromTheDesign) {
    form->Show();
    form->Text1.Text("7");
    form->Frame1.Visible(false);
    form->Copy.Enabled(false);
    form->Text2.TabIndex(0);
    form->Combo1.AddItem("a");
    form->Unload();
    EXPECT_FALSE(form->Loaded());
    form->Show();
    EXPECT_EQ(form->Text1.Text(), "");
    EXPECT_TRUE(form->Frame1.Visible());
    EXPECT_TRUE(form->Copy.Enabled());
    EXPECT_EQ(form->Text1.TabIndex(), 0);
    EXPECT_EQ(form->Combo1.ListCount(), 0);
    EXPECT_EQ(form->Combo1.Text(), "start");
}

TEST_F(FormTest, SettingTheSameTextFiresNothing) {
    form->Show();
    Log();
    form->Text1.Text("5");
    form->Text1.Text("5");
    EXPECT_EQ(Log(), (Lines{"Text1_Change 5"}));
}

TEST_F(FormTest, ComboTextThatIsAnItemFiresClickEvenWhenItShowsAlready) {
    form->Show();
    form->Combo1.AddItem("a");
    form->Combo1.AddItem("b");
    Log();
    form->Combo1.Text("b");
    form->Combo1.Text("b");
    EXPECT_EQ(form->Combo1.ListIndex(), 1);
    form->Combo1.Text("c");
    form->Combo1.Text("c");
    EXPECT_EQ(form->Combo1.ListIndex(), -1);
    form->Combo1.ListIndex(0);
    EXPECT_EQ(Log(), (Lines{"Combo1_Click b", "Combo1_Click b", "Combo1_Change c", "Combo1_Click a"}));
    form->Combo1.AddItems({"d", "e"});
    EXPECT_EQ(form->Combo1.List(), (Lines{"a", "b", "d", "e"}));
    form->Combo1.RemoveItem(0);
    EXPECT_EQ(form->Combo1.ListIndex(), -1);
    EXPECT_EQ(form->Combo1.Text(), "a");
    EXPECT_THROW(form->Combo1.RemoveItem(3), Fault);
}

TEST_F(FormTest, ChecksAndOptionsFireWhenTheirValueChanges) {
    form->Show();
    Log();
    form->Check1.Value(1);
    form->Check1.Value(1);
    form->Check1.Value(0);
    form->Option2.Value(true);
    EXPECT_FALSE(form->Option1.Value());
    form->Option2.Value(true);
    EXPECT_EQ(Log(), (Lines{"Check1_Click 1", "Check1_Click 0", "Option2_Click"}));
}

TEST_F(FormTest, PressMovesTheFocusFirst) {
    form->Show();
    Log();
    form->PressByPerson(form->Command2);
    EXPECT_EQ(Log(), (Lines{"Text1_LostFocus", "Command2_Click"}));
    EXPECT_EQ(form->ActiveControl(), &form->Command2);
}

TEST_F(FormTest, EnterGoesToTheDefaultButtonAndNotToTheFilter) {
    form->Show();
    Log();
    form->TypeByPerson(form->Text1, 13);
    EXPECT_EQ(Log(), (Lines{"Command1_Click"}));
    EXPECT_EQ(form->ActiveControl(), &form->Text1);
    form->Command1.Enabled(false);
    form->TypeByPerson(form->Text1, 13);
    EXPECT_EQ(Log(), (Lines{}));
}

TEST_F(FormTest, EnterOnAnotherButtonPressesThatOne) {
    form->Show();
    form->FocusByPerson(form->Command2);
    Log();
    form->TypeByPerson(form->Command2, 13);
    EXPECT_EQ(Log(), (Lines{"Command2_Click"}));
}

TEST_F(FormTest, KeysPassTheFilterBeforeTheBoxIsEdited) {
    form->Show();
    Log();
    form->TypeByPerson(form->Text1, '4');
    form->TypeByPerson(form->Text1, 'x');
    form->TypeByPerson(form->Text1, '2');
    form->TypeByPerson(form->Text1, 8);
    EXPECT_EQ(Log(), (Lines{"Text1_KeyPress 52", "Text1_Change 4", "Text1_KeyPress 120", "Text1_KeyPress 50",
                            "Text1_Change 42", "Text1_KeyPress 8", "Text1_Change 4"}));
}

TEST_F(FormTest, EditingReplacesTheSelectionAndKnowsTheClipboard) {
    form->Show();
    form->Text1.Text("12345");
    form->Text1.SelStart(1);
    form->Text1.SelLength(3);
    EXPECT_EQ(form->Text1.SelText(), "234");
    form->TypeByPerson(form->Text1, 3);
    EXPECT_EQ(program.ClipboardText(), "234");
    form->TypeByPerson(form->Text1, '9');
    EXPECT_EQ(form->Text1.Text(), "195");
    EXPECT_EQ(form->Text1.SelStart(), 2);
    form->TypeByPerson(form->Text1, 22);
    EXPECT_EQ(form->Text1.Text(), "192345");
    form->TypeByPerson(form->Text1, 26);
    EXPECT_EQ(form->Text1.Text(), "195");
    form->TypeByPerson(form->Text1, 1);
    form->TypeByPerson(form->Text1, 24);
    EXPECT_EQ(form->Text1.Text(), "");
    EXPECT_EQ(program.ClipboardText(), "195");
    form->Text1.InsertByPerson("8\r\n9");
    EXPECT_EQ(form->Text1.Text(), "8");
    form->Text1.SelStart(0);
    form->Text1.DeleteByPerson();
    EXPECT_EQ(form->Text1.Text(), "");
}

TEST_F(FormTest, BackspaceAtTheStartTakesNothing) {
    form->Show();
    form->Text1.Text("12");
    form->TypeByPerson(form->Text1, 8);
    EXPECT_EQ(form->Text1.Text(), "12");
    form->Text1.SelStart(1);
    form->TypeByPerson(form->Text1, 8);
    EXPECT_EQ(form->Text1.Text(), "2");
}

TEST_F(FormTest, LockedBoxTakesNothing) {
    form->Show();
    form->Text1.Text("12");
    form->Text1.Locked(true);
    form->TypeByPerson(form->Text1, '3');
    form->TypeByPerson(form->Text1, 8);
    form->Text1.InsertByPerson("7");
    form->Text1.DeleteByPerson();
    EXPECT_EQ(form->Text1.Text(), "12");
}

TEST_F(FormTest, MaxLengthCutsWhatIsTyped) {
    form->Show();
    form->Text1.MaxLength(3);
    form->Text1.InsertByPerson("12345");
    EXPECT_EQ(form->Text1.Text(), "123");
    EXPECT_EQ(run.Beeps, 1);
}

TEST_F(FormTest, DisabledOrHiddenControlLosesTheFocusToNobody) {
    form->Show();
    form->FocusByPerson(form->Text2);
    Log();
    form->Frame1.Enabled(false);
    EXPECT_EQ(form->ActiveControl(), nullptr);
    EXPECT_EQ(Log(), (Lines{"Text2_LostFocus"}));
    form->Text2.SetFocus();
    EXPECT_EQ(form->ActiveControl(), nullptr);
}

TEST_F(FormTest, TabSkipsWhatCanNotTakeItAndTheUnsetOption) {
    form->Show();
    form->Check1.Enabled(false);
    form->Combo1.TabStop(false);
    std::vector<std::string> names;
    for (int i = 0; i < 5; ++i) {
        form->TabByPerson();
        names.push_back(form->ActiveControl()->Name());
    }
    EXPECT_EQ(names, (Lines{"Text2", "Option1", "Command1", "Command2", "Bar1"}));
    form->TabByPerson();
    EXPECT_EQ(form->ActiveControl(), &form->Text1);
    form->TabByPerson(true);
    EXPECT_EQ(form->ActiveControl(), &form->Bar1);
}

TEST_F(FormTest, MenuOpensBeforeItsItemIsChosen) {
    form->Show();
    Log();
    EXPECT_TRUE(form->ChooseByPerson(form->Copy));
    EXPECT_EQ(Log(), (Lines{"Edit_Click", "Copy_Click"}));
    form->Copy.Enabled(false);
    EXPECT_FALSE(form->ChooseByPerson(form->Copy));
    EXPECT_EQ(Log(), (Lines{"Edit_Click"}));
    form->Edit.Enabled(false);
    EXPECT_FALSE(form->ChooseByPerson(form->Copy));
    EXPECT_EQ(Log(), (Lines{}));
}

TEST_F(FormTest, ScrollBarKeepsItsValueBetweenItsEndsEitherWayRound) {
    form->Show();
    form->Bar1.Min(20);
    form->Bar1.Max(-20);
    Log();
    form->Bar1.Value(100);
    form->Bar1.Value(100);
    form->Bar1.DragByPerson(-30);
    EXPECT_EQ(form->Bar1.Value(), -20);
    EXPECT_EQ(Log(), (Lines{"Bar1_Scroll -20"}));
    form->Bar1.ReleaseByPerson();
    form->Bar1.ReleaseByPerson();
    EXPECT_EQ(Log(), (Lines{"Bar1_Change -20"}));
}

TEST_F(FormTest, TimerFiresWhenDueAndHoldsWhileAModalFormIsUp) {
    form->Show();
    form->Timer1.Interval(100);
    Log();
    program.PassTime(99);
    EXPECT_EQ(Log(), (Lines{}));
    program.PassTime(101);
    EXPECT_EQ(Log(), (Lines{"Timer1_Timer", "Timer1_Timer"}));
    form->Hide();
    run.ModalLoop = [this](Form& modal) {
        program.PassTime(1000);
        modal.Hide();
    };
    Log();
    form->ShowModal();
    EXPECT_EQ(Log(), (Lines{"Text1_GotFocus"}));
    EXPECT_EQ(program.ModalForm(), nullptr);
}

TEST_F(FormTest, FaultThatNobodyRoutesShowsTheRuntimesMessageAndEndsInOrder) {
    form->Show();
    form->Command1.Click.Bind([] { throw Fault(FaultNumber::Overflow); });
    Log();
    form->PressByPerson(form->Command1);
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_EQ(run.Boxes[0].Text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(run.Boxes[0].Style, 48);
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(Log(), (Lines{"Text1_LostFocus", "Form_Unload"}));
    form->PressByPerson(form->Command2);
    EXPECT_EQ(Log(), (Lines{}));
}

TEST_F(FormTest, EndWithinNestedHandlersStopsThemAll) {
    form->Show();
    form->Text1.Change.Bind([this] { program.End(); });
    form->Command1.Click.Bind([this] {
        form->Text1.Text("9");
        log.emplace_back("never");
    });
    form->PressByPerson(form->Command1);
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(std::count(log.begin(), log.end(), "never"), 0);
}

TEST_F(FormTest, EndlessChainIsStoppedAndNamed) {
    form->Show();
    form->Text1.Change.Bind([this] { form->Text1.Text(form->Text1.Text() + "1"); });
    form->Text1.Text("1");
    ASSERT_EQ(run.Boxes.size(), 1U);
    EXPECT_NE(run.Boxes[0].Text.find("Text1_Change > Text1_Change"), std::string::npos);
    EXPECT_EQ(run.Boxes[0].Text.find("Run-time error '28':"), 0U);
    EXPECT_TRUE(program.Ended());
}

TEST_F(FormTest, PictureKeepsEachItemOnceAtItsLatestPlace) {
    form->Show();
    PictureBox& picture = form->Picture1;
    picture.Line(0, 0, 10, 10, Blue);
    picture.Line(20, 10, Red);
    picture.Line(0, 0, 10, 10, Blue);
    ASSERT_EQ(picture.Drawn().Items().size(), 2U);
    EXPECT_EQ(picture.Drawn().Items().front().Ink, Red);
    EXPECT_EQ(picture.CurrentX(), 10);
    picture.CurrentX(1);
    picture.CurrentY(2);
    picture.Print(5.5);
    EXPECT_EQ(picture.Drawn().Items().back().Text, " 5.5 ");
    picture.Cls();
    EXPECT_TRUE(picture.Drawn().Items().empty());
    EXPECT_EQ(picture.CurrentX(), 0);
}

TEST_F(FormTest, PictureScaleFromCorners) {
    form->Show();
    PictureBox& picture = form->Picture1;
    EXPECT_EQ(picture.ScaleWidth(), 1000);
    picture.Scale(0, 0, 4, -2);
    EXPECT_EQ(picture.ScaleHeight(), -2);
    EXPECT_EQ(picture.FromTwipsX(500), 2);
    EXPECT_EQ(picture.FromTwipsY(500), -1);
    picture.ScaleTop(3);
    EXPECT_EQ(picture.FromTwipsY(0), 3);
    EXPECT_EQ(picture.ScaleMode(), 0);
}

TEST_F(FormTest, TabIndexMovesTheOthersAlong) {
    form->Show();
    form->Command2.TabIndex(0);
    EXPECT_EQ(form->Command2.TabIndex(), 0);
    EXPECT_EQ(form->Text1.TabIndex(), 1);
    EXPECT_EQ(form->Frame1.TabIndex(), 2);
}

TEST_F(FormTest, ContainerOfAControlCanChange) {
    form->Show();
    form->Text1.Container(form->Frame1);
    EXPECT_EQ(form->Frame1.Children().back(), &form->Text1);
    form->Frame1.Visible(false);
    EXPECT_FALSE(form->Text1.IsShown());
    form->Text2.ZOrder(0);
    EXPECT_EQ(form->Frame1.Children().back(), &form->Text2);
}

TEST_F(FormTest, PlacementFollowsTheScreen) {
    program.Shared().ScreenH = 768;
    form->Load();
    form->PlaceOnScreen();
    // 1024 by 768 pixels are 15360 by 11520 twips; the window is 3120 wide and 2810 high.
    EXPECT_EQ(form->Width(), 3120);
    EXPECT_EQ(form->Height(), 2810);
    EXPECT_EQ(form->Left(), 6120);
    EXPECT_EQ(form->Top(), 4355);
    program.Shared().ScreenH = 599;
    form->PlaceOnScreen();
    EXPECT_EQ(form->Left(), 0);
    EXPECT_EQ(form->Top(), 0);
}

}  // namespace
}  // namespace brindlex
