#include "panels/fitted_picture.h"

#include <QScreen>

namespace pixano {

QLabel* FittedPicture(const QString& file, QSize beside)
{
    constexpr int TitleAndBorder = 40;
    auto* const label = new QLabel;
    QPixmap picture(":/pixano/" + file);
    const QSize free = label->screen()->availableGeometry().size() - beside;
    const QSize most = free - QSize(TitleAndBorder, TitleAndBorder);
    if (picture.width() > most.width() || picture.height() > most.height()) {
        const qreal dotsPerPixel = label->screen()->devicePixelRatio();
        picture =
            picture.scaled(most * dotsPerPixel, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(dotsPerPixel);
    }
    label->setPixmap(picture);
    return label;
}

}  // namespace pixano
