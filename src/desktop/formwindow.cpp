// Windows of forms.
#include "desktop/formwindow.h"

#include "desktop/accessiblenames.h"
#include "desktop/looks.h"
#include "desktop/pixels.h"
#include "desktop/sideways.h"
#include "desktop/texts.h"
#include "desktop/toolwidget.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <QRegion>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace brindlex {

namespace {

constexpr double InsidePoints = 8.25;

Qt::WindowFlags FlagsOf(const Form& form) {
    const Qt::WindowFlags kind = form.DialogOf().empty() ? Qt::Window : Qt::Dialog;
    Qt::WindowFlags flags =
        kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (kind == Qt::Window) {
        flags |= Qt::WindowMinimizeButtonHint;
    }
    if (form.Sizable()) {
        flags |= Qt::WindowMaximizeButtonHint;
    }
    return flags;
}

// Whether a rectangle lies within an ellipse, by its corners; a pixel short, so that what is near the edge is left to
// the ellipse's own pixels.
bool LiesWithin(const QRect& rect, const QRect& ellipse) {
    const double across = ellipse.width() / 2.0 - 1;
    const double down = ellipse.height() / 2.0 - 1;
    const QPointF middle = QRectF(ellipse).center();
    const QRectF area(rect);
    const QPointF corners[] = {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()};
    return across > 0 && down > 0 && std::all_of(std::begin(corners), std::end(corners), [&](const QPointF& corner) {
               return std::hypot((corner.x() - middle.x()) / across, (corner.y() - middle.y()) / down) < 1;
           });
}

bool IsCovered(const QWidget* widget) {
    return widget != nullptr && widget->isVisible() && widget->visibleRegion().isEmpty();
}

}  // namespace

FormWindow::FormWindow(Form& form, Mirror& mirror, Hands hands)
    : QWidget(nullptr, FlagsOf(form)),
      form_(form),
      mirror_(mirror),
      hands_(hands),
      client_(new QWidget(this)),
      menus_(*this) {
    const Mirror::Write write(mirror_);
    client_->setFont(ScreenFont("Arial", InsidePoints, false));
    client_->setMouseTracking(true);
    client_->installEventFilter(this);
    BuildPeers(form_);
    TellReaders();
    MirrorForm();
    SyncFocus();
}

FormWindow::~FormWindow() {
    // Widgets go while what they might still call is there.
    released_ = true;
    delete client_;
}

void FormWindow::Release() {
    released_ = true;
    hide();
    deleteLater();
}

void FormWindow::BuildPeers(ControlContainer& container) {
    for (Control* const control : container.Children()) {
        auto peer = MakePeer(*this, *control);
        if (peer == nullptr) {
            continue;
        }
        peer->MirrorAspect(Aspect::All);
        peers_[control] = std::move(peer);
        if (auto* const inner = dynamic_cast<ControlContainer*>(control)) {
            BuildPeers(*inner);
        }
    }
}

QWidget* FormWindow::Inside(ControlContainer& container) const {
    const Control* const control = container.ContainerControl();
    const Peer* const peer = control == nullptr ? nullptr : PeerOf(*control);
    return peer == nullptr ? client_ : peer->Widget();
}

Peer* FormWindow::PeerOf(const Control& control) const {
    const auto found = peers_.find(&control);
    return found == peers_.end() ? nullptr : found->second.get();
}

QSize FormWindow::SizeFor(double innerWidth, double innerHeight) const {
    return {Pixels(innerWidth), Pixels(innerHeight) + menus_.BarHeight()};
}

void FormWindow::MirrorForm() {
    const Mirror::Write write(mirror_);
    setWindowTitle(FromText(form_.Caption()));
    const QSize size = SizeFor(form_.InnerWidth(), form_.InnerHeight());
    if (!form_.Sizable()) {
        setFixedSize(size);
    } else if (this->size() != size) {
        resize(size);
    }
    LayInside();
    const QPoint corner(Pixels(form_.Left()), Pixels(form_.Top()));
    if (pos() != corner) {
        move(corner);
    }
}

void FormWindow::LayInside() {
    const int bar = menus_.LayBar(width());
    client_->setGeometry(0, bar, width(), height() - bar);
}

void FormWindow::MirrorControl(Control& control, Aspect aspect) {
    const Mirror::Write write(mirror_);
    if (aspect == Aspect::Focus) {
        SyncFocus();
        return;
    }
    if (aspect == Aspect::Default) {
        // Making one button the default takes it from another, of which the surface says nothing.
        for (const auto& [other, peer] : peers_) {
            peer->MirrorAspect(aspect);
        }
        return;
    }
    if (Peer* const peer = PeerOf(control)) {
        peer->MirrorAspect(aspect);
        if (aspect == Aspect::Caption || aspect == Aspect::Drawing) {
            TellReaders();
        }
    }
}

