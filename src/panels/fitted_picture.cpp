#include "panels/fitted_picture.h"

#include "panels/built_in.h"

#include <QScreen>

namespace pixano {

QLabel* FittedPicture(const QString& file, QSize beside)
{
    constexpr int TitleAndBorder = 40;
    auto* const label = new QLabel;
    const qreal dotsPerPixel = label->screen()->devicePixelRatio();
    const QImage drawn = BuiltIn(file, dotsPerPixel);
    QSize size = drawn.deviceIndependentSize().toSize();
    const QSize free = label->screen()->availableGeometry().size() - beside;
    const QSize most = free - QSize(TitleAndBorder, TitleAndBorder);
    if (size.width() > most.width() || size.height() > most.height())
        size.scale(most, Qt::KeepAspectRatio);
    // One dot of the picture for each of the screen.
    QImage shown =
        drawn.scaled(size * dotsPerPixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(dotsPerPixel);
    label->setPixmap(QPixmap::fromImage(shown));
    return label;
}

}  // namespace pixano
