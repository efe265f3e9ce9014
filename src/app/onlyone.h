// One run in one working directory: a second start there calls the first, which comes forward, and ends.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace brindlex {

class OnlyOne {
public:
    /// Takes the folder for this run, or calls the run that has it. Where neither can be done, goes on alone.
    explicit OnlyOne(const std::filesystem::path& folder);
    ~OnlyOne();
    OnlyOne(const OnlyOne&) = delete;
    OnlyOne& operator=(const OnlyOne&) = delete;

    /// Whether another run has the folder and was called.
    [[nodiscard]] bool CalledFirst() const { return calledFirst_; }
    /// What to do when a later start calls. Needs the application.
    void WhenCalled(std::function<void()> come);

private:
    int socket_ = -1;
    bool calledFirst_ = false;
    std::function<void()> come_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace brindlex
