// The palette's two pictures that change the preview's scale: a magnifier with plus or minus. Knows
// no file.
#include "colours.h"
#include "drawings.h"

#include <QPainter>

namespace pixano::art {

namespace {

constexpr int Side = 48;
constexpr QPointF Lens{20, 20};
constexpr double LensRadius = 13;

/// A JPEG has no transparency, so the picture is a whole tile to its edges.
void PaintTile(QPainter& painter)
{
    QLinearGradient face(0, 0, 0, Side);
    face.setColorAt(0, Mixed(Teal, Lagoon, 0.45));
    face.setColorAt(1, Mixed(Teal, Ink, 0.25));
    painter.fillRect(0, 0, Side, Side, face);
    painter.setPen(QPen(Mixed(Teal, Ink, 0.55), 2));
    painter.drawRect(QRectF(1, 1, Side - 2, Side - 2));
}

void PaintGlass(QPainter& painter)
{
    painter.setPen(QPen(Cream, 8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(31, 31), QPointF(40, 40));
    painter.setPen(QPen(Cream, 4.5));
    painter.setBrush(Mixed(Teal, Ink, 0.45));
    painter.drawEllipse(Lens, LensRadius, LensRadius);
}

void PaintSign(QPainter& painter, Zooming zooming)
{
    const QRectF bar(Lens.x() - 8, Lens.y() - 2, 16, 4);
    painter.fillRect(bar, Gold);
    if (zooming == Zooming::Enlarge)
        painter.fillRect(QRectF(Lens.x() - 2, Lens.y() - 8, 4, 16), Gold);
}

}  // namespace

QImage Magnifier(Zooming zooming)
{
    QImage picture(Side, Side, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTile(painter);
    PaintGlass(painter);
    PaintSign(painter, zooming);
    return picture;
}

}  // namespace pixano::art
