// The scene's sky: late light on the left, deep blue above, clouds. Knows neither land nor sea.
#include "backdrop.h"
#include "noise.h"

namespace pixano::art {

namespace {

constexpr Triple Zenith{0.10, 0.30, 0.66};
constexpr Triple Middle{0.36, 0.62, 0.88};
constexpr Triple WarmHaze{1.00, 0.78, 0.52};
constexpr Triple CoolHaze{0.78, 0.86, 0.93};
constexpr Triple Sunlight{1.00, 0.93, 0.76};
constexpr Triple CloudLit{1.00, 0.97, 0.92};
constexpr Triple CloudShade{0.60, 0.62, 0.74};

Triple ClearSky(const Triple& direction, double sunward)
{
    const double height = std::max(direction.y, 0.0);
    const Triple haze = Mix(CoolHaze, WarmHaze, Step(0.60, 0.99, sunward));
    const Triple high = Mix(Middle, Zenith, Step(0.10, 0.46, height));
    return Mix(haze, high, Step(-0.05, 0.24, height));
}

/// The sun's disc and the light around it, which falls off with the square of the distance.
Triple WithSun(const Triple& colour, double sunward)
{
    const double away = 1 - sunward;
    const double wide = 0.55 / (1 + away * 38);
    const double near = 1 / (1 + away * away * 300000);
    const Triple glowing = Mix(colour, Sunlight, std::min(1.0, wide));
    return Mix(glowing, Triple{1, 0.99, 0.90}, std::min(1.0, near * 1.25));
}

double CloudDepth(double x, double y)
{
    return Step(0.43, 0.70, Clouded(x, y, 7));
}

Triple WithClouds(const Triple& colour, const Triple& direction, double sunward)
{
    const double height = direction.y + 0.09;
    if (height < 0.10) return colour;
    const double x = direction.x / height * 1.35 + 3.9;
    const double y = direction.z / height * 1.45 + 6.2;
    const double depth = CloudDepth(x, y);
    const double towardsLight = CloudDepth(x - 0.16, y + 0.10);
    const double lit = std::clamp(0.62 + 0.9 * (depth - towardsLight), 0.0, 1.0);
    const Triple warm = Mix(CloudLit, Triple{1, 0.86, 0.66}, Step(0.75, 1, sunward));
    const Triple cloud = Mix(CloudShade, warm, lit);
    return Mix(colour, cloud, depth * 0.88 * Step(0.10, 0.22, height));
}

}  // namespace

Triple SkyColour(const Triple& direction)
{
    const double sunward = Dot(direction, TowardsSun);
    return WithSun(WithClouds(ClearSky(direction, sunward), direction, sunward), sunward);
}

}  // namespace pixano::art
