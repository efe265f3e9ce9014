// A line of text that a person can edit: what text boxes and combo boxes share.
// Units: positions in characters from 0.
#pragma once

#include "frame/control.h"

#include <string>
#include <string_view>

namespace brindlex {

class EditControl : public InputControl {
public:
    [[nodiscard]] const std::string& Text() const { return edit_.text; }
    /// The selection's start, or the caret where nothing is selected. Setting it drops the selection.
    [[nodiscard]] int SelStart() const { return edit_.selStart; }
    void SelStart(int value);
    [[nodiscard]] int SelLength() const { return edit_.selLength; }
    /// Cut to what stands behind SelStart.
    void SelLength(int value);
    [[nodiscard]] std::string SelText() const;
    void SelectAll();
    /// A locked box shows, selects and copies, but takes no entry by a person.
    [[nodiscard]] bool Locked() const { return edit_.locked; }
    void Locked(bool value);
    /// The most characters that a person can enter; 0 for no limit.
    [[nodiscard]] int MaxLength() const { return edit_.maxLength; }
    void MaxLength(int value) { edit_.maxLength = value; }
    [[nodiscard]] virtual bool MultiLine() const { return false; }

    Event<> Change;

    // What a person does, handed on by a runtime.

    /// Typing, backspace, copy (3), paste (22), cut (24), undo (26), select all (1).
    void ActOnKey(int keyAscii) override;
    /// Puts text in place of the selection by another way than the keys: context menu, drop. Nothing where locked.
    void InsertByPerson(std::string_view text);
    /// The Delete key, which is no character: the selection goes, or the character behind the caret.
    void DeleteByPerson();
    void CopyByPerson();
    void CutByPerson();
    void PasteByPerson();
    void UndoByPerson();
    /// Selects without telling the runtime, which knows already.
    void SelectByPerson(int start, int length);

protected:
    using InputControl::InputControl;

    void KeepDesign() override;
    void ResetToDesign() override;
    /// Takes a text and a caret, tells the runtime, fires nothing.
    void TakeText(std::string text, int caret);
    /// Called when a person's edit has changed the text.
    virtual void Edited();

private:
    void Replace(std::string_view text);
    void EraseBackwards();

    struct Edit {
        std::string text;
        int selStart = 0;
        int selLength = 0;
        int maxLength = 0;
        bool locked = false;
        std::string undo;
    };
    Edit edit_;
    Edit design_;
};

}  // namespace brindlex
