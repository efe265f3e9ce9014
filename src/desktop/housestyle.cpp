// Style of the widgets.
#include "desktop/housestyle.h"

#include "desktop/looks.h"
#include "desktop/readers.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>

namespace brindlex {

namespace {

constexpr double OutsidePoints = 9;
constexpr int RingWidth = 2;
constexpr double RingRounding = 2.5;
constexpr int ButtonInset = 2;

constexpr int CaptionGap = 3;
constexpr int DividerInset = 5;
constexpr int FullLight = 255;
// How much of the words' colour an outline has, the rest being that of the ground: three to one in contrast, as the Web
// Content Accessibility Guidelines ask for what shows where a control is. The base has two to one, and less when dark.
constexpr double OutlineStrength = 0.45;
constexpr double FaintOutline = 0.2;
constexpr double ButtonOutline = 0.3;
// The same of disabled words, to which the base leaves hardly a third.
constexpr double DisabledStrength = 0.5;

bool HasFocus(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
}

// Around the caption of a check box or an option, and not across its mark.
QRect CaptionRect(const QStyleOption& option, const QStyle& style, const QWidget* widget) {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const QRect room = style.subElementRect(QStyle::SE_CheckBoxContents, &option, widget);
    const int width =
        button == nullptr ? room.width() : button->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
    return QRect(room.left() - CaptionGap, room.top(), width + 2 * CaptionGap, room.height()) & option.rect;
}

// So much of the colour of plain words, and for the rest that of the ground.
QColor Towards(const QPalette& palette, double share) {
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const int words = IsDark(palette) ? FullLight : 0;
    const auto mixed = [share, words](int from) { return from + static_cast<int>((words - from) * share); };
    return {mixed(ground.red()), mixed(ground.green()), mixed(ground.blue())};
}

void PaintOutline(QPainter& painter, const QStyleOption& option, double strength, bool round = false) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Towards(option.palette, option.state.testFlag(QStyle::State_Enabled) ? strength : FaintOutline));
    painter.setBrush(Qt::NoBrush);
    const QRectF field = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (round) {
        painter.drawEllipse(field);
    } else {
        painter.drawRoundedRect(field, RingWidth, RingWidth);
    }
    painter.restore();
}

// The base draws edges and dividing lines of what pops up darker than the ground, which nobody sees when that is dark.
void PaintPopup(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    if (!IsDark(option.palette) || widget == nullptr || widget->windowType() != Qt::Popup) {
        return;
    }
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    if (element == QStyle::CE_ShapedFrame) {
        PaintOutline(painter, option, ButtonOutline);
    } else if (element == QStyle::CE_MenuItem && item != nullptr &&
               item->menuItemType == QStyleOptionMenuItem::Separator) {
        const int y = option.rect.center().y();
        painter.setPen(Towards(option.palette, ButtonOutline));
        painter.drawLine(option.rect.left() + DividerInset, y, option.rect.right() - DividerInset, y);
    }
}

// A button that Enter presses shows that by its outline.
bool IsDefault(const QStyleOption& option) {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

}  // namespace

void PaintFocusRing(QPainter& painter, const QRect& around, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::Highlight), RingWidth));
    painter.setBrush(Qt::NoBrush);
    constexpr double Half = RingWidth / 2.0;
    painter.drawRoundedRect(QRectF(around).adjusted(Half, Half, -Half, -Half), RingRounding, RingRounding);
    painter.restore();
}

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element == CE_ComboBoxLabel && combo != nullptr && !combo->editable) {
        // What the box is too narrow for ends in an ellipsis.
        QStyleOptionComboBox fitting(*combo);
        const int room = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget).width() - 2 * CaptionGap;
        fitting.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, room);
        QProxyStyle::drawControl(element, &fitting, painter, widget);
        return;
    }
    const bool notes = qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
    if (element == CE_ShapedFrame && notes) {
        // Between outline and text, where the ring goes.
        painter->fillRect(option->rect.adjusted(1, 1, -1, -1), option->palette.base());
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    PaintPopup(element, *option, *painter, widget);
    // The menu under the keyboard before it opens, which the base shows by nothing.
    const bool menuAhead = element == CE_MenuBarItem && option->state.testFlag(State_Selected) &&
                           !option->state.testFlag(State_Sunken) && widget != nullptr && widget->hasFocus();
    if (menuAhead) {
        PaintFocusRing(*painter, option->rect, option->palette);
    }
    if (element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
        PaintOutline(*painter, *option, OutlineStrength);
    }
    if (!HasFocus(*option)) {
        return;
    }
    switch (element) {
        case CE_PushButton:
            PaintFocusRing(*painter, option->rect.adjusted(ButtonInset, ButtonInset, -ButtonInset, -ButtonInset),
                           option->palette);
            break;
        case CE_CheckBox:
        case CE_RadioButton:
            PaintFocusRing(*painter, CaptionRect(*option, *this, widget), option->palette);
            break;
        case CE_ShapedFrame:
            PaintFocusRing(*painter, option->rect, option->palette);
            break;
        default:
            break;
    }
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) {
        PaintOutline(*painter, *option, OutlineStrength);
    }
    if (HasFocus(*option) && (control == CC_ScrollBar || control == CC_ToolButton || control == CC_ComboBox)) {
        PaintFocusRing(*painter, option->rect, option->palette);
    }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
        case PE_IndicatorRadioButton:
        case PE_IndicatorCheckBox:
            PaintOutline(*painter, *option, OutlineStrength, element == PE_IndicatorRadioButton);
            break;
        case PE_FrameLineEdit:
            // That of a list is painted with the whole of the list.
            if (qobject_cast<const QComboBox*>(widget) != nullptr) {
                break;
            }
            PaintOutline(*painter, *option, OutlineStrength);
            if (HasFocus(*option)) {
                PaintFocusRing(*painter, option->rect, option->palette);
            }
            break;
        case PE_FrameMenu:
            if (IsDark(option->palette)) {
                PaintOutline(*painter, *option, ButtonOutline);
            }
            break;
        case PE_FrameFocusRect:
            // Where the keyboard stands in a list that has nothing chosen.
            if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
                PaintFocusRing(*painter, option->rect, option->palette);
            }
            break;
        case PE_PanelButtonCommand:
            // The base outlines them darker than the ground, which nobody sees when that is dark.
            if (IsDark(option->palette) && !IsDefault(*option)) {
                PaintOutline(*painter, *option, ButtonOutline);
            }
            break;
        default:
            break;
    }
}

void HouseStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Towards(palette, DisabledStrength));
    }
    // A disabled menu lies on the same bar as the others.
    palette.setColor(QPalette::Disabled, QPalette::Window, palette.color(QPalette::Active, QPalette::Window));
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    // Notes leave their ring as much room as it wants.
    const bool notes = metric == PM_DefaultFrameWidth && qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
    return notes ? RingWidth : QProxyStyle::pixelMetric(metric, option, widget);
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
    // The buttons of boxes look like those of the forms.
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

void DressApplication() {
    QApplication::setStyle(new HouseStyle);
    QApplication::setFont(ScreenFont("Arial", OutsidePoints, false));
    ServeReaders();
}

}  // namespace brindlex
