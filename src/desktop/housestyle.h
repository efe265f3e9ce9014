// How the program's widgets look: the style, the face of menus and boxes, and the ring around what has the focus.
#pragma once

#include <QProxyStyle>

namespace brindlex {

/// Fusion, which follows the system's colours, light or dark. Whatever has the focus shows a ring, by whichever way the
/// focus came to it; the base draws one only for the Tab key, and the surface moves the focus by itself. What can be
/// filled in or marked has an outline that stands out from the ground, and what is disabled can still be read.
class HouseStyle : public QProxyStyle {
public:
    HouseStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Of the whole program, whenever the system's colours change.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
};

/// The ring of the focus, just inside of a rectangle.
void PaintFocusRing(QPainter& painter, const QRect& around, const QPalette& palette);

/// Style and face of everything that is not a form's inside, and what screen readers get of the widgets. The
/// application must be there.
void DressApplication();

}  // namespace brindlex
