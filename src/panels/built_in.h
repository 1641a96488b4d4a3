// The pictures that are built in, each at the size shown and at twice that. Knows no window.
#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QString>

namespace pixano {

/// The built-in picture `file` for a screen of so many dots a pixel: at twice its size where the
/// screen shows finer than its own.
QImage BuiltIn(const QString& file, qreal dotsPerPixel);

/// The picture of a button. A JPEG has no clear parts: its white becomes clear, its black `ink`.
QIcon ButtonPicture(const QString& file, const QColor& ink);

}  // namespace pixano
