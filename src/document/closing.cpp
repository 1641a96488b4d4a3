#include "document/closing.h"

#include "document/enabling.h"
#include "document/questions.h"
#include "document/saving.h"

namespace pixano {

bool CloseDocument(Session& s)
{
    if (s.doc.Modificato == 1) {
        const bool save = AskToSave(s, BoxIcon::None, QString());
        s.doc.Modificato = 0;
        if (save && SalvaFile(s) == SaveOutcome::Failed) return false;
    }
    s.doc.open = false;
    DisableHistory(s);
    Disabil(s);
    return true;
}

bool Form2_Unload(Session& s)
{
    if (!CloseDocument(s)) return false;
    if (Form9_Unload(s)) s.form9.hide();
    return true;
}

bool Form9_Unload(Session& s)
{
    if (!CloseDocument(s)) return false;
    s.form10.hide();
    return true;
}

}  // namespace pixano
