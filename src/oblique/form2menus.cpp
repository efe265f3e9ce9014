// Oblique Triangles: files, printing, clipboard, display switches, units.
#include "frame/program.h"
#include "frame/text.h"
#include "oblique/form2.h"
#include "services/activebox.h"
#include "services/documents.h"
#include "services/printing.h"
#include "services/rounding.h"
#include "services/units.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace brindlex::oblique {

namespace {

// A disk that refuses a save ends it without a word: intended.
constexpr DocumentKind Document{"Oblique Triangle Files(*.obl)|*.obl",   DocumentLines,      IsDocument,
                                "This Is Not An Oblique Triangle File!", style::Exclamation, false};

constexpr std::string_view MillimetersMask = ".000000000000000";

constexpr std::array<std::string_view, 9> TextBoxes = {"Text1", "Text2", "Text3", "Text4", "Text5",
                                                       "Text6", "Text7", "Text8", "Text9"};
constexpr std::array<std::string_view, 3> EntryBoxes = {"Text1", "Text2", "Text3"};

}  // namespace

void Form2::OPenFile_Click() {
    const auto lines = OpenDocument(CommonDialog1, Document);
    if (!lines) {
        return;
    }
    if (!lines->empty()) {
        Combo1.Text(lines->front());
    }
    for (std::size_t line = 1; line < lines->size(); ++line) {
        entries_[line - 1]->Text((*lines)[line]);
    }
    Command1.Value(true);
}

void Form2::SaveFileAs_Click() {
    // The entry Text3 is looked at and the box Text9 is not: intended.
    const std::array<const TextBox*, 6> looked = {&Text3, &Text4, &Text5, &Text6, &Text7, &Text8};
    if (std::any_of(looked.begin(), looked.end(), [](const TextBox* box) { return box->Text().empty(); })) {
        Owner().BeepBox("The Form Has Not Been Completed!");
        return;
    }
    SaveDocument(CommonDialog1, Document, {Combo1.Text(), Text1.Text(), Text2.Text(), Text3.Text()});
}

bool Form2::SomethingToPrint() {
    if (Label5.Caption().empty()) {
        Owner().BeepBox("Nothing to Print!");
        return false;
    }
    return true;
}

void Form2::PrntWin_Click() {
    if (SomethingToPrint()) {
        PrintWindow(*this, Picture2, CommonDialog1);
    }
}

void Form2::PrntPic_Click() {
    if (SomethingToPrint()) {
        PrintPicture(*this, Picture1, Picture2, CommonDialog1,
                     {&Text4, &Text5, &Text6, &Text7, &Text8, &Text9, &Label4, &Label5});
    }
}

void Form2::Ext2_Click() {
    Unload();
}

void Form2::Edit_Click() {
    FollowClipboard(Paste);
}

void Form2::Copy_Click() {
    CopyActiveBox(*this, TextBoxes);
}

void Form2::Paste_Click() {
    PasteIntoActiveBox(*this, EntryBoxes);
}

void Form2::DIDMSO_Click() {
    DIDMSO.Checked(!DIDMSO.Checked());
    if (EntriesFilled() && triangle_.HasResult()) {
        Redisplay();
    }
}

void Form2::TextOn_Click() {
    TextOn.Checked(!TextOn.Checked());
    ShowOverlay(TextOn.Checked());
    ShowBareDiagram();
    if (EntriesFilled() && triangle_.HasResult()) {
        Redisplay();
    }
}

void Form2::RNO_Click() {
    Owner().Get("Form6").ShowModal();
    if (triangle_.HasResult()) {
        Redisplay();
    }
}

/// Converts the entries that are sides. Where one is out of range a box says so, and none is changed.
bool Form2::ConvertEntries(const std::function<std::string(double)>& convert) {
    std::array<std::optional<std::string>, 3> converted;
    const bool inRange = Guarded([&] {
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (entryLabels_[i]->Caption().rfind("Angle", 0) != 0) {
                converted[i] = convert(Val(entries_[i]->Text()));
            }
        }
    });
    if (!inRange) {
        Owner().BeepBox("These Values Are Too Large To Convert!");
        return false;
    }
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (converted[i]) {
            entries_[i]->Text(*converted[i]);
        }
    }
    return true;
}

void Form2::Inches2Millimeters_Click() {
    if (EntriesFilled()) {
        if (!ConvertEntries([](double value) { return Format(value * MillimetersPerInch, MillimetersMask); })) {
            return;
        }
        Inches.Enabled(false);
        Millimeters.Enabled(true);
        Label4.Caption("Millimeters");
    }
    Command1.Value(true);
}

void Form2::Millimeters2Inches_Click() {
    if (EntriesFilled()) {
        // Rounded on this way only: intended.
        if (!ConvertEntries([this](double value) {
                SharedState& shared = Owner().Shared();
                const std::string text = Str(RoundedForDisplay(value / MillimetersPerInch, shared, shared.DigitsO));
                return text.substr(text.front() == ' ' ? 1 : 0);
            })) {
            return;
        }
        Millimeters.Enabled(false);
        Inches.Enabled(true);
        Label4.Caption("Inches");
    }
    Command1.Value(true);
}

void Form2::Picture1_MouseUp(const Mouse& mouse) {
    if (mouse.Button == RightButton) {
        PopupMenu(Units);
    }
}

}  // namespace brindlex::oblique
