// The sample picture put together. Knows no file.
#include "drawings.h"
#include "scene/backdrop.h"

namespace pixano::art {

QImage Scene()
{
    QImage picture = Backdrop(959);
    return picture.scaled(640, 480, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace pixano::art
