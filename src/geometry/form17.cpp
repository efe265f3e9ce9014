// Geometry: buttons, the life of the form, the events that it hands on.
#include "geometry/form17.h"

#include "frame/program.h"
#include "frame/text.h"
#include "services/filters.h"

#include <algorithm>
#include <string>

namespace brindlex::geometry {

Form17::Form17(Program& program) : Form(program, "Form17", 7452, 6672) {
    constexpr int Inches = 5;
    ScaleMode(Inches);
    Sizable(true);
    Picture2.Visible(false);
    BindFilters(*this);
    BindSession();
    BindButtons();
    BindPicture();
    BindMenus();
}

void Form17::BindSession() {
    Work.Calls.KillCaptions = [this] { Keeping.KillCaptions(); };
    Work.Calls.KeepStuff = [this] { Keeping.KeepStuff(); };
    Work.Calls.FillLists = [this] { Frame12.FillLists(); };
    Work.Calls.FindAng = [this] {
        Pairs.FindAng();
        Frame10.FollowList();
    };
    Work.Calls.OfferLines = [this](int first, int count) { Keeping.OfferLines(first, count); };
    Work.Calls.WithdrawLines = [this] { Keeping.WithdrawLines(); };
    Work.Calls.OfferCircles = [this] { Keeping.OfferCircles(); };
    Work.Calls.TellTouching = [this](bool every) { ShowTouching(every); };
    Work.Pass.Calls.Picked = [this] { Frame4.ConnectStat(); };
    Work.Pass.Calls.Named = [this] { Keeping.CommandCaptions(); };
    Work.Pass.Calls.NamedNumbers = [this] { return Frame4.NamedNumbers(); };
    Work.Pass.Calls.Filter = [this] { return Frame12.Filter(); };
}

void Form17::BindButtons() {
    Command1.Click.Bind(this, &Form17::Command1_Click);
    Command2.Click.Bind([this] {
        Hand.Leave();
        Work.RemoveStuff();
    });
    Command2.LostFocus.Bind(this, &Form17::Command2_LostFocus);
    Command3.Click.Bind(this, &Form17::Command3_Click);
    Command3.LostFocus.Bind([this] { Work.CancelIt(); });
    Command9.Click.Bind(this, &Form17::Command9_Click);
    // Behind the enlarged picture their buttons are out of reach.
    Command14.Click.Bind([this] { Command13.Value(true); });
    Command15.Click.Bind([this] { Command3.Value(true); });
    Toolbar1.ButtonClick.Bind(this, &Form17::Toolbar1_ButtonClick);
    Toolbar1.Change.Bind(this, &Form17::Toolbar1_Change);
    Timer1.Timer.Bind(this, &Form17::Timer1_Timer);
}

void Form17::BindPicture() {
    Picture1.MouseDown.Bind([this](const Mouse& mouse) { Hand.Down(mouse); });
    Picture1.MouseMove.Bind([this](const Mouse& mouse) { Hand.Move(mouse); });
    Picture1.MouseUp.Bind([this](const Mouse& mouse) { Hand.Up(mouse); });
    Picture1.Click.Bind([this] { Hand.Click(); });
    Picture1.DblClick.Bind([this] { Hand.DoubleClick(); });
    for (ScrollBar* const bar : {&VScroll1, &HScroll1}) {
        bar->Change.Bind([this] { Scrolled(); });
        bar->Scroll.Bind([this] { Scrolled(); });
        bar->MouseMove.Bind([this](const Mouse& /*mouse*/) { Hand.Leave(); });
    }
    for (Label* const label : {&Label20, &Label21, &Label22, &Label23, &Label25, &Label26}) {
        label->MouseMove.Bind([this](const Mouse& /*mouse*/) { Hand.ForgetPosition(); });
    }
    for (Frame* const panel : Panels()) {
        panel->MouseMove.Bind([this](const Mouse& /*mouse*/) { Hand.Leave(); });
    }
}

std::array<Frame*, 7> Form17::Panels() {
    return {&Frame1, &Frame2, &Frame3, &Frame4, &Frame8, &Frame10, &Frame12};
}

void Form17::Form_Initialize() {
    GetPboxData();
}

void Form17::Form_Load() {
    PlaceOnScreen();
    Caption(Owner().Shared().VerCaption + "Geometry");
    const auto recovered = RecoverLeftOver(Owner().Files());
    Work.Live().Begin();
    Work.Entities.Clear();
    Work.Pass.Pick = {};
    Work.Pass.Marks = {};
    Work.Pass.View = {};
    Work.ZoomFactor = 0;
    Work.ExtentsZero();
    Frame12.ShowFilter = false;
    LoadBars();
    ShowOnly(Frame1);
    for (Control* const control : {&Command2, &Command3, &Command13}) {
        Work.Withdraw(*control);
    }
    Keeping.HideStrip();
    ShowTouching(true);
    RemoveIt.Enabled(false);
    SaveAs.Enabled(false);
    Work.EnableTool("Delete", false);
    Command9.Visible(false);
    Command9.ToolTipText("Maximize");
    Work.TakeUnit(Unit::Inch);
    Timer1.Interval(1);
    Timer1.Enabled(true);
    Frame1.Text3.SetFocus();
    if (recovered) {
        Owner().MsgBox("A drawing of an earlier run was saved as " + *recovered, style::Information);
    }
}

void Form17::LoadBars() {
    constexpr double FarAway = 1000;
    constexpr int CrossStyle = 4;
    for (ScrollBar* const bar : {&VScroll1, &HScroll1}) {
        bar->LargeChange(20);
        bar->SmallChange(1);
    }
    // In this order the value stays 0 all the way, and nothing is painted yet.
    VScroll1.Max(-20);
    VScroll1.Min(20);
    HScroll1.Min(-20);
    HScroll1.Max(20);
    Work.FirstView(Unit::Inch);
    Picture1.AutoRedraw(true);
    Picture1.DrawStyle(CrossStyle);
    const double middleX = Picture1.ScaleWidth() / 2;
    const double middleY = Picture1.ScaleHeight() / 2;
    Picture1.Line(middleX, -FarAway, middleX, FarAway, ink::Cross);
    Picture1.Line(-FarAway, middleY, FarAway, middleY, ink::Cross);
    Picture1.DrawStyle(0);
    Label13.Caption(std::to_string(HScroll1.Value()));
    Label14.Caption(std::to_string(VScroll1.Value()));
    Label16.Caption("0");
}

void Form17::NewStuff() {
    Work.NewDrawing();
    Keeping.ForgetCandidates();
    Frame1.Clear();
    Frame2.Clear();
    Frame3.Clear();
    Frame4.ClearBoxes();
    Frame8.Clear();
    Frame10.Clear();
    Frame12.ClearLists();
}

void Form17::Leave() {
    NewStuff();
    Work.Live().End();
    GoTo("Form11");
}

void Form17::Form_Unload() {
    Leave();
}

void Form17::Exit_Click() {
    Leave();
}

void Form17::Form_Resize() {
    Hand.Leave();
    UsePBoxData();
}

void Form17::Form_MouseMove(const Mouse& /*mouse*/) {
    Hand.ForgetPosition();
}

// A press on a button takes the pointer off the picture, so that nothing lights up in what it repaints.
void Form17::Command1_Click() {
    Hand.Leave();
    if ((Frame1.Visible() && Frame1.RefuseByLimit()) || (Frame2.Visible() && Frame2.RefuseByLimit()) ||
        (Frame3.Visible() && Frame3.RefuseByLimit())) {
        return;
    }
    Work.Pass.Marks.Ink = ink::Plain;
    Keeping.ClearForPlacing();
    if ((Frame1.Visible() && !Frame1.PlaceIt()) || (Frame2.Visible() && !Frame2.PlaceIt()) ||
        (Frame3.Visible() && !Frame3.PlaceIt()) || (Frame4.Visible() && !Frame4.PlaceIt()) ||
        (Frame8.Visible() && !Frame8.PlaceIt()) || (Frame10.Visible() && !Frame10.PlaceIt()) ||
        (Frame12.Visible() && !Frame12.PlaceIt())) {
        return;
    }
    Work.AfterPlacing();
}

void Form17::Command2_LostFocus() {
    Work.EnableTool("Delete", false);
    Work.Withdraw(Command2);
}

void Form17::Command3_Click() {
    Hand.Leave();
    Session::Run(Work.Calls.KeepStuff);
    Work.CancelIt();
}

void Form17::Scrolled() {
    Hand.Leave();
    Work.EnableTool("Delete", false);
    Work.Withdraw(Command2);
    Command1.Enabled(true);
    Picture1.ScaleLeft(HScroll1.Value());
    Picture1.ScaleTop(VScroll1.Value());
    Work.Paint();
    Label13.Caption(std::to_string(HScroll1.Value()));
    Label14.Caption(std::to_string(VScroll1.Value()));
}

}  // namespace brindlex::geometry
