// Geometry: a small drawing board of circles, lines and points.
// Units: the form scales itself in inches; the drawing is in inches or millimeters, by which unit item is checked.
#pragma once

#include "frame/buttons.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/scrollbar.h"
#include "geometry/connectpanel.h"
#include "geometry/createpanel.h"
#include "geometry/extendpanel.h"
#include "geometry/geofile.h"
#include "geometry/keep.h"
#include "geometry/pairlists.h"
#include "geometry/pointer.h"
#include "geometry/session.h"
#include "geometry/showhidepanel.h"
#include "geometry/tangentpanel.h"

#include <array>
#include <string>
#include <vector>

namespace brindlex::geometry {

class Form17 : public Form {
public:
    explicit Form17(Program& program);

    /// The tools in their order on the toolbar.
    [[nodiscard]] static std::vector<ToolButton> Tools();

    /// What the panels get in the form's place; the controls that it names follow.
    Session Work{Owner(),
                 {Picture1, VScroll1, HScroll1, Toolbar1, Command1, Command2, Command3, Command9, Command13, Label16,
                  Label26, RemoveIt, SaveAs, AutoFit, NoNums, ExactTan, InchTo, MM}};

    Toolbar Toolbar1{*this, "Toolbar1", {0, 0, 5.175, 0.3333}, Tools()};
    Label Label20{*this, "Label20", {0.2917, 0.5, 0.76, 0.1667}, "Position:  X"};
    Label Label21{*this, "Label21", {1.06, 0.5, 0.8, 0.1667}};
    Label Label22{*this, "Label22", {1.9, 0.5, 0.14, 0.1667}, "Y"};
    Label Label23{*this, "Label23", {2.06, 0.5, 0.8, 0.1667}};
    Label Label25{*this, "Label25", {3.1, 0.5, 0.44, 0.1667}, "Scale:"};
    Label Label26{*this, "Label26", {3.56, 0.5, 0.85, 0.1667}, "Inches"};

    CirclePanel Frame1{*this, Work};
    LinePanel Frame2{*this, Work};
    PointPanel Frame3{*this, Work};
    ConnectPanel Frame4{*this, Work};
    TangentPanel Frame8{*this, Work};
    ExtendPanel Frame10{*this, Work};
    ShowHidePanel Frame12{*this, Work};

    CommandButton Command1{*this, "Command1", {4.0917, 0.7708, 0.99, 0.2188}, "&Place It"};
    CommandButton Command2{*this, "Command2", {4.0917, 1.0104, 0.99, 0.2188}, "&Remove"};
    CommandButton Command13{*this, "Command13", {4.0917, 1.4896, 0.99, 0.2188}, "&Keep All"};

    PictureBox Picture1{*this, "Picture1", {0.291667, 1.833333, 4.475, 2.391667}};
    PictureBox Picture2{*this, "Picture2", {0, 0, 0, 0}};
    ScrollBar VScroll1{*this, "VScroll1", {4.766667, 1.833333, 0.1771, 2.391667}, ScrollBar::Direction::Vertical};
    ScrollBar HScroll1{*this, "HScroll1", {0.291667, 4.225, 4.475, 0.1771}, ScrollBar::Direction::Horizontal};
    Label Label11{*this, "Label11", {0.2917, 4.44, 1.02, 0.1667}, "Scroll X Position"};
    Label Label13{*this, "Label13", {1.33, 4.44, 0.4, 0.1667}};
    Label Label12{*this, "Label12", {1.86, 4.44, 1.02, 0.1667}, "Scroll Y Position"};
    Label Label14{*this, "Label14", {2.9, 4.44, 0.4, 0.1667}};
    Label Label15{*this, "Label15", {3.43, 4.44, 0.8, 0.1667}, "Zoom Factor"};
    Label Label16{*this, "Label16", {4.25, 4.44, 0.6, 0.1667}};
    Label Label35{*this, "Label35", {0.2917, 4.44, 3.0, 0.1667}, "Not every line touches. See Exact Tangents."};
    CommandButton Command9{*this, "Command9", {4.8617, 0.4208, 0.22, 0.2083}, "+"};

