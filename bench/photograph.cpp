#include "measure.h"

#include <cmath>
#include <cstdint>

namespace pixano::bench {
namespace {

int Channel(double light)
{
    return static_cast<int>(std::clamp(light, 0.0, 255.0));
}

}  // namespace

Surface Photograph(int width, int height)
{
    Surface picture(width, height);
    std::uint32_t noise = 1;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const double grain = static_cast<double>(noise >> 28) - 8;
            const double sky = 200.0 - 120.0 * y / height;
            const double hill = y > height * (0.6 + 0.1 * std::sin(x * 0.004)) ? -70 : 0;
            const double leaves = 30 * std::sin(x * 0.05) * std::sin(y * 0.07);
            const double light = sky + hill + leaves + grain;
            picture.PSet(x, y,
                         Channel(light * 0.8) + 256 * Channel(light + 20) +
                             65536 * Channel(light * 1.1 - hill));
        }
    return picture;
}

}  // namespace pixano::bench
