// What surrounds every effect: history, check mark, snapshot, progress window, captions.
#pragma once

#include "document/session.h"
#include "effects/effect.h"

namespace pixano {

/// Runs the effect on the canvas as its row says. Throws Fault. One in the loops leaves the canvas
/// half drawn, and the progress window and the pixel working file as they were; after the loops all
/// other steps are done first.
void RunEffect(Session& s, const Effect& effect);

/// The name that the user knows the effect by.
QString NameOf(const Effect& effect);

/// The progress window goes: the preview follows the canvas, the palette is ready again.
void Form4_Unload(Session& s);

}  // namespace pixano
