// Oblique Triangles with arbitrary documents: the first line of the input holds the menu items to choose afterwards, a
// letter each, the rest is a file as it may lie on a disk. Whatever it holds, no handler lets a fault out, and nothing
// that is shown holds an infinity.
#include "formfuzz.h"

#include "oblique/form2.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace brindlex;
using oblique::Form2;

constexpr const char* Document = "input.obl";
constexpr std::size_t MostItems = 12;

void ChooseItems(Form2& form, std::string_view letters) {
    const std::array<MenuItem*, 6> items = {
        &form.DIDMSO, &form.TextOn, &form.Inches2Millimeters, &form.Millimeters2Inches, &form.Copy, &form.Paste};
    for (const char letter : letters) {
        const std::size_t place = static_cast<unsigned char>(letter) % (items.size() + 1);
        if (place == items.size()) {
            form.Check3.Value(1 - form.Check3.Value());
        } else {
            items[place]->FireClick();
        }
        Demand(!form.Owner().Ended());
    }
}

void CheckShown(const Form2& form) {
    const std::string& area = form.Label5.Caption();
    Demand(area.find("inf") == std::string::npos && area.find("nan") == std::string::npos);
    DemandFinite(form.Picture1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder scratch;
    std::string_view document = TextOf(data, size);
    const std::string_view letters = TakeUpTo(document, '\n').substr(0, MostItems);
    static_cast<void>(scratch.Put(Document, document));
    FreshProgram fresh(Folder(scratch.Path()));
    auto& form = fresh.Shown<Form2>("Form2");
    fresh.Run().Files.emplace_back(Document);
    form.OPenFile.FireClick();
    DemandNoFault(form, fresh.Run());
    CheckShown(form);
    ChooseItems(form, letters);
    CheckShown(form);
    form.TextOn.Checked(true);
    form.Command1.Value(true);
    CheckShown(form);
    return 0;
}
