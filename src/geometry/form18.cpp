// Geometry Report: text, layout, paper.
#include "geometry/form18.h"

#include "frame/program.h"
#include "geometry/form17.h"
#include "geometry/report.h"
#include "services/printing.h"

#include <algorithm>

namespace brindlex::geometry {

namespace {

constexpr double DesignWidth = 5532;
constexpr double DesignHeight = 4692;

}  // namespace

Form18::Form18(Program& program) : Form(program, "Form18", DesignWidth, DesignHeight) {
    Sizable(true);
    Text1.MultiLine(true);
    Text1.Locked(true);
    Command1.Click.Bind(this, &Form18::Command1_Click);
    Command2.Click.Bind(this, &Form18::Command2_Click);
}

void Form18::Form_Initialize() {
    GetData();
}

void Form18::Form_Resize() {
    UseData();
}

Form18::Ratios Form18::RatiosOf(const Control& control) const {
    return {control.Left() / ScaleWidth(), control.Top() / ScaleHeight(), control.Width() / ScaleWidth(),
            control.Height() / ScaleHeight()};
}

void Form18::Apply(Control& control, const Ratios& ratios) const {
    control.Move(ratios.Left * ScaleWidth(), ratios.Top * ScaleHeight(), ratios.Width * ScaleWidth(),
                 ratios.Height * ScaleHeight());
}

void Form18::GetData() {
    text_ = RatiosOf(Text1);
    ok_ = RatiosOf(Command1);
    print_ = RatiosOf(Command2);
}

void Form18::UseData() {
    Apply(Text1, text_);
    Apply(Command1, ok_);
    Apply(Command2, print_);
}

std::vector<std::string> Form18::Crossings(bool lines) {
    auto* const drawing = dynamic_cast<Form17*>(Owner().Find("Form17"));
    if (drawing == nullptr) {
        return {};
    }
    ComboBox& pairs = drawing->Frame8.Combo1;
    std::vector<std::string> items = pairs.List();
    if (lines && !items.empty()) {
        pairs.ListIndex(0);
    }
    return items;
}

void Form18::Form_Load() {
    Owner().DoEvents();
    PlaceOnScreen();
    Caption(Owner().Shared().VerCaption + "Geometry Report.");
    const Store live(Owner().Files());
    Owner().Files().KillIfThere(scratch::Report);
    const auto* const drawing = dynamic_cast<Form17*>(Owner().Find("Form17"));
    const Unit unit = drawing != nullptr && drawing->MM.Checked() ? Unit::Millimeter : Unit::Inch;
    const std::vector<std::string> records = live.Lines();
    const bool lines =
        std::any_of(records.begin(), records.end(), [](const auto& record) { return KindOf(record) == Kind::Line; });
    Text1.Text(ReportText(records, unit, Crossings(lines)));
    if (Text1.Text().empty()) {
        Command2.Enabled(false);
    }
}

void Form18::Command1_Click() {
    Unload();
}

void Form18::Command2_Click() {
    // A printer that refuses ends it without a word, and the form stays: intended.
    const bool printed = Guarded([&] { ForEachCopy(CommonDialog1, [this] { PrintReport(); }); });
    if (printed) {
        Unload();
    } else {
        Owner().Printer().KillDoc();
    }
}

void Form18::PrintReport() {
    constexpr int ReportColumn = 25;
    constexpr double ReportHeadingPoints = 18;
    constexpr double TextPoints = 10;
    PrinterObject& printer = Owner().Printer();
    printer.Font({"Times New Roman", ReportHeadingPoints, true});
    printer.Print();
    printer.PrintAtTab(ReportColumn, "Brindlex Geometry Report");
    printer.FontSize(TextPoints);
    printer.Print();
    printer.Print();
    printer.Print(Text1.Text());
    printer.EndDoc();
}

}  // namespace brindlex::geometry
