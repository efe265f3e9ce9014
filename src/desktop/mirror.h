// The one flag of the desktop: whether it is writing the surface's state into its widgets just now. While it is, what
// the widgets signal comes from the program and not from the person.
#pragma once

namespace brindlex {

class Mirror {
public:
    Mirror() = default;
    ~Mirror() = default;
    Mirror(const Mirror&) = delete;
    Mirror& operator=(const Mirror&) = delete;

    [[nodiscard]] bool Writing() const { return depth_ > 0; }

    /// While it lives, the desktop is writing.
    class Write {
    public:
        explicit Write(Mirror& mirror) : mirror_(mirror) { ++mirror_.depth_; }
        ~Write() { --mirror_.depth_; }
        Write(const Write&) = delete;
        Write& operator=(const Write&) = delete;

    private:
        Mirror& mirror_;
    };

private:
    int depth_ = 0;
};

}  // namespace brindlex
