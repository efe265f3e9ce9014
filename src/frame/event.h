// A slot for one event handler. An event bears the event's own name and is bound to a member function that is named
// after control and event: Command1.Click.Bind(this, &Form1::Command1_Click).
// Ground floor: includes only the standard library.
#pragma once

#include <functional>
#include <utility>

namespace brindlex {

template <class... Arguments>
class Event {
public:
    template <class Object>
    void Bind(Object* object, void (Object::*handler)(Arguments...)) {
        handler_ = [object, handler](Arguments... arguments) {
            (object->*handler)(std::forward<Arguments>(arguments)...);
        };
    }
    void Bind(std::function<void(Arguments...)> handler) { handler_ = std::move(handler); }

    [[nodiscard]] bool IsBound() const { return static_cast<bool>(handler_); }
    /// Runs the handler at once, past all dispatch. Only the dispatch of the surface calls this.
    void Call(Arguments... arguments) const {
        if (handler_) {
            handler_(std::forward<Arguments>(arguments)...);
        }
    }

private:
    std::function<void(Arguments...)> handler_;
};

}  // namespace brindlex
