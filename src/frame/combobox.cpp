// Combo boxes: the list, the choice, the text.
#include "frame/combobox.h"

#include <algorithm>

namespace brindlex {

ComboBox::ComboBox(ControlContainer& container, std::string name, const Place& place, std::string text)
    : EditControl(container, std::move(name), place) {
    TakeText(std::move(text), 0);
}

void ComboBox::KeepDesign() {
    EditControl::KeepDesign();
    design_ = list_;
}

void ComboBox::ResetToDesign() {
    EditControl::ResetToDesign();
    list_ = design_;
}

void ComboBox::Text(const std::string& value) {
    const auto item = std::find(list_.items.begin(), list_.items.end(), value);
    if (item != list_.items.end()) {
        Choose(static_cast<int>(item - list_.items.begin()));
    } else if (value != Text()) {
        list_.index = -1;
        TakeText(value, 0);
        Fire(Change, "Change");
    }
}

void ComboBox::Choose(int index) {
    list_.index = index;
    TakeText(list_.items[static_cast<std::size_t>(index)], 0);
    Fire(Click, "Click");
}

void ComboBox::Clear() {
    list_ = {};
    TakeText({}, 0);
    Changed(Aspect::List);
}

void ComboBox::AddItem(const std::string& item) {
    list_.items.push_back(item);
    Changed(Aspect::List);
}

void ComboBox::AddItems(const std::vector<std::string>& items) {
    list_.items.insert(list_.items.end(), items.begin(), items.end());
    Changed(Aspect::List);
}

void ComboBox::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) {
        throw Fault(FaultNumber::BadArgument);
    }
    list_.items.erase(list_.items.begin() + index);
    if (list_.index == index) {
        list_.index = -1;
    } else if (list_.index > index) {
        --list_.index;
    }
    Changed(Aspect::List);
}

std::string ComboBox::List(int index) const {
    return index >= 0 && index < ListCount() ? list_.items[static_cast<std::size_t>(index)] : std::string();
}

void ComboBox::ListIndex(int index) {
    if (index >= 0 && index < ListCount()) {
        Choose(index);
    } else {
        list_.index = -1;
        TakeText({}, 0);
    }
}

void ComboBox::ChooseByPerson(int index) {
    if (index >= 0 && index < ListCount() && !Locked()) {
        Choose(index);
        SelectAll();
    }
}

void ComboBox::ActOnKey(int keyAscii) {
    if (listOnly_) {
        return;
    }
    EditControl::ActOnKey(keyAscii);
}

void ComboBox::Edited() {
    if (list_.index >= 0) {
        // The text was mirrored while the choice still stood.
        list_.index = -1;
        Changed(Aspect::Text);
    }
    EditControl::Edited();
}

}  // namespace brindlex
