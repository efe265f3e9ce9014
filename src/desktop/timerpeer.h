// The peer of a timer: the clock of the window system while a person uses the program. A script lets time pass itself.
#pragma once

#include "desktop/peer.h"
#include "frame/scrollbar.h"

#include <QTimer>

namespace brindlex {

class TimerPeer : public Peer {
public:
    TimerPeer(FormWindow& window, TimerControl& timer);

protected:
    void MirrorOwn(Aspect aspect) override;

private:
    TimerControl& timer_;
    QTimer clock_;
};

}  // namespace brindlex
