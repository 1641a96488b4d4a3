#include "document/showing.h"

#include "document/captions.h"
#include "document/places.h"
#include "document/working_pictures.h"
#include "windows/twips.h"
#include "windows/window_operation.h"

#include <algorithm>

namespace pixano {
namespace {

Surface ByWayOfItsFile(Session& s)
{
    SaveWorkingPicture(s.work.Picture1, file::PreviewCopy);
    s.doc.previewCopied = true;
    if (s.doc.canvasCopy.isEmpty()) s.doc.canvasCopy = NativePath(file::PreviewCopy);
    return LoadWorkingPicture(file::PreviewCopy, s.work.Picture1);
}

/// The command was done: nothing but the copy is missing. Each change of scale would say it again.
void RemarkMissingCopy(Session& s, const Fault& fault)
{
    const QString reason = QString::fromUtf8(fault.what());
    if (reason == s.doc.noCopyBecause) return;
    s.doc.noCopyBecause = reason;
    s.remarks += "L'anteprima mostra l'immagine com'è ora, ma la sua copia di lavoro non è stata "
                 "scritta. " +
                 reason;
}

/// Puts the canvas, by way of its file, into the preview; whether the file holds it.
bool FillPreview(Session& s)
{
    ImageControl& image = s.form9.Image1();
    try {
        image.SetPicture(ByWayOfItsFile(s));
        s.doc.noCopyBecause.clear();
        return true;
    } catch (const Fault& fault) {
        RemarkMissingCopy(s, fault);
    }
    image.SetPicture(s.work.Picture1);
    return false;
}

}  // namespace

bool Mostra(Session& s)
{
    constexpr double SmallestZoom = 0.4;
    constexpr double TwipsPerColumn = 15.2;
    constexpr double TwipsPerRow = 16.4;
    const bool copied = FillPreview(s);
    s.doc.Zoom = std::max(s.doc.Zoom, SmallestZoom);
    const double width = TwipsPerColumn * s.work.Larg;
    const double height = TwipsPerRow * s.work.Alt;
    const auto sideOf = [&s](double twips) {
        // cppcheck-suppress suspiciousFloatingPointCast ; a control's size is of single precision
        return Pixels(static_cast<float>(s.doc.Zoom * twips));
    };
    s.form9.Stretch({sideOf(width), sideOf(height)});
    OpenOnScreenOf(s.form1, s.form9);
    // Some window managers give a window that comes back the focus, however it is asked for.
    const bool comesBack = s.form9.isMinimized();
    ShowAgain(s.form9);
    OpenOnScreenOf(s.form1, s.form10);
    BringForward(s.form10);
    if (comesBack) KeepFocus(s.form10, s.form9);
    s.form9.setWindowTitle(PreviewCaption(s, s.doc.Zoom));
    return copied;
}

void ChangeZoom(Session& s, double change)
{
    s.doc.Zoom += change;
    // What is scaled is seen; the menus above it stay at hand.
    s.atHand.BringAbove(s.form9, s.form2);
    Mostra(s);
}

}  // namespace pixano
