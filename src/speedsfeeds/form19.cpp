// Speeds + Feeds: the form's life, its layout, its two modes.
#include "speedsfeeds/form19.h"

#include "frame/navigation.h"
#include "frame/program.h"
#include "services/activebox.h"
#include "services/filters.h"

namespace brindlex::speedsfeeds {

namespace {

constexpr double DesignWidth = 8064;
constexpr double DesignHeight = 4236;

}  // namespace

Form19::Form19(Program& program) : Form(program, "Form19", DesignWidth, DesignHeight) {
    Sizable(true);
    InchTo.Checked(true);
    ConvDat.Enabled(false);
    DelDat.Enabled(false);
    Text1.Locked(true);
    Text2.Locked(true);
    for (TextBox* const name : names_) {
        name->Locked(true);
        name->TabStop(false);
    }
    for (TextBox* const result : results_) {
        result->Locked(true);
    }
    const struct {
        Control& Named;
        Control& Beside;
        const char* Tip;
    } tips[] = {{Label16, Text10, "Revolutions Per Minute"},
                {Label17, Text11, "Inches Per Minute"},
                {Label18, Text12, "Metal Removal Rate"},
                {Label20, Text16, "Required Horse Power"}};
    for (const auto& tip : tips) {
        tip.Named.ToolTipText(tip.Tip);
        tip.Beside.ToolTipText(tip.Tip);
    }
    BindFilters(*this);
    BindControls();
    BindMenus();
}

void Form19::BindControls() {
    Combo1.Click.Bind(this, &Form19::Combo1_Click);
    Combo2.Click.Bind(this, &Form19::Combo2_Click);
    Combo3.Click.Bind(this, &Form19::Combo3_Click);
    Combo4.Click.Bind(this, &Form19::Combo4_Click);
    Text17.Change.Bind(this, &Form19::Text17_Change);
    Text18.Change.Bind(this, &Form19::Text18_Change);
    Text19.Change.Bind(this, &Form19::Text19_Change);
    Text4.Change.Bind(this, &Form19::Text4_Change);
    Command1.Click.Bind(this, &Form19::Command1_Click);
    Command2.Click.Bind(this, &Form19::ClearAll);
    for (TextBox* const box : {&Text1, &Text2, &Text17, &Text18, &Text19}) {
        BindFocus(*box);
    }
    for (TextBox* const box : entries_) {
        BindFocus(*box);
    }
    // The machine and the names are picked from their lists: text typed under the boxes would be out of sight.
    for (ComboBox* const combo : {&Combo1, &Combo2, &Combo3, &Combo4}) {
        combo->KeyPress.Bind([this](int& key) {
            key = 0;
            Owner().Beep();
        });
    }
}

void Form19::BindMenus() {
    ConvDat.Click.Bind(this, &Form19::ConvDat_Click);
    DelDat.Click.Bind(this, &Form19::DelDat_Click);
    // Two items, one toggle, whichever is chosen: intended.
    InchTo.Click.Bind(this, &Form19::Units_Click);
    MMTo.Click.Bind(this, &Form19::Units_Click);
    DataOp.Click.Bind(this, &Form19::DataOp_Click);
    BindNavigation(RightTri, "Form1");
    BindNavigation(OblTri, "Form2");
    BindNavigation(BoltC, "Form8");
    BindNavigation(Sin, "Form12");
    BindNavigation(Poly, "Form16");
    BindNavigation(Geom, "Form17");
    BindNavigation(Menu, "Form11");
    BindNavigation(Exit, "Form11");
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form19::Form_Initialize() {
    layout_.SaveLayout(*this);
}

void Form19::Form_Resize() {
    layout_.SortItOut(*this);
}

void Form19::Form_Load() {
    RangeFail = 0;
    FillBusy = 0;
    PlaceOnScreen();
    // Showing the machine chooses it, which makes its store the one in use and fills the tools.
    Combo1.AddItem(std::string(MillText));
    Combo1.Text(std::string(MillText));
    // The title keeps the machine of the start when another is chosen: intended.
    Caption(Owner().Shared().VerCaption + " " + Combo1.Text() + " Speeds and Feeds");
    Command1.Default(true);
    ConvDat.Enabled(false);
}

void Form19::Form_Unload() {
    GoTo("Form11");
}

void Form19::ClearEntries() {
    for (TextBox* const box : entries_) {
        box->Text("");
    }
}

void Form19::ClearNames() {
    for (TextBox* const name : names_) {
        name->Text("");
    }
}

void Form19::ClearRanges() {
    Text1.Text("");
    Text2.Text("");
}

void Form19::ClearAll() {
    ClearEntries();
    ClearNames();
    for (TextBox* const name : names_) {
        name->ZOrder(0);
        name->Visible(true);
        if (!DataOp.Checked()) {
            name->Locked(true);
        }
    }
    ClearRanges();
    ConvDat.Enabled(false);
}

void Form19::DataOp_Click() {
    DataOp.Checked(!DataOp.Checked());
    if (DataOp.Checked()) {
        EnterDataMode();
    } else {
        SafeMode();
    }
}

void Form19::EnterDataMode() {
    ClearAll();
    for (TextBox* const name : names_) {
        name->Locked(false);
        name->TabStop(true);
    }
    for (ComboBox* const combo : choices_) {
        combo->TabStop(false);
    }
    Text1.Locked(false);
    Text2.Locked(false);
    Frame2.Caption("Operations (Mode: ENTER DATA)");
    Command1.Caption("Enter Data");
    Text17.SetFocus();
}

void Form19::SafeMode() {
    ClearNames();
    ClearRanges();
    for (TextBox* const box : {&Text17, &Text18, &Text19, &Text1, &Text2}) {
        box->Locked(true);
    }
    // The tab order stays as it was for entering data: intended.
    Frame2.Caption("Operations (Mode: SAFE)");
    Command1.Caption("Calculate!");
    Text3.SetFocus();
    DelDat.Enabled(false);
}

}  // namespace brindlex::speedsfeeds
