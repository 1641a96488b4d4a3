// One landscape four times, mirrored to the right and down, each time in other colours. Knows
// neither names nor files.
#include "quarters.h"

#include "colours.h"

#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <initializer_list>
#include <tuple>
#include <utility>

namespace pixano::art {

namespace {

/// The colours of one quarter.
struct Mood {
    QColor zenith, horizon, light;
    QColor farRidge, slope, shade, snow, hill, wood;
};

const Mood Day{{0x3d, 0x95, 0xb4}, {0xd8, 0xf0, 0xe4}, Cream, {0x8a, 0xbf, 0xc4},
               {0x4f, 0x8d, 0x9e}, {0x2f, 0x68, 0x80}, Cream, {0x5c, 0xa3, 0x86},
               {0x1f, 0x5b, 0x5c}};
const Mood Sunset{{0xd9, 0x4f, 0x55}, {0xff, 0xd9, 0x8a}, Gold,
                  {0xf0, 0x9a, 0x6a}, {0xc4, 0x5a, 0x58}, {0x8f, 0x3c, 0x56},
                  {0xff, 0xe3, 0xb8}, {0xa3, 0x46, 0x4f}, {0x5a, 0x25, 0x45}};
const Mood Evening{{0x1c, 0x63, 0x70}, {0x8f, 0xd4, 0xb2}, {0xe8, 0xff, 0xd8},
                   {0x5f, 0xad, 0x9d}, {0x2d, 0x80, 0x80}, {0x1b, 0x5a, 0x66},
                   {0xd6, 0xf2, 0xdc}, {0x2a, 0x73, 0x66}, {0x0f, 0x3d, 0x48}};
const Mood Night{{0x1b, 0x22, 0x4f}, {0xb2, 0x86, 0xb8}, {0xff, 0xd7, 0xd0},
                 {0x80, 0x6c, 0xab}, {0x50, 0x4d, 0x92}, {0x31, 0x34, 0x70},
                 {0xe6, 0xd6, 0xee}, {0x3a, 0x36, 0x74}, {0x17, 0x1b, 0x44}};

using Corners = std::initializer_list<std::pair<double, double>>;

/// Draws on a tile of 240 x 160 whose lower right corner is the middle of the whole.
class Tile {
  public:
    Tile(QPainter& painter, const Mood& mood) : painter_(painter), mood_(mood) {}

    void Paint()
    {
        Sky();
        Rays();
        Clouds();
        Mountains();
        Hills();
    }

  private:
    static constexpr double Width = 240;
    static constexpr double Height = 160;

    void Sky()
    {
        QLinearGradient sky(0, 0, 0, Height);
        sky.setColorAt(0, mood_.zenith);
        sky.setColorAt(1, mood_.horizon);
        painter_.fillRect(QRectF(0, 0, Width, Height), sky);
        QRadialGradient glow(Width, Height, 190);
        glow.setColorAt(0.35, Veiled(mood_.light, 0.85));
        glow.setColorAt(1, Veiled(mood_.light, 0));
        painter_.fillRect(QRectF(0, 0, Width, Height), glow);
    }

    void Rays()
    {
        constexpr int Count = 7;
        constexpr double Step = 90.0 / (2 * Count);
        const QRectF around(Width - 400, Height - 400, 800, 800);
        for (int i = 0; i < Count; ++i) {
            QPainterPath ray(QPointF(Width, Height));
            ray.arcTo(around, 90 + Step * (2 * i + 0.5), Step);
            painter_.fillPath(ray, Veiled(mood_.light, 0.13));
        }
    }

    void Cloud(double x, double y, double length, double height)
    {
        QPainterPath bar;
        bar.addRoundedRect(QRectF(x, y, length, height), height / 2, height / 2);
        painter_.fillPath(bar, Veiled(mood_.light, 0.42));
    }

    void Clouds()
    {
        Cloud(150, 14, 62, 6);
        Cloud(6, 18, 58, 6);
        Cloud(118, 43, 58, 6);
        Cloud(136, 54, 66, 6);
        Cloud(-10, 56, 44, 6);
        Cloud(176, 66, 64, 5);
    }

