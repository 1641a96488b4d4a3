#include "canvas/surface.h"

#include <algorithm>

namespace pixano {

Surface::Surface(int width, int height, Colour colour)
    : pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), WordOf(colour)),
      width_(static_cast<std::size_t>(width)),
      height_(static_cast<std::size_t>(height))
{
}

void Surface::ReadRow(int y, std::span<Colour> colours) const
{
    const std::size_t inside = Reached(y, colours.size());
    if (inside > 0) std::ranges::transform(Row(y).first(inside), colours.begin(), ColourOf);
    std::ranges::fill(colours.subspan(inside), Outside);
}

void Surface::PaintRow(int y, std::span<const Colour> colours)
{
    const std::size_t inside = Reached(y, colours.size());
    if (inside > 0) std::ranges::transform(colours.first(inside), Row(y).begin(), WordOf);
}

void Surface::Cls()
{
    std::ranges::fill(pixels_, WordOf(Background));
}

}  // namespace pixano
