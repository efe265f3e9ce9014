// The menus of a window, mirrored from the surface's tree: what stands on the bar and what pops up.
#pragma once

#include "frame/menuitem.h"
#include "frame/player.h"

#include <optional>
#include <string_view>
#include <unordered_map>

class QAction;
class QMenu;
class QMenuBar;
class QPoint;

namespace brindlex {

class FormWindow;

class MenuTree {
public:
    explicit MenuTree(FormWindow& window);
    ~MenuTree() = default;
    MenuTree(const MenuTree&) = delete;
    MenuTree& operator=(const MenuTree&) = delete;

    void MirrorItem(MenuItem& item);
    /// Height of the bar in pixels; 0 where the form has no menus.
    [[nodiscard]] int BarHeight() const;
    /// Lays the bar along the window's top and returns its height.
    int LayBar(int width);
    /// Pops up a menu whose Click has run already.
    void PopUp(MenuItem& menu, const QPoint& globalPlace);

    [[nodiscard]] QMenuBar* Bar() const { return bar_; }
    /// Null for an item that is no menu.
    [[nodiscard]] QMenu* MenuOf(const MenuItem& item) const;
    [[nodiscard]] QAction* ActionOf(const MenuItem& item) const;
    [[nodiscard]] std::optional<PropertyValue> Seen(const MenuItem& item, std::string_view property) const;

private:
    void AddMenu(MenuItem& menu, QMenu* within);
    void AddItem(MenuItem& item, QMenu* within);
    void Opens(MenuItem& menu);
    void Chosen(MenuItem& item);

    FormWindow& window_;
    QMenuBar* bar_ = nullptr;
    bool popping_ = false;
    std::unordered_map<const MenuItem*, QAction*> actions_;
};

}  // namespace brindlex
