// A button of a toolbar. It shows what is mirrored, flips nothing by itself, and has the focus only while the keyboard
// walks along the toolbar.
#pragma once

#include <QToolButton>

namespace brindlex {

/// The row that the buttons stand in.
class ToolRow : public QWidget {
public:
    using QWidget::QWidget;
};

class ToolWidget : public QToolButton {
public:
    explicit ToolWidget(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override {}

private:
    void StepOn(bool forward);
};

}  // namespace brindlex
