// Which command a click starts, and which event starts which command.
#include "panels/form5.h"
#include "panels/form7.h"
#include "shell/commands.h"
#include "shell/effect_frame.h"
#include "shell/history.h"
#include "shell/menu_table.h"
#include "shell/opening.h"
#include "shell/palette_commands.h"
#include "shell/pasting.h"
#include "shell/places.h"
#include "shell/recovery.h"
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

/// Lets a window close when its closing command went well.
std::function<bool()> AskingFirst(Session& s, const char* name, FaultEnds ends,
                                  bool (*unload)(Session&))
{
    return [&s, name, ends, unload] {
        bool closes = false;
        Run(s, name, ends, [&] { closes = unload(s); });
        return closes;
    };
}

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

void ConnectEvents(Session& s)
{
    const auto opensDropped = [&s](const QString& path) {
        Run(s, "Apri", FaultEnds::Command, [&] { OpenNamed(s, path); });
    };
    QObject::connect(&s.form1, &Form1::Clicked, [&s](int index) { Click(s, index); });
    QObject::connect(&s.form1, &Form1::Dropped, opensDropped);
    QObject::connect(&s.form2, &Form2::Dropped, opensDropped);
    QObject::connect(&s.form1, &Form1::Pasted,
                     [&s] { Run(s, "Incolla", FaultEnds::Command, [&] { OpenPasted(s); }); });
    QObject::connect(&s.form4, &Form4::Closed, [&s] {
        Run(s, "Anteprima", FaultEnds::Command, [&] {
            Form4_Unload(s);
            NoteCanvasCopy(s, file::PreviewCopy);
        });
    });
    s.form1.mayClose = AskingFirst(s, "Esci", FaultEnds::Program, Form_Unload);
    s.form2.mayClose = AskingFirst(s, "Chiudi", FaultEnds::Command, Form2_Unload);
    s.form9.mayClose = AskingFirst(s, "Chiudi", FaultEnds::Command, Form9_Unload);
    QObject::connect(&s.form10, &Form10::Pressed,
                     [&s](const PaletteButton& button) { Press(s, button); });
}

}  // namespace pixano
