// The peer of a label.
#pragma once

#include "desktop/peer.h"
#include "frame/label.h"

class QLabel;

namespace brindlex {

class LabelPeer : public Peer {
public:
    LabelPeer(FormWindow& window, Label& label);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;

protected:
    void MirrorOwn(Aspect aspect) override;
    [[nodiscard]] bool RelaysMouse() const override { return true; }

private:
    void MirrorGround();

    Label& label_;
    QLabel* text_;
    bool onPicture_ = false;
};

}  // namespace brindlex
