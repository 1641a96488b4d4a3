#include "shell/click.h"

#include "panels/form5.h"
#include "panels/form7.h"
#include "shell/effect_frame.h"
#include "shell/history.h"
#include "shell/menu_table.h"
#include "shell/opening.h"
#include "shell/run.h"
#include "shell/saving.h"
#include "shell/start_end.h"

#include <algorithm>
#include <array>

namespace pixano {
namespace {

struct EntryCommand {
    int entry;
    const char* name;
    void (*run)(Session&);
    FaultEnds ends = FaultEnds::Command;
};

void Salva_Click(Session& s)
{
    SalvaFile(s);
}

void Esci_Click(Session& s)
{
    Form_Unload(s);
}

void Inf_Click(Session& /*s*/)
{
    Form5().exec();
}

void Inter_Click(Session& /*s*/)
{
    Form7().exec();
}

/// What the entries do that start no effect.
constexpr auto EntryCommands = std::to_array<EntryCommand>({
    {entry::Apri, "Apri", Apri_Click},
    {entry::Salva, "Salva File", Salva_Click},
    {entry::Esci, "Esci", Esci_Click, FaultEnds::Program},
    {entry::Undo, "Annulla", Undo_Click},
    {entry::Orig, "Originale", Orig_Click},
    {entry::Redo, "Ripristina", Redo_Click},
    {entry::Inf, "Inf.", Inf_Click},
    {entry::Inter, "?", Inter_Click},
});

}  // namespace

void Click(Session& s, int index)
{
    if (const Effect* const effect = EffectOfEntry(index)) {
        RunEffectCommand(s, *effect);
        return;
    }
    const auto* const found = std::ranges::find(EntryCommands, index, &EntryCommand::entry);
    if (found != EntryCommands.end()) Run(s, found->name, found->ends, [&] { found->run(s); });
}

}  // namespace pixano
