// Effects that compute new colours from the packed value, never channel by channel, or scatter
// pixels by small amounts. Carries and borrows from one channel into the next are their look.
#pragma once

#include "canvas/work.h"

namespace pixano {

// Each pixel and its mirror partner become their difference.
void ArtUno(Work& w);
void ArtDue(Work& w);
void ArTre(Work& w);
void ArtQuat(Work& w);
void ArtCinq(Work& w);
void ArtSei(Work& w);

// Pixels or tiles moved at random. The frame reseeds before both.
void DisUno(Work& w);
/// Throws SubscriptOutOfRange above 1501 pixels a side, and at 1501 where a tile reaches the edge.
void DisDue(Work& w);
/// Moves the tile of `Vettore` from (`X`, `Y`) to (`X` + `S`, `Y` + `S`), both ends included, by a
/// random offset of its own. Throws SubscriptOutOfRange.
void sposta(Work& w, int X, int Y, int S);

// The packed value scaled, thresholded or turned over.
void EmpUno(Work& w);
void EmpDue(Work& w);
void FantUno(Work& w);
void FantDue(Work& w);

// Effects that take a strength.
/// Throws Overflow where a result does not fit into 32 bits.
void Negativo(Work& w);
/// Throws Overflow where a result does not fit into 32 bits.
void Colorazione(Work& w);
/// Throws DivisionByZero at a strength of 12010.
void Vetro(Work& w);
/// Throws SubscriptOutOfRange above 1500 pixels a side, and for strengths that stretch backwards.
void Forbici(Work& w);
/// Throws SubscriptOutOfRange above 1500 pixels a side.
void ColorRnd(Work& w);

}  // namespace pixano
