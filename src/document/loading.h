// A picture that was read comes into the windows: its path is split, canvas and preview are filled.
#pragma once

#include "canvas/fault.h"
#include "document/session.h"

#include <optional>

namespace pixano {

/// Splits the path into `NomeCorto` and `Cartella` and switches "&Salva File" off. With a
/// `picture`, the one that was read from that path, it is put into canvas and preview first. Throws
/// std::bad_alloc before anything has changed.
void Estrai(Session& s, const QString& Percorso, std::optional<Surface> picture);

/// Why the picture of that name is not shown: an Italian sentence that names it.
QString WhyUnread(const Fault& fault, const QString& name);

/// Puts a picture that was just read, and that the preview holds, onto the canvas, and sizes both
/// windows.
void Carica(Session& s, Surface picture);

}  // namespace pixano
