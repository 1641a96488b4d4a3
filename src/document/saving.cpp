#include "document/saving.h"

#include "document/canvas_copy.h"
#include "document/loading.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

#include <QFileInfo>

namespace pixano {
namespace {

/// The name that the picture is saved under: its last four characters give way to ".bmp", whatever
/// they are. Nothing when no letter of the file's own name would be left: the folder's is not cut.
std::optional<QString> WithBitmapExtension(const QString& chosen)
{
    constexpr qsizetype ExtensionLength = 4;
    const qsizetype nameLength = chosen.size() - 1 - chosen.lastIndexOf('/');
    if (nameLength <= ExtensionLength) return std::nullopt;
    return chosen.chopped(ExtensionLength) + ".bmp";
}

bool MayReplace(Session& s, const QString& name)
{
    return s.dialogs.Ask(BoxIcon::Exclamation, title::Warning,
                         "File " + name + " già esistente, sostituire i file?");
}

/// Where the save dialog starts: not where the program keeps a picture that was pasted.
QString FolderToSaveIn(const Document& doc)
{
    if (doc.pasted.contains(doc.Cartella + doc.NomeCorto)) return doc.firstFolder;
    return doc.Cartella.isEmpty() ? doc.CartellaAvvio : doc.Cartella;
}

/// The name chosen in the save dialog, asked again as long as a file of that name may not be
/// replaced: the one that was chosen is there to be changed.
std::optional<QString> AskName(Session& s)
{
    QString folder = FolderToSaveIn(s.doc);
    QString beginning;
    for (;;) {
        const std::optional<QString> chosen = s.dialogs.AskSaveName(folder, beginning);
        if (!chosen) return std::nullopt;
        std::optional<QString> name = WithBitmapExtension(*chosen);
        if (!name)
            s.dialogs.Tell(BoxIcon::Exclamation, title::Warning,
                           "Il nome del file «" + *chosen +
                               "» è troppo corto: senza gli ultimi quattro caratteri, che lasciano "
                               "il posto a «.bmp», non ne resta niente.");
        else if (!FileExists(*name) || MayReplace(s, *name))
            return name;
        folder = QFileInfo(*chosen).path();
        beginning = QFileInfo(*chosen).fileName();
    }
}

}  // namespace

bool SaveCanvas(Session& s, const QString& name)
{
    try {
        SaveBitmap(s.work.Picture1, FileBytes(name));
        return true;
    } catch (const Fault& error) {
        s.remarks += QString::fromUtf8(error.what());
        return false;
    }
}

SaveOutcome SalvaFile(Session& s)
{
    const std::optional<QString> name = AskName(s);
    if (!name) return SaveOutcome::Cancelled;
    if (!SaveCanvas(s, *name)) {
        s.doc.Modificato = 1;
        return SaveOutcome::Failed;
    }
    Estrai(s, *name, std::nullopt);
    s.doc.NomeSalvato = *name;
    s.doc.Modificato = 0;
    ForgetCanvasCopy(s);
    return SaveOutcome::Saved;
}

}  // namespace pixano
