// What the panels get of the drawing board: the entities, the live drawing, the view, and the few controls beside the
// panels that their work moves. No panel sees the form, and no panel sees another.
// Units: those of the drawing.
#pragma once

#include "frame/buttons.h"
#include "frame/label.h"
#include "frame/menuitem.h"
#include "frame/scrollbar.h"
#include "geometry/drawpass.h"
#include "geometry/steps.h"
#include "geometry/store.h"
#include "geometry/viewport.h"

#include <functional>
#include <string>
#include <type_traits>

namespace brindlex {
class Program;
}

namespace brindlex::geometry {

/// The controls beside the panels.
struct Desk {
    PictureBox& Picture1;
    ScrollBar& VScroll1;
    ScrollBar& HScroll1;
    Toolbar& Toolbar1;
    CommandButton& Command1;   ///< Place It
    CommandButton& Command2;   ///< Remove
    CommandButton& Command3;   ///< Cancel
    CommandButton& Command9;   ///< "+" and "-"
    CommandButton& Command13;  ///< Keep All
    Label& Label16;            ///< the zoom factor
    Label& Label26;            ///< the unit
    MenuItem& RemoveIt;
    MenuItem& SaveAs;
    MenuItem& AutoFit;
    MenuItem& NoNums;
    MenuItem& ExactTan;
    MenuItem& InchTo;
    MenuItem& MM;
};

/// What one part of the board asks of another; the form binds them. An empty one is passed over.
struct SessionCalls {
    std::function<void()> KillCaptions;  ///< the connect panel and the Keep buttons come to rest
    std::function<void()> KeepStuff;     ///< the candidates whose buttons have a caption leave the drawing
    std::function<void()> FindAng;       ///< the pairs of lines are listed anew
    std::function<void()> FillLists;     ///< the lists of entities are filled anew
    /// Lines are offered to be kept: the first one's number, and how many.
    std::function<void(int first, int count)> OfferLines;
    std::function<void()> WithdrawLines;  ///< none is offered after all
    std::function<void()> OfferCircles;   ///< the last four circles are offered
    /// Whether every candidate touches what it is to touch; a label warns of one that does not.
    std::function<void(bool every)> TellTouching;
};

class Session {
public:
    Session(Program& program, const Desk& desk);

    Desk On;
    Board Entities;
    DrawPass Pass;
    SessionCalls Calls;
    double ZoomFactor = 0;
    Extents Reach;

    [[nodiscard]] Program& Owner() const { return program_; }
    [[nodiscard]] Store Live() const;
    [[nodiscard]] Scale View() const;
    [[nodiscard]] Unit Measure() const;
    /// How the solvers take a ratio without a divisor.
    [[nodiscard]] Tangents Tangency() const { return On.ExactTan.Checked() ? Tangents::Exact : Tangents::AsRuled; }
    /// The tool is the pressed one.
    [[nodiscard]] bool Pressed(std::string_view tool) const { return On.Toolbar1.Buttons(tool).Value != 0; }
    /// The picture is enlarged.
    [[nodiscard]] bool Enlarged() const { return On.Command9.Caption() == "-"; }
    /// Calls a function of Calls where it is bound.
    template <class... Given>
    static void Run(const std::function<void(Given...)>& call, std::type_identity_t<Given>... given) {
        if (call) {
            call(given...);
        }
    }

    // Buttons. What is hidden is disabled too, and what is shown is enabled.

    void Offer(Control& control);
    void Withdraw(Control& control);
    /// Place It; it stays hidden behind the enlarged picture.
    void OfferPlacing();
    /// The tool, the menu item and the button that remove what the pick box took.
    void OfferRemoving();
    void WithdrawRemoving();

    // Drawing.

    void CrossHairs();
    /// The three passes, over what stands.
    void DrawEntities();
    /// The cross hairs and the three passes, over what stands.
    void Draw();
    /// The same on a cleared picture.
    void Paint();
    /// The arrays from the store.
    void Reload();
    /// Reload, Paint.
    void ReDraw();

    // The view.

    void Zoom();
    void UnZoom();
    void ExtentsZero() { Reach = {}; }
    void GetExtents();
    void GetScrollVals();
    void FitIt();
    /// The zoom factor to 0, then the view to the extents.
    void Fit();
    /// After a change of the drawing: the view is fitted where Auto Fit is checked, else the scroll bars follow.
    void FollowDrawing();
    /// The view that a new drawing begins with.
    void FirstView(Unit unit);
    /// Which unit item is checked, and its word beside "Scale:".
    void TakeUnit(Unit unit);

    // Operations.

    /// How many records the store holds; Connect is enabled from two on, and left as it is by an empty store.
    int CheckStuff();
    /// Returns the form to rest: no pick, no candidates offered, the drawing painted afresh.
    void CancelIt();
    /// Deletes what the pick box took.
    void RemoveStuff();
    /// What Place It ends with, for every panel.
    void AfterPlacing();
    /// The session's part of a new drawing: store, arrays, picks, view.
    void NewDrawing();
    /// Whether the tool may be enabled at all: its panel works.
    [[nodiscard]] static bool HasTool(std::string_view key);
    void EnableTool(std::string_view key, bool value);

private:
    void ShowZoomFactor();

    Program& program_;
};

}  // namespace brindlex::geometry
