// What all peers share: place, looks, focus, mouse.
#include "desktop/peer.h"

#include "desktop/formwindow.h"
#include "desktop/looks.h"
#include "desktop/pixels.h"
#include "desktop/texts.h"
#include "frame/picturebox.h"
#include "frame/program.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTextDocument>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace brindlex {

namespace {

constexpr double DefaultPoints = 8.25;

bool HearsMouse(const Control& control) {
    return control.MouseMove.IsBound() || control.MouseDown.IsBound() || control.MouseUp.IsBound() ||
           control.DblClick.IsBound();
}

bool IsPlain(const Control& control) {
    return control.FontSize() == DefaultPoints && !control.FontBold() && control.FontName() == "Arial" &&
           control.ForeColor() == Black;
}

// By which ways the focus comes from the person. Windows that come to the front and pop-ups that close are none.
bool ByPerson(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

}  // namespace

int ButtonOf(const QMouseEvent& event) {
    switch (event.button()) {
        case Qt::LeftButton:
            return LeftButton;
        case Qt::RightButton:
            return RightButton;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

int HeldButton(const QMouseEvent& event) {
    return ((event.buttons() & Qt::LeftButton) != 0 ? LeftButton : 0) +
           ((event.buttons() & Qt::RightButton) != 0 ? RightButton : 0);
}

int ShiftState(const QMouseEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return ((held & Qt::ShiftModifier) != 0 ? 1 : 0) + ((held & Qt::ControlModifier) != 0 ? 2 : 0) +
           ((held & Qt::AltModifier) != 0 ? 4 : 0);
}

Peer::Peer(FormWindow& window, Control& control, QWidget* widget)
    : window_(window), control_(control), widget_(widget) {
    if (widget_ != nullptr) {
        widget_->setObjectName(FromText(control.Name()));
        widget_->installEventFilter(this);
        widget_->setMouseTracking(control.MouseMove.IsBound());
    }
}

void Peer::WatchMouse(QWidget* widget) {
    widget->installEventFilter(this);
    widget->setMouseTracking(control_.MouseMove.IsBound());
}

void Peer::MirrorAspect(Aspect aspect) {
    if (widget_ == nullptr) {
        MirrorOwn(aspect);
        return;
    }
    const bool all = aspect == Aspect::All;
    if (all || aspect == Aspect::Place) {
        widget_->setGeometry(PixelRect(control_.PlaceInTwips()));
    }
    if (all || aspect == Aspect::Look) {
        MirrorLook();
    }
    if (all ? !control_.ToolTipText().empty() : aspect == Aspect::ToolTip) {
        const QString tip = FromText(control_.ToolTipText());
        widget_->setToolTip(Qt::mightBeRichText(tip) ? tip.toHtmlEscaped() : tip);
    }
    if (aspect == Aspect::Order) {
        MirrorOrder();
    }
    MirrorOwn(aspect);
    if (all ? !control_.Enabled() : aspect == Aspect::Enabled) {
        widget_->setEnabled(control_.Enabled());
    }
    if (all || aspect == Aspect::Visible) {
        widget_->setVisible(control_.Visible());
    }
}

void Peer::MirrorLook() {
    // A picture's look is that of its pen. A frame's goes on to its controls' widgets, though not to the controls.
    const Control* const outer = control_.Container().ContainerControl();
    const bool onPicture = dynamic_cast<const PictureBox*>(outer) != nullptr;
    const bool ownGround = outer == nullptr || onPicture || IsPlain(*outer);
    if (dynamic_cast<const PictureBox*>(&control_) != nullptr || (IsPlain(control_) && ownGround && !looksOwn_)) {
        return;
    }
    looksOwn_ = true;
    widget_->setFont(ScreenFont(control_.FontName(), control_.FontSize(), control_.FontBold()));
    QPalette palette = onPicture ? PaperPalette(window_.palette()) : window_.palette();
    if (control_.ForeColor() != Black) {
        const QColor ink = InkOn(palette, control_.ForeColor());
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
                palette.setColor(group, role, ink);
            }
        }
    }
    widget_->setPalette(palette);
}

void Peer::MirrorOrder() {
    QWidget* const inside = window_.Inside(control_.Container());
    if (widget_->parentWidget() != inside) {
        widget_->setParent(inside);
        widget_->setGeometry(PixelRect(control_.PlaceInTwips()));
        widget_->setVisible(control_.Visible());
        // A widget that moves lets go of the focus, the control does not.
        window_.SyncFocus();
    }
    for (const Control* const sibling : control_.Container().Children()) {
        const Peer* const peer = window_.PeerOf(*sibling);
        if (peer != nullptr && peer->widget_ != nullptr && peer->widget_->parentWidget() == inside) {
            peer->widget_->raise();
        }
    }
}

bool Peer::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            return watched == widget_ && FocusIn(*static_cast<QFocusEvent*>(event));
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return MouseEvent(*static_cast<QMouseEvent*>(event));
        default:
            return false;
    }
}

