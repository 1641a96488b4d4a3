#include "windows/form9.h"

#include "windows/surface_image.h"

#include <QPainter>

namespace pixano {

ImageControl::ImageControl()
{
    setObjectName("Image1");
    setAccessibleName("Anteprima dell'immagine");
}

void ImageControl::SetPicture(Surface&& picture)
{
    picture_ = std::move(picture);
    Changed();
}

void ImageControl::SetPicture(const Surface& picture)
{
    picture_ = picture;
    Changed();
}

void ImageControl::Changed()
{
    if (!stretch_) resize(picture_.Width(), picture_.Height());
    update();
}

void ImageControl::SetStretch(bool stretch)
{
    stretch_ = stretch;
    update();
}

void ImageControl::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QImage image = ImageOf(picture_);
    if (!stretch_) {
        painter.drawImage(0, 0, image);
        return;
    }
    // Dropping pixels would make a smaller preview ragged; doubling them keeps a larger one crisp.
    const bool shrinks = width() < image.width() || height() < image.height();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shrinks);
    painter.drawImage(rect(), image);
}

Form9::Form9() : HeldWindow(new ImageControl)
{
    image1_ = static_cast<ImageControl*>(widget());
    setObjectName("Form9");
    setAccessibleName("Anteprima");
}

}  // namespace pixano
