#include "shell/effect_frame.h"

#include "shell/captions.h"
#include "shell/history.h"
#include "shell/places.h"
#include "shell/recovery.h"
#include "shell/run.h"
#include "shell/showing.h"
#include "shell/working_pictures.h"

namespace pixano {
namespace {

void MoveCheckMark(Session& s, int entry)
{
    if (s.doc.VoceAttiva != 0) s.form1.Check(s.doc.VoceAttiva, false);
    s.form1.Check(entry - 1, true);
    s.doc.VoceAttiva = entry - 1;
}

void UnloadProgress(Session& s)
{
    s.form4.hide();
    Form4_Unload(s);
}

void Close(Session& s, Closing closing)
{
    const bool captioned = closing != Closing::ModifiedUnload;
    if (closing != Closing::UnloadCaptionModified) s.doc.Modificato = 1;
    UnloadProgress(s);
    if (captioned) s.form2.setWindowTitle(EffectCaption(s));
    s.doc.Modificato = 1;
    NoteCanvasCopy(s, file::PreviewCopy);
}

}  // namespace

void RunEffect(Session& s, const Effect& effect)
{
    Abil(s);
    if (effect.reseed == Reseed::AfterAbil) s.work.Randomize();
    if (effect.entry != 0) MoveCheckMark(s, effect.entry);
    if (effect.reseed == Reseed::BeforeEffect) s.work.Randomize();
    s.doc.Effetto = NameOf(effect);
    s.doc.FileUndo = file::Undo;
    SaveWorkingPicture(s.work.Picture1, s.doc.FileUndo);
    s.drawing = true;
    effect.run(s.work);
    s.drawing = false;
    s.work.ElabSer.Kill();
    Close(s, effect.closing);
}

void RunEffectCommand(Session& s, const Effect& effect)
{
    Run(s, NameOf(effect), effect.faultEnds, [&] { RunEffect(s, effect); });
}

QString NameOf(const Effect& effect)
{
    return QString::fromUtf8(effect.name.data(), static_cast<qsizetype>(effect.name.size()));
}

void Form4_Unload(Session& s)
{
    s.progress.Unloaded();
    // A window that a fault left open can outlive the document: there is nothing to show then.
    if (s.doc.open) Mostra(s);
    s.form10.EnableHistory({.annulla = s.doc.NumEffetti > 1 ? Switch(true) : std::nullopt,
                            .originale = true,
                            .ripristina = std::nullopt});
    s.form10.ShowHourglass(false);
}

}  // namespace pixano