// The widget hears of the focus without its reason, as widgets select their text for some; the surface decides that.
bool Peer::FocusIn(const QFocusEvent& event) {
    auto* const input = dynamic_cast<InputControl*>(&control_);
    if (passing_ || window_.Deaf() || input == nullptr || !ByPerson(event.reason())) {
        return false;
    }
    {
        const Mirror::Write write(window_.Flag());
        passing_ = true;
        QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(widget_, &plain);
        passing_ = false;
    }
    window_.Surface().FocusByPerson(*input);
    window_.SyncFocus();
    if (event.reason() == Qt::MouseFocusReason) {
        FocusedByMouse();
    }
    return true;
}

Mouse Peer::Position(const QMouseEvent& event, int button) const {
    const QPointF local = widget_->mapFromGlobal(event.globalPosition());
    Mouse mouse{button, ShiftState(event), Twips(local.x()), Twips(local.y())};
    if (const auto* const picture = dynamic_cast<const PictureBox*>(&control_)) {
        mouse.X = picture->FromTwipsX(mouse.X);
        mouse.Y = picture->FromTwipsY(mouse.Y);
    }
    return mouse;
}

bool Peer::MouseEvent(const QMouseEvent& event) {
    const bool taken = RelaysMouse();
    if (window_.Deaf() || (!taken && !HearsMouse(control_))) {
        return taken;
    }
    if (event.type() == QEvent::MouseMove) {
        control_.Fire(control_.MouseMove, "MouseMove", Position(event, HeldButton(event)));
    } else if (event.type() == QEvent::MouseButtonPress) {
        control_.Fire(control_.MouseDown, "MouseDown", Position(event, ButtonOf(event)));
    } else if (event.type() == QEvent::MouseButtonDblClick) {
        doubled_ = true;
        control_.Fire(control_.DblClick, "DblClick");
    } else {
        // The second click of a double click is no Click.
        const bool clicked = taken && !std::exchange(doubled_, false) && event.button() == Qt::LeftButton &&
                             widget_->rect().contains(widget_->mapFromGlobal(event.globalPosition()).toPoint());
        control_.Fire(control_.MouseUp, "MouseUp", Position(event, ButtonOf(event)));
        if (clicked && control_.IsUsable() && !window_.Deaf()) {
            control_.Fire(control_.Click, "Click");
        }
    }
    return taken;
}

std::optional<PropertyValue> Peer::Seen(std::string_view property) const {
    if (widget_ == nullptr) {
        return std::nullopt;
    }
    if (property == "Visible") {
        return FlagSeen(!widget_->isHidden());
    }
    if (property == "Enabled") {
        return FlagSeen(widget_->isEnabledTo(widget_->parentWidget()));
    }
    return SeenPlace(property);
}

// The surface's exact number where the pixels agree with it.
std::optional<PropertyValue> Peer::SeenPlace(std::string_view property) const {
    struct Side {
        std::string_view name;
        double (Control::*exact)() const;
        int (QRect::*pixels)() const;
    };
    static constexpr Side Sides[] = {{"Left", &Control::Left, &QRect::x},
                                     {"Top", &Control::Top, &QRect::y},
                                     {"Width", &Control::Width, &QRect::width},
                                     {"Height", &Control::Height, &QRect::height}};
    for (const Side& side : Sides) {
        if (side.name == property) {
            const int stands = (widget_->geometry().*side.pixels)();
            const bool agrees = stands == (PixelRect(control_.PlaceInTwips()).*side.pixels)();
            return agrees ? (control_.*side.exact)() : Twips(stands);
        }
    }
    return std::nullopt;
}

}  // namespace brindlex
