#include "canvas/surface.h"

#include <algorithm>

namespace pixano {

Surface::Surface(int width, int height, Colour colour)
    : width_(static_cast<std::size_t>(width)),
      height_(static_cast<std::size_t>(height)),
      pixels_(width_ * height_, static_cast<std::uint32_t>(colour) | Opaque)
{
}

void Surface::Cls()
{
    std::fill(pixels_.begin(), pixels_.end(), static_cast<std::uint32_t>(Background) | Opaque);
}

}  // namespace pixano
