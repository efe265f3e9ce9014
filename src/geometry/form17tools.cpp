// Geometry: the toolbar and the modes that it presses.
#include "geometry/form17.h"

#include "frame/program.h"

#include <algorithm>

namespace brindlex::geometry {

namespace {

/// A name for those who hear the tool and do not see it; the tip tells the rest.
ToolButton Mode(const char* key, const char* tip, const char* name) {
    return {key, tip, name, true, Session::HasTool(key), 0};
}

ToolButton Act(const char* key, const char* tip, const char* name) {
    return {key, tip, name, false, Session::HasTool(key), 0};
}

}  // namespace

std::vector<ToolButton> Form17::Tools() {
    std::vector<ToolButton> tools{Mode("Circle", "Create a Circle", "Circle"),
                                  Mode("Line", "Create a Line", "Line"),
                                  Mode("Point", "Create a Point", "Point"),
                                  Mode("Connect", "Connect 2 Entities", "Connect"),
                                  Mode("CircTan", "Circle Tangent To Angle", "Tangent Circle"),
                                  Mode("PotInt", "Extend Lines to Intersection", "Extend"),
                                  Mode("ID", "Show, Hide, Delete Entities", "Show, Hide, Delete"),
                                  ToolButton{},
                                  Act("Zoom", "Zoom In", "Zoom In"),
                                  Act("UnZoom", "Zoom Out", "Zoom Out"),
                                  Act("Fit", "Fit In Window", "Fit"),
                                  ToolButton{},
                                  Act("Delete", "Delete Entity", "Delete")};
    tools.front().Value = 1;
    const auto disabled = [](ToolButton& tool) { tool.Enabled = false; };
    disabled(tools[3]);
    disabled(tools.back());
    return tools;
}

void Form17::ShowOnly(Frame& panel) {
    for (Frame* const each : Panels()) {
        each->Visible(each == &panel);
        each->Enabled(each == &panel);
    }
}

void Form17::PressMode(const std::string& key) {
    struct ModeRow {
        const char* Key;
        Frame& Panel;
        InputControl* Focus;
        bool ListsPairs;
    };
    const ModeRow rows[] = {
        {"Circle", Frame1, &Frame1.Text3, false}, {"Line", Frame2, &Frame2.Text6, false},
        {"Point", Frame3, &Frame3.Text10, false}, {"Connect", Frame4, nullptr, false},
        {"CircTan", Frame8, &Frame8.Text4, true}, {"PotInt", Frame10, nullptr, true},
        {"ID", Frame12, nullptr, false},
    };
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows), [&](const ModeRow& r) { return r.Key == key; });
    if (row == std::end(rows)) {
        return;
    }
    Work.CancelIt();
    const bool lists = &row->Panel == &Frame12;
    if (!lists) {
        Frame12.ClearShowHide();
    }
    ShowOnly(row->Panel);
    if (row->Focus != nullptr) {
        row->Focus->SetFocus();
    }
    if (&row->Panel == &Frame10) {
        Frame10.Combo2.Clear();
    }
    if (row->ListsPairs) {
        Session::Run(Work.Calls.FindAng);
    }
    if (lists) {
        Session::Run(Work.Calls.FillLists);
        Command1.Caption(Frame12.PlacingCaption());
    }
}

void Form17::Toolbar1_ButtonClick(const ToolButton& tool) {
    const std::string key = tool.Key;
    try {
        Hand.Leave();
        Work.EnableTool("Delete", false);
        Work.Withdraw(Command2);
        // Every tool puts the caption back, those of the view too: intended.
        Command1.Caption("&Place It");
        if (key == "Zoom") {
            Work.Zoom();
        } else if (key == "UnZoom") {
            Work.UnZoom();
        } else if (key == "Fit") {
            Work.Fit();
        } else if (key == "Delete") {
            Work.RemoveStuff();
        } else {
            PressMode(key);
        }
    } catch (const Fault&) {
        Owner().MsgBox("Error In ToolBar!");
    }
}

void Form17::Toolbar1_Change() {
    Toolbar1.SaveToolbar("Toolbar1", "Geometry", Owner().Shared().VerCaption);
}

void Form17::Timer1_Timer() {
    Toolbar1.RestoreToolbar("Toolbar1", "Geometry", Owner().Shared().VerCaption);
    Timer1.Enabled(false);
}

}  // namespace brindlex::geometry