void FormWindow::TellReaders() {
    if (!QAccessible::isActive() || tellsSoon_) {
        return;
    }
    // Once for all that one event changes, as names and words are dear beside a pointer move.
    tellsSoon_ = true;
    QTimer::singleShot(0, this, [this] {
        tellsSoon_ = false;
        if (!released_) {
            NameForReaders(*this);
        }
    });
}

void FormWindow::SyncFocus() {
    const Mirror::Write write(mirror_);
    const InputControl* const active = form_.ActiveControl();
    const Peer* const peer = active == nullptr ? nullptr : PeerOf(*active);
    QWidget* const has = focusWidget();
    if (peer != nullptr && peer->Widget() != nullptr) {
        if (has != peer->Widget()) {
            peer->Widget()->setFocus(Qt::OtherFocusReason);
        }
    } else if (has != nullptr && has != this && dynamic_cast<ToolWidget*>(has) == nullptr) {
        // A tool keeps the keyboard where its panel gives it to nobody.
        has->clearFocus();
    }
}

void FormWindow::CutTo(const QRect& ellipse) {
    // The pixels of a large ellipse would be a tenth of the program's start.
    if (LiesWithin(rect(), ellipse)) {
        clearMask();
        return;
    }
    const QRegion region(ellipse, QRegion::Ellipse);
    const QRegion whole(rect());
    if (whole.subtracted(region).isEmpty()) {
        clearMask();
    } else {
        setMask(region);
    }
}

void FormWindow::DragTo(double innerWidth, double innerHeight) {
    {
        const Mirror::Write write(mirror_);
        resize(SizeFor(innerWidth, innerHeight));
        LayInside();
    }
    form_.ResizeByPerson(innerWidth, innerHeight);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !released_) {
        // The system has gone from light to dark, or back.
        const Mirror::Write write(mirror_);
        for (const auto& [control, peer] : peers_) {
            peer->MirrorAspect(Aspect::Look);
        }
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The surface decides what the close box does.
    event->ignore();
    ByPerson([this] { form_.CloseByPerson(); });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    LayInside();
    // The window system also tells of sizes that the program has set itself.
    if (!Deaf() && form_.Visible() && size() != SizeFor(form_.InnerWidth(), form_.InnerHeight())) {
        form_.ResizeByPerson(Twips(client_->width()), Twips(client_->height()));
    }
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (!Deaf() && hands_ == Hands::Person && isVisible() && !isMinimized()) {
        form_.MoveByPerson(Twips(pos().x()), Twips(pos().y()));
    }
}

// Enter and Escape find their buttons also while no control has the focus, or one that has no use for them.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    CommandButton* const button = enter                            ? form_.DefaultButton()
                                  : event->key() == Qt::Key_Escape ? form_.CancelButton()
                                                                   : nullptr;
    if (TakeSideKey(*this, *event)) {
        return;
    }
    if (button != nullptr && button->IsUsable()) {
        ByPerson([button] { button->PressByPerson(); });
    } else {
        event->ignore();
    }
}

// Tab passes over what lies beneath something else, such as the enlarged picture, where nobody could see the focus.
bool FormWindow::focusNextPrevChild(bool next) {
    if (Deaf()) {
        // A widget that was disabled or hidden hands its focus on to nobody.
        return false;
    }
    if (!TabOverLinks(*this, next)) {
        std::size_t tries = form_.TabOrder().size();
        do {
            form_.TabByPerson(!next);
            SyncFocus();
        } while (--tries > 0 && IsCovered(focusWidget()));
    }
    return true;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool mouse =
        type == QEvent::MouseMove || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease;
    if (watched == client_ && mouse) {
        ByPerson([&] { ClientMouse(*static_cast<QMouseEvent*>(event)); });
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FormWindow::ClientMouse(const QMouseEvent& event) {
    const double perTwip = form_.InnerWidth() == 0 ? 1 : form_.ScaleWidth() / form_.InnerWidth();
    const bool moves = event.type() == QEvent::MouseMove;
    const Mouse mouse{moves ? HeldButton(event) : ButtonOf(event), ShiftState(event),
                      Twips(event.position().x()) * perTwip, Twips(event.position().y()) * perTwip};
    if (moves) {
        form_.MouseMoveByPerson(mouse);
    } else if (event.type() == QEvent::MouseButtonPress) {
        form_.MouseDownByPerson(mouse);
    } else {
        form_.MouseUpByPerson(mouse);
    }
}

}  // namespace brindlex
