// What a second start makes the running program do.
#pragma once

#include "document/session.h"
#include "shell/second_start.h"

namespace pixano {

/// A second start is answered at once; what it wants opened waits for the command that runs, beside
/// which none begins. Where the program ends by that command, the user is told, and further starts
/// are heard no more.
void HearSecondStarts(Session& s, SecondStarts& starts);

}  // namespace pixano
