#include "shell/remembered_path.h"

#include "canvas/value_text.h"
#include "shell/own_text.h"
#include "shell/places.h"

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
    const std::optional<QByteArray> kept = ReadOwnText(FileOf(doc));
    if (!kept) return std::nullopt;
    const std::string text = kept->toStdString();
    std::string_view rest = text;
    const std::optional<std::string_view> path = TakeItem(rest, true);
    if (!path) return std::nullopt;
    return QString::fromUtf8(path->data(), static_cast<qsizetype>(path->size()));
}

void RememberPath(const Document& doc, const QString& path)
{
    WriteOwnText(FileOf(doc), '"' + path.toUtf8() + "\"\r\n");
}

}  // namespace pixano
