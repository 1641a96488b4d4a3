#include "document/opening.h"

#include "document/loading.h"
#include "document/questions.h"
#include "document/remembered_path.h"
#include "document/saving.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

#include <QDir>
#include <QFileInfo>

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
    void Forget() { modified_ = 0; }

  private:
    Document& doc_;
    int modified_;
};

void OpenAsNew(Session& s, const QString& name, Surface picture)
{
    Estrai(s, name, std::move(picture));
    s.doc.NomeFile = name;
    s.doc.FileAperto = name;
    s.doc.NomeSalvato.clear();
    s.doc.Zoom = 1;
    s.doc.NumEffetti = 0;
    s.doc.open = true;
    s.doc.canvasCopy.clear();
    s.redoPicture.reset();
}

/// Who chooses a changed picture again expects to see it as it was.
void RemarkOpenAlready(Session& s, const QString& name, Answer answer)
{
    const bool canGoBack = s.form1.Enabled(control::Orig);
    if (answer == Answer::NotAsked && !canGoBack) return;
    s.remarks += "L'immagine «" + name + "» è già aperta, e non viene letta un'altra volta" +
                 (canGoBack ? ": per questo c'è «Originale»" : "");
}

/// What follows once the name is known. Throws PictureError.
void OpenChosen(Session& s, const QString& name, Answer answer, ModifiedUntilOpened& modified)
{
    if (!FileExists(name)) {
        s.remarks += "File " + name + " non trovato!";
        return;
    }
    const bool same = s.doc.open && name == s.doc.FileAperto;
    if (same) RemarkOpenAlready(s, name, answer);
    if (same && answer == Answer::No) {
        s.doc.NomeFile.clear();
        return;
    }
    std::optional<PictureRead> read;
    if (!same) {
        read = ReadPicture(FileBytes(name));
        if (read->truncated)
            s.remarks +=
                "Il file «" + name +
                "» è incompleto o danneggiato: alcuni pixel mancano o non sono quelli giusti";
    }
    if (!s.doc.pasted.contains(name)) RememberPath(s.doc, name);
    if (!read) {
        s.doc.NomeFile = name;
        return;
    }
    OpenAsNew(s, name, std::move(read->picture));
    modified.Forget();
}

/// Whether the user can still think better of it after the question about the changes.
enum class Named { Afterwards, Already };

/// The whole command; `askName` gives the chosen name, or nothing when the user thinks better of
/// it.
template <typename AskName>
void Open(Session& s, Named named, AskName askName)
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
        // No dialog follows in which the opening could be called off.
        if (outcome == SaveOutcome::Cancelled && named == Named::Already) return;
        if (outcome == SaveOutcome::Saved) modified.Forget();
    }
    const QString remembered = ReadRememberedPath(d).value_or(d.NomeFile);
    const std::optional<QString> name = askName(remembered);
    if (!name) return;
    const std::optional<Fault> unopened = ErrorOf([&] { OpenChosen(s, *name, answer, modified); });
    if (unopened) s.remarks += WhyUnread(*unopened, *name);
    GoToFolder(d.CartellaAvvio);
}

}  // namespace

void Apri_Click(Session& s)
{
    Open(s, Named::Afterwards, [&](const QString& remembered) {
        const bool chosen = !remembered.isEmpty() && !s.doc.pasted.contains(remembered);
        return s.dialogs.AskOpenName(chosen ? QFileInfo(remembered).path() : s.doc.firstFolder);
    });
}

void OpenNamed(Session& s, const QString& path)
{
    Open(s, Named::Already, [&](const QString& /*remembered*/) { return std::optional(path); });
}

}  // namespace pixano
