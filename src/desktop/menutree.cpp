// Menus.
#include "desktop/menutree.h"

#include "desktop/formwindow.h"
#include "desktop/looks.h"
#include "desktop/texts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace brindlex {

namespace {

constexpr double MenuPoints = 9;

}  // namespace

MenuTree::MenuTree(FormWindow& window) : window_(window) {
    const auto& menus = window.Surface().Menus();
    if (menus.empty()) {
        return;
    }
    bar_ = new QMenuBar(&window);
    bar_->setNativeMenuBar(false);
    bar_->setFont(ScreenFont("Arial", MenuPoints, false));
    for (MenuItem* const menu : menus) {
        if (menu->Items().empty()) {
            AddItem(*menu, nullptr);
        } else {
            AddMenu(*menu, nullptr);
        }
    }
}

void MenuTree::AddMenu(MenuItem& menu, QMenu* within) {
    auto* const shown = new QMenu(within == nullptr ? static_cast<QWidget*>(bar_) : within);
    shown->setFont(bar_->font());
    actions_[&menu] = within == nullptr ? bar_->addMenu(shown) : within->addMenu(shown);
    if (within == nullptr) {
        QObject::connect(shown, &QMenu::aboutToShow, &window_, [this, &menu] { Opens(menu); });
    }
    for (MenuItem* const item : menu.Items()) {
        if (item->Items().empty()) {
            AddItem(*item, shown);
        } else {
            AddMenu(*item, shown);
        }
    }
    MirrorItem(menu);
}

void MenuTree::AddItem(MenuItem& item, QMenu* within) {
    auto* const action = new QAction(within == nullptr ? static_cast<QWidget*>(bar_) : within);
    // No item becomes the platform's "Quit" or "About" by its caption.
    action->setMenuRole(QAction::NoRole);
    action->setSeparator(item.IsSeparator());
    if (within == nullptr) {
        bar_->addAction(action);
    } else {
        within->addAction(action);
    }
    actions_[&item] = action;
    QObject::connect(action, &QAction::triggered, &window_, [this, &item] { Chosen(item); });
    MirrorItem(item);
}

void MenuTree::MirrorItem(MenuItem& item) {
    QAction* const action = ActionOf(item);
    if (action == nullptr) {
        return;
    }
    const Mirror::Write write(window_.Flag());
    if (!item.IsSeparator()) {
        action->setText(FromText(item.Caption()));
    }
    // Only an item that is checked has room for its mark.
    action->setCheckable(item.Checked());
    action->setChecked(item.Checked());
    action->setEnabled(item.Enabled());
    action->setVisible(item.Visible());
}

void MenuTree::Opens(MenuItem& menu) {
    if (!popping_) {
        window_.ByPerson([&] { window_.Surface().OpenMenuByPerson(menu); });
    }
}

void MenuTree::Chosen(MenuItem& item) {
    // The action has taken its mark away, or set it, before it told; the surface decides.
    MirrorItem(item);
    window_.ByPerson([&] { item.FireClick(); });
}

void MenuTree::PopUp(MenuItem& menu, const QPoint& globalPlace) {
    if (QMenu* const shown = MenuOf(menu)) {
        popping_ = true;
        shown->popup(globalPlace);
        popping_ = false;
    }
}

int MenuTree::BarHeight() const {
    return bar_ == nullptr ? 0 : bar_->sizeHint().height();
}

int MenuTree::LayBar(int width) {
    const int height = BarHeight();
    if (bar_ != nullptr) {
        bar_->setGeometry(0, 0, width, height);
    }
    return height;
}

QAction* MenuTree::ActionOf(const MenuItem& item) const {
    const auto found = actions_.find(&item);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* MenuTree::MenuOf(const MenuItem& item) const {
    QAction* const action = ActionOf(item);
    return action == nullptr ? nullptr : action->menu<QMenu*>();
}

std::optional<PropertyValue> MenuTree::Seen(const MenuItem& item, std::string_view property) const {
    const QAction* const action = ActionOf(item);
    if (action == nullptr || item.IsSeparator()) {
        return std::nullopt;
    }
    if (property == "Visible") {
        return FlagSeen(action->isVisible());
    }
    // What is hidden shows nothing else.
    if (!action->isVisible()) {
        return std::nullopt;
    }
    if (property == "Caption") {
        return action->isSeparator() ? std::string("-") : ToText(action->text());
    }
    if (property == "Enabled") {
        return FlagSeen(action->isEnabled());
    }
    if (property == "Checked") {
        return FlagSeen(action->isCheckable() && action->isChecked());
    }
    return std::nullopt;
}

}  // namespace brindlex
