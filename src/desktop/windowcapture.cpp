// Capture of a window's inside.
#include "desktop/windowcapture.h"

#include "desktop/pixels.h"

#include <QWidget>

#include <memory>

namespace brindlex {

namespace {

constexpr int Sharpness = 4;

}  // namespace

Snapshot CaptureWidget(QWidget& widget) {
    QImage image(widget.size() * Sharpness, QImage::Format_RGB32);
    image.setDevicePixelRatio(Sharpness);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image);
    Snapshot snapshot;
    snapshot.Width = Twips(widget.width());
    snapshot.Height = Twips(widget.height());
    snapshot.Window = std::make_shared<const WindowCapture>(std::move(image));
    return snapshot;
}

}  // namespace brindlex
