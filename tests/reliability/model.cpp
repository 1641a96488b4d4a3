#include "reliability/model.h"

#include "support/entries.h"

#include <QString>

#include <algorithm>

namespace pixano::test {

// The timer starts from 1, as the program's does.
Model::Model() : mirror_(Surface(), 1)
{
    for (int entry = 1; entry <= EntryCount(); ++entry)
        on_.insert(entry);
    Switch(entry::Undo, false);
    Switch(entry::Redo, false);
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
    Switch(entry::Salva, false);
    Switch(24, false);
    for (int entry = 5; entry <= EntryCount(); ++entry)
        // "Sinbot", "Men", "Super", "Infer", "Dopfoto", "Menon" and "Effetti" are left alone, and
        // what informs the user is always on.
        if (!std::set{14, 17, 22, 23, 24, 34, 36, 61, 62}.contains(entry)) Switch(entry, false);
    Switch(35, true);
}

void Model::DisableHistory()
{
    for (const int entry : {entry::Undo, entry::Orig, entry::Redo})
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
    Switch(entry::Salva, false);
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
    Switch(entry::Salva, false);
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
    Switch(entry::Salva, true);
    Switch(entry::Orig, true);
    paletteOriginal = true;
    ShowPreview();
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
