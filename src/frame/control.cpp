// What all controls share: place, looks, order, focus.
#include "frame/control.h"

#include "frame/form.h"
#include "frame/program.h"

#include <algorithm>

namespace brindlex {

Control::Control(ControlContainer& container, std::string name, const Place& place)
    : name_(std::move(name)), form_(&container.ContainerForm()), container_(&container), designContainer_(&container) {
    common_.place = place;
    container.children_.push_back(this);
    form_->Adopt(*this);
}

void Control::Changed(Aspect aspect) {
    form_->Tell(*this, aspect);
}

void Control::KeepDesign() {
    design_ = common_;
    designContainer_ = container_;
}

void Control::ResetToDesign() {
    common_ = design_;
    container_ = designContainer_;
}

void Control::Left(double value) {
    Move(value, Top(), Width(), Height());
}

void Control::Top(double value) {
    Move(Left(), value, Width(), Height());
}

void Control::Width(double value) {
    Move(Left(), Top(), value, Height());
}

void Control::Height(double value) {
    Move(Left(), Top(), Width(), value);
}

void Control::Move(double left, double top, double width, double height) {
    const Place place{left, top, width, height};
    if (place == common_.place) {
        return;
    }
    common_.place = place;
    PlaceChanged();
    Changed(Aspect::Place);
}

void Control::Visible(bool value) {
    if (value == common_.visible) {
        return;
    }
    common_.visible = value;
    Changed(Aspect::Visible);
    form_->DropLostFocus();
}

void Control::Enabled(bool value) {
    if (value == common_.enabled) {
        return;
    }
    common_.enabled = value;
    Changed(Aspect::Enabled);
    form_->DropLostFocus();
}

bool Control::IsShown() const {
    if (!common_.visible) {
        return false;
    }
    const Control* const outer = container_->ContainerControl();
    return outer != nullptr ? outer->IsShown() : form_->Visible();
}

bool Control::IsUsable() const {
    if (!common_.visible || !common_.enabled) {
        return false;
    }
    const Control* const outer = container_->ContainerControl();
    return outer != nullptr ? outer->IsUsable() : form_->Visible();
}

void Control::ToolTipText(const std::string& value) {
    if (value != common_.toolTip) {
        common_.toolTip = value;
        Changed(Aspect::ToolTip);
    }
}

void Control::ForeColor(Colour value) {
    if (value != common_.foreColor) {
        common_.foreColor = value;
        Changed(Aspect::Look);
    }
}

void Control::FontBold(bool value) {
    if (value != common_.fontBold) {
        common_.fontBold = value;
        FontChanged();
        Changed(Aspect::Look);
    }
}

void Control::FontSize(double points) {
    if (points != common_.fontSize) {
        common_.fontSize = points;
        FontChanged();
        Changed(Aspect::Look);
    }
}

void Control::FontName(const std::string& value) {
    if (value != common_.fontName) {
        common_.fontName = value;
        FontChanged();
        Changed(Aspect::Look);
    }
}

int Control::TabIndex() const {
    return form_->TabIndexOf(*this);
}

void Control::TabIndex(int value) {
    form_->MoveInTabOrder(*this, value);
    Changed(Aspect::Order);
}

void Control::TabStop(bool value) {
    if (value != common_.tabStop) {
        common_.tabStop = value;
        Changed(Aspect::Order);
    }
}

void Control::Container(ControlContainer& value) {
    if (&value == container_) {
        return;
    }
    std::erase(container_->children_, this);
    container_ = &value;
    container_->children_.push_back(this);
    Changed(Aspect::Order);
}

void Control::ZOrder(int position) {
    auto& stack = container_->children_;
    std::erase(stack, this);
    stack.insert(position == 0 ? stack.end() : stack.begin(), this);
    Changed(Aspect::Order);
}

void InputControl::SetFocus() {
    Parent().MoveFocus(this);
}

}  // namespace brindlex
