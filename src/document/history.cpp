#include "document/history.h"

#include "canvas/fault.h"
#include "document/captions.h"
#include "document/loading.h"
#include "document/places.h"
#include "document/working_pictures.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

namespace pixano {
namespace {

/// Puts the picture in the canvas's place; gives the one that was there.
Surface Show(Session& s, Surface picture)
{
    s.form9.Image1().SetPicture(picture);
    std::swap(s.work.Picture1, picture);
    s.form2.Picture1().FitPicture();
    return picture;
}

/// The canvas and the working picture that holds it from now on; gives the canvas before.
Surface ShowWorkingPicture(Session& s, const QString& name)
{
    Surface before = Show(s, LoadWorkingPicture(name, s.work.Picture1));
    s.doc.canvasCopy = NativePath(name);
    return before;
}

/// Writes the canvas where "Ripristina" finds it; why not, when it has to be kept in memory.
std::optional<Fault> SaveForRedo(Session& s)
{
    s.redoPicture.reset();
    return ErrorOf([&] { SaveWorkingPicture(s.work.Picture1, file::Redo); });
}

/// What the canvas showed before, or shows still, is kept for "Ripristina", whose file could not be
/// written.
void KeepForRedo(Session& s, std::optional<Surface> before, const Fault& unwritten)
{
    const bool kept =
        !ErrorOf([&] { s.redoPicture = before ? std::move(*before) : s.work.Picture1; });
    s.remarks += QString::fromUtf8(unwritten.what()) +
                 (kept ? ". L'immagine resta in memoria: «Ripristina» la riporta finché Pixano è "
                         "aperto"
                       : ". Nemmeno la memoria basta per conservare l'immagine: «Ripristina» non "
                         "può riportarla");
    if (kept) return;
    s.form1.Enable(control::Redo, false);
    s.form10.EnableHistory(
        {.annulla = std::nullopt, .originale = std::nullopt, .ripristina = false});
}

/// The picture that the last step back led away from. Throws Fault.
void ShowRedoPicture(Session& s)
{
    if (s.redoPicture) {
        Show(s, *s.redoPicture);
        s.doc.canvasCopy.clear();
    } else {
        ShowWorkingPicture(s, file::Redo);
    }
}

/// The picture as it was opened, read again. Unsaved changes could not come back onto a picture of
/// another size, so one that was replaced by such a picture counts as unreadable for them. Throws
/// PictureError.
Surface ReadOriginal(const Session& s)
{
    const Document& d = s.doc;
    // After the same picture was chosen again `NomeFile` is empty; the picture is still open.
    const QString& name = d.NomeFile.isEmpty() ? d.FileAperto : d.NomeFile;
    Surface picture = ReadPicture(FileBytes(name)).picture;
    const Surface& canvas = s.work.Picture1;
    if (d.Modificato == 1 &&
        (picture.Width() != canvas.Width() || picture.Height() != canvas.Height()))
        throw PictureError(FaultKind::FileAccess,
                           "L'immagine nel file «" + FileBytes(name) + "» ora ha un'altra misura");
    return picture;
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
    const std::optional<Fault> unwritten = d.InOriginale == 0 ? SaveForRedo(s) : std::nullopt;
    d.InOriginale = 0;
    d.Annullato = 1;
    std::optional<Surface> before;
    ErrorOf([&] { before = ShowWorkingPicture(s, d.FileUndo); });  // without it the canvas stays
    if (unwritten) KeepForRedo(s, std::move(before), *unwritten);
    s.form2.setWindowTitle(EffectCaption(s));
    d.NomeSalvato.clear();
}

void Redo_Click(Session& s)
{
    Document& d = s.doc;
    // Where memory is short the picture is still there, and so stays the way to it.
    const std::optional<Fault> unread = ErrorOf([&] { ShowRedoPicture(s); });
    if (unread && unread->Kind() == FaultKind::OutOfMemory) throw Fault(*unread);
    d.NumEffetti = d.NumEffettiSalvato;
    d.Modificato = 1;
    s.form1.Enable(control::Salva, true);
    if (d.NumEffetti > 1) s.form1.Enable(control::Undo, true);
    s.form1.Enable(control::Orig, true);
    s.form1.Enable(control::Redo, false);
    s.form10.EnableHistory({.annulla = d.NumEffetti > 1 ? Switch(true) : std::nullopt,
                            .originale = true,
                            .ripristina = false});
    if (unread) throw Fault(*unread);
    s.form2.setWindowTitle(EffectCaption(s));
    d.InOriginale = 0;
    d.Annullato = 0;
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
    const std::optional<Fault> unwritten = d.Annullato == 0 ? SaveForRedo(s) : std::nullopt;
    d.InOriginale = 1;
    d.Annullato = 0;
    d.NumEffettiSalvato = d.NumEffetti;
    d.NumEffetti = 0;
    std::optional<Surface> before;
    const std::optional<Fault> unread = ErrorOf([&] {
        Surface picture = ReadOriginal(s);
        before = Show(s, picture);
        Estrai(s, d.FileAperto,
               d.Modificato == 0 ? std::optional(std::move(picture)) : std::nullopt);
    });
    if (unread) {
        s.remarks += WhyUnread(*unread, d.FileAperto);
        Estrai(s, d.FileAperto, std::nullopt);
    }
    if (unwritten) KeepForRedo(s, std::move(before), *unwritten);
    s.form2.setWindowTitle(PictureCaption(s));
    if (!unread) d.Modificato = 0;
}

}  // namespace pixano
