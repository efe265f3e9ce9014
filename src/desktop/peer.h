// The peer of a control: it mirrors the control's state into a widget and hands what a person does there back to the
// surface. The truth stays in the control; a peer keeps nothing that the control has.
// Units: widgets in pixels, controls in the scale of their container.
#pragma once

#include "frame/control.h"
#include "frame/player.h"

#include <QObject>

#include <memory>
#include <optional>
#include <string_view>

class QFocusEvent;
class QMouseEvent;
class QWidget;

namespace brindlex {

class FormWindow;

class Peer : public QObject {
public:
    /// The widget stands on its container's already, and is the window's to delete.
    Peer(FormWindow& window, Control& control, QWidget* widget);
    ~Peer() override = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    [[nodiscard]] Control& Surface() const { return control_; }
    /// Null for what a person cannot see.
    [[nodiscard]] QWidget* Widget() const { return widget_; }

    /// Writes one aspect of the control, or all of them, into the widget.
    void MirrorAspect(Aspect aspect);

    /// What the widget shows of a property; nothing where it shows no such thing.
    [[nodiscard]] virtual std::optional<PropertyValue> Seen(std::string_view property) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// What this kind of control shows beyond what all do.
    virtual void MirrorOwn(Aspect /*aspect*/) {}
    /// Whether the left button going up over the widget is the control's Click, and the event goes no further.
    [[nodiscard]] virtual bool RelaysMouse() const { return false; }
    /// The focus has come by the mouse, and the surface has answered.
    virtual void FocusedByMouse() {}
    /// The widget that hears the mouse where it is not the peer's own.
    void WatchMouse(QWidget* widget);

    [[nodiscard]] FormWindow& Window() const { return window_; }

private:
    void MirrorLook();
    void MirrorOrder();
    [[nodiscard]] bool FocusIn(const QFocusEvent& event);
    [[nodiscard]] bool MouseEvent(const QMouseEvent& event);
    [[nodiscard]] Mouse Position(const QMouseEvent& event, int button) const;
    [[nodiscard]] std::optional<PropertyValue> SeenPlace(std::string_view property) const;

    FormWindow& window_;
    Control& control_;
    QWidget* widget_;
    bool passing_ = false;
    bool doubled_ = false;
    bool looksOwn_ = false;
};

/// The button of a mouse event as the surface counts it, the one held, and the shift state.
[[nodiscard]] int ButtonOf(const QMouseEvent& event);
[[nodiscard]] int HeldButton(const QMouseEvent& event);
[[nodiscard]] int ShiftState(const QMouseEvent& event);

/// -1 or 0.
[[nodiscard]] inline PropertyValue FlagSeen(bool flag) {
    return flag ? -1.0 : 0.0;
}

/// Makes the peer of a control; nothing for a control that needs none.
[[nodiscard]] std::unique_ptr<Peer> MakePeer(FormWindow& window, Control& control);

}  // namespace brindlex
