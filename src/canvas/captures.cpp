#include "canvas/captures.h"

#include <algorithm>

namespace pixano {

void Cattura(Work& w)
{
    w.ElabSer.OpenForOutput();
    for (int y = 0; y <= w.Alt; ++y) {
        const int inside = y < w.Picture1.Height() ? std::min(w.Larg + 1, w.Picture1.Width()) : 0;
        if (inside > 0) w.ElabSer.Write(w.Picture1.Row(y).first(static_cast<std::size_t>(inside)));
        for (int x = inside; x <= w.Larg; ++x)
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
        for (int x = 0; x <= w.Larg; ++x)
            w.Vettore(x, y) = w.Picture1.Point(x, y);
}

}  // namespace pixano
