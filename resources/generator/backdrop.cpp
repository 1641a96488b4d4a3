// What lies behind the meadow: sky, mountains and sea, one ray a point. Knows nothing that is
// painted by hand.
#include "backdrop.h"

namespace pixano::art {

namespace {

constexpr int Width = 1280;
constexpr int Height = 960;
constexpr double Horizon = 436;
constexpr double Focus = 900;
constexpr double Farthest = 900;
constexpr Triple Eye{0, 13, 0};

/// Ripples are finer than the points, so each point of the sea is the mean of a few places.
Triple MeanSea(const Triple& direction)
{
    constexpr int Samples = 4;
    Triple sum{0, 0, 0};
    for (int i = 0; i < Samples; ++i) {
        const double aside = ((i * 2) % Samples + i / 2 - 1.5) / Samples / Focus;
        const double down = (i - 1.5) / Samples / Focus;
        const Triple ray = Unit(direction + Triple{aside, std::min(down, -direction.y * 0.5), 0});
        const double distance = Eye.y / -ray.y;
        sum = sum + SeaColour(Eye + ray * distance, ray, distance);
    }
    return sum * (1.0 / Samples);
}

Triple Seen(double column, double row)
{
    const Triple direction = Unit({(column - Width / 2.0) / Focus, (Horizon - row) / Focus, 1});
    const double toSea = direction.y < 0 ? Eye.y / -direction.y : 1e9;
    const double toLand = DistanceToLand(Eye, direction, std::min(toSea, Farthest));
    if (toLand > 0) return LandColour(Eye + direction * toLand, toLand);
    if (direction.y >= 0) return SkyColour(direction);
    const Triple sea = MeanSea(direction);
    // Far out, the water fades into the haze above it.
    const Triple above = SkyColour(Unit({direction.x, 0, direction.z}));
    return Mix(sea, above, 0.75 * Step(600, 6000, toSea));
}

}  // namespace

QImage Backdrop(int lastRow)
{
    QImage picture(Width, Height, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (int row = 0; row <= lastRow; ++row)
        for (int column = 0; column < Width; ++column)
            picture.setPixelColor(column, row, ToColour(Seen(column + 0.5, row + 0.5)));
    return picture;
}

}  // namespace pixano::art
