// Timers.
#include "desktop/timerpeer.h"

#include "desktop/formwindow.h"
#include "frame/program.h"

namespace brindlex {

TimerPeer::TimerPeer(FormWindow& window, TimerControl& timer) : Peer(window, timer, nullptr), timer_(timer) {
    connect(&clock_, &QTimer::timeout, this, [this] {
        // Time in which timers hold does not pass for them.
        if (!timer_.Parent().Owner().TimersHeld()) {
            Window().ByPerson([this] { timer_.Elapse(timer_.Interval()); });
        }
    });
}

void TimerPeer::MirrorOwn(Aspect /*aspect*/) {
    const bool runs = static_cast<const Control&>(timer_).Enabled() && timer_.Interval() > 0;
    if (!runs) {
        clock_.stop();
    } else if (!clock_.isActive() || clock_.interval() != timer_.Interval()) {
        clock_.start(timer_.Interval());
    }
}

}  // namespace brindlex
