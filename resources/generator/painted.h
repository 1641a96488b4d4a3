// What is painted by hand over the backdrop, in pixels of the finished picture, 640 x 480. Each is
// drawn by its own dice, so that none changes with another.
#pragma once

#include <QPainter>

namespace pixano::art {

void PaintBalloon(QPainter& painter);
void PaintGulls(QPainter& painter);
/// The sailing boat and its mirror image in the water.
void PaintBoat(QPainter& painter);
/// The house on the hill.
void PaintHouse(QPainter& painter);
void PaintCypresses(QPainter& painter);
/// The meadow's grass and flowers and the path to the house.
void PaintMeadow(QPainter& painter);
void PaintFlowers(QPainter& painter);

/// The upper edge of the meadow at a column.
double MeadowEdge(double x);
/// Whether a point of the meadow lies on the path.
bool OnPath(double x, double y);

}  // namespace pixano::art
