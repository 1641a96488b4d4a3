#include "reliability/model.h"

#include "support/journal_store.h"

#include <QString>

#include <algorithm>

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

constexpr int Salva = 3;
constexpr int Undo_ = 58;
constexpr int Orig = 59;
constexpr int Redo_ = 60;

}  // namespace

// The timer starts from 1, as the program's does.
Model::Model() : mirror_(Surface(), 1)
{
    for (int entry = 1; entry <= EntryCount(); ++entry)
        on_.insert(entry);
    Switch(Undo_, false);
    Switch(Redo_, false);
    Disable();
}

void Model::Switch(int entry, bool on)
{
    if (on)
        on_.insert(entry);
    else
        on_.erase(entry);
}

void Model::Disable()
{
    Switch(Salva, false);
    Switch(24, false);
    for (int entry = 5; entry <= EntryCount(); ++entry)
        // "Sinbot", "Men", "Super", "Infer", "Dopfoto", "Menon" and "Effetti" are left alone, and
        // what informs the user is always on.
        if (!std::set{14, 17, 22, 23, 24, 34, 36, 61, 62}.contains(entry)) Switch(entry, false);
    Switch(35, true);
}

void Model::DisableHistory()
{
    for (const int entry : {Undo_, Orig, Redo_})
        Switch(entry, false);
    paletteUndo = paletteOriginal = paletteRedo = false;
}

std::string Model::Sized(const std::string& name) const
{
    return name + "   " + std::to_string(mirror_.work.Larg) + "x" +
           std::to_string(mirror_.work.Alt);
}

void Model::Rename(const std::string& name)
{
    shortName_ = name.substr(name.rfind('/') + 1);
    Switch(Salva, false);
}

void Model::Load(const Surface& picture)
{
    mirror_.Load(picture);
    preview = picture;
    canvasShown = previewShown = paletteShown = true;
    canvasCaption = Sized(shortName_);
    previewCaption = shortName_ + "  (" + std::to_string(mirror_.work.Larg) + " x " +
                     std::to_string(mirror_.work.Alt) + ") - 100%";
    for (int entry = 4; entry <= EntryCount(); ++entry)
        Switch(entry, true);
    DisableHistory();
    Switch(Salva, false);
}

void Model::Open(const std::string& name)
{
    opened = name;
    saved.clear();
    zoom = 1;
    count_ = 0;
    isOpen = true;
    modified = false;
    Rename(name);
    Load(*files.at(name));
}

void Model::BringBack(const std::string& name, const Surface& picture)
{
    opened = name;
    isOpen = true;
    modified = true;
    Rename(name);
    Load(picture);
    Switch(Salva, true);
    Switch(Orig, true);
    paletteOriginal = true;
    ShowPreview();
}

void Model::MoveCheck(const Effect& effect)
{
    if (const int entry = EntryOf(effect); entry != 0) checked = entry;
}

void Model::ShowPreview()
{
    zoom = std::max(zoom, 0.4);
    preview = Canvas();
    previewShown = paletteShown = true;
    previewCaption = shortName_ + "  (" + std::to_string(mirror_.work.Larg) + " x " +
                     std::to_string(mirror_.work.Alt) + ") - " +
                     QString::number(zoom * 100, 'g', 15).toStdString() + "%";
}

void Model::PaletteReady()
{
    if (count_ > 1) paletteUndo = true;
    paletteOriginal = true;
}

std::optional<FaultKind> Model::RunEffect(const Effect& effect)
{
    countSaved_ = ++count_;
    Switch(Salva, true);
    if (count_ > 1) Switch(Undo_, true);
    Switch(Orig, true);
    Switch(Redo_, false);
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
        paletteUndo = Enabled(Undo_);
        paletteOriginal = Enabled(Orig);
        paletteRedo = Enabled(Redo_);
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
    Switch(Salva, true);
    Switch(Undo_, false);
    Switch(Orig, true);
    Switch(Redo_, true);
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
    Switch(Salva, true);
    if (count_ > 1) Switch(Undo_, true);
    Switch(Orig, true);
    Switch(Redo_, false);
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
    Switch(Salva, false);
    if (count_ > 1) Switch(Undo_, true);
    Switch(Orig, false);
    Switch(Redo_, true);
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

void Model::Save(const std::string& name)
{
    files[name] = Canvas();
    Rename(name);
    saved = name;
    modified = false;
}

void Model::Zoom(double change)
{
    zoom += change;
    ShowPreview();
}

void Model::ClosePreview()
{
    modified = false;
    isOpen = false;
    previewShown = paletteShown = false;
    DisableHistory();
    Disable();
}

void Model::CloseCanvas()
{
    ClosePreview();
    canvasShown = false;
}

}  // namespace pixano::test
