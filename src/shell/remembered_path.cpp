#include "shell/remembered_path.h"

#include "canvas/value_text.h"
#include "shell/places.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <string>

namespace pixano {
namespace {

QString FileOf(const Document& doc)
{
    return doc.CartellaAvvio + '/' + file::Remembered;
}

}  // namespace

std::optional<QString> RememberedPath(const Document& doc)
{
    constexpr qint64 LongestPath = 64 * 1024;
    QFile kept(FileOf(doc));
    // Anything but a file, a pipe for example, could make the program wait for ever.
    if (!QFileInfo(kept).isFile() || !kept.open(QIODevice::ReadOnly)) return std::nullopt;
    const std::string text = kept.read(LongestPath).toStdString();
    std::string_view rest = text;
    const std::optional<std::string_view> path = TakeItem(rest, true);
    if (!path) return std::nullopt;
    return QString::fromUtf8(path->data(), static_cast<qsizetype>(path->size()));
}

void RememberPath(const Document& doc, const QString& path)
{
    QSaveFile kept(FileOf(doc));
    if (!kept.open(QIODevice::WriteOnly)) return;
    kept.write('"' + path.toUtf8() + "\"\r\n");
    kept.commit();
}

}  // namespace pixano
