// Bringing the last picture back after a run that ended badly.
#pragma once

#include "document/session.h"

namespace pixano {

/// After a run that ended with unsaved work: asks whether to bring it back, and does so. A picture
/// that is not wanted is put aside in the data folder, never deleted.
void OfferRecovery(Session& s);

}  // namespace pixano
