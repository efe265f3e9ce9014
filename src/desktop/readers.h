// What a screen reader gets of the widgets beyond what the toolkit says by itself: the roles of windows, options,
// tools, links and pictures, and the words for a picture. Nothing of this is done before a reader asks.
#pragma once

#include <QAccessible>

#include <functional>
#include <utility>

namespace brindlex {

/// The toolkit asks here first. Once for the whole application.
void ServeReaders();

/// Tells when the first reader comes while the program runs.
class ReaderWatch : public QAccessible::ActivationObserver {
public:
    explicit ReaderWatch(std::function<void()> came);
    ~ReaderWatch() override;
    ReaderWatch(const ReaderWatch&) = delete;
    ReaderWatch& operator=(const ReaderWatch&) = delete;

    void accessibilityActiveChanged(bool active) override;

private:
    std::function<void()> came_;
};

}  // namespace brindlex
