// The variables that describe the open picture and its history. Plain data: no window, no file.
#pragma once

#include <QString>
#include <QStringList>

namespace pixano {

/// All names are explained in docs/glossary.md. Paths are as the dialogs give them.
struct Document {
    QString NomeFile;
    QString FileAperto;
    QString NomeCorto;
    QString Cartella;
    QString CartellaAvvio;
    QString NomeSalvato;
    QString FileUndo;
    QString Effetto;
    int Modificato = 0;
    int VoceAttiva = 0;
    int NumEffetti = 0;
    int NumEffettiSalvato = 0;
    int InOriginale = 0;
    int Annullato = 0;
    double Zoom = 1;
    /// Whether `NomeFile` is the picture on the canvas, and not only the path remembered from a
    /// picture that has been closed since.
    bool open = false;
    /// Whether the preview's copy was written, and so has to be deleted at the end.
    bool previewCopied = false;
    /// Why it could not be written last; empty when it was.
    QString noCopyBecause;
    /// Path of the working picture that holds the canvas as it is; empty when none does. What the
    /// recovery note says of it at the moment.
    QString canvasCopy;
    QString notedCopy;
    /// Where the open dialog starts before any picture is remembered.
    QString firstFolder;
    /// Pictures pasted from the clipboard, which the program keeps as files as long as it runs.
    QStringList pasted;
    /// Whether the slider window was confirmed.
    int Confermato = 0;
};

}  // namespace pixano
