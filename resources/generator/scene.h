// The sample picture. Knows no file.
#pragma once

#include <QImage>

namespace pixano::art {

/// A bay at the end of the day, exactly 640 x 480; the same pixels at every call.
QImage Scene();

}  // namespace pixano::art
