// Windows that belong to another one where none can bring itself to the front. Knows not what they
// show.
#pragma once

#include <QWidget>

namespace pixano {

/// Whether windows are placed, raised and given the focus by the desktop alone.
bool DesktopAloneArranges();

/// Keeps `window` above `owner`, which is on the screen already, where it could not come there by
/// itself. Elsewhere it stays a window of its own.
void BelongTo(QWidget& owner, QWidget& window);

}  // namespace pixano
