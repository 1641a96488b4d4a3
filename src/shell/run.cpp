#include "shell/run.h"

#include "canvas/fault.h"
#include "document/canvas_copy.h"
#include "document/places.h"
#include "document/recovery_note.h"
#include "document/working_pictures.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

#include <QDateTime>
#include <QDir>

#include <new>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace pixano {
namespace {

/// Unsaved work, without what a failed effect has drawn, as a BMP in the data folder; what to tell
/// the user about it. The note of the last copy stays, so the next start offers the work too.
QString KeepUnsavedWork(const Session& s)
{
    if (s.doc.Modificato == 0) return {};
    try {
        const QString stamp = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
        const QString path = MakeDataFolder() + "/lavoro-" + stamp + ".bmp";
        const Surface& canvas = s.work.Picture1;
        if (s.drawing)
            SavePrivateBitmap(LoadWorkingPicture(s.doc.FileUndo, canvas), FileBytes(path));
        else
            SavePrivateBitmap(canvas, FileBytes(path));
        return "\n\nIl lavoro non salvato è stato conservato nel file «" + path + "».";
    } catch (const std::exception& error) {
        return "\n\nIl lavoro non salvato non è stato conservato. " +
               QString::fromUtf8(error.what()) + '.';
    }
}

/// Nobody goes back, forward or shows a preview any more: only what the next start offers stays.
void RemoveNeedlessFiles(const Session& s)
{
    const std::optional<RecoveryNote> note = ReadRecoveryNote();
    // Where no note tells it, any of them may be all that is left of the work.
    if (!note && (s.doc.Modificato == 1 || RecoveryNoteThere())) return;
    QStringList names{file::Undo, file::Redo, file::SpareCopy};
    if (s.doc.previewCopied) names += file::PreviewCopy;
    for (const QString& name : names + s.doc.pasted) {
        const QString path = NativePath(name);
        const bool offered = note && (path == note->copy || path == note->picture);
        const bool told = s.doc.Modificato == 1 && path == s.doc.canvasCopy;
        if (!offered && !told) KillWorkingPicture(name);
    }
}

/// What helps when `text` tells of a working file that the current folder, chosen by whoever
/// started the program, does not take; nothing otherwise.
QString AdviceOnFolder(const QString& text)
{
    const std::string folder = FileBytes(QDir::currentPath());
    if (faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) == 0) return {};
    for (const QString& name : {file::Pixels, file::PreviewCopy})
        if (text.contains("«" + NativePath(name) + "»"))
            return "\n\nPixano tiene i suoi file di lavoro nella cartella da cui è avviato: "
                   "conviene "
                   "avviarlo da una in cui può scrivere, o dal menu del desktop.";
    return {};
}

/// What a run-time error leaves behind, or a command has remarked, is told in one box, once the
/// user sees the canvas that it speaks of.
void Tell(Session& s, BoxIcon icon, QString text)
{
    s.remarks.removeDuplicates();
    for (const QString& remark : std::exchange(s.remarks, {}))
        text += (text.isEmpty() ? "" : "\n\n") + remark + (remark.endsWith('!') ? "" : ".");
    s.form2.Picture1().repaint();
    s.form9.Image1().repaint();
    s.dialogs.Tell(icon, title::Warning, text + AdviceOnFolder(text));
}

/// The palette is as the menus are, and its pointer that of a program that waits.
void SettlePalette(Session& s)
{
    const auto on = [&s](const char* name) { return s.form1.Enabled(name); };
    s.form10.EnableHistory({.annulla = on(control::Undo),
                            .originale = on(control::Orig),
                            .ripristina = on(control::Redo)});
    s.form10.ShowHourglass(false);
}

/// An error that does not end the program is told with what else there is to be told, once it is
/// known what has become of the canvas.
void EndByFault(Session& s, const QString& name, Fatal fatal, const Fault& fault)
{
    SettlePalette(s);
    const QString sentence =
        "Errore durante il comando «" + name + "»:\n" + QString::fromUtf8(fault.what());
    if (!EndsProgram(fatal, fault.Kind())) {
        s.remarks.prepend(sentence);
        s.failed = true;
        return;
    }
    Tell(s, BoxIcon::Critical, sentence + '.' + KeepUnsavedWork(s) + "\n\nIl programma termina.");
    // The end was told, and is not told twice.
    ErrorOf([&] { RemoveNeedlessFiles(s); });
    EndProgram(s, 1);
}

}  // namespace

void RunWithinCommand(Session& s, const QString& name, Fatal fatal,
                      const std::function<void()>& command)
{
    if (const std::optional<Fault> fault = ErrorOf(command)) EndByFault(s, name, fatal, *fault);
}

void RunCommand(Session& s, const QString& name, Fatal fatal, const std::function<void()>& command)
{
    if (s.busy) return;
    s.busy = true;
    s.drawing = s.failed = false;
    RunWithinCommand(s, name, fatal, command);
    if (!s.ending) SecureCanvas(s);
    s.form2.Picture1().update();
    if (!s.remarks.isEmpty()) Tell(s, s.failed ? BoxIcon::Critical : BoxIcon::Exclamation, {});
    s.busy = false;
    s.afterCommand();
}

}  // namespace pixano
