// The picture of an information window, at its own size or smaller where the screen is.
#pragma once

#include <QLabel>
#include <QString>

namespace pixano {

/// A label with the built-in picture `file`, made smaller, not ragged, when it would take more of
/// the screen than a window should, `beside` being what the window needs around it.
QLabel* FittedPicture(const QString& file, QSize beside);

}  // namespace pixano
