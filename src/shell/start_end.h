// The program's start and end, and the closing of the windows that hold the picture.
#pragma once

#include "shell/session.h"

namespace pixano {

/// Start-up, down to the menus of a program without a picture.
void Form_Load(Session& s);

/// The main window is to close: offers to save, then ends the program. False when saving failed,
/// which calls the closing off. Throws Fault when the snapshots cannot be deleted.
bool Form_Unload(Session& s);

/// The canvas is to close: closes the document, and the preview with it. False as above.
bool Form2_Unload(Session& s);

/// The preview is to close: closes the document, and the palette with it. False as above.
bool Form9_Unload(Session& s);

}  // namespace pixano
