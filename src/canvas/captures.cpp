#include "canvas/captures.h"

#include <algorithm>

namespace pixano {

namespace {

/// The pixels of row `y` in the columns 0 to `last`, as many as the surface has.
std::span<const std::uint32_t> PixelsOf(const Surface& surface, int y, int last)
{
    if (y >= surface.Height()) return {};
    return surface.Row(y).first(static_cast<std::size_t>(std::min(last + 1, surface.Width())));
}

}  // namespace

void Cattura(Work& w)
{
    w.ElabSer.OpenForOutput();
    for (int y = 0; y <= w.Alt; ++y) {
        const auto pixels = PixelsOf(w.Picture1, y, w.Larg);
        w.ElabSer.Write(pixels);
        for (int x = static_cast<int>(pixels.size()); x <= w.Larg; ++x)
            w.ElabSer.Write(Outside);
    }
    w.ElabSer.Close();
}

void CatturaMez(Work& w)
{
    w.ElabSer.OpenForOutput();
    for (int y = 1; y <= w.Alt; y += 2)
        for (int x = 1; x <= w.Larg; x += 2)
            w.ElabSer.Write(w.Picture1.Point(x, y));
    w.ElabSer.Close();
}

void CattuVett(Work& w)
{
    const int last = std::min<int>(w.Larg, Matrix::LastIndex);
    for (int y = 0; y <= w.Alt; ++y) {
        const auto cells = w.Vettore.Row(y).first(static_cast<std::size_t>(last) + 1);
        const auto pixels = PixelsOf(w.Picture1, y, last);
        std::ranges::transform(pixels, cells.begin(), Surface::ColourOf);
        std::ranges::fill(cells.subspan(pixels.size()), Outside);
        // The first column that does not fit is the fault.
        if (last < w.Larg) w.Vettore(last + 1, y) = Outside;
    }
}

}  // namespace pixano
