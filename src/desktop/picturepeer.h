// The peer of a picture box, and its widget.
#pragma once

#include "desktop/laidtexts.h"
#include "desktop/peer.h"
#include "frame/picturebox.h"

#include <QWidget>

namespace brindlex {

/// White, with a thin border; paints the display list afresh each time, so that it is sharp at any size.
class PictureArea : public QWidget {
public:
    PictureArea(QWidget* parent, const FormWindow& window, const PictureBox& picture);

    /// To be painted again, once, however often it changes before that.
    void DrawingChanged();
    [[nodiscard]] const PictureBox& Surface() const { return picture_; }
    [[nodiscard]] const FormWindow& Window() const { return window_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintBorder(QPainter& painter) const;

    const FormWindow& window_;
    const PictureBox& picture_;
    LaidTexts texts_;
    bool stale_ = false;
};

class PicturePeer : public Peer {
public:
    PicturePeer(FormWindow& window, PictureBox& picture);

protected:
    void MirrorOwn(Aspect aspect) override;
    [[nodiscard]] bool RelaysMouse() const override { return true; }

private:
    void TakePalette();

    PictureArea* area_;
    qint64 ground_ = -1;
};

}  // namespace brindlex
