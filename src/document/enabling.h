// Which commands can be used when no picture is open, and when one is.
#pragma once

#include "document/session.h"

namespace pixano {

/// Nothing is open: switches off what needs a picture.
void Disabil(const Session& s);

/// A picture has been loaded: switches the effects on.
void Abilita(const Session& s);

/// Switches "&Annulla", "&Originale" and "&Ripristina" off, on the palette too.
void DisableHistory(Session& s);

}  // namespace pixano
