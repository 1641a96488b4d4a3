#include "document/recovery_note.h"

#include "document/places.h"
#include "files/own_file.h"
#include "files/refusal.h"
#include "windows/file_names.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace pixano {
namespace {

/// A file's name may hold anything, line ends too.
QByteArray Encoded(const QString& path)
{
    return QByteArray::fromStdString(FileBytes(path)).toPercentEncoding("/ ");
}

QString Decoded(const QByteArray& text)
{
    return FileName(QByteArray::fromPercentEncoding(text).toStdString());
}

}  // namespace

QString RecoveryNotePath()
{
    return DataFolder() + "/recupero.txt";
}

bool RecoveryNoteThere()
{
    const QFileInfo there(RecoveryNotePath());
    return there.exists() || there.isSymLink();
}

std::optional<RecoveryNote> ReadRecoveryNote()
{
    QList<QByteArray> lines;
    try {
        const std::string text = ReadOwnFile(FileBytes(RecoveryNotePath()));
        lines = QByteArray::fromStdString(text).split('\n');
    } catch (const std::exception&) {
        return std::nullopt;  // it is refused, or memory is too short for it
    }
    // The last line end tells that the note is complete.
    constexpr qsizetype Lines = 5;
    if (lines.size() != Lines || !lines.back().isEmpty()) return std::nullopt;
    RecoveryNote note{.copy = Decoded(lines.at(0)),
                      .picture = Decoded(lines.at(1)),
                      .width = lines.at(2).toInt(),
                      .height = lines.at(3).toInt()};
    const bool whole = QFileInfo(note.copy).isAbsolute() &&
                       !QFileInfo(note.picture).fileName().isEmpty() && note.width > 0 &&
                       note.height > 0;
    if (!whole) return std::nullopt;
    return note;
}

void WriteRecoveryNote(const RecoveryNote& note)
{
    const QByteArray text = Encoded(note.copy) + '\n' + Encoded(note.picture) + '\n' +
                            QByteArray::number(note.width) + '\n' +
                            QByteArray::number(note.height) + '\n';
    MakeDataFolder();
    const std::string path = FileBytes(RecoveryNotePath());
    TellRefusal("scrivere", path, [&] { ReplaceOwnFile(path, text.toStdString()); });
}

void RemoveRecoveryNote()
{
    QFile::remove(RecoveryNotePath());
}

}  // namespace pixano
