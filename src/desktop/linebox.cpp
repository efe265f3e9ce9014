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
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

#include <limits>

namespace brindlex {

namespace {

// Beside its text a line keeps so many pixels free.
constexpr int Margin = 2;
constexpr char16_t Ellipsis = u'\u2026';

}  // namespace

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
    ShowSelection();
    // No two boxes look selected, whichever way the text came.
    if (box_.SelLength() > 0 && box_.Parent().ActiveControl() != &box_) {
        dropped_ = true;
        deselect();
    }
}

void LineBox::ShowSelection() {
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
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const QRect place = TextPlace();
        const bool cut = IsCutAt(place.left()) || IsCutAt(place.right());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? text().toHtmlEscaped() : QString(),
                           this);
        return true;
    }
    return QLineEdit::event(event);
}

QRect LineBox::TextPlace() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_LineEditContents, &option, this).adjusted(Margin, 0, -Margin, 0);
}

// Whether the text goes on beyond that place, which is one of the two ends of the box.
bool LineBox::IsCutAt(int x) {
    const QRect place = TextPlace();
    if (fontMetrics().horizontalAdvance(text()) <= place.width()) {
        return false;
    }
    const auto at = static_cast<qsizetype>(cursorPositionAt(QPoint(x, place.center().y())));
    return x == place.left() ? at > 0 : at < text().size();
}

// Where a character begins on the line, counted from the caret, whose place is what the base tells.
int LineBox::XOf(int position) const {
    const auto advance = [this](int characters) { return fontMetrics().horizontalAdvance(text(), characters); };
    return cursorRect().center().x() + 1 + advance(position) - advance(cursorPosition());
}

// The end of the line that the ellipsis takes: no half of a figure stays beside it, which may look like another one.
QRect LineBox::Patch(int x) {
    const QRect place = TextPlace();
    const int width = fontMetrics().horizontalAdvance(Ellipsis) + Margin;
    QRect patch(x == place.left() ? x - Margin : x + Margin - width + 1, place.top(), width, place.height());
    const auto positionAt = [&](int edge) { return cursorPositionAt(QPoint(edge, place.center().y())); };
    if (x == place.left()) {
        int whole = positionAt(patch.right());
        while (whole < text().size() && XOf(whole) <= patch.right()) {
            ++whole;
        }
        patch.setRight(XOf(whole) - 1);
    } else {
        int whole = positionAt(patch.left());
        while (whole > 0 && XOf(whole) > patch.left()) {
            --whole;
        }
        patch.setLeft(XOf(whole));
    }
    return patch;
}

void LineBox::MarkCut(int x) {
    if (!IsCutAt(x)) {
        return;
    }
    const QRect patch = Patch(x);
    // Where the caret stands a person reads on by moving it.
    if (!(hasFocus() && patch.intersects(cursorRect()))) {
        QPainter painter(this);
        painter.fillRect(patch, palette().base());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(patch, Qt::AlignVCenter | (x == TextPlace().left() ? Qt::AlignRight : Qt::AlignLeft),
                         QString(Ellipsis));
    }
}

void LineBox::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    MarkCut(TextPlace().left());
    MarkCut(TextPlace().right());
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
        ShowSelection();
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
