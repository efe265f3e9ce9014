// Bolt Circles: menus, documents, paper.
#include "boltcircle/form8.h"

#include "boltcircle/document.h"
#include "frame/navigation.h"
#include "frame/program.h"
#include "frame/text.h"
#include "services/activebox.h"
#include "services/documents.h"
#include "services/printing.h"
#include "services/units.h"

#include <string_view>

namespace brindlex::boltcircle {

namespace {

// A disk that refuses a save ends it without a word: intended.
constexpr DocumentKind Document{
    .Filter = "Bolt Circle Files(*.bcf)|*.bcf", .MostLines = DocumentLines, .FailedSaveIsTold = false};
constexpr std::string_view EntryNames[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};
constexpr std::string_view PastedNames[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"};
constexpr std::string_view AllDecimals = ".000000000000000";

void PrintLines(PrinterObject& printer, int count) {
    for (int line = 0; line < count; ++line) {
        printer.Print();
    }
}

}  // namespace

void Form8::BindMenus() {
    OpenFile.Click.Bind(this, &Form8::OpenFile_Click);
    SaveFileAs.Click.Bind(this, &Form8::SaveFileAs_Click);
    EntFrm.Click.Bind([this] { PrintItem({2, true, 0, false}); });
    TextOnly.Click.Bind([this] { PrintItem({1, false, 0, true}); });
    Both.Click.Bind([this] { PrintItem({2, true, 10, true}); });
    Edit.Click.Bind(this, &Form8::Edit_Click);
    Copy.Click.Bind(this, &Form8::Copy_Click);
    Paste.Click.Bind(this, &Form8::Paste_Click);
    RoundNumbers.Click.Bind(this, &Form8::RoundNumbers_Click);
    Inches2Millimeters.Click.Bind(this, &Form8::Inches2Millimeters_Click);
    Millimeters2Inches.Click.Bind(this, &Form8::Millimeters2Inches_Click);
}

/// Every way out writes the settings.
void Form8::BindWays() {
    const struct {
        MenuItem& item;
        const char* form;
    } ways[] = {
        {ExitPgm, "Form11"}, {GoToRight, "Form1"}, {GoToOblique, "Form2"}, {Sines, "Form12"},
        {Poly, "Form16"},    {Geometry, "Form17"}, {SpdFd, "Form19"},      {Menu, "Form11"},
    };
    for (const auto& way : ways) {
        BindNavigation(way.item, way.form, [this] { NewFile(); });
    }
    BindCalculator(WinCalc);
    BindAbout(AboutIt);
}

// Edit.

void Form8::Edit_Click() {
    FollowClipboard(Paste);
}

void Form8::Copy_Click() {
    if (Shared().ActiveText == "Text6") {
        Owner().Clipboard().SetText(Text6.SelText());
    } else {
        CopyActiveBox(*this, EntryNames);
    }
}

void Form8::Paste_Click() {
    PasteIntoActiveBox(*this, PastedNames);
}

void Form8::RoundNumbers_Click() {
    Owner().Get("Form9").ShowModal();
    RoundEm();
    Command1.Value(true);
}

// Units.

void Form8::Inches2Millimeters_Click() {
    ConvertLengths([](Checked inches) { return inches * MillimetersPerInch; }, Inches, Millimeters, "Millimeters");
}

void Form8::Millimeters2Inches_Click() {
    ConvertLengths([](Checked millimeters) { return millimeters / MillimetersPerInch; }, Millimeters, Inches, "Inches");
}

/// Lengths that can't be converted stay, and so do the unit items; the calculation then tells of them.
void Form8::ConvertLengths(Checked (*convert)(Checked), MenuItem& done, MenuItem& back, const std::string& note) {
    if (LengthsGiven()) {
        Guarded([&] {
            const auto converted = [&](const TextBox& box) {
                return Format(convert(Val(box.Text())).Value(), AllDecimals);
            };
            const std::string texts[] = {converted(Text1), converted(Text2), converted(Text3)};
            Text1.Text(texts[0]);
            Text2.Text(texts[1]);
            Text3.Text(texts[2]);
            done.Enabled(false);
            back.Enabled(true);
            Label6.Caption(note);
        });
    }
    Command1.Value(true);
}

void Form8::Picture1_MouseUp(const Mouse& mouse) {
    if (mouse.Button == RightButton && Units.IsUsable()) {
        PopupMenu(Units);
    }
}

// Documents.

void Form8::OpenFile_Click() {
    if (const auto lines = OpenDocument(CommonDialog1, Document)) {
        TakeDocument(*lines);
        Command1.Value(true);
    }
}

void Form8::TakeDocument(const std::vector<std::string>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i < entries_.size()) {
            entries_[i]->Text(lines[i]);
        } else if (const auto check = StoredCheck(lines[i])) {
            Check1.Value(*check);
        }
    }
}

void Form8::SaveFileAs_Click() {
    if (Text6.Text().empty()) {
        Owner().BeepBox("The Form Has Not Been Completed!");
        return;
    }
    std::vector<std::string> lines;
    for (const TextBox* const box : entries_) {
        lines.push_back(box->Text());
    }
    lines.push_back(PrintLine().Number(Check1.Value()).Str());
    SaveDocument(CommonDialog1, Document, lines);
}

// Paper.

void Form8::PrintItem(const Print& print) {
    if (Text6.Text().empty()) {
        Owner().BeepBox("Nothing to Print!");
        return;
    }
    RoutePrinterFaults(Owner(), [&] { ForEachCopy(CommonDialog1, [&] { PrintPage(print); }); });
}

void Form8::PrintPage(const Print& print) {
    PrinterObject& printer = Owner().Printer();
    printer.Font({"Times New Roman", 18, true});
    PrintLines(printer, print.LinesBefore);
    printer.Print("Brindlex Bolt Circle Report");
    PrintLines(printer, 2);
    if (print.Picture) {
        // The unit stands on the picture, and so it does on the image.
        Picture2.Picture(Picture1.Image());
        PrintFitPage(printer, Picture2.Picture());
        Picture2.Picture({});
    }
    PrintLines(printer, print.LinesBetween);
    if (print.Report) {
        printer.Print(Text6.Text());
    }
    printer.EndDoc();
}

}  // namespace brindlex::boltcircle
