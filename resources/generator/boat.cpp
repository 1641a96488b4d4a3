// The sailing boat on the bay and its mirror image in the water.
#include "noise.h"
#include "painted.h"

#include <QImage>
#include <QPainterPath>

namespace pixano::art {

namespace {

// The boat is drawn on a sheet of its own, at twice the size, with the water line at its foot.
constexpr int SheetWidth = 200;
constexpr int SheetHeight = 220;
constexpr double Left = 186;
constexpr double WaterLine = 318;
constexpr double Fine = 2;

void PaintSail(QPainter& painter, const QPainterPath& sail, const QColor& lit, const QColor& shade)
{
    const QRectF box = sail.boundingRect();
    QLinearGradient cloth(box.topLeft(), box.topRight());
    cloth.setColorAt(0, lit);
    cloth.setColorAt(1, shade);
    painter.fillPath(sail, cloth);
}

void PaintSails(QPainter& painter)
{
    QPainterPath main(QPointF(52, 8));
    main.cubicTo(66, 36, 78, 62, 80, 88);
    main.quadTo(66, 92, 52, 89);
    main.closeSubpath();
    PaintSail(painter, main, {0xff, 0xfb, 0xf0}, {0xd8, 0xc4, 0xae});
    QPainterPath band;
    band.addPolygon(QPolygonF{{40, 58}, {90, 66}, {90, 75}, {40, 67}});
    painter.fillPath(band.intersected(main), QColor(0xd8, 0x3a, 0x34));
    QPainterPath jib(QPointF(49, 16));
    jib.cubicTo(44, 50, 32, 76, 17, 90);
    jib.quadTo(34, 93, 48, 88);
    jib.closeSubpath();
    PaintSail(painter, jib, {0xff, 0xe2, 0x9a}, {0xe2, 0x9a, 0x3a});
}

void PaintHull(QPainter& painter)
{
    QPainterPath hull(QPointF(11, 97));
    hull.quadTo(50, 102, 88, 96);
    hull.quadTo(86, 106, 78, 110);
    hull.lineTo(25, 110);
    hull.quadTo(16, 107, 11, 97);
    QLinearGradient side(0, 96, 0, 110);
    side.setColorAt(0, QColor(0xc9, 0x2f, 0x34));
    side.setColorAt(1, QColor(0x6e, 0x16, 0x2a));
    painter.fillPath(hull, side);
    QPainterPath gunwale(QPointF(12, 97.8));
    gunwale.quadTo(50, 102.8, 87, 96.8);
    painter.strokePath(gunwale, QPen(QColor(0xff, 0xf1, 0xdc), 1.3));
    QPainterPath cabin;
    cabin.addRoundedRect(QRectF(42, 92, 26, 7), 2, 2);
    painter.fillPath(cabin, QColor(0xf3, 0xe6, 0xd0));
    for (const double x : {46.0, 53.0, 60.0})
        painter.fillRect(QRectF(x, 94, 4, 2.4), QColor(0x2a, 0x4a, 0x66));
}

QImage Boat()
{
    QImage sheet(SheetWidth, SheetHeight, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Fine, Fine);
    PaintSails(painter);
    painter.setPen(QPen(QColor(0x4a, 0x33, 0x28), 1.4));
    painter.drawLine(QPointF(50.5, 4), QPointF(50.5, 98));
    painter.drawLine(QPointF(50, 89.5), QPointF(81, 89.5));
    PaintHull(painter);
    return sheet;
}

/// Row by row upside down, each row pushed aside by the ripples and paler than the last.
void PaintMirrorImage(QPainter& painter, const QImage& boat)
{
    for (int row = 0; row < SheetHeight; ++row) {
        const double depth = row / static_cast<double>(SheetHeight);
        const double aside = (Noise(row * 0.23, 4.5) - 0.5) * (3 + 26 * depth) / Fine;
        painter.setOpacity(0.62 * (1 - depth) * (0.55 + 0.45 * Noise(row * 0.31, 9.5)));
        painter.drawImage(
            QRectF(Left + aside, WaterLine + row / Fine * 0.8, SheetWidth / Fine, 0.5), boat,
            QRectF(0, SheetHeight - 1 - row, SheetWidth, 1));
    }
    painter.setOpacity(1);
}

}  // namespace

void PaintBoat(QPainter& painter)
{
    const QImage boat = Boat();
    PaintMirrorImage(painter, boat);
    painter.drawImage(
        QRectF(Left, WaterLine - SheetHeight / Fine, SheetWidth / Fine, SheetHeight / Fine), boat,
        QRectF(0, 0, SheetWidth, SheetHeight));
}

}  // namespace pixano::art
