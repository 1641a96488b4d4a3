// Where an event becomes a command: one at a time, its run-time errors caught here and nowhere
// else.
#pragma once

#include "document/session.h"
#include "effects/effect.h"

#include <functional>

namespace pixano {

/// Runs `command`, called `name` before the user, unless another one is running. A run-time error
/// ends it with one message box; one that is `fatal` then ends the program too, and unsaved work is
/// written to the data folder first. In every other case unsaved work has a copy on disk, noted for
/// the next start, before the box opens; what the command has remarked is told in that one box.
void RunCommand(Session& s, const QString& name, Fatal fatal, const std::function<void()>& command);

/// The same for an event inside a command that is running already, as in a window that it shows.
void RunWithinCommand(Session& s, const QString& name, Fatal fatal,
                      const std::function<void()>& command);

}  // namespace pixano
