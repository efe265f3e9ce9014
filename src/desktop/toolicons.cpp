// Tool pictures: each a few strokes on a field of 24 by 24.
#include "desktop/toolicons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace brindlex {

namespace {

constexpr double Field = 24;
constexpr double StrokeWidth = 1.6;
constexpr float FaintShare = 0.45F;

enum class Shape { Line, Circle, Dot, Eye };
enum class Tint { Ink, Accent, Faint };

struct Stroke {
    std::string_view key;  ///< whose picture it belongs to; empty for the square
    Shape shape;
    double x1;
    double y1;
    double x2;  ///< the end; of a circle or dot, its radius
    double y2;
    Tint tint = Tint::Ink;
};

constexpr Stroke Strokes[] = {
    {"Circle", Shape::Circle, 12, 12, 8, 0, Tint::Accent},
    {"Circle", Shape::Dot, 12, 12, 1.4, 0},
    {"Line", Shape::Line, 4, 19, 20, 5, Tint::Accent},
    {"Line", Shape::Dot, 4, 19, 1.8, 0},
    {"Line", Shape::Dot, 20, 5, 1.8, 0},
    {"Point", Shape::Line, 12, 4, 12, 20, Tint::Faint},
    {"Point", Shape::Line, 4, 12, 20, 12, Tint::Faint},
    {"Point", Shape::Dot, 12, 12, 3, 0, Tint::Accent},
    {"Connect", Shape::Circle, 6, 17, 4, 0},
    {"Connect", Shape::Circle, 18, 7, 4, 0},
    {"Connect", Shape::Line, 9.1, 14.4, 14.9, 9.6, Tint::Accent},
    {"CircTan", Shape::Line, 3, 20, 21, 20},
    {"CircTan", Shape::Line, 3, 20, 16, 3},
    {"CircTan", Shape::Circle, 13.2, 14.6, 5.2, 0, Tint::Accent},
    {"PotInt", Shape::Line, 3, 20, 11, 12},
    {"PotInt", Shape::Line, 11, 12, 17, 6, Tint::Accent},
    {"PotInt", Shape::Line, 21, 20, 18, 9.5},
    {"PotInt", Shape::Line, 18, 9.5, 16.2, 3.2, Tint::Accent},
    {"PotInt", Shape::Dot, 17, 6, 2, 0, Tint::Accent},
    {"ID", Shape::Eye, 3, 12, 21, 12},
    {"ID", Shape::Circle, 12, 12, 3, 0, Tint::Accent},
    {"Zoom", Shape::Circle, 10, 10, 6, 0},
    {"Zoom", Shape::Line, 14.5, 14.5, 20.5, 20.5},
    {"Zoom", Shape::Line, 7, 10, 13, 10, Tint::Accent},
    {"Zoom", Shape::Line, 10, 7, 10, 13, Tint::Accent},
    {"UnZoom", Shape::Circle, 10, 10, 6, 0},
    {"UnZoom", Shape::Line, 14.5, 14.5, 20.5, 20.5},
    {"UnZoom", Shape::Line, 7, 10, 13, 10, Tint::Accent},
    {"Fit", Shape::Line, 4, 9, 4, 4},
    {"Fit", Shape::Line, 4, 4, 9, 4},
    {"Fit", Shape::Line, 15, 4, 20, 4},
    {"Fit", Shape::Line, 20, 4, 20, 9},
    {"Fit", Shape::Line, 20, 15, 20, 20},
    {"Fit", Shape::Line, 20, 20, 15, 20},
    {"Fit", Shape::Line, 9, 20, 4, 20},
    {"Fit", Shape::Line, 4, 20, 4, 15},
    {"Fit", Shape::Circle, 12, 12, 4, 0, Tint::Accent},
    {"Delete", Shape::Line, 5, 7, 19, 7},
    {"Delete", Shape::Line, 9.5, 7, 9.5, 4},
    {"Delete", Shape::Line, 9.5, 4, 14.5, 4},
    {"Delete", Shape::Line, 14.5, 4, 14.5, 7},
    {"Delete", Shape::Line, 7, 7, 8, 20},
    {"Delete", Shape::Line, 8, 20, 16, 20},
    {"Delete", Shape::Line, 16, 20, 17, 7},
    {"Delete", Shape::Line, 10.5, 10, 10.5, 17, Tint::Faint},
    {"Delete", Shape::Line, 13.5, 10, 13.5, 17, Tint::Faint},
    {"", Shape::Line, 5, 5, 19, 5},
    {"", Shape::Line, 19, 5, 19, 19},
    {"", Shape::Line, 19, 19, 5, 19},
    {"", Shape::Line, 5, 19, 5, 5},
};

class StrokeIcon : public QIconEngine {
public:
    StrokeIcon(std::string_view key, const QColor& ink, const QColor& accent) : key_(key), ink_(ink), accent_(accent) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) {
            painter->setOpacity(FaintShare);
        }
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / Field, rect.height() / Field);
        for (const Stroke& stroke : Strokes) {
            if (stroke.key == key_) {
                PaintStroke(*painter, stroke, mode == QIcon::Disabled);
            }
        }
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new StrokeIcon(key_, ink_, accent_); }

private:
    void PaintStroke(QPainter& painter, const Stroke& stroke, bool grey) const {
        QColor colour = stroke.tint == Tint::Accent && !grey ? accent_ : ink_;
        if (stroke.tint == Tint::Faint) {
            colour.setAlphaF(FaintShare);
        }
        painter.setPen(QPen(colour, StrokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(stroke.shape == Shape::Dot ? QBrush(colour) : QBrush(Qt::NoBrush));
        const QPointF from(stroke.x1, stroke.y1);
        if (stroke.shape == Shape::Line) {
            painter.drawLine(from, QPointF(stroke.x2, stroke.y2));
        } else if (stroke.shape == Shape::Eye) {
            constexpr double Lid = 7.5;
            QPainterPath eye(from);
            eye.quadTo(Field / 2, stroke.y1 - 2 * Lid, stroke.x2, stroke.y2);
            eye.quadTo(Field / 2, stroke.y1 + 2 * Lid, stroke.x1, stroke.y1);
            painter.drawPath(eye);
        } else {
            painter.drawEllipse(from, stroke.x2, stroke.x2);
        }
    }

    std::string_view key_;
    QColor ink_;
    QColor accent_;
};

}  // namespace

QIcon ToolIcon(const std::string& key, const QColor& ink, const QColor& accent) {
    const auto* const found =
        std::find_if(std::begin(Strokes), std::end(Strokes), [&](const Stroke& stroke) { return stroke.key == key; });
    // The key of the table, as it outlives the one that was asked for.
    return QIcon(new StrokeIcon(found == std::end(Strokes) ? std::string_view() : found->key, ink, accent));
}

}  // namespace brindlex
