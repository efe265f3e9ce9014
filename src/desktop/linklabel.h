// A label that answers a press: underlined, and a way for the keyboard too.
#pragma once

#include <QLabel>

#include <functional>
#include <utility>

namespace brindlex {

class LinkLabel : public QLabel {
public:
    LinkLabel(QWidget* parent, std::function<void()> press);

    void Press() const { press_(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;

private:
    std::function<void()> press_;
};

}  // namespace brindlex
