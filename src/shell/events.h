// Which event of a window starts which command.
#pragma once

#include "document/session.h"

namespace pixano {

/// Connects every event of the windows with its command. `s` outlives its windows' events.
void ConnectEvents(Session& s);

}  // namespace pixano
