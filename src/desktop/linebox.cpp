// One line of text.
#include "desktop/linebox.h"

#include "desktop/editkeys.h"
#include "desktop/formwindow.h"
#include "desktop/texts.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

#include <limits>

namespace brindlex {

LineBox::LineBox(QWidget* parent, FormWindow& window, EditControl& box)
    : QLineEdit(parent), window_(window), box_(box) {
    setMaxLength(std::numeric_limits<int>::max());
    setDragEnabled(false);
    connect(this, &QLineEdit::selectionChanged, this, [this] { TakeSelection(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { TakeSelection(); });
    const auto take = [this](const QString& changed) {
        if (!window_.Deaf()) {
            TakeChange(window_, box_, changed);
            const Mirror::Write write(window_.Flag());
            MirrorText();
        }
    };
    // A screen reader's text comes as a change that was not edited; a list changes its line by itself, though.
    if (qobject_cast<QComboBox*>(parent) != nullptr) {
        connect(this, &QLineEdit::textEdited, this, take);
    } else {
        connect(this, &QLineEdit::textChanged, this, take);
    }
}

void LineBox::MirrorText() {
    const QString shown = FromText(box_.Text());
    if (text() != shown) {
        setText(shown);
    }
    MirrorSelection();
}

void LineBox::MirrorSelection() {
    dropped_ = false;
    if (box_.SelLength() > 0) {
        setSelection(box_.SelStart(), box_.SelLength());
    } else {
        deselect();
        setCursorPosition(box_.SelStart());
    }
}

int LineBox::SeenStart() const {
    if (dropped_) {
        return box_.SelStart();
    }
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

int LineBox::SeenLength() const {
    if (dropped_) {
        return box_.SelLength();
    }
    return hasSelectedText() ? selectionLength() : 0;
}

void LineBox::TakeSelection() {
    // While an edit of the widget's own is on its way, the two texts differ; the surface will say.
    if (window_.Deaf() || text() != FromText(box_.Text())) {
        return;
    }
    if (!hasSelectedText() && box_.Parent().ActiveControl() != &box_) {
        // The widget may drop the selection of a box without the focus at any later time too.
        dropped_ = dropped_ || box_.SelLength() > 0;
        if (dropped_) {
            return;
        }
    }
    box_.SelectByPerson(SeenStart(), SeenLength());
}

bool LineBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && ClaimsKey(*static_cast<QKeyEvent*>(event))) {
        // Ctrl+V comes to the box and not to a menu.
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void LineBox::keyPressEvent(QKeyEvent* event) {
    switch (RouteKey(window_, box_, *event)) {
        case KeyRoute::Surface:
            event->accept();
            break;
        case KeyRoute::Widget:
            QLineEdit::keyPressEvent(event);
            break;
        case KeyRoute::Nobody:
            event->ignore();
            break;
    }
}

void LineBox::contextMenuEvent(QContextMenuEvent* event) {
    window_.ByPerson([&] { EditMenu(this, window_, box_)->popup(event->globalPos()); });
}

void LineBox::dropEvent(QDropEvent* event) {
    if (event->mimeData()->hasText()) {
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        InsertText(window_, box_, event->mimeData()->text());
        event->acceptProposedAction();
    }
}

void LineBox::inputMethodEvent(QInputMethodEvent* event) {
    TypeText(window_, box_, event->commitString());
    QInputMethodEvent uncommitted(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&uncommitted);
}

void LineBox::focusInEvent(QFocusEvent* event) {
    const Mirror::Write write(window_.Flag());
    const bool back = dropped_;
    QLineEdit::focusInEvent(event);
    if (back) {
        MirrorSelection();
    }
}

/// The widget drops the selection of a box that is left, so that no two boxes look selected. The surface keeps it.
void LineBox::focusOutEvent(QFocusEvent* event) {
    const Mirror::Write write(window_.Flag());
    const bool selected = hasSelectedText();
    QLineEdit::focusOutEvent(event);
    dropped_ = dropped_ || (selected && !hasSelectedText());
}

void LineBox::KeepSelectionOverPress() {
    pressHeld_ = box_.SelLength() > 0;
}

void LineBox::mousePressEvent(QMouseEvent* event) {
    pressPlace_ = event->position().toPoint();
    if (!pressHeld_) {
        QLineEdit::mousePressEvent(event);
    }
}

void LineBox::mouseMoveEvent(QMouseEvent* event) {
    if (pressHeld_ && (event->buttons() & Qt::LeftButton) != 0) {
        const int distance = (event->position().toPoint() - pressPlace_).manhattanLength();
        if (distance < QApplication::startDragDistance()) {
            return;
        }
        // A drag after all: it selects from where it began.
        pressHeld_ = false;
        setCursorPosition(cursorPositionAt(pressPlace_));
    }
    QLineEdit::mouseMoveEvent(event);
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
    if (pressHeld_) {
        pressHeld_ = false;
        return;
    }
    const QClipboard* const clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        InsertText(window_, box_, clipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

}  // namespace brindlex
