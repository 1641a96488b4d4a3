#include "document/loading.h"

#include "document/captions.h"
#include "document/enabling.h"
#include "effects/frame.h"
#include "windows/belonging.h"
#include "windows/free_screen.h"
#include "windows/palette_strip.h"
#include "windows/twips.h"
#include "windows/window_operation.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace pixano {
namespace {

/// Where the preview belongs: in the lower right corner, where neither canvas nor palette covers
/// it, with an inside of that size.
QPoint BesidePalette(const QWidget& preview, QSize inside)
{
    const QSize whole = inside.grownBy(RoomForFrame(preview));
    const QRect free = preview.screen()->availableGeometry();
    const QPoint corner(free.left() + free.width() - PaletteStrip(), free.bottom());
    const QPoint place = corner - QPoint(whole.width(), whole.height());
    return {std::max(place.x(), free.left()), std::max(place.y(), free.top())};
}

/// Sizes and places the preview; where it would lie on the canvas's title it is set off below that.
void PlacePreview(HeldWindow& preview, QSize inside, const HeldWindow& canvas)
{
    preview.setScreen(canvas.screen());
    preview.alwaysBelow = false;
    const QPoint titleEnd = canvas.pos() + QPoint(canvas.width(), RoomForFrame(canvas).top());
    QPoint place = BesidePalette(preview, preview.Held(inside));
    preview.alwaysBelow = place.x() < titleEnd.x() && place.y() < titleEnd.y();
    if (preview.alwaysBelow) place.setY(titleEnd.y());
    // Once: of two sizes asked for in a row some window managers give the first.
    preview.SetInside(inside);
    preview.PlaceAt(place);
}

/// Shows preview and palette above the canvas, and goes to the main window.
void ShowTheOthers(Session& s)
{
    ShowInFront(s.form9);
    OpenOnScreenOf(s.form1, s.form10);
    ShowInFront(s.form10);
    BringForward(s.form1);
    KeepFocus(s.form1, s.form9);
    KeepFocus(s.form1, s.form10);
}

/// Shows the canvas, with the menus and the palette above it.
void ShowCanvas(Session& s)
{
    const bool appears = !s.form2.isVisible();
    ShowAgain(s.form2);
    if (!appears) return;
    BelongTo(s.form2, s.form1);
    BelongTo(s.form2, s.form10);
}

}  // namespace

void Estrai(Session& s, const QString& Percorso, std::optional<Surface> picture)
{
    // Where memory is too short for it, nothing has changed yet.
    if (picture) s.form9.Image1().SetPicture(*picture);
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
    s.form1.Enable(control::Salva, false);
}

QString WhyUnread(const Fault& fault, const QString& name)
{
    // Memory was too short for what the windows make of it; the readers name what they read.
    return fault.Kind() == FaultKind::OutOfMemory
               ? "Impossibile leggere «" + name + "»: la memoria non basta"
               : QString::fromUtf8(fault.what());
}

void Carica(Session& s, Surface picture)
{
    // A little wider and higher than the picture itself: kept exactly.
    constexpr double CanvasWidth = 15.8;
    constexpr double CanvasHeight = 16.8;
    constexpr double PreviewWidth = 15;
    constexpr double PreviewHeight = 15.2;
    const bool comesBack = s.form2.isMinimized();
    Work& w = s.work;
    PutOnCanvas(w, std::move(picture));
    s.form2.Picture1().FitPicture();
    s.form2.setScreen(s.form1.screen());
    // Of the smallest pictures, though, the border would hide columns.
    s.form2.SetInside(QSize(Pixels(w.Larg * CanvasWidth), Pixels(w.Alt * CanvasHeight))
                          .expandedTo(s.form2.Picture1().size()));
    // A panel of the desktop would lie on its title.
    s.form2.PlaceAt(s.form1.screen()->availableGeometry().topLeft());
    ShowCanvas(s);
    s.form9.Image1().SetStretch(false);
    const QSize inside(Pixels(w.Larg * PreviewWidth), Pixels(w.Alt * PreviewHeight));
    if (s.form9.isVisible() && s.form9.MovedByUser())
        s.form9.SetInside(inside);
    else
        PlacePreview(s.form9, inside, s.form2);
    ShowTheOthers(s);
    // A window that was minimised comes in its own time, above all others.
    constexpr int Coming = 300;
    if (comesBack) {
        KeepFocus(s.form1, s.form2);
        QTimer::singleShot(Coming, &s.form2, [&s] {
            if (QApplication::activeModalWidget() == nullptr) ShowTheOthers(s);
        });
    }
    s.form2.setWindowTitle(PictureCaption(s));
    s.form9.setWindowTitle(PreviewCaption(s, 1));
}

}  // namespace pixano
