// Right Triangles with arbitrary entries: the lines of the input are a case, two entries, and the menu items to choose
// afterwards, a letter each. A triangle that is solved is whole and finite; whatever the entries hold, no handler lets
// a fault out, and nothing that is shown holds an infinity.
#include "formfuzz.h"

#include "righttri/form1.h"
#include "righttri/solver.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace {

using namespace brindlex;
using righttri::Form1;

using Lines = std::array<std::string, 4>;

Lines LinesOf(const std::string& input) {
    Lines lines;
    std::size_t line = 0;
    for (const char c : input) {
        if (c == '\n' && line + 1 < lines.size()) {
            ++line;
        } else {
            lines[line] += c;
        }
    }
    return lines;
}

/// A digit stands for the case of that place in the list.
std::string CaseOf(const std::string& line) {
    const bool isPlace = line.size() == 1 && line[0] >= '1' && line[0] <= '9';
    return isPlace ? std::string(righttri::Cases()[static_cast<std::size_t>(line[0] - '1')].Name) : line;
}

void ChooseItems(Form1& form, const std::string& letters) {
    const std::array<MenuItem*, 7> items = {
        &form.DIDMS, &form.ShapeR, &form.TextOn, &form.Inches2Millimeters, &form.Millimeters2Inches,
        &form.Copy,  &form.Paste};
    for (const char letter : letters.substr(0, 12)) {
        items[static_cast<unsigned char>(letter) % items.size()]->FireClick();
        Demand(!form.Owner().Ended());
    }
}

bool NamesNoNumber(const std::string& text) {
    return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
}

void CheckShown(const Form1& form, const Lines& lines) {
    // An entry that holds such a word shows in its box as it stands.
    if (!NamesNoNumber(lines[1]) && !NamesNoNumber(lines[2])) {
        for (const TextBox* const box : {&form.Text4, &form.Text5, &form.Text6, &form.Text7, &form.Text8}) {
            Demand(!NamesNoNumber(box->Text()));
        }
    }
    DemandFinite(form.Picture1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Lines lines = LinesOf(std::string(data, data + size));
    static const ScratchFolder scratch;
    FreshProgram fresh(Folder(scratch.Path()));
    auto& form = fresh.Shown<Form1>("Form1");
    form.Combo1.Text(CaseOf(lines[0]));
    form.Text1.Text(lines[1]);
    form.Text2.Text(lines[2]);
    form.Command1.Value(true);
    DemandNoFault(form, fresh.Run());
    CheckShown(form, lines);
    ChooseItems(form, lines[3]);
    CheckShown(form, lines);
    return 0;
}
