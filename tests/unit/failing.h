// A system that fails in the unit tests: calls that give errors, and no more files to open.
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace brindlex {

/// While it lives, calls of one name fail: from the first one on, so many times. Several can live at once.
/// rewrite_faults_test.cpp has the calls.
class Failing {
public:
    explicit Failing(std::string_view call, int error, int first = 1, int times = 1)
        : call_(call), error_(error), first_(first), times_(times), before_(std::exchange(Last(), this)) {}
    Failing(const Failing&) = delete;
    Failing(Failing&&) = delete;
    Failing& operator=(const Failing&) = delete;
    Failing& operator=(Failing&&) = delete;
    ~Failing() { Last() = before_; }

    /// How often it was called.
    [[nodiscard]] int Calls() const { return calls_; }

    /// Whether this call fails; sets errno.
    static bool At(std::string_view call) {
        for (Failing* failing = Last(); failing != nullptr; failing = failing->before_) {
            if (failing->call_ == call) {
                ++failing->calls_;
                if (failing->calls_ >= failing->first_ && failing->calls_ - failing->first_ < failing->times_) {
                    errno = failing->error_;
                    return true;
                }
            }
        }
        return false;
    }

private:
    static Failing*& Last() {
        static Failing* last = nullptr;
        return last;
    }

    std::string_view call_;
    int error_;
    int first_;
    int times_;
    int calls_ = 0;
    Failing* before_;
};

/// While it lives, so many files can be opened and no more.
class NoDescriptors {
public:
    explicit NoDescriptors(rlim_t more = 0) {
        const int free = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        ::close(free);
        ::getrlimit(RLIMIT_NOFILE, &old_);
        rlimit limit = old_;
        limit.rlim_cur = static_cast<rlim_t>(free) + more;
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors(NoDescriptors&&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;
    NoDescriptors& operator=(NoDescriptors&&) = delete;
    ~NoDescriptors() { ::setrlimit(RLIMIT_NOFILE, &old_); }

private:
    rlimit old_{};
};

}  // namespace brindlex
