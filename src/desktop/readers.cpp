// Accessible interfaces.
#include "desktop/readers.h"

#include "desktop/comboboxpeer.h"
#include "desktop/formwindow.h"
#include "desktop/linklabel.h"
#include "desktop/picturepeer.h"
#include "desktop/picturewords.h"
#include "desktop/presswidget.h"
#include "desktop/toolwidget.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QTimer>

namespace brindlex {

namespace {

// A form is now a window, now a dialog that waits for an answer.
class WindowReading : public QAccessibleWidget {
public:
    explicit WindowReading(FormWindow* window) : QAccessibleWidget(window, QAccessible::Window) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
    }
};

class PictureReading : public QAccessibleWidget {
public:
    explicit PictureReading(PictureArea* area) : QAccessibleWidget(area, QAccessible::Graphic), area_(area) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Description || area_->Window().Released()) {
            return QAccessibleWidget::text(kind);
        }
        return WordsOf(area_->Surface(), area_->Window().TaleOf(area_->Surface()));
    }

private:
    PictureArea* area_;
};

// The toolkit would call a list by what is chosen in it, or by nothing.
class ListReading : public QAccessibleWidget {
public:
    explicit ListReading(ListBox* list) : QAccessibleWidget(list, QAccessible::ComboBox), list_(list) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        state.editable = list_->isEditable();
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        QString chosen = list_->currentIndex() < 0 ? list_->placeholderText() : list_->currentText();
        if (kind == QAccessible::Value) {
            return chosen;
        }
        // With what is chosen behind it; a line for typing tells that by itself.
        const bool tells = kind == QAccessible::Name && !list_->isEditable() && !chosen.simplified().isEmpty();
        const QString between = QString::fromLatin1(own.endsWith(u':') ? " " : ": ");
        return tells ? own + between + chosen.simplified() : own;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return list_->isEnabled() ? QStringList{showMenuAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        if (action == showMenuAction() && list_->isEnabled()) {
            list_->showPopup();
        }
    }

private:
    ListBox* list_;
};

// The sign in front of a message.
class SignReading : public QAccessibleWidget {
public:
    SignReading(QLabel* sign, QMessageBox* box) : QAccessibleWidget(sign, QAccessible::Graphic), box_(box) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? QString::fromLatin1(NameOf(box_->icon())) : QAccessibleWidget::text(kind);
    }

private:
    static const char* NameOf(QMessageBox::Icon icon) {
        switch (icon) {
            case QMessageBox::Critical:
                return "Error";
            case QMessageBox::Question:
                return "Question";
            case QMessageBox::Warning:
                return "Warning";
            case QMessageBox::Information:
                return "Information";
            case QMessageBox::NoIcon:
                break;
        }
        return "";
    }

    QMessageBox* box_;
};

// What can be pressed, and knows no such interface of the toolkit or has the wrong role in it.
class PressReading : public QAccessibleWidget {
public:
    PressReading(QWidget* widget, QAccessible::Role role, std::function<void()> press)
        : QAccessibleWidget(widget, role), press_(std::move(press)) {}

    [[nodiscard]] QAccessible::Role role() const override {
        // One tool of a group is pressed at a time.
        const auto* const tool = qobject_cast<QToolButton*>(widget());
        return tool != nullptr && tool->isCheckable() ? QAccessible::RadioButton : QAccessibleWidget::role();
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        // Tools too, which the Tab key passes over.
        state.focusable = true;
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget())) {
            state.checkable = button->isCheckable();
            state.checked = button->isChecked();
        }
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        // By itself the toolkit would take the title of the frame around.
        if (kind != QAccessible::Name || !widget()->accessibleName().isEmpty()) {
            return QAccessibleWidget::text(kind);
        }
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget())) {
            return button->text().remove(u'&');
        }
        const auto* const label = qobject_cast<QLabel*>(widget());
        return label == nullptr ? QString() : label->text();
    }
    [[nodiscard]] QStringList actionNames() const override {
        return widget()->isEnabled() ? QStringList{pressAction(), setFocusAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        if (action == pressAction() && widget()->isEnabled()) {
            // The reader does not wait for a box that the press may bring up.
            QTimer::singleShot(0, widget(), press_);
        } else if (action == setFocusAction()) {
            widget()->setFocus(Qt::OtherFocusReason);
        }
    }

private:
    std::function<void()> press_;
};

QAccessibleInterface* ReadingOf(const QString& /*className*/, QObject* object) {
    if (auto* const window = dynamic_cast<FormWindow*>(object)) {
        return new WindowReading(window);
    }
    if (auto* const area = dynamic_cast<PictureArea*>(object)) {
        return new PictureReading(area);
    }
    if (auto* const list = dynamic_cast<ListBox*>(object)) {
        return new ListReading(list);
    }
    if (auto* const box = qobject_cast<QMessageBox*>(object->parent());
        box != nullptr && object->objectName() == QStringLiteral("qt_msgboxex_icon_label")) {
        return new SignReading(qobject_cast<QLabel*>(object), box);
    }
    if (auto* const box = dynamic_cast<PressWidget<QCheckBox>*>(object)) {
        return new PressReading(box, QAccessible::CheckBox, [box] { box->click(); });
    }
    if (auto* const option = dynamic_cast<PressWidget<QRadioButton>*>(object)) {
        return new PressReading(option, QAccessible::RadioButton, [option] { option->click(); });
    }
    if (auto* const row = dynamic_cast<ToolRow*>(object)) {
        return new QAccessibleWidget(row, QAccessible::ToolBar);
    }
    if (auto* const tool = dynamic_cast<ToolWidget*>(object)) {
        return new PressReading(tool, QAccessible::Button, [tool] { tool->click(); });
    }
    if (auto* const link = dynamic_cast<LinkLabel*>(object)) {
        return new PressReading(link, QAccessible::Link, [link] { link->Press(); });
    }
    return nullptr;
}

}  // namespace

void ServeReaders() {
    QAccessible::installFactory(ReadingOf);
}

ReaderWatch::ReaderWatch(std::function<void()> came) : came_(std::move(came)) {
    QAccessible::installActivationObserver(this);
}

ReaderWatch::~ReaderWatch() {
    QAccessible::removeActivationObserver(this);
}

void ReaderWatch::accessibilityActiveChanged(bool active) {
    if (active) {
        came_();
    }
}

}  // namespace brindlex
