#include "document/remembered_path.h"

#include "document/places.h"
#include "files/own_text.h"
#include "files/value_text.h"

#include <string>

namespace pixano {
namespace {

std::string FileOf(const Document& doc)
{
    return (doc.CartellaAvvio + '/' + file::Remembered).toStdString();
}

}  // namespace

std::optional<QString> RememberedPath(const Document& doc)
{
    const std::optional<std::string> kept = ReadOwnText(FileOf(doc));
    if (!kept) return std::nullopt;
    std::string_view rest = *kept;
    const std::optional<std::string_view> path = TakeItem(rest, true);
    if (!path) return std::nullopt;
    return QString::fromUtf8(path->data(), static_cast<qsizetype>(path->size()));
}

void RememberPath(const Document& doc, const QString& path)
{
    WriteOwnText(FileOf(doc), '"' + path.toStdString() + "\"\r\n");
}

}  // namespace pixano
