// Labels that answer a press.
#include "desktop/linklabel.h"

#include "desktop/housestyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace brindlex {

LinkLabel::LinkLabel(QWidget* parent, std::function<void()> press) : QLabel(parent), press_(std::move(press)) {
    // By the keyboard alone: the mouse presses without moving the focus.
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        Press();
    } else {
        event->ignore();
    }
}

// Its ring goes around the words alone.
void LinkLabel::initStyleOption(QStyleOptionFrame* option) const {
    QLabel::initStyleOption(option);
    option->state.setFlag(QStyle::State_HasFocus, false);
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        const QRect words = fontMetrics().boundingRect(rect(), static_cast<int>(alignment()), text());
        constexpr int Aside = 5;
        PaintFocusRing(painter, QRect(words.left() - Aside, 0, words.width() + 2 * Aside, height()) & rect(),
                       palette());
    }
}

}  // namespace brindlex
