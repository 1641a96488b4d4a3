#include "document/canvas_copy.h"

#include "document/places.h"
#include "document/recovery_note.h"
#include "document/working_pictures.h"

namespace pixano {
namespace {

/// Writes the canvas where the preview's copy lies, or, where that cannot be, into the data folder.
void WriteCopy(Session& s)
{
    for (const QString& name : {file::PreviewCopy, file::SpareCopy}) {
        try {
            SaveWorkingPicture(s.work.Picture1, name);
            s.doc.canvasCopy = NativePath(name);
            return;
        } catch (const Fault&) {
            continue;
        }
    }
}

void WriteNote(Session& s)
{
    try {
        WriteRecoveryNote({.copy = s.doc.canvasCopy,
                           .picture = s.doc.FileAperto,
                           .width = s.work.Picture1.Width(),
                           .height = s.work.Picture1.Height()});
        s.doc.notedCopy = s.doc.canvasCopy;
    } catch (const Fault& fault) {
        s.remarks += QString::fromUtf8(fault.what()) +
                     ". Una copia dell'immagine modificata è nel file «" + s.doc.canvasCopy + "»";
    }
}

}  // namespace

void SecureCanvas(Session& s)
{
    if (s.doc.Modificato == 0) {
        ForgetCanvasCopy(s);
        return;
    }
    if (s.doc.canvasCopy.isEmpty()) WriteCopy(s);
    if (s.doc.canvasCopy.isEmpty())
        s.remarks += "Dell'immagine modificata non c'è nessuna copia su disco: conviene salvarla";
    else if (s.doc.canvasCopy != s.doc.notedCopy || !RecoveryNoteThere())
        WriteNote(s);
    // Who reads that another copy is missing would take the work for lost with it.
    const bool toldOfMissing =
        !s.doc.noCopyBecause.isEmpty() && !s.remarks.filter(s.doc.noCopyBecause).isEmpty();
    if (toldOfMissing && s.doc.canvasCopy == NativePath(file::SpareCopy) &&
        s.doc.canvasCopy == s.doc.notedCopy)
        s.remarks += "Le modifiche sono comunque al sicuro: ce n'è una copia nel file «" +
                     s.doc.canvasCopy + "»";
}

void ForgetCanvasCopy(Session& s)
{
    s.doc.notedCopy.clear();
    RemoveRecoveryNote();
}

}  // namespace pixano
