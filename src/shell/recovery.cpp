#include "shell/recovery.h"

#include "canvas/fault.h"
#include "pictures/picture_files.h"
#include "shell/menu_table.h"
#include "shell/opening.h"
#include "shell/places.h"
#include "shell/showing.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <optional>

namespace pixano {
namespace {

/// What is noted: where the copy of the canvas lies, and which picture it was made from.
struct Note {
    QString copy;
    QString picture;
};

QString NotePath()
{
    return DataFolder() + "/recupero.txt";
}

std::optional<Note> ReadNote()
{
    constexpr qint64 Longest = 64 * 1024;
    QFile file(NotePath());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QStringList lines = QString::fromUtf8(file.read(Longest)).split('\n');
    // The last line end tells that the note is complete.
    constexpr qsizetype Lines = 3;
    if (lines.size() != Lines || lines.at(0).isEmpty()) return std::nullopt;
    return Note{lines.at(0), lines.at(1)};
}

/// Gives the copy a name of its own in the data folder; the path, or nothing when that failed.
std::optional<QString> PutAside(const QString& copy)
{
    const QString stamp = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
    const QString aside = DataFolder() + "/recupero-" + stamp + ".bmp";
    if (QFile::rename(copy, aside)) return aside;
    return std::nullopt;
}

void BringBack(Session& s, const Note& note, Surface picture)
{
    s.doc.NomeFile = note.picture;
    s.doc.FileAperto = note.picture;
    s.doc.open = true;
    s.doc.Zoom = 1;
    Estrai(s, note.picture, std::move(picture));
    s.doc.Modificato = 1;
    s.form1.Enable(entry::Salva, true);
    s.form1.Enable(entry::Orig, true);
    s.form10.EnableHistory(
        {.annulla = std::nullopt, .originale = true, .ripristina = std::nullopt});
    Mostra(s);
    // The new copy is complete; the old one, if it lay elsewhere, has done its duty.
    const QString current = QDir::current().absoluteFilePath(file::PreviewCopy);
    if (note.copy.endsWith('/' + file::PreviewCopy) && note.copy != current)
        QFile::remove(note.copy);
}

}  // namespace

void NoteCanvasCopy(const Session& s, const QString& name)
{
    try {
        QSaveFile note(NotePath());
        if (!note.open(QIODevice::WriteOnly)) return;
        note.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        const QString copy = QDir::current().absoluteFilePath(NativePath(name));
        note.write((copy + '\n' + s.doc.FileAperto + '\n').toUtf8());
        note.commit();
    } catch (const Fault&) {
        return;
    }
}

void ForgetCanvasCopy()
{
    try {
        QFile::remove(NotePath());
    } catch (const Fault&) {
        return;
    }
}

void OfferRecovery(Session& s)
{
    const std::optional<Note> note = ReadNote();
    if (!note) return;
    const QString name = QFileInfo(note->picture).fileName();
    try {
        Surface picture = ReadWorkingPicture(note->copy.toStdString()).picture;
        const bool wanted = s.dialogs.Ask(
            BoxIcon::Exclamation, title::Notice,
            "L'ultima volta Pixano si è interrotto con modifiche non salvate alla figura " + name +
                ".\nVuoi recuperarla?");
        if (wanted) {
            BringBack(s, *note, std::move(picture));
            return;
        }
        const std::optional<QString> aside = PutAside(note->copy);
        s.dialogs.Tell(BoxIcon::None, title::Notice,
                       "La figura resta nel file " + aside.value_or(note->copy) + '.');
    } catch (const PictureError& error) {
        s.dialogs.Tell(
            BoxIcon::Exclamation, title::Warning,
            "L'ultima volta Pixano si è interrotto con modifiche non salvate alla figura " + name +
                ", ma non è possibile recuperarla.\n" + QString::fromUtf8(error.what()) + '.');
    }
    ForgetCanvasCopy();
}

}  // namespace pixano
