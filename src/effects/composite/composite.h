// Effects that put the picture together from copies of itself.
#pragma once

#include "canvas/work.h"

namespace pixano {

// Small copies scattered at random.
void MiniRnd(Work& w);

// Copies squeezed by growing steps.
void Vertstep(Work& w);
void Orizstep(Work& w);
void MultiFotoStep(Work& w);

// A copy squeezed and stretched at random. The frame reseeds.
void MulStepRnd(Work& w);

// Lines exchanged with those of the mirror image.
void MixVert(Work& w);
void MixOriz(Work& w);
void MixMultif(Work& w);

}  // namespace pixano
