// The acts of the random walker, and what must hold after each.
#include "walker.h"

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/picturebox.h"
#include "frame/scrollbar.h"
#include "frame/textbox.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

namespace brindlex {

namespace {

constexpr std::size_t TrailLength = 40;

const std::vector<std::string>& Pastes() {
    static const std::vector<std::string> texts{"",
                                                "5",
                                                "12.5",
                                                "-3",
                                                "0",
                                                ".",
                                                "1.2.3",
                                                "abc",
                                                "1e308",
                                                "1e400",
                                                "-1e-320",
                                                "90",
                                                "89.999999",
                                                "30\xB0  15'  10\"",
                                                "\xB0",
                                                "7\r\n8",
                                                "300-400",
                                                ".002-.004",
                                                " ",
                                                std::string(400, '9'),
                                                std::string("4\0"
                                                            "5",
                                                            3)};
    return texts;
}

const std::vector<int>& Keys() {
    static const std::vector<int> keys{'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '5', '3', '.', '-',
                                       'a', 'x', ' ', '+', 8,   13,  27,  22,  3,   24,  26,  1,   176, 255};
    return keys;
}

// Some are there, one is a folder, some are not there at all.
const std::vector<std::string>& FileNames() {
    static const std::vector<std::string> names{"a.rgt", "b.obl",  "c.bcf",   "d.sin",    "e.pgf",
                                                "f.geo", "folder", "rubbish", "not/there"};
    return names;
}

/// The document that a form opens; empty for a form that opens none.
std::string FittingFile(const Form& form) {
    static const std::map<std::string, std::string, std::less<>> files{{"Form1", "a.rgt"},  {"Form2", "b.obl"},
                                                                       {"Form8", "c.bcf"},  {"Form12", "d.sin"},
                                                                       {"Form16", "e.pgf"}, {"Form17", "f.geo"}};
    const auto found = files.find(form.Name());
    return found == files.end() ? std::string() : found->second;
}

}  // namespace

Walker::Walker(Program& program, DrivenRun& run, Player& player, unsigned seed)
    : program_(program), run_(run), player_(player), watch_(program, run), random_(seed) {
    run_.ModalLoop = [this](Form& form) {
        while (form.Visible() && GoesOn()) {
            Step();
        }
        form.Hide();
    };
}

int Walker::Walk(int acts) {
    left_ = acts;
    while (GoesOn()) {
        Step();
    }
    if (program_.Ended() && !mayEnd_ && broken_.empty()) {
        broken_ = "the program ended by itself";
    }
    if (program_.Ended() && broken_.empty()) {
        broken_ = watch_.LookAtEnd();
    }
    return done_;
}

std::string Walker::Trail() const {
    std::string text;
    for (const std::string& act : trail_) {
        text += "    " + act + "\n";
    }
    return text;
}

void Walker::Say(const std::string& act) {
    trail_.push_back(act);
    if (trail_.size() > TrailLength) {
        trail_.pop_front();
    }
}

void Walker::Step() {
    --left_;
    ++done_;
    Prepare();
    std::vector<Form*> forms;
    for (Form* const form : program_.Forms()) {
        if (form->Visible()) {
            forms.push_back(form);
        }
    }
    if (forms.empty()) {
        broken_ = "no form is left on the screen";
        return;
    }
    Form* const modal = program_.ModalForm();
    ActOn(modal != nullptr ? *modal : *AnyOf(forms));
    player_.Settle();
    Look();
}

void Walker::Prepare() {
    if (Chance(8)) {
        program_.ClipboardText(AnyOf(Pastes()));
    }
    run_.Answers.clear();
    run_.Files.clear();
    run_.Printers.clear();
    run_.Printed.clear();
    run_.Dialogs.clear();
    run_.Regions.clear();
    run_.Started.clear();
    if (Chance(2)) {
        run_.Answers.push_back(Chance(2) ? Answer::Yes : Answer::No);
    }
    if (Chance(2)) {
        run_.Files.emplace_back(AnyOf(FileNames()));
    }
    if (Chance(2)) {
        run_.Printers.emplace_back(PrinterChoice{Number(3), 0, 0});
    }
    if (Chance(50)) {
        Say("wait");
        program_.PassTime(Number(500));
    }
}

void Walker::ActOn(Form& form) {
    if (!run_.Files.empty() && Chance(2)) {
        run_.Files.front() = FittingFile(form);
    }
    if (Chance(6) && !form.Menus().empty()) {
        ActOnMenu(form);
        return;
    }
    if (Chance(25)) {
        ActOnWindow(form);
        return;
    }
    std::vector<Control*> usable;
    std::copy_if(form.Controls().begin(), form.Controls().end(), std::back_inserter(usable),
                 [](const Control* control) { return control->IsUsable(); });
    if (usable.empty()) {
        ActOnWindow(form);
        return;
    }
    ActOn(*AnyOf(usable));
}

void Walker::ActOnWindow(Form& form) {
    switch (Number(form.Sizable() ? 5 : 3)) {
        case 0:
            Say("close " + form.Name());
            mayEnd_ = mayEnd_ || form.Name() == "Form11";
            player_.Close(form);
            break;
        case 1:
            Say("tab");
            player_.Tab(form);
            break;
        case 2:
            Say("point at " + form.Name());
            player_.MouseOn(form, MouseAct::Move, {0, 0, form.ScaleWidth() / 2, form.ScaleHeight() / 2});
            break;
        case 3:
            Say("size " + form.Name());
            player_.Resize(form, 1500.0 + Number(15000), 1500.0 + Number(10000));
            break;
        default:
            Say("maximize " + form.Name());
            player_.Maximize(form);
            break;
    }
}

void Walker::ActOnMenu(Form& form) {
    MenuItem* item = AnyOf(form.Menus());
    while (!item->Items().empty()) {
        item = AnyOf(item->Items());
    }
    if (!item->IsUsable() || item->IsSeparator()) {
        return;
    }
    Say("menu " + form.Name() + "." + item->Name());
    player_.Choose(*item);
}

void Walker::ActOn(Control& control) {
    if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        ActOnCombo(*combo);
    } else if (auto* const box = dynamic_cast<EditControl*>(&control)) {
        ActOnEntry(*box);
    } else if (auto* const bar = dynamic_cast<ScrollBar*>(&control)) {
        const int low = std::min(bar->Min(), bar->Max());
        const int span = std::max(bar->Min(), bar->Max()) - low + 1;
        Say("scroll " + control.Name());
        player_.Scroll(*bar, low + Number(span));
    } else if (auto* const toolbar = dynamic_cast<Toolbar*>(&control)) {
        ActOnToolbar(*toolbar);
    } else if (dynamic_cast<Button*>(&control) != nullptr) {
        Say("press " + control.Parent().Name() + "." + control.Name());
        mayEnd_ = mayEnd_ || (control.Parent().Name() == "Form11" && control.Name() == "Command5");
        player_.Press(control);
    } else {
        PointAt(control);
    }
}

