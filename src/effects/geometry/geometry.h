// Effects that move pixels and leave their colours alone.
#pragma once

#include "canvas/work.h"

namespace pixano {

// Flips, mirror and quarter turns.
void Capov(Work& w);
void Specchio(Work& w);
void CapovSpec(Work& w);
void RotazMeno(Work& w);
void RotazPiu(Work& w);

}  // namespace pixano
