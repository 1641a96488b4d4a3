#include "shell/enabling.h"

#include "shell/menu_table.h"

#include <algorithm>
#include <array>

namespace pixano {

void Disabil(Session& s)
{
    // Kept exactly: three of these entries thereby stay usable under parents that are not.
    constexpr std::array Exceptions{13, 16, 21, 22, 23, 33, 35};
    constexpr int First = 4;
    constexpr int Last = 59;
    s.form1.Enable(entry::Salva, false);
    s.form1.Enable(entry::Dopfoto, false);
    for (int p = First; p <= Last; ++p)
        if (std::ranges::find(Exceptions, p) == Exceptions.end())
            s.form1.Control(p).setEnabled(false);
    s.form1.Enable(entry::Esci, true);
}

void Abilita(Session& s)
{
    constexpr int First = 3;
    constexpr int Last = 56;
    s.form1.Enable(entry::Salva, true);
    s.form1.Enable(entry::Dopfoto, true);
    for (int p = First; p <= Last; ++p)
        s.form1.Control(p).setEnabled(true);
}

void DisableHistory(Session& s)
{
    for (const int index : {entry::Undo, entry::Orig, entry::Redo})
        s.form1.Enable(index, false);
    s.form10.EnableHistory({.annulla = false, .originale = false, .ripristina = false});
}

}  // namespace pixano
