// The peer of a scroll bar. Where Min lies above Max the widget runs the other way round, as a widget's range only
// rises.
#pragma once

#include "desktop/peer.h"
#include "frame/scrollbar.h"

class QScrollBar;

namespace brindlex {

class ScrollBarPeer : public Peer {
public:
    ScrollBarPeer(FormWindow& window, ScrollBar& bar);
    [[nodiscard]] std::optional<PropertyValue> Seen(std::string_view property) const override;
    /// A value of the bar as the widget has it, or the other way round.
    [[nodiscard]] int Turned(int value) const;

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    ScrollBar& bar_;
    QScrollBar* shown_;
};

}  // namespace brindlex
