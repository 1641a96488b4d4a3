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

// One half mirrored onto the other.
void Sinvert(Work& w);
void Desvert(Work& w);
void Super(Work& w);
void Infer(Work& w);

// The picture twice, or four times, on the canvas.
void Vertdop(Work& w);
void Orizdop(Work& w);
void Multifoto(Work& w);

// A region enlarged to fill the canvas.
void Top(Work& w);
void Bottom(Work& w);
void Sini(Work& w);
void Destro(Work& w);
void Sintop(Work& w);
void Destop(Work& w);
void Sinbot(Work& w);
void Desbot(Work& w);
void Incentro(Work& w);

}  // namespace pixano
