// Oblique Triangles with arbitrary documents: the first line of the input holds the menu items to choose afterwards, a
// letter each, the rest is a file as it may lie on a disk. Whatever it holds, no handler lets a fault out, and nothing
// that is shown holds an infinity.
#include "formfuzz.h"

#include "app/forms.h"
#include "frame/program.h"
#include "headless/headlessruntime.h"
#include "oblique/form2.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace brindlex;
using oblique::Form2;

constexpr const char* Document = "input.obl";
constexpr std::size_t MostItems = 12;

void ChooseItems(Form2& form, const std::string& letters) {
    const std::array<MenuItem*, 6> items = {
        &form.DIDMSO, &form.TextOn, &form.Inches2Millimeters, &form.Millimeters2Inches, &form.Copy, &form.Paste};
    for (const char letter : letters.substr(0, MostItems)) {
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
    for (const DrawItem& item : form.Picture1.Drawn().Items()) {
        Demand(std::isfinite(item.X1) && std::isfinite(item.Y1) && std::isfinite(item.X2) && std::isfinite(item.Y2));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    const std::size_t end = std::min(input.find('\n'), input.size());

    static const ScratchFolder scratch;
    {
        std::ofstream file(scratch.Path() / Document, std::ios::binary);
        file << input.substr(std::min(end + 1, input.size()));
    }
    DrivenRun run;
    HeadlessRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(scratch.Path()));
    RegisterForms(program);
    auto& form = dynamic_cast<Form2&>(program.Get("Form2"));
    form.Show();
    run.Files.emplace_back(Document);
    form.OPenFile.FireClick();
    Demand(!program.Ended());
    CheckShown(form);
    ChooseItems(form, input.substr(0, end));
    CheckShown(form);
    form.TextOn.Checked(true);
    form.Command1.Value(true);
    CheckShown(form);
    return 0;
}
