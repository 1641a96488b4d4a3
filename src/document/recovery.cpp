#include "document/recovery.h"

#include "canvas/fault.h"
#include "document/canvas_copy.h"
#include "document/loading.h"
#include "document/pasting.h"
#include "document/places.h"
#include "document/recovery_note.h"
#include "document/showing.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace pixano {
namespace {

/// A name that nothing bears yet, in that folder.
QString AsideName(const QString& folder, const QString& ending = ".bmp")
{
    const QString stamp = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
    QString name = folder + "/recupero-" + stamp + ending;
    for (int n = 2; QFileInfo::exists(name); ++n)
        name = folder + "/recupero-" + stamp + '-' + QString::number(n) + ending;
    return name;
}

/// Whether the program itself has written the file, so that it may delete or rename it. A note may
/// have been changed to name any other.
bool IsOurs(const QString& path)
{
    const QFileInfo file(path);
    return file.fileName() == file::PreviewCopy || QDir(file.path()) == QDir(DataFolder());
}

/// The file in which an error that ended the program has kept that very picture; empty without one.
QString KeptBefore(const Surface& picture)
{
    const QDir folder(DataFolder(), "lavoro-*.bmp", QDir::Time, QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo& kept : folder.entryInfoList()) {
        try {
            const PictureRead read = ReadWorkingPicture(FileBytes(kept.filePath()));
            if (!read.truncated && read.picture == picture) return kept.filePath();
        } catch (const Fault&) {
            continue;  // it holds another, whatever it is
        }
    }
    return {};
}

/// Puts the picture into a file of its own in the data folder; the path. The copy goes only when
/// the file is complete and the note is gone, so that whenever the program ends one of them is
/// left, and is either noted or named to the user.
QString PutAside(const QString& copy, const Surface& picture)
{
    try {
        QString aside = KeptBefore(picture);
        if (aside.isEmpty()) {
            aside = AsideName(MakeDataFolder());
            SavePrivateBitmap(picture, FileBytes(aside));
        }
        RemoveRecoveryNote();
        if (IsOurs(copy)) unlink(FileBytes(copy).c_str());
        return aside;
    } catch (const Fault&) {
        if (!IsOurs(copy)) return copy;
        // A full disk has no room for a second picture, but it has for a name.
        const QString beside = AsideName(QFileInfo(copy).path());
        return QFile::rename(copy, beside) ? beside : copy;
    }
}

/// Renames what is left, `noted` and the working pictures, lest the next effect replace it; says
/// where it is.
QString KeepRemains(const QStringList& noted)
{
    QStringList kept;
    QStringList paths = noted;
    for (const QString& working : {file::SpareCopy, file::Undo, file::Redo})
        paths += NativePath(working);
    for (const QString& path : paths) {
        const QFileInfo remains(path);
        if (!IsOurs(path) || !remains.isFile() || remains.isSymLink() || remains.size() == 0)
            continue;
        const QString aside = AsideName(DataFolder(), path == RecoveryNotePath() ? ".txt" : ".bmp");
        if (QFile::rename(path, aside)) kept += aside;
    }
    return kept.isEmpty() ? QString() : "\nQuel che ne resta è qui:\n«" + kept.join("»\n«") + "».";
}

void TellLost(Session& s, const QString& ofPicture, const QString& reason, const QStringList& noted)
{
    s.dialogs.Tell(
        BoxIcon::Exclamation, title::Warning,
        "L'ultima volta Pixano si è chiuso in modo imprevisto con modifiche non salvate" +
            ofPicture + ", ma non è possibile recuperarle.\n" + reason + '.' + KeepRemains(noted));
}

QString OfPicture(const RecoveryNote& note)
{
    return " all'immagine «" + QFileInfo(note.picture).fileName() + "»";
}

/// The noted copy, if it is the picture that was noted. Throws PictureError.
Surface ReadNotedPicture(const RecoveryNote& note)
{
    PictureRead read = ReadWorkingPicture(FileBytes(note.copy));
    const bool noted = !read.truncated && read.picture.Width() == note.width &&
                       read.picture.Height() == note.height;
    if (!noted)
        throw PictureError(FaultKind::FileAccess,
                           "Il file «" + FileBytes(note.copy) + "» non è più quello di allora");
    return std::move(read.picture);
}

void BringBack(Session& s, const RecoveryNote& note, Surface picture)
{
    const std::optional<Fault> unopened =
        ErrorOf([&] { Estrai(s, note.picture, std::move(picture)); });
    if (unopened) {
        TellLost(s, OfPicture(note), QString::fromUtf8(unopened->what()), {note.copy});
        return;
    }
    s.doc.NomeFile = note.picture;
    s.doc.FileAperto = note.picture;
    s.doc.open = true;
    s.doc.Zoom = 1;
    if (IsPasted(note.picture)) s.doc.pasted.append(note.picture);
    s.doc.Effetto = s.doc.NomeCorto;  // no note tells the last effect; "Ripristina" names one
    // How many is not noted; after the next one "Annulla" has to lead back here.
    s.doc.NumEffetti = s.doc.NumEffettiSalvato = 1;
    s.doc.Modificato = 1;
    s.form1.Enable(control::Salva, true);
    s.form1.Enable(control::Orig, true);
    s.form10.EnableHistory(
        {.annulla = std::nullopt, .originale = true, .ripristina = std::nullopt});
    s.doc.canvasCopy = s.doc.notedCopy = note.copy;
    if (!Mostra(s)) return;
    // The preview's copy is complete, so it can be noted.
    const QString current = AbsolutePath(file::PreviewCopy);
    s.doc.canvasCopy = current;
    SecureCanvas(s);
    // The old one, if it lay elsewhere, has done its duty once nothing tells of it any more.
    if (s.doc.notedCopy == current && note.copy != current &&
        note.copy.endsWith('/' + file::PreviewCopy))
        unlink(FileBytes(note.copy).c_str());
}

void Offer(Session& s, const RecoveryNote& note)
{
    Surface picture;
    if (const std::optional<Fault> unread = ErrorOf([&] { picture = ReadNotedPicture(note); })) {
        TellLost(s, OfPicture(note), QString::fromUtf8(unread->what()), {note.copy});
        return;
    }
    const bool wanted =
        s.dialogs.Ask(BoxIcon::Exclamation, title::Notice,
                      "L'ultima volta Pixano si è chiuso in modo imprevisto con modifiche non "
                      "salvate" +
                          OfPicture(note) + ".\nVuoi recuperarle?");
    if (wanted)
        BringBack(s, note, std::move(picture));
    else
        s.dialogs.Tell(BoxIcon::None, title::Notice,
                       "L'immagine resta nel file «" + PutAside(note.copy, picture) + "».");
}

}  // namespace

void OfferRecovery(Session& s)
{
    if (const std::optional<RecoveryNote> note = ReadRecoveryNote())
        Offer(s, *note);
    else if (RecoveryNoteThere())
        TellLost(s, QString(), "Il file «" + RecoveryNotePath() + "» non si può leggere",
                 {AbsolutePath(file::PreviewCopy), RecoveryNotePath()});
    else
        RemovePasted();  // nobody had made anything of them
}

}  // namespace pixano
