#include "document/pasting.h"

#include "document/opening.h"
#include "document/places.h"
#include "document/working_pictures.h"
#include "windows/file_names.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

namespace pixano {
namespace {

/// The image as a surface; the background shows where it is transparent.
Surface SurfaceOf(const QImage& image)
{
    constexpr QRgb Shown = 0xFF000000 | static_cast<QRgb>(Background);
    QImage opaque(image.size(), QImage::Format_RGBX8888);
    if (opaque.isNull()) throw std::bad_alloc();
    opaque.fill(Shown);
    QPainter(&opaque).drawImage(0, 0, image);
    Surface surface(opaque.width(), opaque.height());
    for (int y = 0; y < opaque.height(); ++y) {
        const auto* const row = reinterpret_cast<const std::uint32_t*>(opaque.constScanLine(y));
        std::copy_n(row, opaque.width(), surface.Row(y).begin());
    }
    return surface;
}

const QString Prefix = QStringLiteral("appunti-");

QString PastedPrefix()
{
    return DataFolder() + '/' + Prefix;
}

/// A picture without a file gets one: "Originale" reads it again.
QString KeepAsFile(Session& s, const QImage& image)
{
    const QString stamp = QDateTime::currentDateTime().toString("HHmmss-zzz");
    QString name = PastedPrefix() + stamp + ".bmp";
    SaveWorkingPicture(SurfaceOf(image), name);
    s.doc.pasted.append(name);
    return name;
}

}  // namespace

void OpenPasted(Session& s)
{
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    // Some desktops have nothing at all for an empty clipboard.
    const QList<QUrl> urls = data != nullptr ? data->urls() : QList<QUrl>();
    const auto image = data != nullptr ? qvariant_cast<QImage>(data->imageData()) : QImage();
    if (urls.size() == 1 && urls.front().isLocalFile())
        OpenNamed(s, LocalFile(urls.front()));
    else if (!image.isNull())
        OpenNamed(s, KeepAsFile(s, image));
    else if (urls.size() > 1)
        s.remarks += "Negli appunti c'è più di un file: Pixano ne apre uno alla volta";
    else if (data != nullptr && data->hasImage())
        s.remarks += "L'immagine negli appunti non si può leggere";
    else
        s.remarks += "Negli appunti non c'è un'immagine";
}

bool IsPasted(const QString& path)
{
    return path.startsWith(PastedPrefix());
}

void RemovePasted()
{
    const QDir kept(DataFolder(), Prefix + "*.bmp", QDir::Unsorted, QDir::Files);
    for (const QString& name : kept.entryList())
        QFile::remove(kept.filePath(name));
}

}  // namespace pixano
