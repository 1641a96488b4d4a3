// The program's icon: the four quarters and the disc, simplified; one list of shapes makes both the
// pixels and the SVG document. Knows no file.
#include "colours.h"
#include "drawings.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <vector>

namespace pixano::art {

namespace {

struct Shape {
    QPainterPath outline;
    QColor colour;
};

using Shapes = std::vector<Shape>;

/// The colours of one quarter of the icon.
struct Quarter {
    bool right;
    bool lower;
    QColor sky, mountain, wood;
};

const Quarter Quarters[] = {
    {false, false, {0x8f, 0xd0, 0xd2}, {0x2f, 0x7f, 0x98}, {0x1c, 0x56, 0x62}},
    {true, false, {0xff, 0xb3, 0x66}, {0xd9, 0x4f, 0x55}, {0x7d, 0x2b, 0x4d}},
    {false, true, {0x8f, 0xd4, 0xb2}, {0x2a, 0x84, 0x7c}, {0x10, 0x47, 0x52}},
    {true, true, {0xb9, 0x97, 0xcc}, {0x54, 0x4f, 0x98}, {0x21, 0x26, 0x5c}},
};

QPainterPath Polygon(const QPolygonF& corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath Circle(double centre, double radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(centre, centre), radius, radius);
    return path;
}

QPainterPath RoundedSquare(double from, double to, double radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(from, from, to - from, to - from), radius, radius);
    return path;
}

/// How the quarters are drawn on a square of `side`; corners as for the upper left quarter.
struct Layout {
    double side;
    double margin;  ///< clear around the icon
    double rounding;
    double gap;  ///< half the width of the lines between the quarters
    double disc;
    double ring;  ///< around the disc, 0 for none
    QPolygonF mountain, snow, wood;
};

void AddQuarter(Shapes& shapes, const Layout& layout, const Quarter& quarter,
                const QPainterPath& frame)
{
    const double middle = layout.side / 2;
    QTransform place;
    place.translate(middle, middle);
    place.scale(quarter.right ? -1 : 1, quarter.lower ? -1 : 1);
    place.translate(-middle, -middle);
    QPainterPath field;
    field.addRect(QRectF(0, 0, middle - layout.gap, middle - layout.gap));
    const QPainterPath tile = frame.intersected(place.map(field));
    const auto add = [&](const QPolygonF& corners, const QColor& colour) {
        if (!corners.isEmpty())
            shapes.push_back({place.map(Polygon(corners)).intersected(tile), colour});
    };
    shapes.push_back({tile, quarter.sky});
    add(layout.mountain, quarter.mountain);
    add(layout.snow, Cream);
    add(layout.wood, quarter.wood);
}

Shapes Draw(const Layout& layout)
{
    const QPainterPath frame =
        RoundedSquare(layout.margin, layout.side - layout.margin, layout.rounding);
    Shapes shapes{{frame, Cream}};
    for (const Quarter& quarter : Quarters)
        AddQuarter(shapes, layout, quarter, frame);
    if (layout.ring > 0)
        shapes.push_back({Circle(layout.side / 2, layout.disc + layout.ring), Cream});
    shapes.push_back({Circle(layout.side / 2, layout.disc), Gold});
    return shapes;
}

/// The icon in full on a square of 256, its straight edges on whole pixels of a picture of
/// `pixels`.
Layout Large(int pixels)
{
    const double pixel = 256.0 / pixels;
    const double margin = std::round(8 / pixel) * pixel;
    const double gap = std::max(1.0, std::round(3.5 / pixel)) * pixel;
    const QPolygonF mountain{{0, 116}, {62, 36}, {92, 72}, {128, 128}, {0, 128}};
    const QPolygonF snow{{38, 67}, {62, 36}, {88, 67}, {74, 78}, {62, 66}, {50, 80}};
    const QPolygonF wood{{0, 96}, {34, 92}, {66, 106}, {92, 128}, {0, 128}};
    return {256, margin, 52, gap, 44, 10, mountain, snow, wood};
}

/// For small sides: every edge on a whole pixel, and no detail that would blur.
Layout Small(int side)
{
    const double unit = side / 16.0;
    const double foot = side / 2.0;
    const double peak = std::round(3 * unit);
    const QPolygonF mountain{
        {0, foot}, {0, peak + 2 * unit}, {2 * unit, peak}, {3 * unit, peak}, {foot, foot}};
    return {static_cast<double>(side), 0, 3 * unit, 0, 3 * unit, 1, mountain, {}, {}};
}

/// A path as the `d` of an SVG path.
QString Outline(const QPainterPath& path)
{
    const char* const commands[] = {"M", "L", "C", ""};
    QStringList words;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const auto number = [](double value) {
            return QString::number(std::round(value * 100) / 100);
        };
        words << commands[element.type] + number(element.x) + "," + number(element.y);
    }
    return words.join(' ') + " Z";
}

}  // namespace

QImage ApplicationIcon(int side)
{
    const Layout layout = side <= 24 ? Small(side) : Large(side);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / layout.side, side / layout.side);
    for (const Shape& shape : Draw(layout))
        painter.fillPath(shape.outline, shape.colour);
    return picture;
}

QByteArray ApplicationIconSvg()
{
    QByteArray document;
    QTextStream text(&document);
    const Layout layout = Large(256);
    const double side = layout.side;
    text << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << side << "\" height=\"" << side
         << "\" viewBox=\"0 0 " << side << ' ' << side << "\">\n  <title>Pixano</title>\n";
    for (const Shape& shape : Draw(layout))
        text << "  <path fill=\"" << shape.colour.name() << "\" d=\"" << Outline(shape.outline)
             << "\"/>\n";
    text << "</svg>\n";
    text.flush();
    return document;
}

}  // namespace pixano::art
