// The drawing surface. It keeps a display list, not a bitmap.
// Units: its own scale, twips from the top left corner unless Scale set another.
#pragma once

#include "frame/control.h"
#include "frame/drawing.h"
#include "frame/snapshot.h"

#include <string_view>

namespace brindlex {

class PictureBox : public InputControl, public ControlContainer {
public:
    PictureBox(ControlContainer& container, std::string name, const Place& place);

    [[nodiscard]] bool AutoRedraw() const { return pen_.autoRedraw; }
    void AutoRedraw(bool value) { pen_.autoRedraw = value; }
    /// Clears the picture and puts the pen at 0, 0.
    void Cls();
    [[nodiscard]] double CurrentX() const { return pen_.x; }
    [[nodiscard]] double CurrentY() const { return pen_.y; }
    void CurrentX(double value) { pen_.x = value; }
    void CurrentY(double value) { pen_.y = value; }

    /// A line from the pen, or from a start, to an end; leaves the pen at the end.
    void Line(double x2, double y2, Colour colour);
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    /// A box between two corners; leaves the pen at the second.
    void Box(double x1, double y1, double x2, double y2, Colour colour, bool filled = false);
    /// A circle, in ForeColor where none is given; leaves the pen at its centre.
    void Circle(double x, double y, double radius, Colour colour);
    void Circle(double x, double y, double radius) { Circle(x, y, radius, ForeColor()); }
    /// Text at the pen, which goes to the start of the next line.
    void Print(std::string_view text);
    /// A number as the runtime prints it: with its leading blank or minus sign, and one blank behind it.
    void Print(double number);

    [[nodiscard]] int DrawWidth() const { return pen_.drawWidth; }
    void DrawWidth(int value) { pen_.drawWidth = value; }
    [[nodiscard]] int DrawStyle() const { return pen_.drawStyle; }
    void DrawStyle(int value) { pen_.drawStyle = value; }
    [[nodiscard]] int DrawMode() const { return pen_.drawMode; }
    void DrawMode(int value) { pen_.drawMode = value; }

    /// Sets the coordinate system from its left top and right bottom corners.
    void Scale(double x1, double y1, double x2, double y2);
    /// 1 twips, 0 a scale of the user's own.
    [[nodiscard]] int ScaleMode() const { return userScale_ ? 0 : 1; }
    void ScaleMode(int mode);
    [[nodiscard]] double ScaleLeft() const { return PresentScale().Left; }
    [[nodiscard]] double ScaleTop() const { return PresentScale().Top; }
    [[nodiscard]] double ScaleWidth() const { return PresentScale().Width; }
    [[nodiscard]] double ScaleHeight() const { return PresentScale().Height; }
    void ScaleLeft(double value);
    void ScaleTop(double value);
    void ScaleWidth(double value);
    void ScaleHeight(double value);
    [[nodiscard]] PictureScale PresentScale() const;
    /// A point in twips from the top left corner, in the picture's scale; and back.
    [[nodiscard]] double FromTwipsX(double twips) const;
    [[nodiscard]] double FromTwipsY(double twips) const;

    /// The display list.
    [[nodiscard]] const Drawing& Drawn() const { return drawing_; }
    /// What is drawn, over the picture behind it where there is one, with the shown boxes and labels that stand on it.
    [[nodiscard]] Snapshot Image() const;
    /// The picture behind the drawing.
    [[nodiscard]] const Snapshot& Picture() const { return picture_; }
    void Picture(Snapshot value);
    /// Paints a picture into a place of this one, in the scale.
    void PaintPicture(const Snapshot& picture, double left, double top, double width, double height);

    /// Runs when the picture becomes visible with its form.
    Event<> Paint;

    void ActOnKey(int /*keyAscii*/) override {}
    [[nodiscard]] bool TakesFocus() const override { return false; }

    [[nodiscard]] Form& ContainerForm() override { return Parent(); }
    [[nodiscard]] Control* ContainerControl() override { return this; }
    [[nodiscard]] Place ToTwips(const Place& place) const override;

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    struct Pen {
        double x = 0;
        double y = 0;
        bool autoRedraw = false;
        int drawWidth = 1;
        int drawStyle = 0;
        int drawMode = 13;
    };

    [[nodiscard]] DrawItem NewItem(DrawKind kind, Colour colour) const;
    void Put(DrawItem item);
    void OwnScale();

    Pen pen_;
    Pen designPen_;
    bool userScale_ = false;
    PictureScale scale_;
    Drawing drawing_;
    Snapshot picture_;
};

}  // namespace brindlex
