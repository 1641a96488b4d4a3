#include "windows/form2.h"

#include "windows/surface_image.h"
#include "windows/window_operation.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace pixano {

PictureBox::PictureBox(const Surface& surface) : surface_(surface)
{
    setObjectName("Picture1");
    setAccessibleName("Immagine");
    setFrameStyle(static_cast<int>(QFrame::WinPanel) | static_cast<int>(QFrame::Sunken));
    FitPicture();
}

void PictureBox::FitPicture()
{
    setFixedSize(surface_.Width() + 2 * Border, surface_.Height() + 2 * Border);
    update();
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect part = event->rect();
    painter.drawImage(part.topLeft(), ImageOf(surface_), part.translated(-Border, -Border));
}

void PictureBox::mousePressEvent(QMouseEvent* /*event*/)
{
    emit Clicked();
}

Form2::Form2(const Surface& surface) : HeldWindow(new PictureBox(surface))
{
    picture1_ = static_cast<PictureBox*>(widget());
    setObjectName("Form2");
    setAccessibleName("Immagine elaborata");
    connect(picture1_, &PictureBox::Clicked, this, [this] { BringForward(*this); });
}

}  // namespace pixano
