// The house on the hill at the right.
#include "noise.h"
#include "painted.h"

#include <QPainterPath>

namespace pixano::art {

namespace {

QPointF Between(const QPointF& a, const QPointF& b, double share)
{
    return a + (b - a) * share;
}

/// A wall or roof in perspective: left and right edges upright or slanting.
struct Face {
    QPointF topLeft, topRight, footRight, footLeft;

    QPointF At(double across, double down) const
    {
        return Between(Between(topLeft, topRight, across), Between(footLeft, footRight, across),
                       down);
    }
    QPainterPath Part(double left, double top, double right, double foot) const
    {
        QPainterPath path(At(left, top));
        path.lineTo(At(right, top));
        path.lineTo(At(right, foot));
        path.lineTo(At(left, foot));
        path.closeSubpath();
        return path;
    }
};

const Face Front{{486, 286}, {540, 278}, {540, 340}, {486, 338}};
const Face SideWall{{540, 278}, {604, 288}, {604, 336}, {540, 340}};
const Face Roof{{513, 248}, {590, 258}, {610, 291}, {543, 280}};

/// Plaster is never one colour: specks and stains all over.
void Weather(QPainter& painter, const Face& face, int count, std::uint64_t start)
{
    Dice dice(start);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < count; ++i) {
        const QPointF place = face.At(dice.Between(0.01, 0.97), dice.Between(0.02, 0.97));
        const bool dark = dice.Between(0, 1) < 0.55;
        const int strength = static_cast<int>(dice.Between(8, 44));
        painter.setBrush(dark ? QColor(90, 52, 30, strength) : QColor(255, 240, 205, strength));
        painter.drawEllipse(place, dice.Between(0.3, 1.6), dice.Between(0.2, 0.9));
    }
}

void PaintWindow(QPainter& painter, const Face& wall, double across, double down, double light)
{
    const double wide = 0.075;
    const double high = 0.20;
    const QColor shutter =
        QColor::fromRgbF(static_cast<float>(0.13 * light), static_cast<float>(0.46 * light),
                         static_cast<float>(0.36 * light));
    painter.fillPath(wall.Part(across - wide * 1.9, down, across + wide * 1.9, down + high),
                     shutter);
    painter.fillPath(wall.Part(across - wide, down, across + wide, down + high),
                     QColor(0x23, 0x2c, 0x3a));
    painter.fillPath(wall.Part(across - wide, down, across - wide * 0.1, down + high * 0.5),
                     QColor(0xd8, 0xe6, 0xee, 150));
    painter.strokePath(wall.Part(across - wide, down, across + wide, down + high),
                       QPen(QColor(0xf5, 0xea, 0xd2), 0.7));
    painter.fillPath(
        wall.Part(across - wide * 2, down + high, across + wide * 2, down + high + 0.03),
        QColor(0xe8, 0xd8, 0xba));
}

void PaintGeraniums(QPainter& painter, const Face& wall, double across, double down)
{
    Dice dice(static_cast<std::uint64_t>(across * 1000) + 5);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 26; ++i) {
        const QPointF place =
            wall.At(across + dice.Between(-0.14, 0.14), down + dice.Between(-0.04, 0.03));
        const bool leaf = dice.Between(0, 1) < 0.4;
        painter.setBrush(leaf ? QColor(0x3a, 0x7c, 0x30) : QColor(0xe8, 0x2c, 0x50));
        painter.drawEllipse(place, 0.8, 0.7);
    }
}

void PaintWalls(QPainter& painter)
{
    QPainterPath front(Front.topLeft);
    front.lineTo(513, 250);
    front.lineTo(Front.topRight);
    front.lineTo(Front.footRight);
    front.lineTo(Front.footLeft);
    QLinearGradient ochre(486, 260, 540, 345);
    ochre.setColorAt(0, QColor(0xff, 0xd9, 0x8c));
    ochre.setColorAt(1, QColor(0xe6, 0xa8, 0x5e));
    painter.fillPath(front, ochre);
    QLinearGradient shade(540, 0, 604, 0);
    shade.setColorAt(0, QColor(0xb4, 0x74, 0x52));
    shade.setColorAt(1, QColor(0x9a, 0x62, 0x52));
    painter.fillPath(SideWall.Part(0, 0, 1, 1), shade);
    Weather(painter, Front, 420, 11);
    Weather(painter, SideWall, 420, 12);
}

void PaintOpenings(QPainter& painter)
{
    PaintWindow(painter, Front, 0.26, 0.10, 1.1);
    PaintWindow(painter, Front, 0.74, 0.10, 1.1);
    PaintWindow(painter, Front, 0.26, 0.52, 1.1);
    PaintGeraniums(painter, Front, 0.26, 0.33);
    PaintGeraniums(painter, Front, 0.74, 0.33);
    PaintGeraniums(painter, Front, 0.26, 0.75);
    PaintWindow(painter, SideWall, 0.24, 0.20, 0.7);
    PaintWindow(painter, SideWall, 0.72, 0.20, 0.7);
    PaintWindow(painter, SideWall, 0.48, 0.60, 0.7);
    painter.fillPath(Front.Part(0.62, 0.52, 0.86, 1), QColor(0xf2, 0xe2, 0xc2));
    painter.fillPath(Front.Part(0.65, 0.56, 0.83, 1), QColor(0x6b, 0x35, 0x22));
    painter.setPen(QPen(QColor(0x4a, 0x22, 0x16), 0.5));
    painter.drawLine(Front.At(0.74, 0.56), Front.At(0.74, 1));
}

void PaintChimney(QPainter& painter)
{
    painter.fillRect(QRectF(566, 241, 9, 22), QColor(0xd8, 0x94, 0x60));
    painter.fillRect(QRectF(571, 241, 4, 22), QColor(0x96, 0x5c, 0x44));
    painter.fillRect(QRectF(564.5, 238.5, 12, 3.5), QColor(0xa8, 0x4c, 0x34));
}

/// Rows of tiles down the slope, each tile in its own red.
void PaintRoof(QPainter& painter)
{
    constexpr int Columns = 26;
    constexpr int Rows = 11;
    Dice dice(21);
    painter.fillPath(Roof.Part(0, 0, 1, 1), QColor(0x8a, 0x36, 0x28));
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            const double light = dice.Between(0.72, 1.12);
            const QColor tile(static_cast<int>(205 * light), static_cast<int>(98 * light),
                              static_cast<int>(dice.Between(54, 78) * light));
            const double left = column / double{Columns};
            const double top = row / double{Rows};
            painter.fillPath(Roof.Part(left, top, left + 0.031, top + 0.078), tile);
        }
    }
    // The eaves of the front, seen from below.
    painter.setPen(QPen(QColor(0x7c, 0x34, 0x28), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{482, 288}, {513, 249}, {543, 280}});
    painter.setPen(QPen(QColor(0xdc, 0x7a, 0x50), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{482, 287}, {513, 248}, {590, 257.5}});
}

}  // namespace

void PaintHouse(QPainter& painter)
{
    PaintChimney(painter);
    PaintWalls(painter);
    PaintOpenings(painter);
    PaintRoof(painter);
}

}  // namespace pixano::art
