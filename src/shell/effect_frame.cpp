#include "shell/effect_frame.h"

#include "document/captions.h"
#include "document/history.h"
#include "document/places.h"
#include "document/showing.h"
#include "document/working_pictures.h"
#include "effects/catalogue.h"
#include "effects/frame.h"
#include "windows/window_operation.h"

#include <algorithm>
#include <array>

namespace pixano {
namespace {

/// Effects that no entry starts leave the mark where it is.
void MoveCheckMark(Session& s, const Effect& effect)
{
    const std::optional<int> position = s.form1.PositionOf(effect);
    if (!position) return;
    if (s.doc.VoceAttiva != 0) s.form1.Check(s.doc.VoceAttiva, false);
    s.form1.Check(*position, true);
    s.doc.VoceAttiva = *position;
}

/// The effects that set `Modificato` before the progress window goes: kept exactly. All others set
/// it last.
constexpr std::array ModifiedFirst{EffectOf(Sinvert),  EffectOf(Desvert),   EffectOf(Super),
                                   EffectOf(Infer),    EffectOf(Top),       EffectOf(Bottom),
                                   EffectOf(Sini),     EffectOf(Destro),    EffectOf(Sintop),
                                   EffectOf(Destop),   EffectOf(Sinbot),    EffectOf(Desbot),
                                   EffectOf(Incentro), EffectOf(Multifoto), EffectOf(MiniRnd),
                                   EffectOf(MixVert),  EffectOf(MixOriz),   EffectOf(MixMultif)};

/// The steps after the loops. The picture counts whatever fails in one of them.
void Close(Session& s, const Effect& effect, FirstFault& fault)
{
    if (std::ranges::find(ModifiedFirst, &effect) != ModifiedFirst.end()) s.doc.Modificato = 1;
    // Seen as long as the preview is being written.
    s.form4.ShowFull();
    fault.Try([&] { Form4_Unload(s); });
    if (effect.captioned) s.form2.setWindowTitle(EffectCaption(s));
    s.doc.Modificato = 1;
}

}  // namespace

void RunEffect(Session& s, const Effect& effect)
{
    const auto before = [&] {
        MoveCheckMark(s, effect);
        s.doc.Effetto = NameOf(effect);
        s.doc.FileUndo = file::Undo;
        SaveWorkingPicture(s.work.Picture1, s.doc.FileUndo);
        if (s.doc.canvasCopy.isEmpty()) s.doc.canvasCopy = NativePath(s.doc.FileUndo);
        s.drawing = true;
    };
    bool done = false;
    const auto after = [&] {
        s.drawing = false;
        s.doc.canvasCopy.clear();
        done = true;
    };
    OpenOnScreenOf(s.form1, s.form4);
    Abil(s);
    FirstFault fault;
    fault.Try([&] { RunOnCanvas(s.work, effect, {before, after}); });
    if (done) Close(s, effect, fault);
    // What was told before the window was to be shown is nothing that the next one begins with.
    if (fault && !s.form4.isVisible()) {
        s.form4.Unload();
        s.progress.Unloaded();
    }
    fault.Throw();
}

QString NameOf(const Effect& effect)
{
    return QString::fromUtf8(effect.name.data(), static_cast<qsizetype>(effect.name.size()));
}

void Form4_Unload(Session& s)
{
    FirstFault fault;
    s.form4.Unload();
    s.progress.Unloaded();
    // A window that a fault left open can outlive the document: there is nothing to show then.
    if (s.doc.open) fault.Try([&] { Mostra(s); });
    s.form10.EnableHistory({.annulla = s.doc.NumEffetti > 1 ? Switch(true) : std::nullopt,
                            .originale = true,
                            .ripristina = std::nullopt});
    s.form10.ShowHourglass(false);
    fault.Throw();
}

}  // namespace pixano
