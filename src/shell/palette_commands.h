// The commands that the palette's buttons start.
#pragma once

#include "effects/catalogue.h"
#include "shell/session.h"

namespace pixano {

/// Asks for the effect's strength in the slider window, then runs the effect if it was confirmed.
void AskStrengthAndRun(Session& s, const Effect& effect);

/// The command of a palette button.
void Press(Session& s, const PaletteButton& button);

}  // namespace pixano
