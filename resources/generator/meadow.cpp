// The meadow in front: grass blade by blade, and the path to the house.
#include "light.h"
#include "noise.h"
#include "painted.h"

#include <QPainterPath>

namespace pixano::art {

namespace {

constexpr double Width = 640;
constexpr double Height = 480;
constexpr double DoorX = 526;
constexpr double DoorY = 337;

/// 0 at the meadow's upper edge, 1 at the picture's foot.
double Nearness(double x, double y)
{
    const double edge = MeadowEdge(x);
    return std::clamp((y - edge) / (Height - edge), 0.0, 1.0);
}

struct PathSpan {
    double middle, half;
};

PathSpan PathAt(double y)
{
    const double t = std::clamp((y - DoorY) / (Height - DoorY), 0.0, 1.0);
    return {DoorX - 8 - 150 * t * t + 190 * t * t * t * (1.15 - t), 4 + 40 * t * t};
}

Triple GrassColour(double x, double y, double chance)
{
    const double patch = Clouded(x * 0.012, y * 0.035, 4);
    const double fine = Clouded(x * 0.06 + 40, y * 0.12, 3);
    Triple colour = Mix(Triple{0.16, 0.36, 0.10}, Triple{0.48, 0.62, 0.16}, Step(0.3, 0.7, patch));
    colour = Mix(colour, Triple{0.72, 0.68, 0.28}, 0.6 * Step(0.52, 0.74, fine));
    return colour * Mix(0.62, 1.22, chance);
}

void PaintGround(QPainter& painter)
{
    QPainterPath ground(QPointF(0, Height));
    for (double x = 0; x <= Width; x += 4)
        ground.lineTo(x, MeadowEdge(x));
    ground.lineTo(Width, Height);
    QLinearGradient soil(0, 330, 0, Height);
    soil.setColorAt(0, QColor(0x62, 0x7c, 0x34));
    soil.setColorAt(1, QColor(0x22, 0x42, 0x1c));
    painter.fillPath(ground, soil);
}

void PaintPath(QPainter& painter)
{
    Dice dice(41);
    painter.setPen(Qt::NoPen);
    for (double y = DoorY; y < Height; y += 0.5) {
        const PathSpan span = PathAt(y);
        painter.fillRect(QRectF(span.middle - span.half, y, 2 * span.half, 0.6),
                         ToColour(Triple{0.86, 0.74, 0.54} * Mix(0.92, 1.05, Noise(y * 0.2, 3.5))));
        for (double i = 0; i < span.half * 0.8; ++i) {
            const double light = dice.Between(0.62, 1.12);
            painter.setBrush(ToColour(Triple{0.84, 0.71, 0.52} * light));
            const double size = dice.Between(0.2, 0.5) * (0.6 + span.half * 0.05);
            painter.drawEllipse(QPointF(span.middle + dice.Between(-1, 1) * span.half, y),
                                size * 1.7, size);
        }
    }
}

void PaintBlade(QPainter& painter, const QPointF& root, double length, double lean,
                const QColor& colour)
{
    QPainterPath blade(root);
    blade.quadTo(root + QPointF(lean * 0.2, -length * 0.6), root + QPointF(lean, -length));
    painter.strokePath(blade, QPen(colour, 0.5 + length * 0.055, Qt::SolidLine, Qt::RoundCap));
}

/// From the far edge to the near one, so that near blades stand before far ones.
void PaintGrass(QPainter& painter)
{
    Dice dice(42);
    double step = 0.35;
    for (double y = 322; y < Height + 22; y += step) {
        for (double x = -4; x < Width + 4; x += dice.Between(0.6, 3.6)) {
            const double edge = MeadowEdge(x);
            if (y < edge || OnPath(x, y)) continue;
            const double near = Step(edge - 30, Height + 40, y);
            const double length = Mix(1.8, 21, near * near) * dice.Between(0.6, 1.25);
            const double lean = dice.Between(-0.35, 0.55) * length;
            const QColor colour = ToColour(GrassColour(x, y, dice.Between(0, 1)));
            PaintBlade(painter, {x, y}, length, lean, colour);
        }
        step = 0.35 + 1.5 * Nearness(320, y);
    }
}

/// What the house and the tall cypresses keep the light from.
void PaintShade(QPainter& painter)
{
    for (int layer = 0; layer < 6; ++layer) {
        const double wider = layer * 1.1;
        QPainterPath shade(QPointF(541 - wider, 339));
        shade.lineTo(606, 335);
        shade.lineTo(641, 337);
        shade.lineTo(641, 351 + wider);
        shade.lineTo(588 - wider, 350 + wider);
        painter.fillPath(shade, QColor(10, 26, 34, 17));
    }
}

}  // namespace

double MeadowEdge(double x)
{
    const double rise = Step(60, 560, x);
    return 424 - 88 * rise - 6 * Noise(x * 0.013, 1.5) - 2 * Noise(x * 0.07, 2.5);
}

bool OnPath(double x, double y)
{
    if (y < DoorY) return false;
    const PathSpan span = PathAt(y);
    return std::abs(x - span.middle) < span.half * (0.86 + 0.28 * Noise(y * 0.21, x < span.middle));
}

void PaintMeadow(QPainter& painter)
{
    PaintGround(painter);
    PaintPath(painter);
    PaintGrass(painter);
    PaintShade(painter);
}

}  // namespace pixano::art
