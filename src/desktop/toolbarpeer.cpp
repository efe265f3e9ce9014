// Toolbars.
#include "desktop/toolbarpeer.h"

#include "desktop/formwindow.h"
#include "desktop/looks.h"
#include "desktop/texts.h"
#include "desktop/toolicons.h"
#include "desktop/toolwidget.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr int SeparatorWidth = 10;
constexpr int IconInset = 3;
constexpr Colour Accent{0, 110, 220};

}  // namespace

ToolbarPeer::ToolbarPeer(FormWindow& window, Toolbar& toolbar)
    : Peer(window, toolbar, new ToolRow(window.Inside(toolbar.Container()))), toolbar_(toolbar) {
    for (const ToolButton& tool : toolbar.Buttons()) {
        AddTool(tool);
    }
}

void ToolbarPeer::AddTool(const ToolButton& tool) {
    if (tool.IsSeparator()) {
        tools_.push_back({{}, nullptr});
        return;
    }
    auto* const button = new ToolWidget(Widget());
    button->setAccessibleName(FromText(tool.Caption.empty() ? tool.ToolTipText : tool.Caption));
    button->setCheckable(tool.Group);
    connect(button, &QToolButton::clicked, this,
            [this, key = tool.Key] { Window().ByPerson([&] { toolbar_.PressByPerson(key); }); });
    tools_.push_back({tool.Key, button});
}

QToolButton* ToolbarPeer::ButtonOf(std::string_view key) const {
    const auto found =
        std::find_if(tools_.begin(), tools_.end(), [&](const Tool& t) { return t.button != nullptr && t.key == key; });
    return found == tools_.end() ? nullptr : found->button;
}

void ToolbarPeer::LayOut() {
    const int side = Widget()->height();
    int left = 0;
    for (const Tool& tool : tools_) {
        if (tool.button == nullptr) {
            left += SeparatorWidth;
            continue;
        }
        tool.button->setGeometry(left, 0, side, side);
        tool.button->setIconSize(QSize(side - 2 * IconInset, side - 2 * IconInset));
        left += side;
    }
}

void ToolbarPeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Place) {
        LayOut();
    }
    if (aspect == Aspect::All || aspect == Aspect::Look) {
        const QPalette& palette = Widget()->palette();
        const QColor accent = InkOn(palette, Accent);
        for (const Tool& tool : tools_) {
            if (tool.button != nullptr) {
                tool.button->setIcon(ToolIcon(tool.key, palette.color(QPalette::ButtonText), accent));
            }
        }
    }
    if (aspect != Aspect::All && aspect != Aspect::Buttons) {
        return;
    }
    for (const ToolButton& tool : toolbar_.Buttons()) {
        if (QToolButton* const button = tool.IsSeparator() ? nullptr : ButtonOf(tool.Key)) {
            button->setEnabled(tool.Enabled);
            button->setToolTip(FromText(tool.ToolTipText));
            button->setCheckable(tool.Group || tool.Value != 0);
            button->setChecked(tool.Value != 0);
        }
    }
}

std::optional<PropertyValue> ToolbarPeer::Seen(std::string_view property) const {
    const std::size_t point = property.find('.');
    if (point == std::string_view::npos) {
        return Peer::Seen(property);
    }
    const QToolButton* const button = ButtonOf(property.substr(0, point));
    const std::string_view own = property.substr(point + 1);
    if (button == nullptr) {
        return std::nullopt;
    }
    if (own == "Enabled") {
        return FlagSeen(button->isEnabledTo(Widget()));
    }
    if (own == "Value") {
        return button->isChecked() ? 1.0 : 0.0;
    }
    if (own == "ToolTipText") {
        return ToText(button->toolTip());
    }
    return std::nullopt;
}

}  // namespace brindlex
