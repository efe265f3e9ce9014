// Menu items.
#include "frame/menuitem.h"

#include "frame/dispatch.h"
#include "frame/form.h"

namespace brindlex {

MenuItem::MenuItem(Form& form, std::string name, std::string caption) : name_(std::move(name)), form_(&form) {
    state_.caption = std::move(caption);
    form.Adopt(*this, true);
}

MenuItem::MenuItem(MenuItem& parent, std::string name, std::string caption)
    : name_(std::move(name)), form_(parent.form_), within_(&parent) {
    state_.caption = std::move(caption);
    parent.items_.push_back(this);
    form_->Adopt(*this, false);
}

void MenuItem::Changed() {
    form_->Tell(*this);
}

void MenuItem::Caption(const std::string& value) {
    if (value != state_.caption) {
        state_.caption = value;
        Changed();
    }
}

void MenuItem::Checked(bool value) {
    if (value != state_.checked) {
        state_.checked = value;
        Changed();
    }
}

void MenuItem::Enabled(bool value) {
    if (value != state_.enabled) {
        state_.enabled = value;
        Changed();
    }
}

void MenuItem::Visible(bool value) {
    if (value != state_.visible) {
        state_.visible = value;
        Changed();
    }
}

bool MenuItem::IsUsable() const {
    return state_.enabled && state_.visible && (within_ == nullptr || within_->IsUsable());
}

void MenuItem::FireClick() {
    if (Click.IsBound()) {
        DispatcherOf(*form_).Run(name_, "Click", [this] { Click.Call(); });
    }
}

}  // namespace brindlex
