// What the inside of a window looked like, in several pixels for each of the screen's, so that it prints well.
#pragma once

#include "frame/snapshot.h"

#include <QImage>

#include <utility>

class QString;
class QWidget;

namespace brindlex {

class WindowCapture : public WindowImage {
public:
    explicit WindowCapture(QImage image) : image_(std::move(image)) {}
    [[nodiscard]] const QImage& Image() const { return image_; }

private:
    QImage image_;
};

/// Captures a widget with all that stands on it.
[[nodiscard]] Snapshot CaptureWidget(QWidget& widget);
/// Saves a picture of a window as a person sees it: the window system needs a moment to bring it to the front, and what
/// has the focus is not marked before. Whether it could be saved.
bool SavePicture(QWidget& window, const QString& path);

}  // namespace brindlex
