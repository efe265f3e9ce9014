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
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!window_.Released()) {
        if (!picture_.Picture().Empty()) {
            const Snapshot& behind = picture_.Picture();
            PaintSnapshot(painter, behind, QRectF(0, 0, behind.Width / TwipsPerPixel, behind.Height / TwipsPerPixel));
        }
        PaintDrawing(painter, picture_.Drawn(), QRectF(rect()));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(BorderGrey, BorderGrey, BorderGrey));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

PicturePeer::PicturePeer(FormWindow& window, PictureBox& picture)
    : Peer(window, picture, new PictureArea(window.Inside(picture.Container()), window, picture)) {
}

void PicturePeer::MirrorOwn(Aspect aspect) {
    if (aspect == Aspect::All || aspect == Aspect::Look) {
        // What stands on it has its colours.
        Widget()->setPalette(PaperPalette(Window().palette()));
    }
    if (aspect == Aspect::Drawing) {
        Widget()->update();
    }
}

}  // namespace brindlex
