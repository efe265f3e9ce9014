// Frames.
#include "desktop/framepeer.h"

#include "desktop/formwindow.h"
#include "desktop/texts.h"

#include <QPainter>

#include <cmath>

namespace brindlex {

namespace {

constexpr int TitleInset = 8;
constexpr int TitleGap = 3;
constexpr double Rounding = 3;
constexpr float BorderStrength = 0.3F;

}  // namespace

FrameBox::FrameBox(QWidget* parent) : QGroupBox(parent) {
    setFocusPolicy(Qt::NoFocus);
}

void FrameBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const double top = title().isEmpty() ? 0.5 : std::floor(metrics.height() / 2.0) + 0.5;
    QRect words;
    if (!title().isEmpty()) {
        const QSize size = metrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, title());
        words = QRect(QPoint(TitleInset + TitleGap, 0), size);
        QRegion around(rect());
        painter.setClipRegion(around.subtracted(words.adjusted(-TitleGap, 0, TitleGap, 0)));
    }
    QColor border = palette().color(QPalette::WindowText);
    border.setAlphaF(BorderStrength);
    painter.setPen(border);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(0.5, top, width() - 1, height() - top - 0.5), Rounding, Rounding);
    if (!title().isEmpty()) {
        painter.setClipping(false);
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic | Qt::TextSingleLine, title());
    }
}

FramePeer::FramePeer(FormWindow& window, Frame& frame)
    : Peer(window, frame, new FrameBox(window.Inside(frame.Container()))),
      frame_(frame),
      box_(static_cast<FrameBox*>(Widget())) {
}

void FramePeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Caption) {
        box_->setTitle(FromText(frame_.Caption()));
    }
}

std::optional<PropertyValue> FramePeer::Seen(std::string_view property) const {
    if (property == "Caption") {
        return ToText(box_->title());
    }
    return Peer::Seen(property);
}

}  // namespace brindlex
