// The display list of a picture: what was drawn since it was cleared, in order. Screen, print and tests read it.
// Units: coordinates in the scale that was in force when the item was drawn; draw widths in pixels, fonts in points.
// Ground floor: includes only the standard library.
#pragma once

#include "frame/place.h"

#include <cstddef>
#include <list>
#include <string>
#include <unordered_set>

namespace brindlex {

/// The coordinate system of a picture: its left top corner and its size; a negative height grows upwards.
struct PictureScale {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    friend bool operator==(const PictureScale&, const PictureScale&) = default;
};

enum class DrawKind { Line, Box, Circle, Text };

struct DrawItem {
    DrawKind Kind = DrawKind::Line;
    double X1 = 0;  ///< start, corner, centre, or the text's left top corner
    double Y1 = 0;
    double X2 = 0;  ///< end or other corner
    double Y2 = 0;
    double Radius = 0;
    Colour Ink;
    int DrawWidth = 1;
    int DrawStyle = 0;  ///< 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
    bool Filled = false;
    bool Bold = false;
    double FontSize = 0;
    std::string FontName;
    std::string Text;
    PictureScale Scale;

    friend bool operator==(const DrawItem&, const DrawItem&) = default;
};

class Drawing {
public:
    Drawing() = default;
    Drawing(const Drawing& other);
    Drawing& operator=(const Drawing& other);
    Drawing(Drawing&&) = delete;
    Drawing& operator=(Drawing&&) = delete;
    ~Drawing() = default;

    /// Puts an item at the end. One that stands already exactly so moves there instead of standing twice, so that a
    /// picture that is repainted without being cleared does not grow.
    void Add(DrawItem item);
    void Clear();

    [[nodiscard]] const std::list<DrawItem>& Items() const { return items_; }

private:
    struct ItemHash {
        std::size_t operator()(const std::list<DrawItem>::iterator& item) const;
    };
    struct ItemEqual {
        bool operator()(const std::list<DrawItem>::iterator& a, const std::list<DrawItem>::iterator& b) const {
            return *a == *b;
        }
    };

    std::list<DrawItem> items_;
    std::unordered_set<std::list<DrawItem>::iterator, ItemHash, ItemEqual> index_;
};

}  // namespace brindlex
