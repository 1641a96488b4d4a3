#include "shell/shut_down.h"

#include "document/canvas_copy.h"
#include "document/closing.h"
#include "document/places.h"
#include "document/questions.h"
#include "document/saving.h"
#include "document/working_pictures.h"

namespace pixano {
namespace {

/// Saves under the name used last, or asks for one. False when saving failed.
bool SaveBeforeTheEnd(Session& s)
{
    if (s.doc.NomeSalvato.isEmpty()) return SalvaFile(s) != SaveOutcome::Failed;
    if (!SaveCanvas(s, s.doc.NomeSalvato)) return false;
    s.doc.Modificato = 0;
    return true;
}

}  // namespace

bool Form_Unload(Session& s)
{
    if (s.doc.Modificato == 1) {
        if (!AskToSave(s, BoxIcon::Exclamation, title::Notice))
            s.doc.Modificato = 0;
        else if (!SaveBeforeTheEnd(s))
            return false;
    }
    // The canvas closes next, and asks about changes that are still unsaved: once more, after a
    // cancelled save dialog.
    if (!CloseDocument(s)) return false;
    // Only now is it certain that the history is needed no more. What it holds is disowned first,
    // lest a run that ends in between seem to have lost it.
    ForgetCanvasCopy(s);
    KillWorkingPicture(file::Undo);
    KillWorkingPicture(file::Redo);
    for (const QString& name : s.doc.pasted)
        KillWorkingPicture(name);
    KillWorkingPicture(file::SpareCopy);
    if (s.doc.previewCopied) KillWorkingPicture(file::PreviewCopy);
    EndProgram(s, 0);
    return true;
}

}  // namespace pixano