    Label Label34{*this, "Label34", {4.0917, 1.9, 0.99, 0.1667}, "Keep"};
    CommandButton Command8{*this, "Command8", {4.0917, 2.1, 0.99, 0.225}};
    CommandButton Command10{*this, "Command10", {4.0917, 2.375, 0.99, 0.225}};
    CommandButton Command11{*this, "Command11", {4.0917, 2.65, 0.99, 0.225}};
    CommandButton Command12{*this, "Command12", {4.0917, 2.925, 0.99, 0.225}};
    CommandButton Command14{*this, "Command14", {4.0917, 3.2, 0.99, 0.225}, "All"};
    CommandButton Command15{*this, "Command15", {4.0917, 3.475, 0.99, 0.225}, "Cancel"};
    // Last in the tab order, so that the focus does not come here before all else.
    CommandButton Command3{*this, "Command3", {4.0917, 1.25, 0.99, 0.2188}, "C&ancel"};
    TimerControl Timer1{*this, "Timer1"};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    MenuItem File{*this, "File", "&File"};
    MenuItem NewGeo{File, "NewGeo", "New"};
    MenuItem OpenIt{File, "OpenIt", "Open"};
    MenuItem SaveAs{File, "SaveAs", "Save As"};
    MenuItem Sep1{File, "Sep1", "-"};
    MenuItem Prnt{File, "Prnt", "Print"};
    MenuItem PrntWin{Prnt, "PrntWin", "&Window"};
    MenuItem PrntPic{Prnt, "PrntPic", "&Picture"};
    MenuItem Rep{File, "Rep", "Repor&t"};
    MenuItem Sep2{File, "Sep2", "-"};
    MenuItem Exit{File, "Exit", "&Exit"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem RemoveIt{Edit, "RemoveIt", "Remove"};
    MenuItem Sep3{Edit, "Sep3", "-"};
    MenuItem AutoFit{Edit, "AutoFit", "Auto Fit"};
    MenuItem NoNums{Edit, "NoNums", "No Numbers"};
    MenuItem ExactTan{Edit, "ExactTan", "Exact Tangents"};
    MenuItem Navigate{*this, "Navigate", "&Navigate"};
    MenuItem RightTri{Navigate, "RightTri", "&Right Triangles"};
    MenuItem Oblique{Navigate, "Oblique", "&Oblique Triangles"};
    MenuItem BoltCirc{Navigate, "BoltCirc", "&Bolt Circles"};
    MenuItem Sines{Navigate, "Sines", "S&ine Plates"};
    MenuItem Polygons{Navigate, "Polygons", "Poly&gons"};
    MenuItem SpdFd{Navigate, "SpdFd", "Spee&ds + Feeds"};
    MenuItem WinCalc{Navigate, "WinCalc", "Windows &Calculator"};
    MenuItem Sep4{Navigate, "Sep4", "-"};
    MenuItem Menu{Navigate, "Menu", "Men&u"};
    MenuItem Units{*this, "Units", "&Units"};
    MenuItem InchTo{Units, "InchTo", "Scale In Inches"};
    MenuItem Sep5{Units, "Sep5", "-"};
    MenuItem MM{Units, "MM", "Scale In Millimeters"};
    MenuItem Geom{*this, "Geom", "Geometry"};
    MenuItem GeoRpt{Geom, "GeoRpt", "Report"};
    MenuItem Help{*this, "Help", "&Help"};
    MenuItem About{Help, "About", "&About"};

    Pointer Hand{Work, Frame4, Label21, Label23, {&Frame1, &Frame2, &Frame3, &Frame8}};
    PairLists Pairs{Work, Frame8, Frame10.Combo2};
    Keep Keeping{Work, Frame4, Frame8, {Label34, Command8, Command10, Command11, Command12, Command14, Command15}};

    GeoFile Files{Work, CommonDialog1, {[this] { NewStuff(); }, [this](const std::string& file) { ShowFile(file); }}};

    /// An empty drawing in inches.
    void NewStuff();

protected:
    void Form_Initialize() override;
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Resize() override;
    void Form_MouseMove(const Mouse& mouse) override;

private:
    void BindSession();
    void BindButtons();
    void BindPicture();
    void BindMenus();

    void Command1_Click();
    void Command2_LostFocus();
    void Command3_Click();
    void Command9_Click();
    void Scrolled();
    void Toolbar1_ButtonClick(const ToolButton& tool);
    void Toolbar1_Change();
    void Timer1_Timer();
    void Exit_Click();
    void NewGeo_Click();
    /// The program's name, and behind it the drawing's file where it has one.
    void ShowFile(const std::string& file);
    void GeoRpt_Click();
    void NoNums_Click();
    void PrntWin_Click();
    void PrntPic_Click();
    [[nodiscard]] bool NothingToPrint();

    [[nodiscard]] std::array<Frame*, 7> Panels();
    void ShowOnly(Frame& panel);
    void PressMode(const std::string& key);
    /// Puts all as the design has it, for a form that loads.
    void LoadBars();
    /// The store goes, and the menu comes.
    void Leave();

    // The layout, in inches.

    void GetPboxData();
    void UsePBoxData();
    void Enlarge();
    void MoveScrollBars();
    /// The status labels beside the picture, from a height on; returns the height below the last.
    double MoveColumn(double left, double top);
    void MoveStatusRow();
    /// Warns under the picture of a candidate that misses what it is to touch.
    void ShowTouching(bool every);
    void MoveWarning();
    void MoveStrip(double left, double top);
    [[nodiscard]] double ColumnLeft() const;
    void MoveLabelRow(double top);

    double room_ = 0;  ///< left under the picture
};

}  // namespace brindlex::geometry
