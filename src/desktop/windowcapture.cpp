// Capture of a window's inside.
#include "desktop/windowcapture.h"

#include "desktop/pixels.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QPixmap>
#include <QThread>
#include <QWidget>

#include <memory>

namespace brindlex {

namespace {

constexpr int Sharpness = 4;
// In milliseconds, for a window system that brings nothing to the front.
constexpr int Patience = 2000;
constexpr int Nap = 5;

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

bool SavePicture(QWidget& window, const QString& path) {
    const QDeadlineTimer until(Patience);
    const QWidget* const modal = QApplication::activeModalWidget();
    const bool comesToFront = window.isVisible() && (modal == nullptr || modal == &window);
    if (comesToFront) {
        // Where there is no window manager nobody else does that when a box goes away.
        window.activateWindow();
    }
    while (comesToFront && !window.isActiveWindow() && !until.hasExpired()) {
        QThread::msleep(Nap);
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    return window.grab().save(path);
}

}  // namespace brindlex
