// One landscape four times, mirrored to the right and down, each time in other colours: what the
// program does, as its sign. Knows neither names nor files.
#pragma once

#include <QPainter>

namespace pixano::art {

/// Fills the rectangle from (0, 0) to (`width`, `height`), both even, with the four quarters.
void PaintQuarters(QPainter& painter, int width, int height);

/// The light disc in the middle of the quarters, around `centre`.
void PaintDisc(QPainter& painter, const QPointF& centre, double radius);

}  // namespace pixano::art
