// The system's requests to end, as events: SIGTERM, SIGINT and SIGHUP.
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace brindlex {

class EndSignals {
public:
    /// From here on the signals wait to be read. To be made before there are other threads.
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// What to do when one arrives. Needs the application.
    void WhenTold(std::function<void()> end);

private:
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace brindlex
