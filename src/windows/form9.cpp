#include "windows/form9.h"

#include "canvas/shrink.h"
#include "windows/surface_image.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace pixano {
namespace {

/// The whole dots that a rectangle of so many dots a pixel touches.
QRect ScaledUp(const QRect& rect, double dots)
{
    return QRectF(QPointF(rect.topLeft()) * dots, QSizeF(rect.size()) * dots).toAlignedRect();
}

}  // namespace

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
    Changed();
}

void ImageControl::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QImage image = ImageOf(picture_);
    if (!stretch_) {
        painter.drawImage(0, 0, image);
        return;
    }
    if (image.isNull()) return;
    const double dots = devicePixelRatioF();
    const QSize whole = (QSizeF(size()) * dots).toSize();
    if (whole.width() < image.width() && whole.height() < image.height()) {
        PaintShrunk(painter, whole, ScaledUp(event->rect(), dots) & QRect({}, whole));
        return;
    }
    // Pixels made whole times as large stay crisp; otherwise some lines would come out thicker than
    // others.
    const bool crisp = width() % image.width() == 0 && height() % image.height() == 0;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !crisp);
    painter.drawImage(rect(), image);
}

/// The toolkit would leave out lines of a picture that is made smaller. `whole` and `part` are in
/// dots of the screen.
void ImageControl::PaintShrunk(QPainter& painter, QSize whole, const QRect& part) const
{
    if (part.isEmpty()) return;
    const Surface shrunk = ShrunkPart(picture_, whole.width(), whole.height(),
                                      {part.x(), part.y(), part.width(), part.height()});
    const double dots = devicePixelRatioF();
    painter.drawImage(QRectF(QPointF(part.topLeft()) / dots, QSizeF(part.size()) / dots),
                      ImageOf(shrunk));
}

Form9::Form9() : HeldWindow(new ImageControl)
{
    image1_ = static_cast<ImageControl*>(widget());
    setObjectName("Form9");
    setAccessibleName("Anteprima");
}

void Form9::Stretch(QSize size)
{
    const auto middle = [](const QScrollBar& bar, int seen, int whole) {
        return (bar.value() + std::min(seen, whole) / 2.0) / std::max(whole, 1);
    };
    QScrollBar& across = *horizontalScrollBar();
    QScrollBar& down = *verticalScrollBar();
    const double x = middle(across, viewport()->width(), image1_->width());
    const double y = middle(down, viewport()->height(), image1_->height());
    image1_->SetStretch(true);
    image1_->resize(size);
    SetInside(size);
    across.setValue(qRound(x * size.width() - viewport()->width() / 2.0));
    down.setValue(qRound(y * size.height() - viewport()->height() / 2.0));
}

void Form9::wheelEvent(QWheelEvent* event)
{
    constexpr int Notch = 120;
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        HeldWindow::wheelEvent(event);
        return;
    }
    event->accept();
    turned_ += event->angleDelta().y();
    if (std::abs(turned_) < Notch) return;
    emit Zoomed(turned_ > 0);
    turned_ = 0;
}

void Form9::mousePressEvent(QMouseEvent* event)
{
    dragged_ = event->globalPosition().toPoint();
    if (event->button() == Qt::LeftButton) viewport()->setCursor(Qt::ClosedHandCursor);
}

void Form9::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QPoint to = event->globalPosition().toPoint();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + dragged_.x() - to.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + dragged_.y() - to.y());
    dragged_ = to;
}

void Form9::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    viewport()->unsetCursor();
}

}  // namespace pixano
