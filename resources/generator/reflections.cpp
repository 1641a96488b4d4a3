// The palette's two pictures for reflections: one half of a picture and, past the dividing line,
// the same half upside down with an arrow that says which way it went. Knows no file.
#include "colours.h"
#include "drawings.h"

#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace pixano::art {

namespace {

constexpr int Side = 48;
constexpr int Half = Side / 2;

/// The upper half of a picture: sky, the sun, and mountains that the dividing line cuts off; as the
/// mirrored copy it is paler.
void PaintHalf(QPainter& painter, bool copy)
{
    const auto tone = [copy](const QColor& colour) {
        return copy ? Mixed(colour, Cream, 0.45) : colour;
    };
    painter.fillRect(QRectF(2, 2, Side - 4, Half - 3), tone(Mixed(Lagoon, Cream, 0.35)));
    painter.setPen(Qt::NoPen);
    painter.setBrush(tone(Gold));
    painter.drawEllipse(QPointF(37, 10), 4.5, 4.5);
    painter.setBrush(tone(Teal));
    painter.drawPolygon(QPolygonF{{2, 23}, {2, 18}, {14, 5}, {32, 23}});
    painter.setBrush(tone(Indigo));
    painter.drawPolygon(QPolygonF{{22, 23}, {34, 14}, {46, 21}, {46, 23}});
}

/// Downwards, from the upper half into the lower one.
void PaintArrow(QPainter& painter)
{
    QPainterPath arrow;
    arrow.addPolygon(
        QPolygonF{{21, 18}, {27, 18}, {27, 32}, {34, 32}, {24, 43}, {14, 32}, {21, 32}});
    arrow.closeSubpath();
    painter.strokePath(arrow, QPen(Cream, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(arrow, Coral);
}

void ClearCorners(QImage& picture)
{
    for (const auto& [x, y] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
        for (const int column : {x, Side - 1 - x})
            for (const int row : {y, Side - 1 - y})
                picture.setPixelColor(column, row, Qt::transparent);
    }
}

void TurnUpsideDown(QPainter& painter)
{
    painter.translate(0, Side);
    painter.scale(1, -1);
}

void PaintHalves(QPainter& painter, KeptHalf kept)
{
    const bool upper = kept == KeptHalf::Upper;
    // The half that is kept stands upright, the copy hangs from it or stands on its head.
    painter.translate(0, upper ? 0 : Half - 1);
    PaintHalf(painter, false);
    painter.resetTransform();
    painter.translate(0, upper ? Side : Half + 1);
    painter.scale(1, -1);
    PaintHalf(painter, true);
    painter.resetTransform();
}

}  // namespace

QImage Reflection(KeptHalf half)
{
    QImage picture(Side, Side, QImage::Format_ARGB32);
    picture.fill(Ink);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintHalves(painter, half);
    if (half == KeptHalf::Lower) TurnUpsideDown(painter);
    PaintArrow(painter);
    painter.end();
    ClearCorners(picture);
    return picture;
}

}  // namespace pixano::art
