// Keys and other ways into a box.
#include "desktop/editkeys.h"

#include "desktop/formwindow.h"
#include "desktop/texts.h"

#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace brindlex {

namespace {

constexpr int SelectAllKey = 1;
constexpr int CopyKey = 3;
constexpr int PasteKey = 22;
constexpr int CutKey = 24;
constexpr int UndoKey = 26;

struct EditKey {
    int key;
    int keyAscii;
};
constexpr EditKey EditKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13}, {Qt::Key_Escape, 27}};

// The platform's own keys for what control keys do, whatever they are there.
struct StandardKey {
    QKeySequence::StandardKey key;
    int keyAscii;
};
constexpr StandardKey StandardKeys[] = {{QKeySequence::SelectAll, SelectAllKey},
                                        {QKeySequence::Copy, CopyKey},
                                        {QKeySequence::Paste, PasteKey},
                                        {QKeySequence::Cut, CutKey},
                                        {QKeySequence::Undo, UndoKey}};

constexpr int CaretKeys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
constexpr int LineKeys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

template <class Keys>
bool Holds(const Keys& keys, int key) {
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

bool WithControl(const QKeyEvent& event) {
    return (event.modifiers() & Qt::ControlModifier) != 0 && (event.modifiers() & Qt::AltModifier) == 0;
}

// The code of a key that has one by itself; 0 for any other.
int CodeOf(const QKeyEvent& event) {
    for (const EditKey& named : EditKeys) {
        if (named.key == event.key()) {
            return named.keyAscii;
        }
    }
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    if (WithControl(event) && letter) {
        return event.key() - Qt::Key_A + 1;
    }
    for (const StandardKey& standard : StandardKeys) {
        if (event.matches(standard.key)) {
            return standard.keyAscii;
        }
    }
    return 0;
}

bool IsTyped(const QKeyEvent& event) {
    const bool mnemonic = (event.modifiers() & Qt::AltModifier) != 0 && (event.modifiers() & Qt::ControlModifier) == 0;
    return !mnemonic && !WithControl(event) && !event.text().isEmpty() && event.text().at(0) >= u' ' &&
           event.text().at(0) != QChar(0x7F);
}

}  // namespace

void TypeText(FormWindow& window, InputControl& control, const QString& text) {
    for (const QChar character : text) {
        if (const auto code = KeyCodeOf(character)) {
            window.ByPerson([&] { window.Surface().TypeByPerson(control, *code); });
        }
    }
}

KeyRoute RouteKey(FormWindow& window, InputControl& control, const QKeyEvent& event) {
    if (const int code = CodeOf(event); code != 0) {
        window.ByPerson([&] { window.Surface().TypeByPerson(control, code); });
        return KeyRoute::Surface;
    }
    auto* const box = dynamic_cast<EditControl*>(&control);
    if (box != nullptr && event.key() == Qt::Key_Delete) {
        window.ByPerson([&] { box->DeleteByPerson(); });
        return KeyRoute::Surface;
    }
    if (box != nullptr && (Holds(CaretKeys, event.key()) || (box->MultiLine() && Holds(LineKeys, event.key())))) {
        return KeyRoute::Widget;
    }
    if (IsTyped(event)) {
        TypeText(window, control, event.text());
        return KeyRoute::Surface;
    }
    return KeyRoute::Nobody;
}

bool ClaimsKey(const QKeyEvent& event) {
    return CodeOf(event) != 0 || event.key() == Qt::Key_Delete || Holds(CaretKeys, event.key()) || IsTyped(event);
}

void InsertText(FormWindow& window, EditControl& box, const QString& text) {
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QStringLiteral("\r\n"));
    window.ByPerson([&] { box.InsertByPerson(ToText(lines)); });
}

void TakeChange(FormWindow& window, EditControl& box, const QString& text) {
    const std::string& before = box.Text();
    const std::string after = ToText(text);
    if (after == before) {
        return;
    }
    const std::size_t most = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < most && before[head] == after[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    window.ByPerson([&] {
        box.SelectByPerson(static_cast<int>(head), static_cast<int>(before.size() - head - tail));
        const std::string entry = after.substr(head, after.size() - head - tail);
        if (entry.empty()) {
            box.DeleteByPerson();
        } else {
            box.InsertByPerson(entry);
        }
    });
}

QMenu* EditMenu(QWidget* parent, FormWindow& window, EditControl& box) {
    auto* const menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool open = !box.Locked();
    const bool selected = box.SelLength() > 0;
    const auto add = [&](const char* caption, bool enabled, void (EditControl::*act)()) {
        QAction* const action = menu->addAction(QString::fromLatin1(caption));
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, &box, act] { window.ByPerson([&] { (box.*act)(); }); });
    };
    add("&Undo", open, &EditControl::UndoByPerson);
    menu->addSeparator();
    add("Cu&t", open && selected, &EditControl::CutByPerson);
    add("&Copy", selected, &EditControl::CopyByPerson);
    add("&Paste", open, &EditControl::PasteByPerson);
    add("&Delete", open && selected, &EditControl::DeleteByPerson);
    menu->addSeparator();
    add("Select &All", !box.Text().empty(), &EditControl::SelectAll);
    return menu;
}

}  // namespace brindlex
