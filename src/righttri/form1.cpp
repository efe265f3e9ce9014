// Right Triangles: loading, entries, calculation.
#include "righttri/form1.h"

#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/filters.h"

namespace brindlex::righttri {

namespace {

constexpr const char* Title = "Solutions To Right Triangles";
constexpr double PictureFontSize = 9.75;

// The area's label starts here, but ends on the picture.
constexpr double AreaLeft = 4800;
constexpr double AreaLastRight = 6564;
constexpr double AreaLeftWhenWide = 4770;

}  // namespace

Form1::Form1(Program& program) : Form(program, "Form1", 7296, 5436) {
    Picture1.FontSize(PictureFontSize);
    Picture2.FontSize(PictureFontSize);
    Picture2.Visible(false);
    Label1.Transparent(true);
    Label2.Transparent(true);
    Label2.AutoSize(true);
    Combo1.ListOnly(true);
    for (TextBox* const box : boxes_) {
        box->Locked(true);
    }
    BindFilters(*this);
    BindEntries();
    BindMenus();
}

void Form1::BindEntries() {
    Combo1.Click.Bind(this, &Form1::Combo1_Click);
    Text1.Change.Bind(this, &Form1::EntryChanged);
    Text2.Change.Bind(this, &Form1::EntryChanged);
    Check1.Click.Bind(this, &Form1::Check1_Click);
    Command1.Click.Bind(this, &Form1::Command1_Click);
    Picture1.MouseUp.Bind(this, &Form1::Picture1_MouseUp);
    for (TextBox* const box : {&Text1, &Text2}) {
        BindFocus(*box, &Paste, true);
        BindTextTip(*box);
    }
    for (TextBox* const box : boxes_) {
        BindFocus(*box, &Paste, false);
        BindTextTip(*box);
    }
}

SharedState& Form1::Shared() const {
    return Owner().Shared();
}

void Form1::Form_Load() {
    PlaceOnScreen();
    Caption(Shared().VerCaption + Title);
    ReadSettingsFile();
    Check1.Enabled(false);
    for (const char* const form : {"Form2", "Form5"}) {
        if (Owner().Knows(form)) {
            Owner().Get(form).Load();
        }
    }
    const CaseLabels& first = Cases().front();
    Combo1.Text(std::string(first.Name));
    InputLabel1.Caption(std::string(first.InputLabel1));
    InputLabel2.Caption(std::string(first.InputLabel2));
    for (const CaseLabels& labels : Cases()) {
        Combo1.AddItem(std::string(labels.Name));
    }
    for (TextBox* const box : boxes_) {
        box->Visible(TextOn.Checked());
    }
    DrawTriangle();
    LettersOrRoomForBoxes();
    Command1.Default(true);
}

void Form1::Form_Unload() {
    NewFile();
    GoTo("Form11");
}

std::vector<AngleField> Form1::AngleFields() {
    return {{&Check1, &Text2, InputLabel2.Caption()}};
}

// Entries.

void Form1::Combo1_Click() {
    if (const auto labels = FindCase(Combo1.Text())) {
        InputLabel1.Caption(std::string(labels->InputLabel1));
        InputLabel2.Caption(std::string(labels->InputLabel2));
    }
    Check1.Enabled(InputLabel2.Caption() == "Angle B" || InputLabel2.Caption() == "Angle C");
    Text1.Text("");
    Text2.Text("");
    Picture1.Cls();
    DrawTriangle();
    LettersOrRoomForBoxes();
    ClearBoxes();
    TransferText();
    ForgetConversionAndArea();
}

/// Every change of an entry wipes the results.
void Form1::EntryChanged() {
    Picture1.Cls();
    DrawTriangle();
    if (TextOn.Checked()) {
        ClearBoxes();
    }
    LettersOrRoomForBoxes();
    ForgetConversionAndArea();
    TransferText();
}

void Form1::TransferText() {
    if (!TextOn.Checked()) {
        return;
    }
    struct Row {
        std::string_view label;
        Part part;
    };
    static constexpr std::array<Row, 5> Named{{
        {"Length of side a", Part::SideA},
        {"Length of side b", Part::SideB},
        {"Length of side c", Part::SideC},
        {"Angle B", Part::AngleB},
        {"Angle C", Part::AngleC},
    }};
    for (const Row& row : Named) {
        if (row.label == InputLabel1.Caption()) {
            ShowInBox(row.part, Text1.Text(), true);
        }
        if (row.label == InputLabel2.Caption()) {
            ShowInBox(row.part, Text2.Text(), true);
        }
    }
}

void Form1::Check1_Click() {
    // The dialog clears the check in code, which comes here again.
    if (Check1.Value() != 0) {
        Owner().Get("Form3").ShowModal();
    }
}

// The calculation.

void Form1::Command1_Click() {
    Picture1.AutoRedraw(true);
    Picture1.Cls();
    // A file's name stays in the title only for the calculation after it was opened.
    const std::string& file = CommonDialog1.FileName();
    Caption(Shared().VerCaption + (file.empty() ? std::string(Title) : file));
    CommonDialog1.FileName("");
    // A fault of the arithmetic ends the calculation without a word: intended.
    Guarded([this] { Calculate(); });
}

void Form1::Calculate() {
    WorkOutPi(Shared());
    Entries entries{Text1.Text(), Text2.Text()};
    Solution solution;
    const bool ended = Guarded([&] { solution = Solve(Combo1.Text(), entries, Shared().Rad); });
    Text1.Text(entries.Text1);
    Text2.Text(entries.Text2);
    if (!ended) {
        return;
    }
    switch (solution.Refused) {
        case Refusal::Text1Missing:
            AskForEntry(Text1, InputLabel1);
            return;
        case Refusal::Text2Missing:
            AskForEntry(Text2, InputLabel2);
            return;
        case Refusal::InvalidValues:
            RefuseValues();
            return;
        case Refusal::None:
            break;
    }
    NoteSolved(solution.Found);
    if (TextOn.Checked()) {
        ShowInBox(Part::CornerA, "90", true);
    } else {
        PlaceCornerA(Picture1);
    }
    if (ShapeR.Checked()) {
        SmallTriangle();
    } else {
        DrawTriangle();
    }
    PlainPen(Picture1);
    if (Label1.Caption() == "Inches") {
        Millimeters.Enabled(false);
    } else if (Label1.Caption() == "Millimeters") {
        Inches.Enabled(false);
    }
    Text1.SetFocus();
    Text1.SelectAll();
    if (DIDMS.Checked()) {
        Degrees();
    } else {
        NotDegrees();
    }
    ShowArea();
}

void Form1::AskForEntry(TextBox& box, const Label& label) {
    Owner().BeepBox("What is " + label.Caption(), style::Question);
    DrawTriangle();
    LettersOrRoomForBoxes();
    box.SetFocus();
}

void Form1::RefuseValues() {
    Owner().BeepBox("These Values Are Not Valid For Calculating\rSolutions To A Right Triangle.");
    Text1.Text("");
    Text2.Text("");
    Shared().SideB = 0;
    Shared().SideC = 0;
    DrawTriangle();
    LettersOrRoomForBoxes();
    Text1.SetFocus();
    ForgetConversion();
}

/// Both units can be converted again.
void Form1::ForgetConversion() {
    Inches.Enabled(true);
    Millimeters.Enabled(true);
    Label1.Caption("");
}

void Form1::ForgetConversionAndArea() {
    ForgetConversion();
    Label2.Caption("");
    Label2.ToolTipText("");
}

void Form1::NoteSolved(const Triangle& found) {
    SharedState& shared = Shared();
    shared.SideA = shared.KeepA = found.SideA;
    shared.SideB = shared.KeepB = found.SideB;
    shared.SideC = shared.KeepC = found.SideC;
    shared.AngleB = shared.KeepAngleB = found.AngleB;
    shared.AngleC = shared.KeepAngleC = found.AngleC;
}

void Form1::ShowArea() {
    // From the rounded legs; a later change of the rounding does not form it anew: intended.
    const double area = AreaOf(Shared().SideB, Shared().SideC);
    Label2.Left(AreaLeft);
    Label2.Caption("Area= " + Format(area, ".00000"));
    const double right = Round(Label2.Left() + Label2.Width());
    if (right >= AreaLastRight) {
        Label2.Left(AreaLeftWhenWide - (right - AreaLastRight));
    }
    Label2.ToolTipText(Str(area));
}

}  // namespace brindlex::righttri
