// One function a format that pictures are written in. Known inside this floor only.
#pragma once

#include "canvas/surface.h"
#include "files/byte_sink.h"
#include "pictures/extras.h"

namespace pixano {

/// Each gives the complete file to the sink. The surface has at least one pixel. Throws Refusal.
void EncodeBmp(const Surface& surface, ByteSink& sink);
void EncodePng(const Surface& surface, ByteSink& sink, const Extras& extras);
void EncodeJpeg(const Surface& surface, ByteSink& sink, const Extras& extras);

}  // namespace pixano
