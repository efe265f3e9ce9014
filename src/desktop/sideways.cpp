// Links and tools under the keyboard.
#include "desktop/sideways.h"

#include "desktop/comboboxpeer.h"
#include "desktop/formwindow.h"
#include "desktop/linklabel.h"
#include "desktop/toolwidget.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <vector>

namespace brindlex {

namespace {

std::vector<QWidget*> LinksOf(const FormWindow& window) {
    std::vector<QWidget*> links;
    for (const Control* const control : window.Surface().Controls()) {
        const Peer* const peer = window.PeerOf(*control);
        auto* const link = peer == nullptr ? nullptr : dynamic_cast<LinkLabel*>(peer->Widget());
        if (link != nullptr && control->IsUsable()) {
            links.push_back(link);
        }
    }
    return links;
}

// Whether no control follows the active one in tab order, or none comes before it.
bool AtEnd(const Form& form, bool last) {
    std::vector<Control*> order = form.TabOrder();
    if (last) {
        std::reverse(order.begin(), order.end());
    }
    for (const Control* const control : order) {
        const auto* const input = dynamic_cast<const InputControl*>(control);
        if (input != nullptr && input->TabStop() && input->IsUsable()) {
            return input == form.ActiveControl();
        }
    }
    return true;
}

bool GoToTools(FormWindow& window) {
    const auto tools = window.findChildren<ToolWidget*>();
    const auto take = [&](bool pressed) {
        const auto found = std::find_if(tools.begin(), tools.end(), [&](const ToolWidget* tool) {
            return tool->isVisible() && tool->isEnabled() && (tool->isChecked() || !pressed);
        });
        if (found != tools.end()) {
            (*found)->setFocus(Qt::OtherFocusReason);
        }
        return found != tools.end();
    };
    // The pressed one, which tells what the board is doing; else the first.
    return take(true) || take(false);
}

bool Covers(const Control& control, double x, double y) {
    return x > control.Left() && x < control.Left() + control.Width() && y > control.Top() &&
           y < control.Top() + control.Height();
}

// A box that takes what no list has may lie on a list, whose arrow alone can be seen then.
bool OpenListBeneath(const FormWindow& window) {
    InputControl* const box = window.Surface().ActiveControl();
    if (box == nullptr) {
        return false;
    }
    for (const Control* const beneath : box->Container().Children()) {
        auto* const list = dynamic_cast<ComboBoxPeer*>(window.PeerOf(*beneath));
        if (list != nullptr && beneath != box && beneath->IsUsable() &&
            Covers(*beneath, box->Left() + box->Width() / 2, box->Top() + box->Height() / 2)) {
            list->Box()->OpenFor(*box);
            return true;
        }
    }
    return false;
}

// What the menu key does, which many keyboards lack.
bool OpenEntryMenu(const FormWindow& window) {
    QWidget* const entry = window.focusWidget();
    if (entry == nullptr) {
        return false;
    }
    const QPoint middle = entry->rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, middle, entry->mapToGlobal(middle));
    return QCoreApplication::sendEvent(entry, &asked) && asked.isAccepted();
}

void ClickForm(Form& form) {
    form.MouseDownByPerson({LeftButton, 0, 0, 0});
    form.MouseUpByPerson({LeftButton, 0, 0, 0});
}

}  // namespace

bool TabOverLinks(FormWindow& window, bool next) {
    const auto links = LinksOf(window);
    if (links.empty()) {
        return false;
    }
    const auto here = std::find(links.begin(), links.end(), window.focusWidget());
    if (here == links.end()) {
        if (!AtEnd(window.Surface(), next)) {
            return false;
        }
        (next ? links.front() : links.back())->setFocus(Qt::OtherFocusReason);
        return true;
    }
    const bool leaves = next ? here + 1 == links.end() : here == links.begin();
    if (!leaves) {
        (*(next ? here + 1 : here - 1))->setFocus(Qt::OtherFocusReason);
        return true;
    }
    // From the first control the walk goes backwards to the links, so forwards it ends there.
    if (!AtEnd(window.Surface(), !next)) {
        return false;
    }
    window.SyncFocus();
    return true;
}

bool TakeSideKey(FormWindow& window, const QKeyEvent& event) {
    const bool onTools = dynamic_cast<ToolWidget*>(window.focusWidget()) != nullptr;
    if (event.key() == Qt::Key_F6 || (onTools && event.key() == Qt::Key_Escape)) {
        if (onTools && window.Surface().ActiveControl() == nullptr) {
            window.Surface().TabByPerson(false);
        }
        if (onTools) {
            window.SyncFocus();
            return true;
        }
        return GoToTools(window);
    }
    const bool opens =
        event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && (event.modifiers() & Qt::AltModifier) != 0);
    if (opens) {
        return OpenListBeneath(window);
    }
    if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier) {
        return OpenEntryMenu(window);
    }
    const bool presses = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
                         event.key() == Qt::Key_Space || event.key() == Qt::Key_Escape;
    if (presses && window.Surface().Controls().empty()) {
        window.ByPerson([&] { ClickForm(window.Surface()); });
        return true;
    }
    return false;
}

}  // namespace brindlex
