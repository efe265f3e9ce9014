// Painting of display lists.
#include "desktop/painting.h"

#include "desktop/looks.h"
#include "desktop/pixels.h"
#include "desktop/texts.h"
#include "desktop/windowcapture.h"
#include "frame/fontwidths.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>

namespace brindlex {

namespace {

// Larger circles are painted as the piece of the arc that can be seen.
constexpr double LargestCircle = 3000;
constexpr int ArcPieces = 512;
// Beyond these, places on the target say nothing any more.
constexpr double FarthestPlace = 1e9;

constexpr std::array<Qt::PenStyle, 5> PenStyles = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                                   Qt::DashDotDotLine};

// From an item's scale to the target.
class Across {
public:
    Across(const PictureScale& scale, const QRectF& target)
        : scale_(scale), target_(target), x_(target.width() / scale.Width), y_(target.height() / scale.Height) {}

    [[nodiscard]] std::optional<QPointF> operator()(double x, double y) const {
        const QPointF point(target_.left() + (x - scale_.Left) * x_, target_.top() + (y - scale_.Top) * y_);
        // Also false for what is no number.
        const bool usable = std::fabs(point.x()) < FarthestPlace && std::fabs(point.y()) < FarthestPlace;
        return usable ? std::optional(point) : std::nullopt;
    }
    /// Radii are measured across.
    [[nodiscard]] double Radius(double radius) const { return std::fabs(radius * x_); }

private:
    PictureScale scale_;
    QRectF target_;
    double x_;
    double y_;
};

// Where a drawing goes.
struct Target {
    QRectF area;
    LaidTexts& texts;
};

QPen PenOf(const DrawItem& item) {
    QPen pen(ToQt(item.Ink), std::max(item.DrawWidth, 1));
    if (item.DrawStyle > 0 && item.DrawStyle < static_cast<int>(PenStyles.size())) {
        pen.setStyle(PenStyles[static_cast<std::size_t>(item.DrawStyle)]);
    }
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

// Cuts a line to a rectangle (Liang and Barsky), so that no dash pattern is laid along what cannot be seen.
std::optional<QLineF> CutTo(const QLineF& line, const QRectF& area) {
    double from = 0;
    double to = 1;
    const double edges[4][2] = {{-line.dx(), line.x1() - area.left()},
                                {line.dx(), area.right() - line.x1()},
                                {-line.dy(), line.y1() - area.top()},
                                {line.dy(), area.bottom() - line.y1()}};
    for (const auto& [rate, room] : edges) {
        if (rate == 0) {
            if (room < 0) {
                return std::nullopt;
            }
        } else if (rate < 0) {
            from = std::max(from, room / rate);
        } else {
            to = std::min(to, room / rate);
        }
    }
    if (from > to) {
        return std::nullopt;
    }
    return QLineF(line.pointAt(from), line.pointAt(to));
}

void PaintLine(QPainter& painter, const DrawItem& item, const Across& across, Target& target) {
    const auto from = across(item.X1, item.Y1);
    const auto to = across(item.X2, item.Y2);
    if (!from || !to) {
        return;
    }
    const double margin = item.DrawWidth + 1;
    const auto line = CutTo(QLineF(*from, *to), target.area.adjusted(-margin, -margin, margin, margin));
    if (!line) {
        return;
    }
    painter.setPen(PenOf(item));
    // Level and upright lines are crisp without smoothing.
    painter.setRenderHint(QPainter::Antialiasing, line->dx() != 0 && line->dy() != 0);
    if (line->length() == 0) {
        painter.drawPoint(line->p1());
    } else {
        painter.drawLine(*line);
    }
}

void PaintBox(QPainter& painter, const DrawItem& item, const Across& across, Target& target) {
    const auto from = across(item.X1, item.Y1);
    const auto to = across(item.X2, item.Y2);
    if (!from || !to) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (item.Filled) {
        painter.fillRect(QRectF(*from, *to).normalized().intersected(target.area), ToQt(item.Ink));
        return;
    }
    const QPointF corners[] = {*from, {to->x(), from->y()}, *to, {from->x(), to->y()}, *from};
    const double margin = item.DrawWidth + 1;
    painter.setPen(PenOf(item));
    for (int side = 0; side < 4; ++side) {
        const auto line =
            CutTo(QLineF(corners[side], corners[side + 1]), target.area.adjusted(-margin, -margin, margin, margin));
        if (line) {
            painter.drawLine(*line);
        }
    }
}

// The piece of a large circle that passes through the target: the angles under which its corners are seen from a
// centre outside of it. A large circle around the target cannot be seen.
void PaintLargeCircle(QPainter& painter, const QPointF& centre, double radius, const QRectF& target) {
    if (target.contains(centre)) {
        return;
    }
    const QPointF middle = target.center();
    const double straight = std::atan2(middle.y() - centre.y(), middle.x() - centre.x());
    double widest = 0;
    for (const QPointF& corner : {target.topLeft(), target.topRight(), target.bottomLeft(), target.bottomRight()}) {
        const double angle = std::atan2(corner.y() - centre.y(), corner.x() - centre.x());
        widest = std::max(widest, std::fabs(std::remainder(angle - straight, 2 * std::numbers::pi)));
    }
    QPolygonF arc;
    for (int piece = 0; piece <= ArcPieces; ++piece) {
        const double angle = straight - widest + 2 * widest * piece / ArcPieces;
        const QPointF point = centre + radius * QPointF(std::cos(angle), std::sin(angle));
        if (target.adjusted(-target.width(), -target.height(), target.width(), target.height()).contains(point)) {
            arc << point;
        }
    }
    painter.drawPolyline(arc);
}

void PaintCircle(QPainter& painter, const DrawItem& item, const Across& across, Target& target) {
    const auto centre = across(item.X1, item.Y1);
    const double radius = across.Radius(item.Radius);
    if (!centre || !(radius < FarthestPlace)) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(PenOf(item));
    painter.setBrush(Qt::NoBrush);
    if (radius > LargestCircle) {
        PaintLargeCircle(painter, *centre, radius, target.area);
    } else {
        painter.drawEllipse(*centre, radius, radius);
    }
}

// Where the painter is scaled, as on paper, letters are set in twips: pixels would be too coarse for their widths.
void PaintText(QPainter& painter, const std::string& text, const QPointF& corner, const std::string& fontName,
               double points, bool bold, LaidTexts& texts) {
    if (painter.worldTransform().type() <= QTransform::TxTranslate) {
        texts.Paint(painter, corner, text, fontName, points, bold);
        return;
    }
    painter.save();
    painter.translate(corner);
    painter.scale(1 / TwipsPerPixel, 1 / TwipsPerPixel);
    painter.setFont(TwipFont(fontName, points, bold));
    painter.drawText(QPointF(0, QFontMetricsF(painter.font()).ascent()), FromText(text));
    painter.restore();
}

void PaintTextItem(QPainter& painter, const DrawItem& item, const Across& across, Target& target) {
    if (const auto corner = across(item.X1, item.Y1)) {
        painter.setPen(ToQt(item.Ink));
        PaintText(painter, item.Text, *corner, item.FontName, item.FontSize, item.Bold, target.texts);
    }
}

using Paint = void (*)(QPainter&, const DrawItem&, const Across&, Target&);
// In the order of DrawKind.
constexpr std::array<Paint, 4> Paints = {PaintLine, PaintBox, PaintCircle, PaintTextItem};

void PaintLabel(QPainter& painter, const SnapshotLabel& label) {
    const QRectF place = PixelRect(label.Where);
    constexpr double Inset = 3;
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (label.Framed) {
        painter.fillRect(place, Qt::white);
        painter.setPen(Qt::gray);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
    painter.setPen(ToQt(label.Ink));
    const double lineHeight = TextHeight(label.FontSize) / TwipsPerPixel;
    const double down = label.Framed ? std::max((place.height() - lineHeight) / 2, 0.0) : 0;
    const double right = label.Framed ? Inset : 0;
    LaidTexts texts;
    PaintText(painter, label.Text, place.topLeft() + QPointF(right, down), "Arial", label.FontSize, label.Bold, texts);
    painter.restore();
}

}  // namespace

void PaintDrawing(QPainter& painter, const Drawing& drawing, const QRectF& target, LaidTexts& texts) {
    painter.save();
    texts.Begin();
    painter.setClipRect(target, Qt::IntersectClip);
    Target to{target, texts};
    for (const DrawItem& item : drawing.Items()) {
        if (item.Scale.Width != 0 && item.Scale.Height != 0) {
            Paints[static_cast<std::size_t>(item.Kind)](painter, item, Across(item.Scale, target), to);
        }
    }
    painter.restore();
}

void PaintSnapshot(QPainter& painter, const Snapshot& picture, const QRectF& target) {
    if (const auto* const capture = dynamic_cast<const WindowCapture*>(picture.Window.get())) {
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
        const QImage& image = capture->Image();
        painter.drawImage(target, image, QRectF(QPointF(0, 0), QSizeF(image.size())));
    }
    if (!picture.Drawn || picture.Width <= 0 || picture.Height <= 0) {
        return;
    }
    const QRectF own(0, 0, picture.Width / TwipsPerPixel, picture.Height / TwipsPerPixel);
    painter.save();
    painter.translate(target.topLeft());
    if (target.size() != own.size()) {
        painter.scale(target.width() / own.width(), target.height() / own.height());
    }
    LaidTexts texts;
    PaintDrawing(painter, *picture.Drawn, own, texts);
    for (const SnapshotLabel& label : picture.Labels) {
        PaintLabel(painter, label);
    }
    painter.restore();
}

}  // namespace brindlex
