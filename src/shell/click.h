// What a click on a menu entry starts.
#pragma once

#include "shell/session.h"

namespace pixano {

/// The command of the menu entry with that `Index`; nothing for an entry that has none.
void Click(Session& s, int index);

}  // namespace pixano