void Walker::ActOnCombo(ComboBox& combo) {
    if (combo.ListCount() > 0 && !combo.Locked() && !Chance(4)) {
        const int index = Number(combo.ListCount());
        Say("choose " + combo.Name() + " " + combo.List(index));
        player_.ChooseItem(combo, index);
    } else {
        ActOnEntry(combo);
    }
}

void Walker::ActOnEntry(EditControl& box) {
    if (box.Locked()) {
        player_.Focus(box);
        return;
    }
    if (Chance(6)) {
        const int size = static_cast<int>(box.Text().size());
        Say("select " + box.Name());
        player_.Select(box, 0, Number(size + 1));
        return;
    }
    for (int count = 1 + Number(4); count > 0 && GoesOn() && box.IsUsable(); --count) {
        const int key = AnyOf(Keys());
        Say("key " + box.Parent().Name() + "." + box.Name() + " " + std::to_string(key));
        player_.Key(box, key);
    }
}

void Walker::ActOnToolbar(Toolbar& toolbar) {
    const ToolButton& button = AnyOf(toolbar.Buttons());
    if (!button.IsSeparator() && button.Enabled) {
        Say("tool " + button.Key);
        player_.Tool(toolbar, button.Key);
    }
}

void Walker::PointAt(Control& control) {
    const auto* const picture = dynamic_cast<PictureBox*>(&control);
    if (picture == nullptr) {
        if (control.Click.IsBound()) {
            Say("press " + control.Name());
            player_.Press(control);
        }
        return;
    }
    Mouse mouse;
    const Place place = picture->PlaceInTwips();
    mouse.X = picture->FromTwipsX(place.Width * Number(101) / 100);
    mouse.Y = picture->FromTwipsY(place.Height * Number(101) / 100);
    mouse.Button = Number(3);
    if (Chance(3)) {
        Drag(control, mouse,
             {picture->FromTwipsX(place.Width * Number(101) / 100),
              picture->FromTwipsY(place.Height * Number(101) / 100)});
        return;
    }
    const std::vector<MouseAct> acts{MouseAct::Move, MouseAct::Move, MouseAct::Down, MouseAct::Up,
                                     MouseAct::DoubleClick};
    const MouseAct act = mouse.Button == 0 ? MouseAct::Move : AnyOf(acts);
    Say("mouse on " + control.Parent().Name() + "." + control.Name());
    player_.MouseOn(control, act, mouse);
}

/// A button goes down, the pointer moves, the button goes up.
void Walker::Drag(Control& control, Mouse mouse, Size to) {
    mouse.Button = 1 + Number(2);
    Say("drag on " + control.Parent().Name() + "." + control.Name());
    for (const MouseAct act : {MouseAct::Down, MouseAct::Move, MouseAct::Up}) {
        if (!GoesOn() || !control.IsUsable()) {
            return;
        }
        player_.MouseOn(control, act, mouse);
        mouse.X = to.Width;
        mouse.Y = to.Height;
    }
}

void Walker::Look() {
    if (broken_.empty()) {
        broken_ = watch_.Look();
    }
    if (broken_.empty() && also_) {
        broken_ = also_();
    }
}

}  // namespace brindlex
