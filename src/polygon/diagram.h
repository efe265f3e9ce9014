// The figure of a polygon, its circle and the arrows across.
// Units: twips of the picture, y down.
#pragma once

namespace brindlex {
class PictureBox;
}

namespace brindlex::polygon {

/// The polygon: even ones with their flats level, odd ones with a corner pointing right. `rad` is radians per degree.
void DrawPolygonFigure(PictureBox& picture, int sides, double rad);

/// The circle in black and the dimension arrows in red.
void DrawCircleAndArrows(PictureBox& picture, double radius);

}  // namespace brindlex::polygon
