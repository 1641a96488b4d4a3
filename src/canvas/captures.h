// The three captures of the canvas that effects share.
#pragma once

#include "canvas/work.h"

namespace pixano {

/// Writes the whole picture to the pixel working file, row by row from the top, with the column
/// `Larg` and the row `Alt` just outside it. Throws what `PixelFile` throws.
void Cattura(Work& w);

/// Writes every other pixel of every other row to the pixel working file, starting at (1, 1).
void CatturaMez(Work& w);

/// Copies the whole picture into `Vettore`, with the column `Larg` and the row `Alt` just outside
/// it. Throws SubscriptOutOfRange when `Larg` or `Alt` is above 1500.
void CattuVett(Work& w);

/// Copies the first `columns` columns of the picture's row `y` into row `row` of `Vettore`. Throws
/// SubscriptOutOfRange where they reach beyond it.
void CattuRiga(Work& w, int y, int columns, int row);

}  // namespace pixano
