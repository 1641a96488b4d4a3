// Small texts that the program keeps for itself: read and written whole, no link followed, nothing
// but a file opened.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace pixano {

/// The text in the file `path`; nothing when it cannot be read, is empty or absurdly long.
std::optional<QByteArray> ReadOwnText(const QString& path);

/// Replaces the file `path`, or whatever has that name, at one stroke; only the user may read it.
/// False when that failed: the old file is untouched then.
bool WriteOwnText(const QString& path, const QByteArray& text);

}  // namespace pixano
