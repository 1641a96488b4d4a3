// Opening what lies in the clipboard.
#pragma once

#include "document/session.h"

namespace pixano {

/// Opens the picture file, or the picture, in the clipboard, as if it had been chosen in the open
/// dialog; does nothing when there is neither. Throws Fault FileAccess.
void OpenPasted(Session& s);

/// Whether the file is one that a picture from the clipboard was kept in.
bool IsPasted(const QString& path);

/// Deletes the files that an earlier run, which was killed, kept pictures from the clipboard in.
/// One that cannot be deleted stays.
void RemovePasted();

}  // namespace pixano
