// A picture as a value: what a picture box shows or what a window looked like, for printing.
// Units: twips.
#pragma once

#include "frame/drawing.h"

#include <memory>
#include <vector>

namespace brindlex {

/// What a runtime captured of a real window; its own business.
class WindowImage {
public:
    virtual ~WindowImage() = default;
    WindowImage(const WindowImage&) = delete;
    WindowImage& operator=(const WindowImage&) = delete;

protected:
    WindowImage() = default;
};

/// Text that stands over a picture: an overlay box or label.
struct SnapshotLabel {
    Place Where;  ///< in twips from the picture's corner
    std::string Text;
    Colour Ink;
    bool Bold = false;
    bool Framed = false;
    double FontSize = 0;
};

/// Sharp at any size: a display list with the labels over it, or the capture of a window.
struct Snapshot {
    double Width = 0;
    double Height = 0;
    std::shared_ptr<const Drawing> Drawn;
    PictureScale Scale;
    std::vector<SnapshotLabel> Labels;
    std::shared_ptr<const WindowImage> Window;

    [[nodiscard]] bool Empty() const { return !Drawn && !Window; }
};

}  // namespace brindlex
