// The drawing board's common work.
#include "geometry/session.h"

#include "frame/program.h"
#include "frame/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace brindlex::geometry {

namespace {

/// The tools whose panels work.
constexpr std::array<std::string_view, 11> ReadyTools{"Circle", "Line", "Point",  "Connect", "CircTan", "Zoom",
                                                      "UnZoom", "Fit",  "Delete", "PotInt",  "ID"};

}  // namespace

Session::Session(Program& program, const Desk& desk) : On(desk), Pass(desk.Picture1, Entities), program_(program) {
}

Store Session::Live() const {
    return Store(program_.Files());
}

Scale Session::View() const {
    return {On.Picture1.ScaleWidth(), On.Picture1.ScaleHeight()};
}

Unit Session::Measure() const {
    return On.MM.Checked() ? Unit::Millimeter : Unit::Inch;
}

bool Session::HasTool(std::string_view key) {
    return std::find(ReadyTools.begin(), ReadyTools.end(), key) != ReadyTools.end();
}

void Session::EnableTool(std::string_view key, bool value) {
    On.Toolbar1.ButtonEnabled(key, value && HasTool(key));
}

void Session::Offer(Control& control) {
    control.Enabled(true);
    control.Visible(true);
}

void Session::Withdraw(Control& control) {
    control.Visible(false);
    control.Enabled(false);
}

void Session::OfferPlacing() {
    On.Command1.Enabled(true);
    On.Command1.Visible(!Enlarged());
}

void Session::OfferRemoving() {
    On.RemoveIt.Enabled(true);
    EnableTool("Delete", true);
    Offer(On.Command2);
    // What is red, for those who do not see red.
    std::string taken;
    for (const double number : NumbersPicked(Entities, Pass.Marks.Hits)) {
        taken += (taken.empty() ? "Taken:" : ",") + Str(number);
    }
    On.Command2.ToolTipText(taken);
}

void Session::WithdrawRemoving() {
    On.RemoveIt.Enabled(false);
    EnableTool("Delete", false);
    Withdraw(On.Command2);
}

void Session::CrossHairs() {
    try {
        Pass.CrossHairs();
    } catch (const Fault&) {
        program_.MsgBox("Error For CrossHairs!");
    }
}

void Session::Draw() {
    CrossHairs();
    DrawEntities();
}

void Session::DrawEntities() {
    Pass.Measure = Measure();
    Pass.View.Numbers = !On.NoNums.Checked();
    Pass.View.Tips = !On.Command3.Visible();
    Pass.Marks.Hovered = false;
    Pass.CircleStuff();
    Pass.LineStuff();
    const int lines = Entities.LineTop;
    Pass.PointStuff();
    if (Entities.LineTop > lines) {
        // A point was the second pick: its lines came after their pass.
        Pass.LineStuff();
    }
}

void Session::Paint() {
    On.Picture1.Cls();
    Draw();
}

void Session::Reload() {
    Entities.Reload(Live().Lines(), View());
}

void Session::ReDraw() {
    Reload();
    Paint();
}

void Session::ShowZoomFactor() {
    On.Label16.Caption(Str(ZoomFactor) + "x");
}

void Session::Zoom() {
    const auto view = ZoomedIn(View());
    if (!view) {
        program_.BeepBox("Maximum Zoom!", style::Plain);
        return;
    }
    On.Picture1.ScaleHeight(view->Height);
    On.Picture1.ScaleWidth(view->Width);
    ReDraw();
    // Two a step, whatever the ratio: intended.
    ZoomFactor += 2;
    ShowZoomFactor();
}

void Session::UnZoom() {
    const auto view = ZoomedOut(View());
    if (!view) {
        program_.BeepBox("Minimum UnZoom!", style::Plain);
        return;
    }
    On.Picture1.ScaleHeight(view->Height);
    On.Picture1.ScaleWidth(view->Width);
    ReDraw();
    ZoomFactor -= 2;
    ShowZoomFactor();
}

