// The question whether unsaved changes are to be saved.
#pragma once

#include "document/session.h"

namespace pixano {

/// Asks whether the changes are to be saved, naming the file under which they were saved last.
bool AskToSave(Session& s, BoxIcon icon, const QString& boxTitle);

}  // namespace pixano
