// Synthesised input on the real widgets.
#include "desktop/desktopplayer.h"

#include "desktop/comboboxpeer.h"
#include "desktop/linklabel.h"
#include "desktop/pixels.h"
#include "desktop/scrollbarpeer.h"
#include "desktop/texts.h"
#include "desktop/toolbarpeer.h"
#include "desktop/windowcapture.h"
#include "frame/picturebox.h"
#include "frame/program.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolButton>
#include <QtTest/QTest>

#include <algorithm>
#include <vector>

namespace brindlex {

namespace {

constexpr int Rounds = 3;

struct NamedKey {
    int keyAscii;
    Qt::Key key;
};
constexpr NamedKey NamedKeys[] = {
    {8, Qt::Key_Backspace}, {13, Qt::Key_Return}, {27, Qt::Key_Escape}, {32, Qt::Key_Space}};

constexpr int LastControlKey = 26;
constexpr int FirstPrintable = 32;
constexpr int DeleteCode = 127;

// One key by its code, as a keyboard sends it; false for a code that no keyboard has.
bool SendKey(QWidget* widget, int keyAscii) {
    for (const NamedKey& named : NamedKeys) {
        if (named.keyAscii == keyAscii) {
            const QString text = keyAscii == FirstPrintable ? QStringLiteral(" ") : QString();
            QTest::sendKeyEvent(QTest::Click, widget, named.key, text, Qt::NoModifier);
            return true;
        }
    }
    if (keyAscii >= 1 && keyAscii <= LastControlKey) {
        const auto key = static_cast<Qt::Key>(Qt::Key_A + keyAscii - 1);
        QTest::sendKeyEvent(QTest::Click, widget, key, QString(QChar(keyAscii)), Qt::ControlModifier);
        return true;
    }
    const char character = static_cast<char>(keyAscii);
    const QString text = FromText({&character, 1});
    if (keyAscii < FirstPrintable || keyAscii == DeleteCode || KeyCodeOf(text.at(0)) != keyAscii) {
        return false;
    }
    const auto key = static_cast<Qt::Key>(text.at(0).toUpper().unicode());
    QTest::sendKeyEvent(QTest::Click, widget, key, text, Qt::NoModifier);
    return true;
}

Qt::MouseButtons ButtonsOf(int buttons) {
    return ((buttons & LeftButton) != 0 ? Qt::LeftButton : Qt::NoButton) |
           ((buttons & RightButton) != 0 ? Qt::RightButton : Qt::NoButton);
}

void SendMouse(QWidget* widget, MouseAct act, const QPoint& place, int button) {
    struct Kind {
        QEvent::Type type;
        bool held;  ///< whether the button is down behind the event
        bool acts;  ///< whether the event is the button's
    };
    // In the order of MouseAct.
    constexpr Kind Kinds[] = {{QEvent::MouseMove, true, false},
                              {QEvent::MouseButtonPress, true, true},
                              {QEvent::MouseButtonRelease, false, true},
                              {QEvent::MouseButtonDblClick, true, true}};
    const Kind& kind = Kinds[static_cast<std::size_t>(act)];
    const Qt::MouseButtons buttons = ButtonsOf(button);
    const auto acting = kind.acts ? static_cast<Qt::MouseButton>(buttons.toInt()) : Qt::NoButton;
    QMouseEvent event(kind.type, place, widget->mapToGlobal(place), acting,
                      kind.held ? buttons : Qt::MouseButtons(Qt::NoButton), Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(widget, &event);
}

// The way from the menu bar down to an item.
std::vector<MenuItem*> WayTo(MenuItem& item) {
    std::vector<MenuItem*> way;
    for (MenuItem* at = &item; at != nullptr; at = at->Within()) {
        way.insert(way.begin(), at);
    }
    return way;
}

void OpenSubmenu(QMenu* within, QMenu* submenu) {
    within->setActiveAction(submenu->menuAction());
    QTest::keyClick(within, Qt::Key_Right);
    if (!submenu->isVisible()) {
        submenu->popup(within->mapToGlobal(within->actionGeometry(submenu->menuAction()).topRight()));
    }
}

}  // namespace

Peer* DesktopPlayer::PeerOf(const Control& control) const {
    const FormWindow* const window = runtime_.WindowOf(control.Parent());
    return window == nullptr ? nullptr : window->PeerOf(control);
}

QWidget* DesktopPlayer::WidgetOf(const Control& control) const {
    const Peer* const peer = PeerOf(control);
    return peer == nullptr ? nullptr : peer->Widget();
}

void DesktopPlayer::Press(Control& control) {
    if (QWidget* const widget = WidgetOf(control)) {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
    }
}

bool DesktopPlayer::Choose(MenuItem& item) {
    FormWindow* const window = runtime_.WindowOf(item.Parent());
    const auto way = WayTo(item);
    if (window == nullptr || !way.front()->IsUsable()) {
        return false;
    }
    MenuTree& menus = window->Menus();
    QMenuBar* const bar = menus.Bar();
    const QPoint title = bar->actionGeometry(menus.ActionOf(*way.front())).center();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, title);
    if (way.size() == 1) {
        return item.Items().empty();
    }
    QMenu* const top = menus.MenuOf(*way.front());
    if (!item.IsUsable() || item.IsSeparator() || !item.Items().empty() || !top->isVisible()) {
        top->close();
        return false;
    }
    for (std::size_t step = 1; step + 1 < way.size(); ++step) {
        OpenSubmenu(menus.MenuOf(*way[step - 1]), menus.MenuOf(*way[step]));
    }
    QMenu* const within = menus.MenuOf(*way[way.size() - 2]);
    within->setActiveAction(menus.ActionOf(item));
    QTest::keyClick(within, Qt::Key_Return);
    return true;
}

void DesktopPlayer::Tool(Toolbar& toolbar, std::string_view key) {
    const auto* const peer = dynamic_cast<ToolbarPeer*>(PeerOf(toolbar));
    QToolButton* const button = peer == nullptr ? nullptr : peer->ButtonOf(key);
    if (button != nullptr) {
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    }
}

void DesktopPlayer::Focus(InputControl& control) {
    Form& form = control.Parent();
    if (form.ActiveControl() == &control) {
        return;
    }
    if (QWidget* const widget = WidgetOf(control)) {
        widget->setFocus(Qt::TabFocusReason);
    }
    // A window that the platform did not bring to the front tells its widgets of no focus, and a line in it does not
    // bring back the selection that it had dropped.
    if (form.ActiveControl() != &control && !form.Owner().Ended()) {
        FormWindow* const window = runtime_.WindowOf(form);
        if (window == nullptr || !window->isActiveWindow()) {
            form.FocusByPerson(control);
            runtime_.ControlChanged(control, Aspect::Selection);
        }
    }
}

void DesktopPlayer::Key(InputControl& control, int keyAscii) {
    Focus(control);
    QWidget* const widget = WidgetOf(control);
    const bool hearsKeys =
        dynamic_cast<EditControl*>(&control) != nullptr || dynamic_cast<Button*>(&control) != nullptr;
    if (control.Parent().Owner().Ended() || !control.IsUsable()) {
        return;
    }
    if (widget == nullptr || !hearsKeys || !SendKey(widget, keyAscii)) {
        control.Parent().TypeByPerson(control, keyAscii);
    }
}

void DesktopPlayer::Tab(Form& form) {
    if (FormWindow* const window = runtime_.WindowOf(form)) {
        QWidget* const has = window->focusWidget();
        QTest::keyClick(has == nullptr ? window : has, Qt::Key_Tab);
    }
}

void DesktopPlayer::ChooseItem(ComboBox& combo, int index) {
    Focus(combo);
    const auto* const peer = dynamic_cast<ComboBoxPeer*>(PeerOf(combo));
    if (peer == nullptr || combo.Parent().Owner().Ended() || !combo.IsUsable() || combo.Locked()) {
        return;
    }
    peer->Box()->showPopup();
    QAbstractItemView* const list = peer->Box()->view();
    list->setCurrentIndex(peer->Box()->model()->index(index, peer->Box()->modelColumn()));
    QTest::keyClick(list, Qt::Key_Return);
}

void DesktopPlayer::Select(EditControl& box, int start, int length) {
    Focus(box);
    QWidget* const widget = WidgetOf(box);
    auto* line = dynamic_cast<LineBox*>(widget);
    if (const auto* const combo = dynamic_cast<ComboBoxPeer*>(PeerOf(box))) {
        line = combo->Line();
    }
    if (line == nullptr) {
        box.SelectByPerson(start, length);
        runtime_.ControlChanged(box, Aspect::Selection);
        return;
    }
    const int size = static_cast<int>(line->text().size());
    const int from = std::clamp(start, 0, size);
    line->deselect();
    line->setCursorPosition(from);
    if (length > 0) {
        line->setSelection(from, std::min(length, size - from));
    }
}

void DesktopPlayer::Scroll(ScrollBar& bar, int value) {
    if (const auto* const peer = dynamic_cast<ScrollBarPeer*>(PeerOf(bar))) {
        static_cast<QScrollBar*>(peer->Widget())->setValue(peer->Turned(value));
    }
}

void DesktopPlayer::Resize(Form& form, double innerWidth, double innerHeight) {
    if (FormWindow* const window = runtime_.WindowOf(form)) {
        window->DragTo(innerWidth, innerHeight);
    }
}

// The screen is the one that the script was given, whatever the platform's own is.
void DesktopPlayer::Maximize(Form& form) {
    const Size screen = runtime_.ScreenPixels();
    const double borders = form.Width() - form.InnerWidth();
    const double bars = form.Height() - form.InnerHeight();
    form.MoveByPerson(0, 0);
    runtime_.FormChanged(form);
    Resize(form, Twips(screen.Width) - borders, Twips(screen.Height) - bars);
}

void DesktopPlayer::Close(Form& form) {
    if (FormWindow* const window = runtime_.WindowOf(form)) {
        window->close();
    }
}

void DesktopPlayer::MouseOn(Control& control, MouseAct act, const Mouse& mouse) {
    QWidget* const widget = WidgetOf(control);
    if (widget == nullptr) {
        return;
    }
    // A press brings the focus by itself, but not in a window that the platform did not bring to the front.
    if (auto* const input = dynamic_cast<InputControl*>(&control);
        act == MouseAct::Down && input != nullptr && input->TakesFocus() && !widget->isActiveWindow()) {
        Focus(*input);
    }
    double x = mouse.X;
    double y = mouse.Y;
    if (const auto* const picture = dynamic_cast<PictureBox*>(&control)) {
        const PictureScale scale = picture->PresentScale();
        const Place place = picture->PlaceInTwips();
        x = scale.Width == 0 ? 0 : (x - scale.Left) / scale.Width * place.Width;
        y = scale.Height == 0 ? 0 : (y - scale.Top) / scale.Height * place.Height;
    }
    SendMouse(widget, act, QPoint(Pixels(x), Pixels(y)), mouse.Button);
}

void DesktopPlayer::MouseOn(Form& form, MouseAct act, const Mouse& mouse) {
    FormWindow* const window = runtime_.WindowOf(form);
    if (window != nullptr && form.ScaleWidth() != 0) {
        const double twips = form.InnerWidth() / form.ScaleWidth();
        SendMouse(window->Client(), act, QPoint(Pixels(mouse.X * twips), Pixels(mouse.Y * twips)), mouse.Button);
    }
}

std::optional<PropertyValue> DesktopPlayer::Seen(Control& control, std::string_view property) {
    const Peer* const peer = PeerOf(control);
    return peer == nullptr ? std::nullopt : peer->Seen(property);
}

std::optional<PropertyValue> DesktopPlayer::Seen(MenuItem& item, std::string_view property) {
    FormWindow* const window = runtime_.WindowOf(item.Parent());
    return window == nullptr ? std::nullopt : window->Menus().Seen(item, property);
}

std::optional<PropertyValue> DesktopPlayer::Seen(Form& form, std::string_view property) {
    const FormWindow* const window = runtime_.WindowOf(form);
    if (window == nullptr) {
        return std::nullopt;
    }
    if (property == "Caption") {
        return ToText(window->windowTitle());
    }
    if (property == "Visible") {
        return FlagSeen(window->isVisible());
    }
    if (property == "Focus") {
        // The widget that would hear the keys, and not the surface's word for it.
        for (const Control* const control : form.Controls()) {
            if (const QWidget* const widget = WidgetOf(*control);
                widget != nullptr && widget == window->focusWidget()) {
                // A link hears the keys while the surface's focus stays where it is.
                const bool link = dynamic_cast<const LinkLabel*>(widget) != nullptr;
                return link ? std::nullopt : std::optional<PropertyValue>(control->Name());
            }
        }
        return std::string();
    }
    return std::nullopt;
}

void DesktopPlayer::Settle() {
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::processEvents();
    }
}

bool DesktopPlayer::Shot(Form& form, const std::string& path) {
    FormWindow* const window = runtime_.WindowOf(form);
    return window != nullptr && SavePicture(*window, FromText(path));
}

}  // namespace brindlex
