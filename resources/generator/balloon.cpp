// The hot-air balloon in the sky and a few gulls.
#include "painted.h"

#include <QPainterPath>

namespace pixano::art {

namespace {

constexpr QPointF Middle{352, 82};
constexpr double Radius = 30;

QPainterPath Envelope()
{
    QPainterPath path(QPointF(-4.5, 46));
    path.cubicTo(-10, 34, -Radius, 22, -Radius, 0);
    path.cubicTo(-Radius, -40, Radius, -40, Radius, 0);
    path.cubicTo(Radius, 22, 10, 34, 4.5, 46);
    path.closeSubpath();
    return path;
}

/// The gores from the widest to the narrowest, each hiding the middle of the one before.
void PaintGores(QPainter& painter, const QPainterPath& envelope)
{
    const QColor colours[] = {{0x7a, 0x2d, 0x8c}, {0x2b, 0x62, 0xc0}, {0x22, 0xa3, 0x8a},
                              {0xf6, 0xd0, 0x3c}, {0xf0, 0x86, 0x2c}, {0xdc, 0x2f, 0x3c}};
    const double widths[] = {1, 0.94, 0.80, 0.60, 0.38, 0.13};
    for (int i = 0; i < 6; ++i)
        painter.fillPath(QTransform::fromScale(widths[i], 1).map(envelope), colours[i]);
}

void PaintBasket(QPainter& painter)
{
    painter.setPen(QPen(QColor(0x5a, 0x43, 0x32), 0.5));
    for (const double side : {-1.0, -0.35, 0.35, 1.0})
        painter.drawLine(QPointF(4.2 * side, 46), QPointF(3.2 * side, 55));
    painter.setPen(Qt::NoPen);
    QLinearGradient wicker(-4, 0, 4, 0);
    wicker.setColorAt(0, QColor(0xb8, 0x84, 0x4c));
    wicker.setColorAt(1, QColor(0x5e, 0x3b, 0x22));
    painter.setBrush(wicker);
    painter.drawRoundedRect(QRectF(-3.8, 54.5, 7.6, 6), 1, 1);
}

void PaintGull(QPainter& painter, const QPointF& place, double span)
{
    QPainterPath wings(place - QPointF(span, span * 0.18));
    wings.quadTo(place - QPointF(span * 0.45, span * 0.55), place);
    wings.quadTo(place + QPointF(span * 0.45, -span * 0.62), place + QPointF(span, -span * 0.3));
    painter.strokePath(wings,
                       QPen(QColor(0x38, 0x3f, 0x55), span * 0.15, Qt::SolidLine, Qt::RoundCap));
}

}  // namespace

void PaintBalloon(QPainter& painter)
{
    painter.save();
    painter.translate(Middle);
    const QPainterPath envelope = Envelope();
    PaintGores(painter, envelope);
    QRadialGradient light(QPointF(-11, -12), 52);
    light.setColorAt(0, QColor(255, 248, 220, 120));
    light.setColorAt(0.4, QColor(255, 240, 200, 0));
    light.setColorAt(0.55, QColor(20, 20, 60, 0));
    light.setColorAt(1, QColor(20, 20, 60, 150));
    painter.fillPath(envelope, light);
    PaintBasket(painter);
    painter.restore();
}

void PaintGulls(QPainter& painter)
{
    PaintGull(painter, {206, 132}, 7);
    PaintGull(painter, {226, 122}, 5);
    PaintGull(painter, {219, 145}, 4);
    PaintGull(painter, {262, 176}, 3.4);
}

}  // namespace pixano::art
