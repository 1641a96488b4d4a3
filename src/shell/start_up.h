// The program's start-up.
#pragma once

#include "document/session.h"

namespace pixano {

/// Start-up, down to the menus of a program without a picture.
void Form_Load(Session& s);

}  // namespace pixano
