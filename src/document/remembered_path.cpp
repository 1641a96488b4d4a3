#include "document/remembered_path.h"

#include "document/places.h"
#include "files/own_file.h"
#include "files/value_text.h"
#include "windows/file_names.h"

#include <exception>
#include <string>

namespace pixano {
namespace {

std::string FileOf(const Document& doc)
{
    return FileBytes(doc.CartellaAvvio + '/' + file::Remembered);
}

}  // namespace

std::optional<QString> ReadRememberedPath(const Document& doc)
{
    if (doc.CartellaAvvio.isEmpty()) return std::nullopt;
    std::string kept;
    try {
        kept = ReadOwnFile(FileOf(doc));
    } catch (const std::exception&) {
        return std::nullopt;
    }
    std::string_view rest = kept;
    const std::optional<std::string_view> path = TakeItem(rest, true);
    if (!path) return std::nullopt;
    return FileName(*path);
}

void RememberPath(const Document& doc, const QString& path)
{
    if (doc.CartellaAvvio.isEmpty()) return;
    try {
        ReplaceOwnFile(FileOf(doc), '"' + FileBytes(path) + "\"\r\n");
    } catch (const std::exception&) {
        return;
    }
}

}  // namespace pixano
