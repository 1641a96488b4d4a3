// Opening a picture: the command, the splitting of its path, the loading into canvas and preview.
#pragma once

#include "shell/session.h"

#include <optional>

namespace pixano {

/// Asks what is to become of unsaved changes, then which picture is to be opened, and opens it.
void Apri_Click(Session& s);

/// The same for a picture that the user has already named: dropped, or given at start-up.
void OpenNamed(Session& s, const QString& path);

/// Splits the path into `NomeCorto` and `Cartella` and switches "&Salva File" off. With a
/// `picture`, the one that was read from that path, it is put into canvas and preview first.
void Estrai(Session& s, const QString& Percorso, std::optional<Surface> picture);

/// Puts a picture that was just read into canvas and preview, and sizes both windows.
void Carica(Session& s, Surface picture);

}  // namespace pixano