void Session::GetExtents() {
    geometry::GetExtents(Reach, Entities, Measure());
}

void Session::GetScrollVals() {
    const ScrollRanges ranges = ScrollRangesFor(Reach, View());
    On.VScroll1.Min(ranges.VMin);
    On.VScroll1.Max(ranges.VMax);
    On.HScroll1.Min(ranges.HMin);
    On.HScroll1.Max(ranges.HMax);
}

void Session::FitIt() {
    const auto fit = FitTo(Reach, View());
    GetScrollVals();
    On.Label16.Caption("0");
    if (!fit) {
        return;
    }
    On.Picture1.ScaleHeight(fit->View.Height);
    On.Picture1.ScaleWidth(fit->View.Width);
    On.VScroll1.Value(fit->VValue);
    On.HScroll1.Value(fit->HValue);
    ReDraw();
}

void Session::Fit() {
    ZoomFactor = 0;
    GetExtents();
    FitIt();
    ExtentsZero();
}

void Session::FollowDrawing() {
    if (On.AutoFit.Checked()) {
        Fit();
        return;
    }
    GetExtents();
    GetScrollVals();
    ExtentsZero();
}

void Session::FirstView(Unit unit) {
    const Scale view = geometry::FirstView(unit);
    On.Picture1.Scale(0, 0, view.Width, view.Height);
}

void Session::TakeUnit(Unit unit) {
    On.InchTo.Checked(unit == Unit::Inch);
    On.MM.Checked(unit == Unit::Millimeter);
    On.Label26.Caption(unit == Unit::Inch ? "Inches" : "Millimeters");
}

int Session::CheckStuff() {
    const int count = Live().Count();
    if (count > 0) {
        EnableTool("Connect", count >= 2);
    }
    return count;
}

void Session::CancelIt() {
    Pass.Pick = {};
    WithdrawRemoving();
    Withdraw(On.Command3);
    Withdraw(On.Command13);
    OfferPlacing();
    Run(Calls.KillCaptions);
    On.Picture1.Cls();
    Pass.Marks.Ink = ink::Plain;
    Pass.View.Picking = false;
    Draw();
}

void Session::RemoveStuff() {
    const Store live = Live();
    const Board before = Entities;
    RemovePicked(Entities, Pass.Marks.Hits);
    // What can't be read is not rewritten.
    if (const auto lines = live.TryLines()) {
        live.Rewrite(scratch::Rewrite, LinesLeft(*lines, before, Entities));
    }
    live.CheckTangents();
    WithdrawRemoving();
    Withdraw(On.Command3);
    Withdraw(On.Command13);
    Pass.Marks.Hits = {};
    Pass.View.Box = {};
    CheckStuff();
    ExtentsZero();
    GetExtents();
    if (On.AutoFit.Checked()) {
        ZoomFactor = 0;
        FitIt();
    } else {
        Paint();
    }
    CancelIt();
    Run(Calls.FindAng);
    Run(Calls.FillLists);
}

void Session::AfterPlacing() {
    CheckStuff();
    On.RemoveIt.Enabled(false);
    EnableTool("Zoom", true);
    EnableTool("UnZoom", true);
    On.SaveAs.Enabled(On.SaveAs.Click.IsBound());
    FollowDrawing();
}

void Session::NewDrawing() {
    const Store live = Live();
    live.Clear();
    Entities.Clear();
    ZoomFactor = 0;
    ExtentsZero();
    Pass.Pick = {};
    Pass.Marks = {};
    Pass.View.Box = {};
    Pass.View.Selecting = false;
    Pass.View.Picking = false;
    FirstView(Unit::Inch);
    On.Label16.Caption("0");
    On.VScroll1.Value(0);
    On.HScroll1.Value(0);
    WithdrawRemoving();
    Withdraw(On.Command3);
    Withdraw(On.Command13);
    On.Picture1.Cls();
    OfferPlacing();
    TakeUnit(Unit::Inch);
}

}  // namespace brindlex::geometry
