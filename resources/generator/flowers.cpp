// The meadow's flowers: poppies on the left, daisies and cornflowers in the middle, lavender on the
// right.
#include "light.h"
#include "noise.h"
#include "painted.h"

#include <QPainterPath>

#include <algorithm>
#include <vector>

namespace pixano::art {

namespace {

enum class Kind { Poppy, Daisy, Cornflower, Buttercup, Lavender };

struct Flower {
    Kind kind;
    double x, y;
    double chance;  ///< what makes this one differ from its neighbours
};

/// How large things are at a height of the picture.
double SizeAt(double y)
{
    const double near = Step(330, 500, y);
    return 0.28 + 1.25 * near * near;
}

void PaintStem(QPainter& painter, const Flower& flower, double length)
{
    painter.setPen(QPen(QColor(0x3c, 0x66, 0x24), 0.4 + 0.5 * SizeAt(flower.y)));
    painter.drawLine(QPointF(flower.x, flower.y), QPointF(flower.x, flower.y + length));
    painter.setPen(Qt::NoPen);
}

void PaintPoppy(QPainter& painter, const Flower& flower, double size)
{
    const Triple red = Mix(Triple{0.80, 0.08, 0.06}, Triple{0.98, 0.30, 0.12}, flower.chance);
    const QPointF middle(flower.x, flower.y);
    painter.setBrush(ToColour(red * 0.72));
    painter.drawEllipse(middle + QPointF(0, -1.1 * size), 3.9 * size, 2.6 * size);
    painter.setBrush(ToColour(red));
    painter.drawEllipse(middle + QPointF(-2.0 * size, 0.2 * size), 2.9 * size, 2.3 * size);
    painter.drawEllipse(middle + QPointF(2.0 * size, 0.1 * size), 2.8 * size, 2.2 * size);
    painter.setBrush(ToColour(red * 1.16 + Triple{0.02, 0.05, 0.02}));
    painter.drawEllipse(middle + QPointF(-0.3 * size, 1.0 * size), 2.9 * size, 1.7 * size);
    painter.setBrush(QColor(0x2a, 0x12, 0x18));
    painter.drawEllipse(middle + QPointF(0, -0.3 * size), 0.95 * size, 0.7 * size);
}

void PaintPetals(QPainter& painter, const Flower& flower, double size, int count,
                 const QColor& petal, const QColor& heart)
{
    painter.save();
    painter.translate(flower.x, flower.y);
    painter.scale(1, 0.72);
    painter.rotate(flower.chance * 360);
    painter.setBrush(petal);
    for (int i = 0; i < count; ++i) {
        painter.rotate(360.0 / count);
        painter.drawEllipse(QPointF(2.0 * size, 0), 1.5 * size, 0.72 * size);
    }
    painter.setBrush(heart);
    painter.drawEllipse(QPointF(0, 0), 1.0 * size, 1.0 * size);
    painter.restore();
}

void PaintLavender(QPainter& painter, const Flower& flower, double size)
{
    Dice dice(static_cast<std::uint64_t>(flower.chance * 1e9));
    const double lean = dice.Between(-2, 3) * size;
    for (int i = 0; i < 9; ++i) {
        const double up = i / 8.0;
        const Triple violet =
            Mix(Triple{0.36, 0.20, 0.62}, Triple{0.72, 0.54, 0.92}, dice.Between(0, 1));
        painter.setBrush(ToColour(violet));
        painter.drawEllipse(QPointF(flower.x + lean * up + dice.Between(-0.8, 0.8) * size,
                                    flower.y - 9 * size * up),
                            (1.15 - 0.55 * up) * size, 0.85 * size);
    }
}

void PaintFlower(QPainter& painter, const Flower& flower)
{
    const double size = SizeAt(flower.y) * Mix(0.8, 1.2, flower.chance);
    PaintStem(painter, flower, 9 * size);
    switch (flower.kind) {
    case Kind::Poppy:
        return PaintPoppy(painter, flower, size);
    case Kind::Daisy:
        return PaintPetals(painter, flower, size, 9, {0xfd, 0xfa, 0xf2}, {0xf4, 0xc0, 0x2c});
    case Kind::Cornflower:
        return PaintPetals(painter, flower, size * 1.1, 8, {0x36, 0x5a, 0xe0}, {0x2a, 0x22, 0x8a});
    case Kind::Buttercup:
        return PaintPetals(painter, flower, size * 0.8, 5, {0xff, 0xd4, 0x1e}, {0xe0, 0x96, 0x10});
    case Kind::Lavender:
        return PaintLavender(painter, flower, size * 1.25);
    }
}

/// Flowers stand where their own noise is high, inside their share of the meadow's breadth.
struct Bed {
    Kind kind;
    int count;
    double left, right;
    double crowding;  ///< how high the noise must be
};

void Sow(std::vector<Flower>& flowers, const Bed& bed, std::uint64_t start)
{
    Dice dice(start);
    const double offset = static_cast<double>(start);
    for (int i = 0; i < bed.count; ++i) {
        const double x = dice.Between(bed.left, bed.right);
        const double deep = dice.Between(0, 1);
        const double edge = MeadowEdge(x) + 3;
        const double y = Mix(edge, 484, deep * Mix(0.55, 1, deep));
        const double chance = dice.Between(0, 1);
        if (OnPath(x, y + 4) || OnPath(x, y)) continue;
        if (Clouded(x * 0.016 + offset, y * 0.05, 2) < bed.crowding) continue;
        flowers.push_back({bed.kind, x, y, chance});
    }
}

/// Lavender grows in rows that run down the slope.
void PlantRows(std::vector<Flower>& flowers)
{
    Dice dice(57);
    for (double y = 352; y < 486; y += 0.8) {
        const double near = (y - 330) / 150;
        for (int row = 0; row < 7; ++row) {
            const double x = 566 + (row * 34 - 50) * near + 10 * row +
                             (dice.Between(-5, 5) + dice.Between(-5, 5)) * near;
            if (x > 645 || y < MeadowEdge(x) + 6 || OnPath(x - 8, y)) continue;
            flowers.push_back({Kind::Lavender, x, y, dice.Between(0, 1)});
        }
    }
}

}  // namespace

void PaintFlowers(QPainter& painter)
{
    std::vector<Flower> flowers;
    Sow(flowers, {Kind::Poppy, 520, -5, 310, 0.455}, 51);
    Sow(flowers, {Kind::Daisy, 420, 120, 480, 0.50}, 52);
    Sow(flowers, {Kind::Cornflower, 300, 200, 470, 0.52}, 53);
    Sow(flowers, {Kind::Buttercup, 520, 0, 560, 0.46}, 54);
    PlantRows(flowers);
    std::stable_sort(flowers.begin(), flowers.end(),
                     [](const Flower& a, const Flower& b) { return a.y < b.y; });
    painter.setPen(Qt::NoPen);
    for (const Flower& flower : flowers)
        PaintFlower(painter, flower);
}

}  // namespace pixano::art
