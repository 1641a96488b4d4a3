// The colours that all of the project's drawings share. Knows no drawing.
#pragma once

#include <QColor>

namespace pixano::art {

inline const QColor Ink{0x12, 0x1d, 0x36};
inline const QColor Indigo{0x35, 0x3c, 0x7c};
inline const QColor Teal{0x17, 0x6b, 0x80};
inline const QColor Lagoon{0x3a, 0xa9, 0xa8};
inline const QColor Coral{0xee, 0x63, 0x52};
inline const QColor Gold{0xff, 0xc4, 0x4d};
inline const QColor Cream{0xff, 0xf5, 0xe1};

/// `share` of `b` mixed into `a`, 0 to 1.
inline QColor Mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share + 0.5);
    };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

inline QColor Veiled(QColor colour, double opacity)
{
    colour.setAlpha(static_cast<int>(255 * opacity + 0.5));
    return colour;
}

}  // namespace pixano::art
