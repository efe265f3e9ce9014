// The drawn pattern. It is not to scale: the circle has one size whatever the diameter.
// Units: twips of a picture of 3612 by 3612, y downwards.
#pragma once

#include "boltcircle/solver.h"
#include "frame/picturebox.h"

namespace brindlex::boltcircle {

/// Clears the picture and draws the bolt circle alone, dash-dotted; the draw style stays dash-dot.
void DrawBaseCircle(PictureBox& picture);
/// The same, and the draw style back to solid. The pen stays at the centre.
void DrawCircle(PictureBox& picture);

/// Draws the holes into the bolt circle, the first with a line to it from the pen at the centre, the others with their
/// numbers while there are fewer than 41 holes. `rad` is radians per degree.
void DrawHoles(PictureBox& picture, const Pattern& pattern, double rad);

}  // namespace brindlex::boltcircle
