// The first step of the effects that draw the picture from samples of every other column or row.
#pragma once

#include "canvas/work.h"

namespace pixano {

/// Makes `Alt` and `Larg` even, one less where they are odd. They stay so for every later effect,
/// while the surface keeps its size: kept exactly.
inline void MakeSidesEven(Work& w)
{
    if (w.Alt % 2 != 0) w.Alt -= 1;
    if (w.Larg % 2 != 0) w.Larg -= 1;
}

}  // namespace pixano
