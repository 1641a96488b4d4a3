#include "shell/start_end.h"

#include "panels/form6.h"
#include "shell/enabling.h"
#include "shell/places.h"
#include "shell/questions.h"
#include "shell/recovery.h"
#include "shell/saving.h"
#include "shell/working_pictures.h"
#include "windows/free_screen.h"
#include "windows/twips.h"

#include <QDir>
#include <QScreen>

namespace pixano {
namespace {

void PlaceMainWindow(Form1& window)
{
    constexpr double AboveTheMiddle = 3200;
    const QSize screen = window.screen()->size();
    const double left = (screen.width() - window.width()) / 2.0;
    const double top =
        screen.height() / 2.0 - window.height() / 2.0 - AboveTheMiddle / TwipsPerPixel;
    window.move(qRound(left), qRound(top));
    // A place above the upper edge is kept where a pixel is a pixel. Enlarged, though, a screen of
    // the usual size is so low that the menus would be out of reach.
    if (window.devicePixelRatio() > 1) KeepOnScreen(window);
}

bool CloseDocument(Session& s)
{
    if (s.doc.Modificato == 1) {
        const bool save = AskToSave(s, BoxIcon::None, QString());
        s.doc.Modificato = 0;
        if (save && SalvaFile(s) == SaveOutcome::Failed) return false;
    }
    s.doc.open = false;
    DisableHistory(s);
    Disabil(s);
    return true;
}

/// Saves under the name used last, or asks for one. False when saving failed.
bool SaveBeforeTheEnd(Session& s)
{
    if (s.doc.NomeSalvato.isEmpty()) return SalvaFile(s) != SaveOutcome::Failed;
    if (!SaveCanvas(s, s.doc.NomeSalvato)) return false;
    s.doc.Modificato = 0;
    return true;
}

}  // namespace

void Form_Load(Session& s)
{
    PlaceMainWindow(s.form1);
    s.doc.CartellaAvvio = QDir::currentPath();
    if (s.doc.firstFolder.isEmpty()) s.doc.firstFolder = s.doc.CartellaAvvio;
    s.form1.show();
    Form6 opening;
    opening.exec();
    Disabil(s);
}

bool Form_Unload(Session& s)
{
    if (s.doc.Modificato == 1) {
        if (!AskToSave(s, BoxIcon::Exclamation, title::Notice))
            s.doc.Modificato = 0;
        else if (!SaveBeforeTheEnd(s))
            return false;
    }
    // The canvas closes next, and asks about changes that are still unsaved: once more, after a
    // cancelled save dialog.
    if (!CloseDocument(s)) return false;
    // Only now is it certain that the history is needed no more. What it holds is disowned first,
    // lest a run that ends in between seem to have lost it.
    ForgetCanvasCopy();
    KillWorkingPicture(file::Undo);
    KillWorkingPicture(file::Redo);
    for (const QString& name : s.doc.pasted)
        KillWorkingPicture(name);
    if (s.doc.previewCopied) KillWorkingPicture(file::PreviewCopy);
    EndProgram(s, 0);
    return true;
}

bool Form2_Unload(Session& s)
{
    if (!CloseDocument(s)) return false;
    if (Form9_Unload(s)) s.form9.hide();
    return true;
}

bool Form9_Unload(Session& s)
{
    if (!CloseDocument(s)) return false;
    s.form10.hide();
    return true;
}

}  // namespace pixano