    void Fill(Corners corners, const QColor& colour)
    {
        QPolygonF shape;
        for (const auto& [x, y] : corners)
            shape << QPointF(x, y);
        QPainterPath path;
        path.addPolygon(shape);
        path.closeSubpath();
        painter_.fillPath(path, colour);
    }

    void Mountains()
    {
        Fill({{-2, 96},
              {20, 74},
              {38, 90},
              {96, 66},
              {126, 96},
              {150, 84},
              {182, 118},
              {206, 160},
              {-2, 160}},
             mood_.farRidge);
        Fill({{0, 152}, {70, 50}, {84, 74}, {108, 98}, {118, 116}, {160, 160}, {-6, 160}},
             mood_.slope);
        Fill({{-6, 160}, {70, 50}, {64, 84}, {78, 108}, {66, 130}, {84, 160}}, mood_.shade);
        Fill({{70, 50}, {84, 74}, {78, 84}, {72, 76}, {64, 86}, {56, 84}, {48, 82}}, mood_.snow);
        Fill({{70, 50}, {66, 72}, {56, 84}, {48, 82}}, Mixed(mood_.snow, mood_.shade, 0.3));
    }

    void Pine(double x, double foot, double height)
    {
        const double half = height * 0.24;
        Fill({{x, foot - height},
              {x + half * 0.7, foot - height * 0.5},
              {x + half * 0.4, foot - height * 0.5},
              {x + half, foot},
              {x - half, foot},
              {x - half * 0.4, foot - height * 0.5},
              {x - half * 0.7, foot - height * 0.5}},
             mood_.wood);
    }

    void Hills()
    {
        QPainterPath meadow(QPointF(-2, 128));
        meadow.cubicTo(50, 112, 100, 132, 176, 160);
        meadow.lineTo(-2, 160);
        painter_.fillPath(meadow, mood_.hill);
        QPainterPath wood(QPointF(-2, 142));
        wood.cubicTo(40, 136, 76, 150, 118, 160);
        wood.lineTo(-2, 160);
        painter_.fillPath(wood, mood_.wood);
        for (const auto& [x, foot, height] : {std::tuple{6.0, 143.0, 36.0},
                                              {21.0, 144.0, 28.0},
                                              {34.0, 145.0, 40.0},
                                              {50.0, 148.0, 26.0},
                                              {63.0, 150.0, 20.0},
                                              {88.0, 156.0, 13.0}})
            Pine(x, foot, height);
    }

    QPainter& painter_;
    const Mood& mood_;
};

void PaintQuarter(QPainter& painter, const Mood& mood, const QSizeF& half, bool right, bool lower)
{
    const double scale = std::max(half.width() / 240, half.height() / 160);
    painter.save();
    painter.setClipRect(
        QRectF(right ? half.width() : 0, lower ? half.height() : 0, half.width(), half.height()));
    painter.translate(half.width(), half.height());
    painter.scale(right ? -scale : scale, lower ? -scale : scale);
    painter.translate(-240, -160);
    Tile(painter, mood).Paint();
    painter.restore();
}

}  // namespace

void PaintQuarters(QPainter& painter, int width, int height)
{
    const QSizeF half(width / 2, height / 2);
    PaintQuarter(painter, Day, half, false, false);
    PaintQuarter(painter, Sunset, half, true, false);
    PaintQuarter(painter, Evening, half, false, true);
    PaintQuarter(painter, Night, half, true, true);
    painter.fillRect(QRectF(half.width() - 1, 0, 2, height), Cream);
    painter.fillRect(QRectF(0, half.height() - 1, width, 2), Cream);
}

void PaintDisc(QPainter& painter, const QPointF& centre, double radius)
{
    QRadialGradient shadow(centre + QPointF(0, radius * 0.04), radius * 1.12);
    shadow.setColorAt(0.86, Veiled(Ink, 0.34));
    shadow.setColorAt(1, Veiled(Ink, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(centre + QPointF(0, radius * 0.04), radius * 1.12, radius * 1.12);
    painter.setBrush(Cream);
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Gold, radius * 0.022));
    painter.drawEllipse(centre, radius * 0.93, radius * 0.93);
}

}  // namespace pixano::art
