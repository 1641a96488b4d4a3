#include "shell/commands.h"

#include "document/places.h"
#include "files/strengths_file.h"
#include "panels/form11.h"
#include "shell/effect_frame.h"
#include "shell/run.h"
#include "windows/file_names.h"

#include <QTimer>

namespace pixano {
namespace {

/// The strengths are read from the program's own folder and written to the current one: kept
/// exactly.
void ReadStrength(Session& s, Form11& window)
{
    const QString path = s.programFolder + '/' + file::Strengths;
    LeggiValori(FileBytes(path), s.work.Valori);
    window.ShowStrength(s.work.Strength());
}

void Confirm(Session& s, Form11& window)
{
    s.doc.Confermato = 1;
    try {
        SalvaValori(FileBytes(NativePath(file::Strengths)), s.work.Valori);
    } catch (const Fault& fault) {
        // Whatever becomes of the effect.
        s.remarks += QString::fromUtf8(fault.what()) + ". Questa forza non sarà ricordata";
    }
    window.accept();
}

/// Asks for the effect's strength in the slider window, then runs the effect if it was confirmed.
void AskStrengthAndRun(Session& s, const Effect& effect)
{
    const QString name = NameOf(effect);
    Form11 window(name, s.form10);
    s.work.IndValore = static_cast<std::int16_t>(effect.selector);
    QObject::connect(&window, &Form11::Resized, [&] {
        if (s.ending) return;
        RunWithinCommand(s, name, Fatal::All, [&] { ReadStrength(s, window); });
        // The window is only about to be shown and cannot be closed from here.
        if (s.ending) QTimer::singleShot(0, &window, &QDialog::reject);
    });
    QObject::connect(&window, &Form11::Moved, [&](int value) {
        s.work.Valori.at(static_cast<std::size_t>(s.work.IndValore)) = value;
    });
    QObject::connect(&window, &Form11::Confirmed, [&] { Confirm(s, window); });
    window.exec();
    if (std::exchange(s.doc.Confermato, 0) == 1 && !s.ending) RunEffect(s, effect);
}

void StartEffect(Session& s, const Effect& effect)
{
    RunCommand(s, NameOf(effect), effect.fatal, [&] {
        if (effect.selector == 0)
            RunEffect(s, effect);
        else
            AskStrengthAndRun(s, effect);
    });
}

}  // namespace

void Start(Session& s, const Starts& starts)
{
    if (const auto* const command = std::get_if<Command>(&starts))
        RunCommand(s, command->name, command->fatal, [&] { command->run(s); });
    else if (const auto* const effect = std::get_if<const Effect*>(&starts))
        StartEffect(s, **effect);
}

}  // namespace pixano
