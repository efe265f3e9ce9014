// Signals read from a descriptor, so that they interrupt nothing.
#include "app/endsignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <utility>

#include <sys/signalfd.h>
#include <unistd.h>

namespace brindlex {

EndSignals::EndSignals() {
    sigset_t awaited;
    sigemptyset(&awaited);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&awaited, number);
    }
    if (pthread_sigmask(SIG_BLOCK, &awaited, nullptr) == 0) {
        descriptor_ = ::signalfd(-1, &awaited, SFD_CLOEXEC | SFD_NONBLOCK);
    }
}

EndSignals::~EndSignals() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

void EndSignals::WhenTold(std::function<void()> end) {
    if (descriptor_ < 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [descriptor = descriptor_, end = std::move(end)] {
                         signalfd_siginfo told{};
                         if (::read(descriptor, &told, sizeof(told)) == static_cast<ssize_t>(sizeof(told))) {
                             end();
                         }
                     });
}

}  // namespace brindlex
