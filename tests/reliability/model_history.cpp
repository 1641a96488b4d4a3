// The model's effects, and its way back and forward between the pictures before and after them.
#include "reliability/model.h"
#include "support/entries.h"
#include "support/journal_store.h"

namespace pixano::test {
namespace {

/// Whether the effect keeps its values in the pixel file: tried on a picture that suits them all.
bool MakesPixelFile(const Effect& effect)
{
    static std::map<const Effect*, bool> known;
    if (const auto found = known.find(&effect); found != known.end()) return found->second;
    JournalRun run(Varied(64, 48));
    run.work.Valori.fill(2500);
    RunOnCanvas(run.work, effect);
    return known[&effect] = !run.diary.empty() && run.diary.front() == "create";
}

}  // namespace

void Model::MoveCheck(const Effect& effect)
{
    if (const int entry = EntryOf(effect); entry != 0) checked = entry;
}

void Model::PaletteReady()
{
    if (count_ > 1) paletteUndo = true;
    paletteOriginal = true;
}

std::optional<FaultKind> Model::RunEffect(const Effect& effect)
{
    countSaved_ = ++count_;
    Switch(entry::Salva, true);
    if (count_ > 1) Switch(entry::Undo, true);
    Switch(entry::Orig, true);
    Switch(entry::Redo, false);
    paletteRedo = false;
    inOriginal_ = undone_ = false;
    MoveCheck(effect);
    effect_ = effect.name;
    undo_ = Canvas();
    mirror_.work.Valori = strengths;
    faulted = true;
    try {
        mirror_.Apply(effect);
    } catch (const Fault& fault) {
        progressShown = progressShown || mirror_.progress.shownAfter >= 0;
        fileLeft = fileLeft || MakesPixelFile(effect);
        paletteUndo = Enabled(entry::Undo);
        paletteOriginal = Enabled(entry::Orig);
        paletteRedo = Enabled(entry::Redo);
        return fault.Kind();
    }
    if (MakesPixelFile(effect)) fileLeft = false;
    faulted = false;
    modified = true;
    progressShown = false;
    ShowPreview();
    PaletteReady();
    if (effect.captioned) canvasCaption = Sized(effect_);
    return std::nullopt;
}

void Model::CloseProgress()
{
    progressShown = false;
    // The window can outlive the picture: there is nothing to show then.
    if (isOpen) ShowPreview();
    PaletteReady();
}

void Model::Undo()
{
    count_ = countSaved_;
    modified = true;
    Switch(entry::Salva, true);
    Switch(entry::Undo, false);
    Switch(entry::Orig, true);
    Switch(entry::Redo, true);
    paletteUndo = false;
    paletteOriginal = paletteRedo = true;
    if (!inOriginal_) redo_ = Canvas();
    inOriginal_ = false;
    undone_ = true;
    mirror_.work.Picture1 = preview = *undo_;
    canvasCaption = Sized(effect_);
    saved.clear();
}

bool Model::Redo()
{
    count_ = countSaved_;
    modified = true;
    Switch(entry::Salva, true);
    if (count_ > 1) Switch(entry::Undo, true);
    Switch(entry::Orig, true);
    Switch(entry::Redo, false);
    if (count_ > 1) paletteUndo = true;
    paletteOriginal = true;
    paletteRedo = false;
    if (!redo_) return false;
    mirror_.work.Picture1 = preview = *redo_;
    canvasCaption = Sized(effect_);
    inOriginal_ = undone_ = false;
    return true;
}

bool Model::Original()
{
    saved.clear();
    Switch(entry::Salva, false);
    if (count_ > 1) Switch(entry::Undo, true);
    Switch(entry::Orig, false);
    Switch(entry::Redo, true);
    if (count_ > 1) paletteUndo = true;
    paletteOriginal = false;
    paletteRedo = true;
    if (!undone_) redo_ = Canvas();
    inOriginal_ = true;
    undone_ = false;
    countSaved_ = count_;
    count_ = 0;
    const std::optional<Surface>& picture = files.at(opened);
    Rename(opened);
    canvasCaption = Sized(shortName_);
    if (!picture) return false;
    mirror_.work.Picture1 = preview = *picture;
    if (!modified) Load(*picture);
    modified = false;
    return true;
}

}  // namespace pixano::test
