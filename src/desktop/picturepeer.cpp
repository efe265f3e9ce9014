// Picture boxes.
#include "desktop/picturepeer.h"

#include "desktop/formwindow.h"
#include "desktop/looks.h"
#include "desktop/painting.h"

#include <QPainter>

namespace brindlex {

namespace {

constexpr int BorderGrey = 150;

}  // namespace

PictureArea::PictureArea(QWidget* parent, const FormWindow& window, const PictureBox& picture)
    : QWidget(parent), window_(window), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureArea::paintEvent(QPaintEvent* /*event*/) {
    stale_ = false;
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!window_.Released()) {
        if (!picture_.Picture().Empty()) {
            const Snapshot& behind = picture_.Picture();
            PaintSnapshot(painter, behind, QRectF(0, 0, behind.Width / TwipsPerPixel, behind.Height / TwipsPerPixel));
        }
        PaintDrawing(painter, picture_.Drawn(), QRectF(rect()), texts_);
    }
    PaintBorder(painter);
}

// Four fills: a drawn rectangle of one pixel costs half as much as all circles of a full drawing board.
void PictureArea::PaintBorder(QPainter& painter) const {
    const QColor grey(BorderGrey, BorderGrey, BorderGrey);
    painter.fillRect(0, 0, width(), 1, grey);
    painter.fillRect(0, height() - 1, width(), 1, grey);
    painter.fillRect(0, 0, 1, height(), grey);
    painter.fillRect(width() - 1, 0, 1, height(), grey);
}

// A pointer move changes the drawing a hundred times before it is painted once, so only the first time counts. What
// stands over the picture, were it by a single pixel, need not be painted with it.
void PictureArea::DrawingChanged() {
    if (!stale_) {
        stale_ = true;
        update(visibleRegion());
    }
}

PicturePeer::PicturePeer(FormWindow& window, PictureBox& picture)
    : Peer(window, picture, new PictureArea(window.Inside(picture.Container()), window, picture)),
      area_(static_cast<PictureArea*>(Widget())) {
}

// What stands on the picture has its colours. Its own look is that of its pen, which changes many times in a drawing.
void PicturePeer::TakePalette() {
    const QPalette ground = Window().palette();
    if (ground.cacheKey() != ground_) {
        ground_ = ground.cacheKey();
        Widget()->setPalette(PaperPalette(ground));
    }
}

void PicturePeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Look) {
        TakePalette();
    }
    if (aspect == Aspect::Drawing) {
        area_->DrawingChanged();
    }
}

}  // namespace brindlex
