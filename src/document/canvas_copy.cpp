#include "document/canvas_copy.h"

#include "canvas/fault.h"
#include "document/places.h"
#include "document/recovery_note.h"

#include <QDir>

namespace pixano {

void NoteCanvasCopy(const Session& s, const QString& name)
{
    if (s.doc.Modificato == 0) return;
    try {
        WriteRecoveryNote({QDir::current().absoluteFilePath(NativePath(name)), s.doc.FileAperto,
                           s.work.Picture1.Width(), s.work.Picture1.Height()});
    } catch (const Fault&) {
        return;
    }
}

void ForgetCanvasCopy()
{
    try {
        RemoveRecoveryNote();
    } catch (const Fault&) {
        return;
    }
}

}  // namespace pixano
