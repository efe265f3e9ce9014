// Style of the widgets.
#include "desktop/housestyle.h"

#include "desktop/looks.h"
#include "desktop/readers.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace brindlex {

namespace {

constexpr double OutsidePoints = 9;
constexpr double RingWidth = 2;
constexpr double RingRounding = 2.5;
constexpr int ButtonInset = 2;

constexpr int CaptionGap = 3;
// The outline of small fields on a dark ground, where the base draws it darker still.
constexpr float OutlineStrength = 0.35F;
constexpr float FaintOutline = 0.2F;

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

}  // namespace

void PaintFocusRing(QPainter& painter, const QRect& around, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::Highlight), RingWidth));
    painter.setBrush(Qt::NoBrush);
    constexpr double Half = RingWidth / 2;
    painter.drawRoundedRect(QRectF(around).adjusted(Half, Half, -Half, -Half), RingRounding, RingRounding);
    painter.restore();
}

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    // The menu under the keyboard before it opens, which the base shows by nothing.
    const bool menuAhead = element == CE_MenuBarItem && option->state.testFlag(State_Selected) &&
                           !option->state.testFlag(State_Sunken) && widget != nullptr && widget->hasFocus();
    if (menuAhead) {
        PaintFocusRing(*painter, option->rect, option->palette);
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
    if (!HasFocus(*option)) {
        return;
    }
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ScrollBar || control == CC_ToolButton || (combo != nullptr && !combo->editable)) {
        PaintFocusRing(*painter, option->rect, option->palette);
    }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    if (!IsDark(option->palette) || (!round && element != PE_IndicatorCheckBox && element != PE_FrameLineEdit)) {
        return;
    }
    QColor outline = option->palette.color(QPalette::Active, QPalette::WindowText);
    outline.setAlphaF(option->state.testFlag(State_Enabled) ? OutlineStrength : FaintOutline);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    const QRectF field = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (round) {
        painter->drawEllipse(field);
    } else {
        painter->drawRoundedRect(field, RingWidth, RingWidth);
    }
    painter->restore();
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
