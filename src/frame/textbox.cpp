// Text boxes as code sets them.
#include "frame/textbox.h"

namespace brindlex {

TextBox::TextBox(ControlContainer& container, std::string name, const Place& place, std::string text)
    : EditControl(container, std::move(name), place) {
    TakeText(std::move(text), 0);
}

void TextBox::Text(const std::string& value) {
    if (value != Text()) {
        TakeText(value, 0);
        Fire(Change, "Change");
    }
}

}  // namespace brindlex
