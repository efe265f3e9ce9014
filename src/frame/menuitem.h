// A menu, one of its items, or a separator: the tree is declared in the form's header as it stands.
#pragma once

#include "frame/event.h"

#include <string>
#include <vector>

namespace brindlex {

class Form;

class MenuItem {
public:
    /// A menu of the form's menu bar.
    MenuItem(Form& form, std::string name, std::string caption);
    /// An item, or a menu of its own, within another. The caption "-" makes a separator.
    MenuItem(MenuItem& parent, std::string name, std::string caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;
    ~MenuItem() = default;

    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] Form& Parent() const { return *form_; }
    /// The menu that it stands in; null for one of the menu bar.
    [[nodiscard]] MenuItem* Within() const { return within_; }
    [[nodiscard]] const std::vector<MenuItem*>& Items() const { return items_; }
    [[nodiscard]] bool IsSeparator() const { return state_.caption == "-"; }

    [[nodiscard]] const std::string& Caption() const { return state_.caption; }
    void Caption(const std::string& value);
    [[nodiscard]] bool Checked() const { return state_.checked; }
    void Checked(bool value);
    [[nodiscard]] bool Enabled() const { return state_.enabled; }
    void Enabled(bool value);
    [[nodiscard]] bool Visible() const { return state_.visible; }
    void Visible(bool value);
    /// Enabled and visible, with every menu above it.
    [[nodiscard]] bool IsUsable() const;

    /// An item is chosen, or a menu opens.
    Event<> Click;
    void FireClick();

private:
    friend class Form;
    void Changed();

    struct State {
        std::string caption;
        bool checked = false;
        bool enabled = true;
        bool visible = true;
    };
    std::string name_;
    Form* form_;
    MenuItem* within_ = nullptr;
    std::vector<MenuItem*> items_;
    State state_;
    State design_;
};

}  // namespace brindlex
