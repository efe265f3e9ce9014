// The looks at the program, one an invariant.
#include "watch.h"

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/textbox.h"
#include "geometry/form17.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <variant>

namespace brindlex {

namespace {

constexpr std::size_t MostDrawn = 200000;

bool SpeaksOfNoNumber(const std::string& text) {
    return text.find("nan") != std::string::npos || text.find("inf") != std::string::npos;
}

bool IsFinite(const DrawItem& item) {
    return std::isfinite(item.X1) && std::isfinite(item.Y1) && std::isfinite(item.X2) && std::isfinite(item.Y2) &&
           std::isfinite(item.Radius);
}

/// What is wrong with a picture; empty where nothing is.
std::string FaultOf(const Drawing& drawing) {
    if (drawing.Items().size() > MostDrawn) {
        return "grows without end";
    }
    for (const DrawItem& item : drawing.Items()) {
        if (!IsFinite(item)) {
            return "has an item at no finite place";
        }
        if (SpeaksOfNoNumber(item.Text)) {
            return "shows " + item.Text;
        }
    }
    return {};
}

std::string FaultOf(const Control& control) {
    if (SpeaksOfNoNumber(control.ToolTipText())) {
        return "tells " + control.ToolTipText();
    }
    std::string text;
    if (const auto* const box = dynamic_cast<const EditControl*>(&control)) {
        text = box->Text();
        if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
            const auto& items = combo->List();
            const auto found = std::find_if(items.begin(), items.end(), SpeaksOfNoNumber);
            text = found != items.end() ? *found : text;
        }
    } else if (const auto* const label = dynamic_cast<const Label*>(&control)) {
        text = label->Caption();
    } else if (const auto* const button = dynamic_cast<const Button*>(&control)) {
        text = button->Caption();
    } else if (const auto* const picture = dynamic_cast<const PictureBox*>(&control)) {
        return FaultOf(picture->Drawn());
    }
    return SpeaksOfNoNumber(text) ? "shows " + text : std::string();
}

template <std::size_t Bound>
bool Same(const std::array<double, Bound>& a, const std::array<double, Bound>& b) {
    // The view is taken off and put on again, so the last digits of large numbers may differ.
    constexpr double Part = 1e-9;
    return std::equal(a.begin(), a.end(), b.begin(), [](double one, double other) {
        return std::fabs(one - other) <= Part * (1 + std::fabs(one) + std::fabs(other));
    });
}

bool Same(const geometry::Board& a, const geometry::Board& b) {
    return a.CircleTop == b.CircleTop && a.LineTop == b.LineTop && a.PointTop == b.PointTop &&
           Same(a.CircleArr, b.CircleArr) && Same(a.LineArr, b.LineArr) && Same(a.PointArr, b.PointArr);
}

}  // namespace

std::string Watch::Look() {
    for (const auto look : {&Watch::Boxes, &Watch::Paper, &Watch::Screen, &Watch::Texts, &Watch::Arrays}) {
        if (std::string fault = (this->*look)(); !fault.empty()) {
            return fault;
        }
    }
    run_.Boxes.clear();
    return {};
}

std::string Watch::LookAtEnd() {
    // The menu form ends the program while it stands; its window goes with the program.
    for (const Form* const form : program_.Forms()) {
        if (form->Visible() && form->Name() != "Form11") {
            return form->Name() + " is left on the screen";
        }
    }
    const std::string fault = Boxes();
    return fault.empty() ? Folder() : fault;
}

std::string Watch::Boxes() const {
    for (const MessageBox& box : run_.Boxes) {
        if (box.Text.find("Run-time error") != std::string::npos) {
            return "a fault reached the user: " + box.Text;
        }
        if (SpeaksOfNoNumber(box.Text)) {
            return "a box says " + box.Text;
        }
    }
    return {};
}

std::string Watch::Paper() const {
    for (const PrintedDocument& document : run_.Printed) {
        for (const PrintedPage& page : document.Pages) {
            for (const auto& item : page.Items) {
                const auto* const print = std::get_if<PrintedText>(&item);
                if (print != nullptr && SpeaksOfNoNumber(print->Text)) {
                    return "paper says " + print->Text;
                }
            }
        }
    }
    return {};
}

std::string Watch::Screen() const {
    if (program_.Ended()) {
        return {};
    }
    std::string names;
    std::ptrdiff_t count = 0;
    for (const Form* const form : program_.Forms()) {
        if (form->Visible()) {
            ++count;
            names += " " + form->Name();
        }
    }
    const std::ptrdiff_t modal = program_.ModalForm() != nullptr && program_.ModalForm()->Visible() ? 1 : 0;
    return count - modal == 1 ? std::string() : "on the screen there stand" + names;
}

std::string Watch::Texts() const {
    for (const Form* const form : program_.Forms()) {
        if (SpeaksOfNoNumber(form->Caption())) {
            return form->Name() + " is called " + form->Caption();
        }
        for (const Control* const control : form->Controls()) {
            if (const std::string fault = FaultOf(*control); !fault.empty()) {
                return form->Name() + "." + control->Name() + " " + fault;
            }
        }
    }
    return {};
}

std::string Watch::Arrays() const {
    const auto* const form = dynamic_cast<const geometry::Form17*>(program_.Find("Form17"));
    if (form == nullptr || !form->Loaded() || program_.Ended()) {
        return {};
    }
    geometry::Board stored = form->Work.Entities;
    stored.ReloadKeepingNumber(form->Work.Live().Lines(), form->Work.View());
    return Same(stored, form->Work.Entities) ? std::string() : "the arrays of Form17 are not what its store holds";
}

std::string Watch::Folder() const {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(program_.Files().Path(), error)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(".brindlex-")) {
            return name + " is left in the folder";
        }
    }
    return {};
}

}  // namespace brindlex
