// Editing of one line of text, by code and by a person.
#include "frame/editcontrol.h"

#include "frame/form.h"
#include "frame/program.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr int Backspace = 8;
constexpr int FirstPrintable = 32;

// What the control keys do in every box.
struct EditCommand {
    int keyAscii;
    void (EditControl::*act)();
};
constexpr EditCommand EditCommands[] = {
    {1, &EditControl::SelectAll},    {3, &EditControl::CopyByPerson},  {22, &EditControl::PasteByPerson},
    {24, &EditControl::CutByPerson}, {26, &EditControl::UndoByPerson},
};

}  // namespace

void EditControl::KeepDesign() {
    Control::KeepDesign();
    design_ = edit_;
}

void EditControl::ResetToDesign() {
    Control::ResetToDesign();
    edit_ = design_;
}

void EditControl::SelStart(int value) {
    SelectByPerson(value, 0);
    Changed(Aspect::Selection);
}

void EditControl::SelLength(int value) {
    SelectByPerson(edit_.selStart, value);
    Changed(Aspect::Selection);
}

void EditControl::SelectByPerson(int start, int length) {
    const int size = static_cast<int>(edit_.text.size());
    edit_.selStart = std::clamp(start, 0, size);
    edit_.selLength = std::clamp(length, 0, size - edit_.selStart);
}

std::string EditControl::SelText() const {
    return edit_.text.substr(static_cast<std::size_t>(edit_.selStart), static_cast<std::size_t>(edit_.selLength));
}

void EditControl::SelectAll() {
    SelStart(0);
    SelLength(static_cast<int>(edit_.text.size()));
}

void EditControl::Locked(bool value) {
    if (value != edit_.locked) {
        edit_.locked = value;
        Changed(Aspect::Locked);
    }
}

void EditControl::TakeText(std::string text, int caret) {
    edit_.text = std::move(text);
    SelectByPerson(caret, 0);
    Changed(Aspect::Text);
}

void EditControl::Edited() {
    Fire(Change, "Change");
}

void EditControl::ActOnKey(int keyAscii) {
    for (const EditCommand& command : EditCommands) {
        if (command.keyAscii == keyAscii) {
            (this->*command.act)();
            return;
        }
    }
    if (keyAscii == Backspace) {
        EraseBackwards();
    } else if (keyAscii == 13 && MultiLine()) {
        InsertByPerson("\r\n");
    } else if (keyAscii >= FirstPrintable) {
        const char character = static_cast<char>(keyAscii);
        InsertByPerson({&character, 1});
    }
}

void EditControl::EraseBackwards() {
    if (edit_.locked) {
        return;
    }
    if (edit_.selLength == 0) {
        if (edit_.selStart == 0) {
            return;
        }
        SelectByPerson(edit_.selStart - 1, 1);
    }
    Replace({});
}

void EditControl::Replace(std::string_view text) {
    std::string changed = edit_.text;
    changed.replace(static_cast<std::size_t>(edit_.selStart), static_cast<std::size_t>(edit_.selLength), text);
    const int caret = edit_.selStart + static_cast<int>(text.size());
    if (changed == edit_.text) {
        SelStart(caret);
        return;
    }
    edit_.undo = edit_.text;
    TakeText(std::move(changed), caret);
    Edited();
}

void EditControl::InsertByPerson(std::string_view text) {
    if (edit_.locked) {
        return;
    }
    std::string entry(text);
    if (!MultiLine()) {
        entry.erase(std::find_if(entry.begin(), entry.end(), [](char c) { return c == '\r' || c == '\n'; }),
                    entry.end());
    }
    if (edit_.maxLength > 0) {
        const int room = edit_.maxLength - static_cast<int>(edit_.text.size()) + edit_.selLength;
        if (static_cast<int>(entry.size()) > room) {
            Parent().Owner().Beep();
            entry.resize(static_cast<std::size_t>(std::max(room, 0)));
        }
    }
    if (!entry.empty()) {
        Replace(entry);
    }
}

void EditControl::DeleteByPerson() {
    if (edit_.locked) {
        return;
    }
    if (edit_.selLength == 0) {
        SelectByPerson(edit_.selStart, 1);
    }
    if (edit_.selLength > 0) {
        Replace({});
    }
}

void EditControl::CopyByPerson() {
    if (edit_.selLength > 0) {
        Parent().Owner().ClipboardText(SelText());
    }
}

void EditControl::CutByPerson() {
    if (!edit_.locked && edit_.selLength > 0) {
        CopyByPerson();
        Replace({});
    }
}

void EditControl::PasteByPerson() {
    InsertByPerson(Parent().Owner().ClipboardText());
}

void EditControl::UndoByPerson() {
    if (edit_.locked || edit_.undo == edit_.text) {
        return;
    }
    std::string back = edit_.undo;
    edit_.undo = edit_.text;
    const int caret = static_cast<int>(back.size());
    TakeText(std::move(back), caret);
    Edited();
}

}  // namespace brindlex
