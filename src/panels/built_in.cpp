#include "panels/built_in.h"

#include <QEvent>
#include <QPixmap>

namespace pixano {
namespace {

QImage Inked(const QImage& drawn, const QColor& ink)
{
    QImage opacity = drawn.convertToFormat(QImage::Format_Grayscale8);
    opacity.invertPixels();
    QImage inked(drawn.size(), QImage::Format_ARGB32);
    inked.fill(ink);
    inked.setAlphaChannel(opacity);
    inked.setDevicePixelRatio(drawn.devicePixelRatio());
    return inked;
}

}  // namespace

QImage BuiltIn(const QString& file, qreal dotsPerPixel)
{
    QString name = ":/pixano/" + file;
    // The toolkit takes the ratio of the picture from such a name.
    if (dotsPerPixel > 1) name.insert(name.lastIndexOf('.'), "@2x");
    return QImage(name);
}

QIcon ButtonPicture(const QString& file, const QColor& ink)
{
    QIcon icon;
    for (const qreal dotsPerPixel : {1.0, 2.0}) {
        const QImage drawn = BuiltIn(file, dotsPerPixel);
        icon.addPixmap(QPixmap::fromImage(file.endsWith(".jpg") ? Inked(drawn, ink) : drawn));
    }
    return icon;
}

}  // namespace pixano
