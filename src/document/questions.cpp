#include "document/questions.h"

namespace pixano {

bool AskToSave(Session& s, BoxIcon icon, const QString& boxTitle)
{
    const QString& saved = s.doc.NomeSalvato;
    return s.dialogs.Ask(icon, boxTitle,
                         "Salvare i cambiamenti del file " +
                             (saved.isEmpty() ? QString("elaborato?") : saved + '?'));
}

}  // namespace pixano
