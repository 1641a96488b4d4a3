// The path of the last picture opened, kept from one run to the next.
#pragma once

#include "document/document.h"

#include <optional>

namespace pixano {

/// The path kept in the start-up folder; nothing when there is none, there is no such folder any
/// more, or it cannot be read.
std::optional<QString> ReadRememberedPath(const Document& doc);

/// Keeps the path in the start-up folder. Errors are passed over: the picture matters more.
void RememberPath(const Document& doc, const QString& path);

}  // namespace pixano
