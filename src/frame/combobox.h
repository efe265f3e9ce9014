// A box with a list to choose from.
#pragma once

#include "frame/editcontrol.h"

#include <string>
#include <vector>

namespace brindlex {

class ComboBox : public EditControl {
public:
    ComboBox(ControlContainer& container, std::string name, const Place& place, std::string text = {});

    using EditControl::Text;
    /// Setting the text to one of the items chooses it and fires Click, also when it shows already. Another text than
    /// the present one fires Change.
    void Text(const std::string& value);

    /// Empties the list and the text; fires nothing.
    void Clear();
    void AddItem(const std::string& item);
    /// Many at once: the runtime is told once.
    void AddItems(const std::vector<std::string>& items);
    /// Throws BadArgument outside the list. The text stays.
    void RemoveItem(int index);
    [[nodiscard]] const std::vector<std::string>& List() const { return list_.items; }
    /// An item; an empty text outside the list.
    [[nodiscard]] std::string List(int index) const;
    [[nodiscard]] int ListCount() const { return static_cast<int>(list_.items.size()); }
    /// The chosen item's index; -1 where the text is none of the items.
    [[nodiscard]] int ListIndex() const { return list_.index; }
    /// Chooses an item and fires Click; -1 chooses none and empties the text.
    void ListIndex(int index);

    /// Part of the design: only the list can be chosen from; no text is typed.
    [[nodiscard]] bool ListOnly() const { return listOnly_; }
    void ListOnly(bool value) { listOnly_ = value; }

    /// A person picks an item from the opened list, or walks there with the arrow keys.
    void ChooseByPerson(int index);
    void ActOnKey(int keyAscii) override;

protected:
    void KeepDesign() override;
    void ResetToDesign() override;
    void Edited() override;

private:
    void Choose(int index);

    struct Items {
        std::vector<std::string> items;
        int index = -1;
    };
    Items list_;
    Items design_;
    bool listOnly_ = false;
};

}  // namespace brindlex
