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
    for (int y = 0; y <= w.Alt; ++y)
        CattuRiga(w, y, w.Larg + 1, y);
}

void CattuRiga(Work& w, int y, int columns, int row)
{
    const int fitting = std::min(columns, Matrix::LastIndex + 1);
    w.Picture1.ReadRow(y, w.Vettore.Row(row, fitting));
    // The first column that does not fit is the fault.
    if (fitting < columns) w.Vettore(fitting, row) = Outside;
}

}  // namespace pixano
