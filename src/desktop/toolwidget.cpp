// Tool buttons under the keyboard.
#include "desktop/toolwidget.h"

#include <QKeyEvent>

namespace brindlex {

ToolWidget::ToolWidget(QWidget* parent) : QToolButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
}

void ToolWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            StepOn(true);
            break;
        case Qt::Key_Left:
        case Qt::Key_Up:
            StepOn(false);
            break;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            break;
        default:
            event->ignore();
    }
}

// To the next tool that can be pressed; past the last comes the first.
void ToolWidget::StepOn(bool forward) {
    const auto tools = parentWidget()->findChildren<ToolWidget*>(Qt::FindDirectChildrenOnly);
    const qsizetype here = tools.indexOf(this);
    for (qsizetype steps = 1; steps < tools.size(); ++steps) {
        ToolWidget* const tool = tools[(here + (forward ? steps : tools.size() - steps)) % tools.size()];
        if (tool->isEnabled()) {
            tool->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

}  // namespace brindlex
