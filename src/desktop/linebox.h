// The widget of one line of text: it shows, selects and moves the caret by itself, and edits nothing; the surface does.
// Where a text is longer than the box, an ellipsis marks the end that is out of sight, as a number that lost digits may
// look like a whole one; the pointer brings up all of it.
#pragma once

#include "frame/editcontrol.h"

#include <QLineEdit>
#include <QPoint>

namespace brindlex {

class FormWindow;

class LineBox : public QLineEdit {
public:
    LineBox(QWidget* parent, FormWindow& window, EditControl& box);

    /// Writes text or selection of the box into the widget.
    void MirrorText();
    void MirrorSelection();
    /// The press that brought the focus leaves alone what its GotFocus has selected.
    void KeepSelectionOverPress();
    [[nodiscard]] int SeenStart() const;
    [[nodiscard]] int SeenLength() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void TakeSelection();
    void ShowSelection();
    [[nodiscard]] QRect TextPlace() const;
    [[nodiscard]] bool IsCutAt(int x);
    [[nodiscard]] int XOf(int position) const;
    [[nodiscard]] QRect Patch(int x);
    void MarkCut(int x);

    FormWindow& window_;
    EditControl& box_;
    bool pressHeld_ = false;
    bool dropped_ = false;  ///< the widget dropped the selection when the focus went; the surface keeps it
    QPoint pressPlace_;
};

}  // namespace brindlex
