// A disk that fills up in the middle of a file.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace brindlex {

/// Lets no file grow beyond a size.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t size) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        rlimit limit = old_;
        limit.rlim_cur = size;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk(SmallDisk&&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    SmallDisk& operator=(SmallDisk&&) = delete;
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    rlimit old_{};
    void (*signal_)(int);
};

}  // namespace brindlex
