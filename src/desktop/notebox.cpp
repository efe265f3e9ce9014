// Several lines of text.
#include "desktop/notebox.h"

#include "desktop/editkeys.h"
#include "desktop/formwindow.h"
#include "desktop/texts.h"

#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

namespace brindlex {

NoteBox::NoteBox(QWidget* parent, FormWindow& window, TextBox& box)
    : QPlainTextEdit(parent), window_(window), box_(box) {
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { TakeSelection(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { TakeSelection(); });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!window_.Deaf()) {
            TakeChange(window_, box_, SurfaceText());
            const Mirror::Write write(window_.Flag());
            MirrorText();
        }
    });
}

QString NoteBox::SurfaceText() const {
    return toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

std::string NoteBox::SeenText() const {
    return ToText(SurfaceText());
}

bool NoteBox::ShowsText() const {
    return toPlainText() == FromLines(box_.Text()).replace(u'\r', u'\n');
}

void NoteBox::MirrorText() {
    if (!ShowsText()) {
        setPlainText(FromLines(box_.Text()));
    }
    MirrorSelection();
}

void NoteBox::MirrorSelection() {
    QTextCursor caret = textCursor();
    caret.setPosition(FromSurface(box_.SelStart()));
    caret.setPosition(FromSurface(box_.SelStart() + box_.SelLength()), QTextCursor::KeepAnchor);
    setTextCursor(caret);
}

// Each line end in front of a position is one character here and two there.
int NoteBox::ToSurface(int position) const {
    return position + document()->findBlock(position).blockNumber();
}

int NoteBox::FromSurface(int position) const {
    const std::string before = box_.Text().substr(0, static_cast<std::size_t>(position));
    return static_cast<int>(FromLines(before).size());
}

int NoteBox::SeenStart() const {
    return ToSurface(textCursor().selectionStart());
}

int NoteBox::SeenLength() const {
    return ToSurface(textCursor().selectionEnd()) - SeenStart();
}

void NoteBox::TakeSelection() {
    if (!window_.Deaf() && ShowsText()) {
        box_.SelectByPerson(SeenStart(), SeenLength());
    }
}

bool NoteBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && ClaimsKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void NoteBox::keyPressEvent(QKeyEvent* event) {
    switch (RouteKey(window_, box_, *event)) {
        case KeyRoute::Surface:
            event->accept();
            break;
        case KeyRoute::Widget:
            QPlainTextEdit::keyPressEvent(event);
            break;
        case KeyRoute::Nobody:
            event->ignore();
            break;
    }
}

void NoteBox::contextMenuEvent(QContextMenuEvent* event) {
    window_.ByPerson([&] { EditMenu(this, window_, box_)->popup(event->globalPos()); });
}

void NoteBox::inputMethodEvent(QInputMethodEvent* event) {
    TypeText(window_, box_, event->commitString());
    QInputMethodEvent uncommitted(event->preeditString(), event->attributes());
    QPlainTextEdit::inputMethodEvent(&uncommitted);
}

void NoteBox::insertFromMimeData(const QMimeData* source) {
    InsertText(window_, box_, source->text());
}

}  // namespace brindlex
