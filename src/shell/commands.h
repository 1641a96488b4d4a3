// From a control to what it starts.
#pragma once

#include "document/session.h"

namespace pixano {

/// Starts the command or the effect that a row of the tables names; an effect that takes a strength
/// asks for it first.
void Start(Session& s, const Starts& starts);

}  // namespace pixano
