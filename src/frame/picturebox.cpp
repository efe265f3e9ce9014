// Drawing operations of the picture box onto its display list.
#include "frame/picturebox.h"

#include "frame/fontwidths.h"
#include "frame/label.h"
#include "frame/text.h"
#include "frame/textbox.h"

#include <utility>

namespace brindlex {

PictureBox::PictureBox(ControlContainer& container, std::string name, const Place& place)
    : InputControl(container, std::move(name), place) {
}

void PictureBox::KeepDesign() {
    Control::KeepDesign();
    designPen_ = pen_;
}

void PictureBox::ResetToDesign() {
    Control::ResetToDesign();
    pen_ = designPen_;
    userScale_ = false;
    drawing_.Clear();
    picture_ = {};
}

void PictureBox::Cls() {
    drawing_.Clear();
    pen_.x = 0;
    pen_.y = 0;
    Changed(Aspect::Drawing);
}

DrawItem PictureBox::NewItem(DrawKind kind, Colour colour) const {
    DrawItem item;
    item.Kind = kind;
    item.Ink = colour;
    item.DrawWidth = pen_.drawWidth;
    item.DrawStyle = pen_.drawStyle;
    item.Scale = PresentScale();
    return item;
}

void PictureBox::Put(DrawItem item) {
    drawing_.Add(std::move(item));
    Changed(Aspect::Drawing);
}

void PictureBox::Line(double x2, double y2, Colour colour) {
    Line(pen_.x, pen_.y, x2, y2, colour);
}

void PictureBox::Line(double x1, double y1, double x2, double y2, Colour colour) {
    DrawItem item = NewItem(DrawKind::Line, colour);
    item.X1 = x1;
    item.Y1 = y1;
    item.X2 = x2;
    item.Y2 = y2;
    Put(std::move(item));
    pen_.x = x2;
    pen_.y = y2;
}

void PictureBox::Box(double x1, double y1, double x2, double y2, Colour colour, bool filled) {
    DrawItem item = NewItem(DrawKind::Box, colour);
    item.X1 = x1;
    item.Y1 = y1;
    item.X2 = x2;
    item.Y2 = y2;
    item.Filled = filled;
    Put(std::move(item));
    pen_.x = x2;
    pen_.y = y2;
}

void PictureBox::Circle(double x, double y, double radius, Colour colour) {
    DrawItem item = NewItem(DrawKind::Circle, colour);
    item.X1 = x;
    item.Y1 = y;
    item.Radius = radius;
    Put(std::move(item));
    pen_.x = x;
    pen_.y = y;
}

void PictureBox::Print(std::string_view text) {
    DrawItem item = NewItem(DrawKind::Text, ForeColor());
    item.X1 = pen_.x;
    item.Y1 = pen_.y;
    item.Bold = FontBold();
    item.FontSize = FontSize();
    item.FontName = FontName();
    item.Text = text;
    const PictureScale scale = item.Scale;
    Put(std::move(item));
    pen_.x = scale.Left;
    pen_.y += PlaceInTwips().Height == 0 ? 0 : TextHeight(FontSize()) * scale.Height / PlaceInTwips().Height;
}

void PictureBox::Print(double number) {
    Print(Str(number) + " ");
}

PictureScale PictureBox::PresentScale() const {
    if (userScale_) {
        return scale_;
    }
    const Place place = PlaceInTwips();
    return {0, 0, place.Width, place.Height};
}

void PictureBox::Scale(double x1, double y1, double x2, double y2) {
    userScale_ = true;
    scale_ = {x1, y1, x2 - x1, y2 - y1};
    Changed(Aspect::Drawing);
}

void PictureBox::ScaleMode(int mode) {
    if (mode == 0) {
        OwnScale();
    } else {
        userScale_ = false;
    }
    Changed(Aspect::Drawing);
}

void PictureBox::OwnScale() {
    scale_ = PresentScale();
    userScale_ = true;
    Changed(Aspect::Drawing);
}

void PictureBox::ScaleLeft(double value) {
    OwnScale();
    scale_.Left = value;
}

void PictureBox::ScaleTop(double value) {
    OwnScale();
    scale_.Top = value;
}

void PictureBox::ScaleWidth(double value) {
    OwnScale();
    scale_.Width = value;
}

void PictureBox::ScaleHeight(double value) {
    OwnScale();
    scale_.Height = value;
}

double PictureBox::FromTwipsX(double twips) const {
    const PictureScale scale = PresentScale();
    const double width = PlaceInTwips().Width;
    return width == 0 ? scale.Left : scale.Left + twips / width * scale.Width;
}

double PictureBox::FromTwipsY(double twips) const {
    const PictureScale scale = PresentScale();
    const double height = PlaceInTwips().Height;
    return height == 0 ? scale.Top : scale.Top + twips / height * scale.Height;
}

Place PictureBox::ToTwips(const Place& place) const {
    if (!userScale_) {
        return place;
    }
    const Place inner = PlaceInTwips();
    const double acrossX = scale_.Width == 0 ? 0 : inner.Width / scale_.Width;
    const double acrossY = scale_.Height == 0 ? 0 : inner.Height / scale_.Height;
    return {(place.Left - scale_.Left) * acrossX, (place.Top - scale_.Top) * acrossY, place.Width * acrossX,
            place.Height * acrossY};
}

Snapshot PictureBox::Image() const {
    Snapshot image = picture_;
    if (picture_.Empty()) {
        const Place place = PlaceInTwips();
        image.Width = place.Width;
        image.Height = place.Height;
        image.Scale = PresentScale();
    }
    const auto drawn = picture_.Drawn ? std::make_shared<Drawing>(*picture_.Drawn) : std::make_shared<Drawing>();
    for (const DrawItem& item : drawing_.Items()) {
        drawn->Add(item);
    }
    image.Drawn = drawn;
    for (const Control* const child : Children()) {
        if (!child->Visible()) {
            continue;
        }
        SnapshotLabel label{child->PlaceInTwips(), {}, child->ForeColor(), child->FontBold(), false, child->FontSize()};
        if (const auto* const box = dynamic_cast<const TextBox*>(child)) {
            label.Text = box->Text();
            label.Framed = true;
        } else if (const auto* const text = dynamic_cast<const Label*>(child)) {
            label.Text = text->Caption();
        } else {
            continue;
        }
        image.Labels.push_back(std::move(label));
    }
    return image;
}

void PictureBox::Picture(Snapshot value) {
    picture_ = std::move(value);
    Changed(Aspect::Drawing);
}

void PictureBox::PaintPicture(const Snapshot& picture, double left, double top, double width, double height) {
    if (!picture.Drawn || picture.Scale.Width == 0 || picture.Scale.Height == 0) {
        return;
    }
    const double acrossX = width / picture.Scale.Width;
    const double acrossY = height / picture.Scale.Height;
    for (DrawItem item : picture.Drawn->Items()) {
        item.X1 = left + (item.X1 - item.Scale.Left) * acrossX;
        item.X2 = left + (item.X2 - item.Scale.Left) * acrossX;
        item.Y1 = top + (item.Y1 - item.Scale.Top) * acrossY;
        item.Y2 = top + (item.Y2 - item.Scale.Top) * acrossY;
        item.Radius *= acrossX;
        item.FontSize *= acrossX;
        item.Scale = PresentScale();
        Put(std::move(item));
    }
}

}  // namespace brindlex
