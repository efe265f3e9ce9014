// A button widget that does nothing by itself: keys, presses and mnemonics go to the surface, and its mark is never
// flipped by a press but mirrored. The press itself takes the focus, before the button comes up and Click runs.
#pragma once

#include "desktop/editkeys.h"
#include "desktop/formwindow.h"
#include "frame/buttons.h"

#include <QKeyEvent>
#include <QShortcutEvent>

namespace brindlex {

/// What the arrow keys do on a button: walk the tab order; on an option, choose the next one of its container.
/// False for any other key.
[[nodiscard]] bool WalkButtons(FormWindow& window, Button& button, int key);

template <class Widget>
class PressWidget : public Widget {
public:
    PressWidget(QWidget* parent, FormWindow& window, Button& button)
        : Widget(parent), window_(window), button_(button) {
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
            window_.ByPerson([this] { window_.Surface().PressByPerson(button_); });
            return true;
        }
        return Widget::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (!WalkButtons(window_, button_, event->key()) && RouteKey(window_, button_, *event) != KeyRoute::Surface) {
            event->ignore();
        }
    }
    void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }
    void nextCheckState() override {}
    [[nodiscard]] bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

private:
    FormWindow& window_;
    Button& button_;
};

}  // namespace brindlex
