#include "shell/palette_commands.h"

#include "canvas/strengths.h"
#include "panels/form11.h"
#include "shell/click.h"
#include "shell/effect_frame.h"
#include "shell/places.h"
#include "shell/run.h"
#include "shell/showing.h"

#include <QTimer>

namespace pixano {
namespace {

/// The strengths are read from the program's own folder and written to the current one: kept
/// exactly.
void ReadStrength(Session& s, Form11& window)
{
    const QString path = s.programFolder + '/' + file::Strengths;
    s.work.Valori = {};
    LeggiValori(path.toStdString(), s.work.Valori);
    window.ShowStrength(s.work.Strength());
}

void Confirm(Session& s, Form11& window)
{
    s.doc.Confermato = 0;
    SalvaValori(file::Strengths.toStdString(), s.work.Valori);
    s.doc.Confermato = 1;
    window.accept();
}

}  // namespace

void AskStrengthAndRun(Session& s, const Effect& effect)
{
    const QString name = NameOf(effect);
    Form11 window(name, s.form10);
    s.work.IndValore = static_cast<std::int16_t>(effect.selector);
    QObject::connect(&window, &Form11::Resized, [&] {
        if (s.ending) return;
        RunInside(s, name, FaultEnds::Program, [&] { ReadStrength(s, window); });
        // The window is only about to be shown and cannot be closed from here.
        if (s.ending) QTimer::singleShot(0, &window, &QDialog::reject);
    });
    QObject::connect(&window, &Form11::Moved, [&](int value) {
        s.work.Valori.at(static_cast<std::size_t>(s.work.IndValore)) = value;
    });
    QObject::connect(&window, &Form11::Confirmed,
                     [&] { RunInside(s, name, FaultEnds::Command, [&] { Confirm(s, window); }); });
    window.exec();
    if (std::exchange(s.doc.Confermato, 0) == 1 && !s.ending) RunEffect(s, effect);
}

void Press(Session& s, const PaletteButton& button)
{
    if (button.entry != 0) {
        Click(s, button.entry);
        return;
    }
    if (button.effect == nullptr) {
        Run(s, "Zoom", FaultEnds::Command, [&] { ChangeZoom(s, button.zoom); });
        return;
    }
    const Effect& effect = *FindEffect(button.effect);
    if (effect.selector == 0)
        RunEffectCommand(s, effect);
    else
        Run(s, NameOf(effect), effect.faultEnds, [&] { AskStrengthAndRun(s, effect); });
}

}  // namespace pixano
