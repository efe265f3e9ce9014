// What a person could do.
#include "headless/checks.h"

#include "frame/editcontrol.h"
#include "headless/scripterror.h"

#include <algorithm>

namespace brindlex {

namespace {

void CheckInFront(Stage& stage, Form& form) {
    if (!form.Visible()) {
        throw ScriptError(form.Name() + " is not visible");
    }
    const Form* const modal = stage.App.ModalForm();
    if (modal != nullptr && modal != &form) {
        throw ScriptError(form.Name() + " is behind " + modal->Name());
    }
    stage.Front = &form;
}

}  // namespace

void NoteForms(Stage& stage) {
    std::vector<Form*> visible;
    for (Form* const form : stage.App.Forms()) {
        if (form->Visible()) {
            visible.push_back(form);
            if (std::find(stage.Seen.begin(), stage.Seen.end(), form) == stage.Seen.end()) {
                stage.Front = form;
            }
        }
    }
    stage.Seen = std::move(visible);
}

Form& FrontForm(Stage& stage) {
    if (Form* const modal = stage.App.ModalForm()) {
        return *modal;
    }
    if (stage.Front != nullptr && stage.Front->Visible()) {
        return *stage.Front;
    }
    if (stage.Seen.empty()) {
        throw ScriptError("no form is visible");
    }
    return *stage.Seen.back();
}

Form& UsableForm(Stage& stage, std::string_view name) {
    Form& form = FormNamed(stage.App, name);
    CheckInFront(stage, form);
    return form;
}

Control& UsableControl(Stage& stage, const std::string& name) {
    const Named thing = ThingNamed(stage.App, name);
    if (thing.What == nullptr) {
        throw ScriptError(name + " is a menu item");
    }
    CheckInFront(stage, *thing.Where);
    if (!thing.What->IsShown()) {
        throw ScriptError(name + " is not visible");
    }
    if (!thing.What->IsUsable()) {
        throw ScriptError(name + " is disabled");
    }
    return *thing.What;
}

InputControl& FocusableControl(Stage& stage, const std::string& name) {
    Control& control = UsableControl(stage, name);
    auto* const input = dynamic_cast<InputControl*>(&control);
    if (input == nullptr || !input->TakesFocus()) {
        throw ScriptError(name + " takes no focus");
    }
    return *input;
}

void RefuseLocked(const InputControl& control, const std::string& name) {
    const auto* const box = dynamic_cast<const EditControl*>(&control);
    if (box != nullptr && box->Locked()) {
        throw ScriptError(name + " is locked");
    }
}

MenuItem& ReachableItem(Stage& stage, const std::string& name) {
    const Named thing = ThingNamed(stage.App, name);
    if (thing.Item == nullptr) {
        throw ScriptError(name + " is no menu item");
    }
    CheckInFront(stage, *thing.Where);
    if (thing.Item->IsSeparator()) {
        throw ScriptError(name + " is a separator");
    }
    const MenuItem* top = thing.Item;
    while (top->Within() != nullptr) {
        top = top->Within();
    }
    if (!top->IsUsable()) {
        throw ScriptError(name + " is disabled or hidden");
    }
    return *thing.Item;
}

void IsNo(const Control& control, const char* kind) {
    throw ScriptError(control.Parent().Name() + "." + control.Name() + " is no " + kind);
}

}  // namespace brindlex
