// Names of files as the system has them, which are bytes, and as the windows have them. Knows no
// window.
#pragma once

#include <QString>
#include <QUrl>

#include <string>
#include <string_view>

namespace pixano {

/// The name as text. Each byte that is no UTF-8 becomes a lone half of a surrogate pair, U+DC80 to
/// U+DCFF: no name is lost, which it would be in the toolkit's own conversion.
QString FileName(std::string_view bytes);

/// The bytes of a name; those that `FileName` was given.
std::string FileBytes(const QString& name);

/// The name of the file that a local URL leads to; empty for every other URL.
QString LocalFile(const QUrl& url);

/// Whether there is something of that name, or where the link of that name leads; true as well
/// where that cannot be found out, so that nothing is replaced unasked and opening it tells why.
bool FileExists(const QString& name);

/// The folder that relative names start from, a name with it in front, and another one to take its
/// place.
QString CurrentFolder();
QString AbsolutePath(const QString& name);
void GoToFolder(const QString& name);

}  // namespace pixano
