// Geometry Report: the drawing as text, to read and to print.
// Units: twips.
#pragma once

#include "frame/buttons.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/textbox.h"

#include <string>
#include <vector>

namespace brindlex::geometry {

class Form18 : public Form {
public:
    explicit Form18(Program& program);

    TextBox Text1{*this, "Text1", {120, 120, 5292, 3960}};
    CommandButton Command1{*this, "Command1", {1140, 4200, 1440, 375}, "&OK"};
    CommandButton Command2{*this, "Command2", {2940, 4200, 1440, 375}, "Print Report"};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

protected:
    void Form_Initialize() override;
    void Form_Load() override;
    void Form_Resize() override;

private:
    void GetData();
    void UseData();
    void Command1_Click();
    void Command2_Click();
    void PrintReport();
    /// The pairs that the drawing's form lists; each is chosen on the way, and the first in the end.
    [[nodiscard]] std::vector<std::string> Crossings(bool lines);

    struct Ratios {
        double Left = 0;
        double Top = 0;
        double Width = 1;
        double Height = 1;
    };
    [[nodiscard]] Ratios RatiosOf(const Control& control) const;
    void Apply(Control& control, const Ratios& ratios) const;

    Ratios text_;
    Ratios ok_;
    Ratios print_;
};

}  // namespace brindlex::geometry
