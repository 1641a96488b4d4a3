// A box of buttons on the palette, in rows. Knows not what the buttons do.
#pragma once

#include <QWidget>

namespace pixano {

/// The space between two buttons, and between two boxes.
inline constexpr int ButtonSpacing = 3;

/// An empty box under its caption.
QWidget* Frame(const QString& caption);

/// Lays the buttons out in rows of `perRow`; those of a last, shorter row become wider.
void LayInRows(QWidget& box, int perRow, int margin);

/// Gives all buttons of the box the width that the widest of them needs at least.
void WidenToCaptions(const QWidget& box);

/// What the toolkit remembers of the sizes in a window that is not shown would be the old ones.
void ForgetSizes(const QWidget& box);

}  // namespace pixano
