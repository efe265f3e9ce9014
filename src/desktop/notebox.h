// The widget of a text of several lines, which edits as little by itself as a line does.
// Units: positions of the widget count a line end as one character, those of the surface as two.
#pragma once

#include "frame/textbox.h"

#include <QPlainTextEdit>

namespace brindlex {

class FormWindow;

class NoteBox : public QPlainTextEdit {
public:
    NoteBox(QWidget* parent, FormWindow& window, TextBox& box);

    void MirrorText();
    void MirrorSelection();
    /// What it shows, in the surface's text and positions.
    [[nodiscard]] std::string SeenText() const;
    /// Whether that is the surface's text, line ends of any kind taken for the same.
    [[nodiscard]] bool ShowsText() const;
    [[nodiscard]] int SeenStart() const;
    [[nodiscard]] int SeenLength() const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void TakeSelection();
    [[nodiscard]] QString SurfaceText() const;
    [[nodiscard]] int ToSurface(int position) const;
    [[nodiscard]] int FromSurface(int position) const;

    FormWindow& window_;
    TextBox& box_;
};

}  // namespace brindlex
