// A surface as the toolkit's image, without copying its pixels.
#pragma once

#include "canvas/surface.h"

#include <QImage>

namespace pixano {

/// An image that looks at the surface's own memory; it must not outlive it.
inline QImage ImageOf(const Surface& surface)
{
    constexpr qsizetype BytesPerPixel = 4;
    return {reinterpret_cast<const uchar*>(surface.Pixels()), surface.Width(), surface.Height(),
            surface.Width() * BytesPerPixel, QImage::Format_RGBX8888};
}

}  // namespace pixano
