// Random whole numbers for the effects that scatter.
#pragma once

#include "canvas/work.h"

namespace pixano {

/// One draw scaled to 0, 1, ... `count` - 1. Never negative, so that cutting off is rounding down.
inline int DrawBelow(Work& w, int count)
{
    return static_cast<int>(w.Rnd() * count);
}

}  // namespace pixano
