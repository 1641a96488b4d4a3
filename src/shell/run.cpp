#include "shell/run.h"

#include "canvas/fault.h"
#include "document/canvas_copy.h"
#include "document/places.h"
#include "document/working_pictures.h"
#include "pictures/picture_files.h"

#include <QDateTime>

#include <new>

namespace pixano {
namespace {

/// Unsaved work, without what a failed effect has drawn, as a BMP in the data folder; what to tell
/// the user about it. The note of the last copy stays, so the next start offers the work too.
QString KeepUnsavedWork(const Session& s)
{
    if (s.doc.Modificato == 0) return {};
    try {
        const QString stamp = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz");
        const QString path = DataFolder() + "/lavoro-" + stamp + ".bmp";
        const Surface& canvas = s.work.Picture1;
        if (s.drawing)
            SaveBitmap(LoadWorkingPicture(s.doc.FileUndo, canvas), path.toStdString());
        else
            SaveBitmap(canvas, path.toStdString());
        return "\n\nIl lavoro non salvato è stato conservato nel file " + path;
    } catch (const std::exception& error) {
        return "\n\nIl lavoro non salvato non è stato conservato: " +
               QString::fromUtf8(error.what());
    }
}

void TellFault(Session& s, const QString& name, FaultEnds ends, const QString& what)
{
    QString text = "Errore durante il comando \"" + name + "\":\n" + what + '.';
    const bool ending = ends == FaultEnds::Program;
    if (ending) text += KeepUnsavedWork(s) + "\n\nIl programma termina.";
    s.dialogs.Tell(BoxIcon::Critical, title::Warning, text);
    if (ending) EndProgram(s, 1);
}

/// A request that cannot be fulfilled ends only the command, whatever else a fault in it would end.
FaultEnds WhatEnds(const Fault& fault, FaultEnds ends)
{
    return fault.Kind() == FaultKind::InvalidCall ? FaultEnds::Command : ends;
}

}  // namespace

void RunWithinCommand(Session& s, const QString& name, FaultEnds ends,
                      const std::function<void()>& command)
{
    try {
        command();
    } catch (const Fault& fault) {
        TellFault(s, name, WhatEnds(fault, ends), QString::fromUtf8(fault.what()));
    } catch (const std::bad_alloc&) {
        TellFault(s, name, ends, "Memoria insufficiente");
    }
}

void Run(Session& s, const QString& name, FaultEnds ends, const std::function<void()>& command)
{
    if (s.busy) return;
    s.busy = true;
    s.drawing = false;
    RunWithinCommand(s, name, ends, command);
    if (s.doc.Modificato == 0) ForgetCanvasCopy();
    s.form2.Picture1().update();
    s.busy = false;
}

}  // namespace pixano
