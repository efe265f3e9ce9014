// Polygons: entries, figure, results, units, documents.
#include "polygon/form16.h"

#include "frame/fault.h"
#include "frame/navigation.h"
#include "frame/program.h"
#include "frame/text.h"
#include "polygon/diagram.h"
#include "polygon/document.h"
#include "services/activebox.h"
#include "services/documents.h"
#include "services/filters.h"
#include "services/printing.h"
#include "services/units.h"
#include "services/words.h"

#include <array>
#include <string_view>

namespace brindlex::polygon {

namespace {

constexpr std::string_view ConvertedMask = ".000000000000000";
constexpr std::array<std::string_view, 2> Boxes = {"Text1", "Text2"};
constexpr const char* Title = "Solutions To Polygons";
constexpr const char* Incomplete = "The Form Has Not Been Completed!";

constexpr DocumentKind PolygonFile{.Filter = "Polygon Files(*.pgf)|*.pgf",
                                   .MostLines = DocumentLines,
                                   .Belongs = IsDocument,
                                   .Refusal = "This Is Not A Polygon File!",
                                   .RefusalStyle = style::Plain};

}  // namespace

Form16::Form16(Program& program) : Form(program, "Form16", 8328, 4416) {
    Picture2.Visible(false);
    Text2.Locked(true);
    BindFilters(*this);
    BindControls();
    BindMenus();
}

void Form16::BindControls() {
    Command1.Click.Bind(this, &Form16::Command1_Click);
    Combo1.Click.Bind(this, &Form16::Combo1_Click);
    Combo1.Change.Bind(this, &Form16::Combo1_Change);
    for (OptionButton* const option : {&Option1, &Option2, &Option3, &Option4, &Option5}) {
        option->Click.Bind(this, &Form16::Option_Click);
    }
    Text1.Change.Bind(this, &Form16::Text1_Change);
    Picture1.MouseUp.Bind(this, &Form16::Picture1_MouseUp);
    BindFocus(Text1, &Paste, true);
    BindFocus(Text2, &Paste, false);
}

void Form16::BindMenus() {
    OpenFile.Click.Bind(this, &Form16::OpenFile_Click);
    SaveFileAs.Click.Bind(this, &Form16::SaveFileAs_Click);
    Print.Click.Bind(this, &Form16::Print_Click);
    Edit.Click.Bind(this, &Form16::Edit_Click);
    Copy.Click.Bind(this, &Form16::Copy_Click);
    Paste.Click.Bind(this, &Form16::Paste_Click);
    Inch2MM.Click.Bind(this, &Form16::Inch2MM_Click);
    MM2Inch.Click.Bind(this, &Form16::MM2Inch_Click);
    BindNavigation(RIght, "Form1");
    BindNavigation(Oblique, "Form2");
    BindNavigation(Bolt, "Form8");
    BindNavigation(Sine, "Form12");
    BindNavigation(Geometry, "Form17");
    BindNavigation(SpdFd, "Form19");
    BindNavigation(Menu, "Form11");
    BindNavigation(ExitPgm, "Form11");
    BindCalculator(WinCalc);
    BindAbout(About);
}

void Form16::Form_Load() {
    PlaceOnScreen();
    Caption(Owner().Shared().VerCaption + Title);
    Picture1.AutoRedraw(true);
    for (int sides = FewestSides; sides <= MostSides; ++sides) {
        Combo1.AddItem(Str(sides));
    }
    Option1.Value(true);
    Option2.Enabled(false);
    Option4.Value(true);
    DrawPolygon();
    Command1.Default(true);
}

void Form16::Form_Unload() {
    GoTo("Form11");
}

double Form16::SidesTyped() const {
    return polygon::SidesTyped(Combo1.Text());
}

int Form16::Sides() const {
    return SidesOf(Combo1.Text());
}

PolygonCase Form16::Given() const {
    const DimensionType type = Option1.Value()   ? DimensionType::AcrossFlats
                               : Option2.Value() ? DimensionType::FlatToCorner
                                                 : DimensionType::OneFlat;
    return {Sides(), Val(Text1.Text()), Option4.Value(), type, Option1.Enabled(), Option2.Enabled()};
}

void Form16::DrawPolygon() {
    if (Sides() < FewestSides || SidesTyped() > MostSides) {
        Picture1.Cls();
        return;
    }
    const bool odd = IsOdd(Sides());
    Option1.Enabled(!odd);
    Option2.Enabled(odd);
    if (!Option3.Value()) {
        (odd ? Option2 : Option1).Value(true);
    }
    Picture1.Cls();
    WorkOutPi(Owner().Shared());
    DrawPolygonFigure(Picture1, Sides(), Owner().Shared().Rad);
}

void Form16::ClearResults() {
    Text2.Text("");
    Label3.Caption("");
    Label1.Caption("");
    Label1.ToolTipText("");
    Inch2.Enabled(true);
    Mill2.Enabled(true);
}

void Form16::SidesChanged() {
    // The dimension goes before the figure is drawn: a change of parity sets an option, which would calculate with it.
    Text1.Text("");
    DrawPolygon();
    ClearResults();
}

void Form16::Combo1_Click() {
    // Intended: the figure comes before the dimension goes, so a change of parity still calculates with the old one,
    // and the title follows.
    DrawPolygon();
    Text1.Text("");
    ClearResults();
    Text1.SetFocus();
}

void Form16::Combo1_Change() {
    if (SidesTyped() > MostSides) {
        Owner().BeepBox("Can Not Exceed 36 Sides!", style::Plain);
        Combo1.Text("6");
        Combo1.SetFocus();
    }
    SidesChanged();
}

void Form16::Option_Click() {
    Text2.Text("");
    DrawPolygon();
    Label1.Caption("");
    Label1.ToolTipText("");
    if (!Text1.Text().empty()) {
        Command1.Value(true);
    }
}

void Form16::Text1_Change() {
    DrawPolygon();
    ClearResults();
}

void Form16::Command1_Click() {
    if (Sides() < FewestSides) {
        Owner().BeepBox("The Number of Sides Must Be Greater Than 2!", style::Plain);
        Combo1.Text("6");
        SidesChanged();
        Combo1.SetFocus();
        Combo1.SelectAll();
        return;
    }
    const std::string& file = CommonDialog1.FileName();
    Caption(Owner().Shared().VerCaption + (file.empty() ? Title : file));
    CommonDialog1.FileName("");
    if (Text1.Text().empty()) {
        Owner().BeepBox(Incomplete, style::Plain);
        Text1.SetFocus();
        return;
    }
    WorkOutPi(Owner().Shared());
    PolygonSolution solution;
    if (!Guarded([&] { solution = SolvePolygon(Given(), Owner().Shared().Rad); })) {
        Owner().BeepBox("These Values Are Not Valid For Calculating", style::Plain);
        Text1.SetFocus();
        return;
    }
    ShowSolution(solution);
    Text2.SetFocus();
}

void Form16::ShowSolution(const PolygonSolution& solution) {
    Text2.Text(Format(solution.Diameter, ".0000"));
    Label1.Caption("Area= " + Format(solution.Area, ".00000"));
    Label1.ToolTipText(Str(solution.Area));
    DrawCircleAndArrows(Picture1, solution.PictureRadius);
}

void Form16::Picture1_MouseUp(const Mouse& mouse) {
    if (mouse.Button == RightButton) {
        PopupMenu(Units);
    }
}

void Form16::Convert(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& unit) {
    if (Text1.Text().empty()) {
        Owner().BeepBox(Incomplete, style::Plain);
        return;
    }
    std::string converted;
    if (!Guarded([&] { converted = Format(convert(Val(Text1.Text())).Value(), ConvertedMask); })) {
        Owner().BeepBox("These Values Are Too Large To Convert!", style::Plain);
        return;
    }
    Text1.Text(converted);
    done.Enabled(false);
    back.Enabled(true);
    Label3.Caption(unit);
    Command1.Value(true);
}

void Form16::Inch2MM_Click() {
    Convert([](Checked inches) { return inches * MillimetersPerInch; }, Inch2, Mill2, "Millimeters");
}

void Form16::MM2Inch_Click() {
    Convert([](Checked millimeters) { return millimeters / MillimetersPerInch; }, Mill2, Inch2, "Inches");
}

void Form16::OpenFile_Click() {
    if (const auto lines = OpenDocument(CommonDialog1, PolygonFile)) {
        TakeDocument(*lines);
        Command1.Value(true);
    }
}

void Form16::TakeDocument(const std::vector<std::string>& lines) {
    const auto document = ReadDocument(lines);
    if (!document) {
        return;
    }
    // The old dimension goes first, so that no option calculates with it.
    Text1.Text("");
    Combo1.Text(document->Sides);
    OptionButton* const options[ChoiceCount] = {&Option4, &Option5, &Option1, &Option3, &Option2};
    for (std::size_t at = 0; at < ChoiceCount; ++at) {
        if (const auto value = document->Choices[at]) {
            options[at]->Value(*value);
        }
    }
    if (!Option4.Value() && !Option5.Value()) {
        Option4.Value(true);
    }
    // Options that do not go with the number of sides are put right.
    DrawPolygon();
    if (document->Dimension) {
        Text1.Text(*document->Dimension);
    }
}

void Form16::SaveFileAs_Click() {
    if (Text2.Text().empty()) {
        Owner().BeepBox(Incomplete, style::Plain);
        return;
    }
    SaveDocument(
        CommonDialog1, PolygonFile,
        {Combo1.Text(), BooleanWord(Option4.Value()), BooleanWord(Option5.Value()), BooleanWord(Option1.Value()),
         BooleanWord(Option3.Value()), BooleanWord(Option2.Value()), Text1.Text()});
}

void Form16::Print_Click() {
    if (Text2.Text().empty()) {
        Owner().BeepBox("Nothing to Print!", style::Plain);
        return;
    }
    PrintWindow(*this, Picture2, CommonDialog1);
}

void Form16::Copy_Click() {
    CopyActiveBox(*this, Boxes);
}

void Form16::Paste_Click() {
    PasteIntoActiveBox(*this, Boxes);
}

void Form16::Edit_Click() {
    FollowClipboard(Paste);
}

}  // namespace brindlex::polygon
