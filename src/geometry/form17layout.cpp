// Geometry: where things stand when the form changes its size, and the enlarged picture.
// Units: inches on the form.
#include "geometry/form17.h"

#include "frame/program.h"

#include <algorithm>
#include <array>

namespace brindlex::geometry {

namespace {

/// Height over width of the picture on the form; the fit has a neighbour of it.
constexpr double Aspect = 0.53445071;
constexpr double PictureLeft = 0.278;
constexpr double PictureTop = 1.75;
constexpr double LargePictureTop = 0.633;
constexpr double LabelTop = 0.5;
constexpr double LargeLabelTop = 0.4335;
constexpr double HiddenPanelTop = 1.583;
constexpr double SmallestScreen = 7200;
/// The part of the screen's height from which the picture can be enlarged.
constexpr double NearlyAll = 0.9;
constexpr double ColumnStep = 0.275;
constexpr double ColumnWidth = 1.1;
constexpr double ColumnGap = 0.05;
constexpr double ToolHeight = 0.3333;
constexpr double RowGap = 0.035;
constexpr double WarningWidth = 3.0;

}  // namespace

void Form17::GetPboxData() {
    room_ = ScaleHeight() - (Picture1.Top() + Picture1.Height());
}

void Form17::UsePBoxData() {
    const bool wasLarge = Work.Enlarged();
    Command9.Caption("+");
    Command9.ToolTipText("Maximize");
    for (const ToolButton& tool : Toolbar1.Buttons()) {
        if (tool.Group) {
            Work.EnableTool(tool.Key, true);
        }
    }
    Work.EnableTool("Connect", Work.Live().Count() >= 2);
    if (wasLarge) {
        Keeping.HideStrip();
        Work.OfferPlacing();
        for (Frame* const panel : Panels()) {
            panel->Top(PanelPlace.Top);
        }
    }
    if (Owner().Screen().Height <= SmallestScreen) {
        MoveWarning();
        return;
    }
    const double height = std::max(ScaleHeight() - room_ - PictureTop, 0.0);
    Picture1.Move(PictureLeft, PictureTop, height / Aspect, height);
    MoveScrollBars();
    if (ColumnLeft() + ColumnWidth <= ScaleWidth()) {
        MoveColumn(ColumnLeft(), PictureTop);
    } else {
        MoveStatusRow();
    }
    MoveWarning();
    Work.Reload();
    Work.Draw();
    MoveLabelRow(LabelTop);
    Command9.Visible(Height() / Owner().Screen().Height >= NearlyAll);
}

void Form17::MoveScrollBars() {
    const double right = Picture1.Left() + Picture1.Width();
    const double bottom = Picture1.Top() + Picture1.Height();
    VScroll1.Move(right, Picture1.Top(), VScroll1.Width(), Picture1.Height());
    // Never below the window's edge, where nobody could reach it.
    const double top = std::min(bottom, std::max(ScaleHeight() - HScroll1.Height(), Picture1.Top()));
    HScroll1.Move(Picture1.Left(), top, Picture1.Width(), HScroll1.Height());
    Toolbar1.Move(0, 0, ScaleWidth(), ToolHeight);
}

double Form17::ColumnLeft() const {
    return VScroll1.Left() + VScroll1.Width() + ColumnGap;
}

double Form17::MoveColumn(double left, double top) {
    for (Label* const label : {&Label11, &Label13, &Label12, &Label14, &Label15, &Label16}) {
        label->Move(left, top, ColumnWidth, label->Height());
        top += ColumnStep;
    }
    return top;
}

// Where the column would stand outside the window the labels are a row under the picture.
void Form17::MoveStatusRow() {
    struct Cell {
        Label& Where;
        double Left;
        double Width;
    };
    const double top = HScroll1.Top() + HScroll1.Height() + RowGap;
    const Cell cells[] = {{Label11, 0, 1.02},   {Label13, 1.04, 0.4}, {Label12, 1.57, 1.02},
                          {Label14, 2.61, 0.4}, {Label15, 3.14, 0.8}, {Label16, 3.96, 0.6}};
    for (const Cell& cell : cells) {
        cell.Where.Move(PictureLeft + cell.Left, top, cell.Width, cell.Where.Height());
    }
}

void Form17::ShowTouching(bool every) {
    Label35.Visible(!every);
    MoveWarning();
}

// Under the picture. Where the status row stands there, the warning takes the place of the scroll values; beside the
// enlarged picture there is no room but above it.
void Form17::MoveWarning() {
    const bool row = Label16.Top() == Label11.Top();
    for (Label* const label : {&Label11, &Label13, &Label12, &Label14}) {
        label->Visible(!(row && Label35.Visible()));
    }
    if (Work.Enlarged()) {
        Label35.Move(Label26.Left() + Label26.Width(), LargeLabelTop, WarningWidth, Label35.Height());
    } else {
        Label35.Move(PictureLeft, HScroll1.Top() + HScroll1.Height() + RowGap, WarningWidth, Label35.Height());
    }
}

void Form17::MoveStrip(double left, double top) {
    Label34.Move(left, top, ColumnWidth, Label34.Height());
    for (CommandButton* const button : {&Command8, &Command10, &Command11, &Command12, &Command14, &Command15}) {
        top += ColumnStep;
        button->Move(left, top, ColumnWidth, ColumnStep - ColumnGap);
    }
}

void Form17::MoveLabelRow(double top) {
    for (Label* const label : {&Label20, &Label21, &Label22, &Label23, &Label25, &Label26}) {
        label->Top(top);
    }
}

void Form17::Command9_Click() {
    Hand.Leave();
    if (!Work.Enlarged()) {
        Enlarge();
        return;
    }
    UsePBoxData();
}

void Form17::Enlarge() {
    Command9.Caption("-");
    Command9.ToolTipText("Minumize");  // spelled so: intended
    Command1.Enabled(false);
    Keeping.ShowStrip();
    constexpr double Above = 0.5;
    double height = ScaleHeight() - Above - HScroll1.Height();
    if (height / Aspect > ScaleWidth()) {
        height = ScaleWidth() * Aspect;
    }
    Picture1.Move(0, LargePictureTop, height / Aspect - VScroll1.Width(), height);
    MoveScrollBars();
    MoveLabelRow(LargeLabelTop);
    // Down the right side of the picture: beside it where there is room, else on it.
    const double inside = Picture1.Left() + Picture1.Width() - ColumnWidth - ColumnGap;
    const double left = ColumnLeft() + ColumnWidth <= ScaleWidth() ? ColumnLeft() : inside;
    MoveStrip(left, MoveColumn(left, LargePictureTop + ColumnGap));
    for (Frame* const panel : std::array<Frame*, 3>{&Frame2, &Frame4, &Frame10}) {
        panel->Top(HiddenPanelTop);
    }
    MoveWarning();
    Command1.Visible(false);
    Work.Reload();
    Work.Draw();
    Work.GetScrollVals();
}

}  // namespace brindlex::geometry
