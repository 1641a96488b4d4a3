// Opening a picture: what becomes of unsaved changes, which file it is, and reading it.
#pragma once

#include "document/session.h"

namespace pixano {

/// Asks what is to become of unsaved changes, then which picture is to be opened, and opens it.
void Apri_Click(Session& s);

/// The same for a picture that the user has already named: dropped, or given at start-up.
void OpenNamed(Session& s, const QString& path);

}  // namespace pixano
