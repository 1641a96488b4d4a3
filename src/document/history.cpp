#include "document/history.h"

#include "canvas/fault.h"
#include "document/canvas_copy.h"
#include "document/captions.h"
#include "document/loading.h"
#include "document/places.h"
#include "document/working_pictures.h"
#include "pictures/picture_files.h"

namespace pixano {
namespace {

/// A step whose errors are passed over, as the history's steps ask. False when there was one.
template <typename Step>
bool PassingOverErrors(Step step)
{
    try {
        step();
        return true;
    } catch (const Fault&) {
        return false;
    }
}

void Show(Session& s, Surface picture)
{
    s.form9.Image1().SetPicture(picture);
    s.work.Picture1 = std::move(picture);
    s.form2.Picture1().FitPicture();
}

void ShowWorkingPicture(Session& s, const QString& name)
{
    Show(s, LoadWorkingPicture(name, s.work.Picture1));
}

}  // namespace

void Abil(Session& s)
{
    Document& d = s.doc;
    d.NumEffetti += 1;
    d.NumEffettiSalvato = d.NumEffetti;
    s.form1.Enable(control::Salva, true);
    if (d.NumEffetti > 1) s.form1.Enable(control::Undo, true);
    s.form1.Enable(control::Orig, true);
    s.form1.Enable(control::Redo, false);
    // The palette's buttons stand for the menu's entries: what they went forward to is gone.
    s.form10.EnableHistory(
        {.annulla = std::nullopt, .originale = std::nullopt, .ripristina = false});
    s.form10.ShowHourglass(true);
    d.InOriginale = 0;
    d.Annullato = 0;
}

void Undo_Click(Session& s)
{
    Document& d = s.doc;
    d.NumEffetti = d.NumEffettiSalvato;
    d.Modificato = 1;
    s.form1.Enable(control::Salva, true);
    s.form1.Enable(control::Undo, false);
    s.form1.Enable(control::Orig, true);
    s.form1.Enable(control::Redo, true);
    s.form10.EnableHistory({.annulla = false, .originale = true, .ripristina = true});
    PassingOverErrors([&] {
        if (d.InOriginale == 0) SaveWorkingPicture(s.work.Picture1, file::Redo);
    });
    d.InOriginale = 0;
    d.Annullato = 1;
    PassingOverErrors([&] {
        ShowWorkingPicture(s, d.FileUndo);
        NoteCanvasCopy(s, d.FileUndo);
    });
    s.form2.setWindowTitle(EffectCaption(s));
    d.NomeSalvato.clear();
}

void Redo_Click(Session& s)
{
    Document& d = s.doc;
    d.NumEffetti = d.NumEffettiSalvato;
    d.Modificato = 1;
    s.form1.Enable(control::Salva, true);
    if (d.NumEffetti > 1) s.form1.Enable(control::Undo, true);
    s.form1.Enable(control::Orig, true);
    s.form1.Enable(control::Redo, false);
    s.form10.EnableHistory({.annulla = d.NumEffetti > 1 ? Switch(true) : std::nullopt,
                            .originale = true,
                            .ripristina = false});
    ShowWorkingPicture(s, file::Redo);
    NoteCanvasCopy(s, file::Redo);
    s.form2.setWindowTitle(EffectCaption(s));
    d.InOriginale = 0;
    d.Annullato = 0;
}

/// The picture as it was opened, read again. Unsaved changes could not come back onto a picture of
/// another size, so one that was replaced by such a picture counts as unreadable for them. Throws
/// PictureError.
Surface ReadOriginal(const Session& s)
{
    const Document& d = s.doc;
    // After the same picture was chosen again `NomeFile` is empty; the picture is still open.
    const QString& name = d.NomeFile.isEmpty() ? d.FileAperto : d.NomeFile;
    Surface picture = ReadPicture(name.toStdString()).picture;
    const Surface& canvas = s.work.Picture1;
    if (d.Modificato == 1 &&
        (picture.Width() != canvas.Width() || picture.Height() != canvas.Height()))
        throw PictureError("La figura nel file «" + name.toStdString() +
                           "» ora ha un'altra misura");
    return picture;
}

void Orig_Click(Session& s)
{
    Document& d = s.doc;
    d.NomeSalvato.clear();
    s.form1.Enable(control::Salva, false);
    if (d.NumEffetti > 1) s.form1.Enable(control::Undo, true);
    s.form1.Enable(control::Orig, false);
    s.form1.Enable(control::Redo, true);
    s.form10.EnableHistory({.annulla = d.NumEffetti > 1 ? Switch(true) : std::nullopt,
                            .originale = false,
                            .ripristina = true});
    PassingOverErrors([&] {
        if (d.Annullato == 0) SaveWorkingPicture(s.work.Picture1, file::Redo);
    });
    d.InOriginale = 1;
    d.Annullato = 0;
    d.NumEffettiSalvato = d.NumEffetti;
    d.NumEffetti = 0;
    QString unreadable;
    try {
        Surface picture = ReadOriginal(s);
        Show(s, picture);
        Estrai(s, d.FileAperto,
               d.Modificato == 0 ? std::optional(std::move(picture)) : std::nullopt);
    } catch (const PictureError& error) {
        unreadable = QString::fromUtf8(error.what());
        Estrai(s, d.FileAperto, std::nullopt);
    }
    s.form2.setWindowTitle(PictureCaption(s));
    if (unreadable.isEmpty())
        d.Modificato = 0;
    else
        s.dialogs.Tell(BoxIcon::Exclamation, title::Warning, unreadable + '.');
}

}  // namespace pixano
