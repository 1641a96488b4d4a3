// The cypresses around the house.
#include "noise.h"
#include "painted.h"

namespace pixano::art {

namespace {

/// A slender dark tree of many small strokes, light on the sun's side.
void PaintCypress(QPainter& painter, const QPointF& foot, double height, std::uint64_t start)
{
    Dice dice(start);
    const double half = height * 0.115;
    painter.setPen(QPen(QColor(0x4a, 0x32, 0x22), height * 0.03));
    painter.drawLine(foot, foot - QPointF(0, height * 0.2));
    for (int i = 0; i < 1500; ++i) {
        const double up = 1 - dice.Between(0, 1) * dice.Between(0.55, 1);
        const double waist = up < 0.3 ? 0.55 + up * 1.5 : (1 - up) / 0.7;
        const double aside = dice.Between(-1, 1);
        const QPointF place = foot + QPointF(aside * half * waist, -height * (0.06 + 0.94 * up));
        const double light = dice.Between(0.55, 1.0) * (aside < -0.2  ? 1.55
                                                        : aside > 0.3 ? 0.62
                                                                      : 0.95);
        painter.setPen(QPen(QColor(static_cast<int>(44 * light), static_cast<int>(84 * light),
                                   static_cast<int>(42 * light), 225),
                            0.9));
        painter.drawLine(place, place - QPointF(aside * 0.8, dice.Between(1.5, 4)));
    }
}

}  // namespace

void PaintCypresses(QPainter& painter)
{
    PaintCypress(painter, {614, 334}, 108, 31);
    PaintCypress(painter, {631, 338}, 88, 32);
    PaintCypress(painter, {464, 350}, 74, 33);
    PaintCypress(painter, {449, 354}, 54, 34);
}

}  // namespace pixano::art
