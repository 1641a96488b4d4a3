// From the command line to the running program.
#pragma once

#include "document/session.h"
#include "shell/options.h"

namespace pixano {

/// Runs the windowed program until it ends; gives its exit status. The first argument, if any,
/// names a picture to be opened as if it had been chosen in the open dialog.
int StartProgram(int argc, char* argv[]);

/// Runs the session until it ends, unless another one has the data folder; gives the exit status.
/// Throws Fault FileAccess when the data folder cannot be used.
int RunAsOnlyInstance(Session& session, const Options& options);

/// The same with a session of its own. Where the data folder cannot be used `dialogs` tell it, and
/// the exit status is 1.
int RunOrTell(Dialogs& dialogs, const Options& options);

}  // namespace pixano
