// Combo boxes.
#include "desktop/comboboxpeer.h"

#include "desktop/editkeys.h"
#include "desktop/formwindow.h"
#include "desktop/texts.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace brindlex {

namespace {

struct Step {
    int key;
    int items;
};
// Of an opened list, in pixels.
constexpr int ListMargin = 24;
constexpr int WidestList = 600;

constexpr Step Steps[] = {{Qt::Key_Up, -1}, {Qt::Key_Down, 1}, {Qt::Key_PageUp, -8}, {Qt::Key_PageDown, 8}};

}  // namespace

ListBox::ListBox(QWidget* parent, FormWindow& window, ComboBox& combo)
    : QComboBox(parent), window_(window), combo_(combo) {
    // The list does not take the text that is typed, nor the box the width of its longest item.
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int index) {
        window_.ByPerson([&] { combo_.ChooseByPerson(index); });
        window_.MirrorControl(combo_, Aspect::Text);
    });
}

void ListBox::showPopup() {
    if (!combo_.Locked() && !window_.Deaf()) {
        view()->setAccessibleName(accessibleName());
        // As wide as its longest item, which the box may be too narrow for.
        view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + ListMargin, WidestList));
        QComboBox::showPopup();
        // A text that was never chosen from the list is found in it all the same. Without one the keyboard stands on
        // the first item, where it can be seen.
        if (currentIndex() < 0 && count() > 0) {
            view()->setCurrentIndex(model()->index(std::max(Stand(), 0), modelColumn()));
        }
    }
}

void ListBox::hidePopup() {
    QComboBox::hidePopup();
    if (InputControl* const box = std::exchange(over_, nullptr)) {
        // The choice comes after the list is gone, and may send the focus elsewhere.
        QTimer::singleShot(0, this, [this, box] {
            if (window_.Surface().ActiveControl() == &combo_) {
                window_.ByPerson([&] { window_.Surface().FocusByPerson(*box); });
            }
        });
    }
}

void ListBox::OpenFor(InputControl& box) {
    if (count() > 0 && !combo_.Locked() && !window_.Deaf()) {
        setFocus(Qt::TabFocusReason);
        over_ = &box;
        showPopup();
    }
}

// Where the box stands in its list: what was chosen, or else what reads like its text, blanks aside.
int ListBox::Stand() const {
    if (combo_.ListIndex() >= 0) {
        return combo_.ListIndex();
    }
    const QString text = FromText(combo_.Text()).trimmed();
    for (int index = 0; index < count(); ++index) {
        if (itemText(index).trimmed() == text) {
            return index;
        }
    }
    return -1;
}

// The arrow keys walk along the list.
bool ListBox::Walk(const QKeyEvent& event) {
    const auto* const step =
        std::find_if(std::begin(Steps), std::end(Steps), [&](const Step& s) { return s.key == event.key(); });
    if (step == std::end(Steps) || combo_.ListCount() == 0) {
        return step != std::end(Steps);
    }
    const int index = std::clamp(Stand() + step->items, 0, combo_.ListCount() - 1);
    if (index != combo_.ListIndex()) {
        window_.ByPerson([&] { combo_.ChooseByPerson(index); });
    }
    return true;
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    const bool alt = (event->modifiers() & Qt::AltModifier) != 0;
    const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (event->key() == Qt::Key_F4 || (alt && arrow)) {
        showPopup();
        return;
    }
    if (!alt && Walk(*event)) {
        return;
    }
    if (lineEdit() != nullptr) {
        // Not sent but called: what the line ignores would come back here.
        static_cast<QObject*>(lineEdit())->event(event);
    } else if (RouteKey(window_, combo_, *event) != KeyRoute::Surface) {
        event->ignore();
    }
}

void ListBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus() && !combo_.Locked()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

ComboBoxPeer::ComboBoxPeer(FormWindow& window, ComboBox& combo)
    : Peer(window, combo, new ListBox(window.Inside(combo.Container()), window, combo)),
      combo_(combo),
      list_(static_cast<ListBox*>(Widget())) {
    if (!combo.ListOnly()) {
        line_ = new LineBox(list_, window, combo);
        list_->setEditable(true);
        list_->setLineEdit(line_);
        list_->setCompleter(nullptr);
        // Leaving the box chooses nothing, even where its text stands in the list.
        disconnect(line_, &QLineEdit::editingFinished, list_, nullptr);
        disconnect(line_, &QLineEdit::returnPressed, list_, nullptr);
        WatchMouse(line_);
    }
}

void ComboBoxPeer::FocusedByMouse() {
    if (line_ != nullptr && line_->underMouse()) {
        line_->KeepSelectionOverPress();
    }
}

// Keeps the items that stand already, as lists are filled item by item.
void ComboBoxPeer::MirrorList() {
    int same = 0;
    while (same < list_->count() && same < combo_.ListCount() && list_->itemText(same) == FromText(combo_.List(same))) {
        ++same;
    }
    while (list_->count() > same) {
        list_->removeItem(list_->count() - 1);
    }
    for (int index = same; index < combo_.ListCount(); ++index) {
        list_->addItem(FromText(combo_.List(index)));
    }
}

void ComboBoxPeer::MirrorChoice() {
    list_->setCurrentIndex(combo_.ListIndex());
    if (line_ != nullptr) {
        line_->MirrorText();
    } else {
        list_->setPlaceholderText(FromText(combo_.Text()));
    }
    if (QAccessible::isActive()) {
        // Readers call a list together with what is chosen.
        QAccessibleEvent told(list_, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&told);
    }
}

void ComboBoxPeer::MirrorOwn(Aspect aspect) {
    const bool all = aspect == Aspect::All;
    if (all || aspect == Aspect::List) {
        MirrorList();
    }
    if (all || aspect == Aspect::List || aspect == Aspect::Text) {
        MirrorChoice();
    }
    if (all || aspect == Aspect::Look) {
        // A text without an item looks like any other.
        QPalette palette = list_->palette();
        palette.setColor(QPalette::PlaceholderText, palette.color(QPalette::ButtonText));
        list_->setPalette(palette);
    }
    if (line_ != nullptr && aspect == Aspect::Selection) {
        line_->MirrorSelection();
    }
    if (line_ != nullptr && (all || aspect == Aspect::Locked)) {
        line_->setReadOnly(combo_.Locked());
    }
}

std::optional<PropertyValue> ComboBoxPeer::Seen(std::string_view property) const {
    if (property == "Text") {
        return ToText(line_ != nullptr            ? line_->text()
                      : list_->currentIndex() < 0 ? list_->placeholderText()
                                                  : list_->currentText());
    }
    if (property == "List") {
        std::vector<std::string> items;
        items.reserve(static_cast<std::size_t>(list_->count()));
        for (int index = 0; index < list_->count(); ++index) {
            items.push_back(ToText(list_->itemText(index)));
        }
        return items;
    }
    if (property == "ListCount") {
        return double(list_->count());
    }
    if (property == "ListIndex") {
        return double(list_->currentIndex());
    }
    if (line_ != nullptr && property == "SelStart") {
        return double(line_->SeenStart());
    }
    if (line_ != nullptr && property == "SelLength") {
        return double(line_->SeenLength());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
