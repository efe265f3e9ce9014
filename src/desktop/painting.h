// Paints display lists: on the screen, on paper, into a capture.
// Units: one unit of the painter is a pixel of 15 twips unless said otherwise.
#pragma once

#include "desktop/laidtexts.h"
#include "frame/drawing.h"
#include "frame/snapshot.h"

class QPainter;
class QRectF;

namespace brindlex {

/// Paints a drawing so that its scale fills the target. What lies outside the target is cut off; an item without a
/// place, because its scale or a coordinate is no usable number, is passed over. The texts of the last time make the
/// next faster.
void PaintDrawing(QPainter& painter, const Drawing& drawing, const QRectF& target, LaidTexts& texts);

/// Paints a picture into a target of any unit: drawing and labels, or the capture of a window.
void PaintSnapshot(QPainter& painter, const Snapshot& picture, const QRectF& target);

}  // namespace brindlex
