// The three panels that create entities from typed values: a circle, a line, a point.
// Units: those of the drawing; places in twips.
#pragma once

#include "frame/buttons.h"
#include "frame/label.h"
#include "frame/textbox.h"
#include "geometry/panelplace.h"
#include "geometry/session.h"

namespace brindlex::geometry {

/// The most characters of an entry that goes into a record as typed: its field is that wide.
inline constexpr int EntryWidth = 27;

/// A circle by its centre and its diameter or radius.
class CirclePanel : public Frame {
public:
    CirclePanel(ControlContainer& form, Session& work);

    Label Label1{*this, "Label1", {180, 270, 1740, 225}, "Place Center at:"};
    Label Label2{*this, "Label2", {180, 630, 240, 225}, "X:"};
    TextBox Text1{*this, "Text1", {480, 570, 1440, 300}};
    Label Label3{*this, "Label3", {180, 1005, 240, 225}, "Y:"};
    TextBox Text2{*this, "Text2", {480, 945, 1440, 300}};
    Label Label4{*this, "Label4", {2520, 630, 840, 225}, "Diameter:"};
    TextBox Text3{*this, "Text3", {3420, 570, 1440, 300}};
    CheckBox Check2{*this, "Check2", {2520, 945, 2400, 300}, "This is the Radius."};

    /// Shows the message where there is no room for another circle, clears the entries, and returns true.
    bool RefuseByLimit();
    /// Places the circle; false where a check refused the entries.
    bool PlaceIt();
    void Clear();

private:
    void Check2_Click();
    [[nodiscard]] bool CheckEntries();

    Session& work_;
};

/// A line by its two ends; the next one may begin where it ends.
class LinePanel : public Frame {
public:
    LinePanel(ControlContainer& form, Session& work);

    Label Label5{*this, "Label5", {180, 270, 1560, 225}, "Line Starts at"};
    Label Label6{*this, "Label6", {180, 630, 240, 225}, "X:"};
    TextBox Text6{*this, "Text6", {480, 570, 1440, 300}};
    Label Label7{*this, "Label7", {180, 1005, 240, 225}, "Y:"};
    TextBox Text7{*this, "Text7", {480, 945, 1440, 300}};
    Label Label8{*this, "Label8", {2160, 270, 1140, 225}, "Line Ends at"};
    Label Label9{*this, "Label9", {2160, 630, 240, 225}, "X:"};
    TextBox Text8{*this, "Text8", {2460, 570, 1440, 300}};
    Label Label10{*this, "Label10", {2160, 1005, 240, 225}, "Y:"};
    TextBox Text9{*this, "Text9", {2460, 945, 1440, 300}};
    CheckBox Check1{*this, "Check1", {3300, 225, 1980, 300}, "Begin next line here."};

    bool RefuseByLimit();
    bool PlaceIt();
    void Clear();

private:
    void Check1_Click();
    /// The end of the last line becomes the start of the next, as it was typed.
    void Chain();

    Session& work_;
};

/// A point by its place.
class PointPanel : public Frame {
public:
    PointPanel(ControlContainer& form, Session& work);

    Label Label17{*this, "Label17", {180, 270, 1740, 225}, "Locate Point At:"};
    Label Label18{*this, "Label18", {180, 630, 240, 225}, "X:"};
    TextBox Text10{*this, "Text10", {480, 570, 1440, 300}};
    Label Label19{*this, "Label19", {180, 1005, 240, 225}, "Y:"};
    TextBox Text11{*this, "Text11", {480, 945, 1440, 300}};

    bool RefuseByLimit();
    bool PlaceIt();
    void Clear();

private:
    Session& work_;
};

}  // namespace brindlex::geometry
