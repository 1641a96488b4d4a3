#include "document/loading.h"

#include "document/captions.h"
#include "document/enabling.h"
#include "effects/frame.h"
#include "windows/palette_strip.h"
#include "windows/twips.h"
#include "windows/window_operation.h"

#include <QScreen>

#include <algorithm>

namespace pixano {
namespace {

/// The preview starts in the lower right corner, where neither canvas nor palette covers it.
void PlaceBesidePalette(QWidget& preview)
{
    constexpr QPoint Frame(8, 34);
    const QRect free = preview.screen()->availableGeometry();
    const QPoint corner(preview.screen()->size().width() - PaletteStrip(), free.bottom());
    const QPoint place = corner - QPoint(preview.width(), preview.height()) - Frame;
    preview.move(std::max(place.x(), free.left()), std::max(place.y(), free.top()));
}

}  // namespace

void Estrai(Session& s, const QString& Percorso, std::optional<Surface> picture)
{
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

void Carica(Session& s, Surface picture)
{
    // A little wider and higher than the picture itself: kept exactly.
    constexpr double CanvasWidth = 15.8;
    constexpr double CanvasHeight = 16.8;
    constexpr double PreviewWidth = 15;
    constexpr double PreviewHeight = 15.2;
    Work& w = s.work;
    PutOnCanvas(w, std::move(picture));
    s.form2.Picture1().FitPicture();
    s.form2.move(0, 0);
    s.form2.SetInside({Pixels(w.Larg * CanvasWidth), Pixels(w.Alt * CanvasHeight)});
    s.form2.show();
    s.form9.Image1().SetStretch(false);
    s.form9.Image1().SetPicture(w.Picture1);
    s.form9.SetInside({Pixels(w.Larg * PreviewWidth), Pixels(w.Alt * PreviewHeight)});
    if (!s.form9.isVisible()) PlaceBesidePalette(s.form9);
    s.form9.show();
    BringForward(s.form10);
    BringForward(s.form1);
    s.form2.setWindowTitle(PictureCaption(s));
    s.form9.setWindowTitle(PreviewCaption(s, 1));
}

}  // namespace pixano
