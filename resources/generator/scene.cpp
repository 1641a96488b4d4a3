// The sample picture put together: backdrop, what is painted over it, and the grain of a film.
// Knows no file.
#include "scene.h"
#include "backdrop.h"
#include "noise.h"
#include "painted.h"

#include <algorithm>
#include <cmath>

namespace pixano::art {

namespace {

constexpr int Width = 640;
constexpr int Height = 480;
constexpr int Fine = 2;  // drawn that much larger, then averaged
constexpr int LastOpenRow = 436;

void PaintAll(QImage& picture)
{
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(Fine, Fine);
    PaintGulls(painter);
    PaintBalloon(painter);
    PaintBoat(painter);
    PaintCypresses(painter);
    PaintHouse(painter);
    PaintMeadow(painter);
    PaintFlowers(painter);
}

QRgb Averaged(const QImage& large, int column, int row, int grain)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int i = 0; i < Fine * Fine; ++i) {
        const QRgb part = large.pixel(column * Fine + i % Fine, row * Fine + i / Fine);
        red += qRed(part);
        green += qGreen(part);
        blue += qBlue(part);
    }
    const auto level = [grain](int sum) {
        return std::clamp((sum + Fine * Fine / 2) / (Fine * Fine) + grain, 0, 255);
    };
    return qRgb(level(red), level(green), level(blue));
}

}  // namespace

QImage Scene()
{
    QImage large = Backdrop(LastOpenRow * Fine);
    PaintAll(large);
    QImage picture(Width, Height, QImage::Format_RGB32);
    Dice dice(61);
    for (int row = 0; row < Height; ++row)
        for (int column = 0; column < Width; ++column) {
            const int grain =
                static_cast<int>(std::lround(dice.Between(-1.7, 1.7) + dice.Between(-1.7, 1.7)));
            picture.setPixel(column, row, Averaged(large, column, row, grain));
        }
    return picture;
}

}  // namespace pixano::art
