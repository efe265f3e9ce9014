// The peer of a frame, and its widget.
#pragma once

#include "desktop/peer.h"
#include "frame/label.h"

#include <QGroupBox>

namespace brindlex {

/// A border with the title in its upper side; controls keep their places from the widget's corner.
class FrameBox : public QGroupBox {
public:
    explicit FrameBox(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

class FramePeer : public Peer {
public:
    FramePeer(FormWindow& window, Frame& frame);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;
    [[nodiscard]] bool RelaysMouse() const override { return true; }

private:
    Frame& frame_;
    FrameBox* box_;
};

}  // namespace brindlex
