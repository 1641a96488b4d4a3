// The captions of the canvas and of the preview.
#pragma once

#include "document/session.h"

namespace pixano {

/// "Capovolgi   640x480": the canvas after an effect.
QString EffectCaption(const Session& s);
/// "a.bmp   640x480": the canvas with a picture as it was opened.
QString PictureCaption(const Session& s);
/// "a.bmp  (640 x 480) - 130%": the preview at that scale (1 = 100 %).
QString PreviewCaption(const Session& s, double zoom);

}  // namespace pixano
