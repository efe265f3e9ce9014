// The way of every event to its handler: one place that counts the nesting, catches what no route caught, and lets
// the end of the program through.
#pragma once

#include "frame/fault.h"

#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex {

class Form;

/// On its way from the end of the program to the bottom of the running handlers. Not a std::exception on purpose:
/// no route may catch it.
struct ProgramEnded {};

class Dispatcher {
public:
    /// Deeper nesting than any real chain of handlers.
    static constexpr std::size_t DeepestChain = 64;

    virtual ~Dispatcher() = default;
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;

    /// Runs one handler. A fault that it lets out ends the program by FatalFault. After the end nothing runs.
    template <class Handler>
    void Run(std::string_view owner, const char* what, Handler&& handler) {
        if (Over()) {
            return;
        }
        const Link link(*this, owner, what);
        try {
            try {
                if (chain_.size() > DeepestChain) {
                    throw Fault(FaultNumber::OutOfStack, ChainText());
                }
                std::forward<Handler>(handler)();
            } catch (const Fault& fault) {
                FatalFault(fault);
            } catch (const std::bad_alloc&) {
                FatalFault(Fault(FaultNumber::OutOfMemory));
            }
        } catch (const ProgramEnded&) {
            if (chain_.size() > base_ + 1) {
                throw;
            }
        }
    }

    /// The handlers that are running, outermost first.
    [[nodiscard]] std::string ChainText() const;

protected:
    Dispatcher() = default;
    [[nodiscard]] virtual bool Over() const = 0;
    [[noreturn]] virtual void FatalFault(const Fault& fault) = 0;

    /// While it lives, events come from the window system again, below which no exception may pass.
    class Boundary {
    public:
        explicit Boundary(Dispatcher& dispatcher) : dispatcher_(dispatcher), base_(dispatcher.base_) {
            dispatcher_.base_ = dispatcher_.chain_.size();
        }
        ~Boundary() { dispatcher_.base_ = base_; }
        Boundary(const Boundary&) = delete;
        Boundary& operator=(const Boundary&) = delete;

    private:
        Dispatcher& dispatcher_;
        std::size_t base_;
    };

private:
    struct Entry {
        std::string_view owner;
        const char* what;
    };
    class Link {
    public:
        Link(Dispatcher& dispatcher, std::string_view owner, const char* what) : dispatcher_(dispatcher) {
            dispatcher_.chain_.push_back({owner, what});
        }
        ~Link() { dispatcher_.chain_.pop_back(); }
        Link(const Link&) = delete;
        Link& operator=(const Link&) = delete;

    private:
        Dispatcher& dispatcher_;
    };

    std::vector<Entry> chain_;
    std::size_t base_ = 0;
};

/// The dispatch of the program that owns the form.
[[nodiscard]] Dispatcher& DispatcherOf(Form& form);

}  // namespace brindlex
