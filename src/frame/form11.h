// The main menu: the first form, and the hub of navigation.
#pragma once

#include "frame/buttons.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"

#include <functional>

namespace brindlex {

class Form11 : public Form {
public:
    explicit Form11(Program& program);

    PictureBox Picture1{*this, "Picture1", {360, 240, 3132, 3612}};
    Frame Frame1{*this, "Frame1", {3672, 240, 2004, 3612}};
    CommandButton Command1{Frame1, "Command1", {180, 150, 1644, 330}, "&Right Triangles"};
    CommandButton Command2{Frame1, "Command2", {180, 525, 1644, 330}, "&Oblique Triangles"};
    CommandButton Command3{Frame1, "Command3", {180, 900, 1644, 330}, "&Bolt Circles"};
    CommandButton Command4{Frame1, "Command4", {180, 1275, 1644, 330}, "S&ine Plates"};
    CommandButton Command6{Frame1, "Command6", {180, 1650, 1644, 330}, "Poly&gons"};
    CommandButton Command8{Frame1, "Command8", {180, 2025, 1644, 330}, "Geometr&y"};
    CommandButton Command7{Frame1, "Command7", {180, 2400, 1644, 330}, "&Speeds + Feeds"};
    CommandButton Command9{Frame1, "Command9", {180, 2775, 1644, 330}, "&About Brindlex"};
    CommandButton Command5{Frame1, "Command5", {180, 3150, 1644, 330}, "&Exit"};

    /// What is done before the live drawing is deleted with the end of the run. May be empty.
    std::function<void()> BeforeTheDrawingGoes;

    /// Draws the title: a right triangle with the program's name and version along its sides.
    void TitleAnim();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void Command9_Click();
    void Command5_Click();
    void Picture1_Paint();
    void BindCalculators();
    void UnloadAll();
};

}  // namespace brindlex
