#include "shell/opening.h"

#include "pictures/picture_files.h"
#include "shell/captions.h"
#include "shell/enabling.h"
#include "shell/menu_table.h"
#include "shell/questions.h"
#include "shell/remembered_path.h"
#include "shell/saving.h"
#include "windows/twips.h"
#include "windows/window_operation.h"

#include <QDir>
#include <QFileInfo>
#include <QScreen>

#include <algorithm>

namespace pixano {
namespace {

enum class Answer { NotAsked, Yes, No };

/// Unsaved changes are marked again unless the opening came to its end.
class ModifiedUntilOpened {
  public:
    explicit ModifiedUntilOpened(Document& doc) : doc_(doc), modified_(doc.Modificato) {}
    ModifiedUntilOpened(const ModifiedUntilOpened&) = delete;
    ModifiedUntilOpened& operator=(const ModifiedUntilOpened&) = delete;
    ~ModifiedUntilOpened()
    {
        if (modified_ == 1) doc_.Modificato = 1;
    }
    void Done() { modified_ = 0; }

  private:
    Document& doc_;
    int modified_;
};

/// The preview starts in the lower right corner, where neither canvas nor palette covers it.
void PlaceBesidePalette(QWidget& preview)
{
    constexpr QPoint Frame(8, 34);
    const QRect free = preview.screen()->availableGeometry();
    const QPoint corner(preview.screen()->size().width() - Form10::FromRightEdge(), free.bottom());
    const QPoint place = corner - QPoint(preview.width(), preview.height()) - Frame;
    preview.move(std::max(place.x(), free.left()), std::max(place.y(), free.top()));
}

void OpenAsNew(Session& s, const QString& name, Surface picture)
{
    s.doc.NomeFile = name;
    s.doc.FileAperto = name;
    s.doc.NomeSalvato.clear();
    s.doc.Zoom = 1;
    s.doc.NumEffetti = 0;
    s.doc.open = true;
    Estrai(s, name, std::move(picture));
}

/// What follows once the name is known. Throws PictureError.
void OpenChosen(Session& s, const QString& name, Answer answer, ModifiedUntilOpened& modified)
{
    if (!QFileInfo::exists(name)) {
        s.dialogs.Tell(BoxIcon::Exclamation, title::Warning, "File " + name + " non trovato!");
        return;
    }
    const bool same = s.doc.open && name == s.doc.FileAperto;
    if (same && answer == Answer::No) {
        s.doc.NomeFile.clear();
        return;
    }
    std::optional<PictureRead> read;
    if (!same) {
        read = ReadPicture(name.toStdString());
        if (read->truncated)
            s.dialogs.Tell(BoxIcon::Exclamation, title::Warning,
                           "Il file " + name + " è incompleto: mancano alcuni pixel.");
    }
    if (!s.doc.pasted.contains(name)) RememberPath(s.doc, name);
    if (!read) {
        s.doc.NomeFile = name;
        return;
    }
    modified.Done();
    OpenAsNew(s, name, std::move(read->picture));
}

/// The whole command; `askName` gives the chosen name, or nothing when the user thinks better of
/// it.
template <typename AskName>
void Open(Session& s, AskName askName)
{
    Document& d = s.doc;
    ModifiedUntilOpened modified(d);
    Answer answer = Answer::NotAsked;
    if (d.Modificato == 1) {
        answer = AskToSave(s, BoxIcon::Question, title::Message) ? Answer::Yes : Answer::No;
        d.Modificato = 0;
    }
    if (answer == Answer::Yes) {
        const SaveOutcome outcome = SalvaFile(s);
        if (outcome == SaveOutcome::Failed) return;
        if (outcome == SaveOutcome::Saved) modified.Done();
    }
    const QString remembered = RememberedPath(d).value_or(d.NomeFile);
    const std::optional<QString> name = askName(remembered);
    if (!name) return;
    try {
        OpenChosen(s, *name, answer, modified);
    } catch (const PictureError& error) {
        s.dialogs.Tell(BoxIcon::Exclamation, title::Warning, QString::fromUtf8(error.what()) + '.');
    }
    QDir::setCurrent(d.CartellaAvvio);
}

}  // namespace

void Apri_Click(Session& s)
{
    Open(s, [&](const QString& remembered) {
        const bool chosen = !remembered.isEmpty() && !s.doc.pasted.contains(remembered);
        return s.dialogs.AskOpenName(chosen ? QFileInfo(remembered).path() : s.doc.firstFolder);
    });
}

void OpenNamed(Session& s, const QString& path)
{
    Open(s, [&](const QString& /*remembered*/) { return std::optional(path); });
}

void Estrai(Session& s, const QString& Percorso, std::optional<Surface> picture)
{
    const qsizetype nameLength =
        Percorso.size() - 1 - std::max(Percorso.lastIndexOf('/'), Percorso.lastIndexOf('\\'));
    s.doc.NomeCorto = Percorso.right(nameLength);
    if (s.doc.NomeCorto.isEmpty()) return;
    s.doc.Cartella = Percorso.chopped(nameLength);
    if (picture) {
        Carica(s, std::move(*picture));
        Abilita(s);
        DisableHistory(s);
    }
    s.form1.Enable(entry::Salva, false);
}

void Carica(Session& s, Surface picture)
{
    // A little wider and higher than the picture itself: kept exactly.
    constexpr double CanvasWidth = 15.8;
    constexpr double CanvasHeight = 16.8;
    constexpr double PreviewWidth = 15;
    constexpr double PreviewHeight = 15.2;
    Work& w = s.work;
    w.Picture1 = std::move(picture);
    w.Larg = w.Picture1.Width();
    w.Alt = w.Picture1.Height();
    s.form2.Picture1().FitPicture();
    s.form2.move(0, 0);
    s.form2.SetInside({Pixels(w.Larg * CanvasWidth), Pixels(w.Alt * CanvasHeight)});
    s.form2.show();
    s.form9.Image1().SetStretch(false);
    s.form9.Image1().SetPicture(w.Picture1);
    s.form9.SetInside({Pixels(w.Larg * PreviewWidth), Pixels(w.Alt * PreviewHeight)});
    if (!s.form9.isVisible()) PlaceBesidePalette(s.form9);
    s.form9.show();
    BringForward(s.form10);
    BringForward(s.form1);
    s.form2.setWindowTitle(PictureCaption(s));
    s.form9.setWindowTitle(PreviewCaption(s, 1));
}

}  // namespace pixano
