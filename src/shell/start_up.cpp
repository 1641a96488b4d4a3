#include "shell/start_up.h"

#include "document/enabling.h"
#include "panels/form6.h"
#include "windows/file_names.h"
#include "windows/free_screen.h"
#include "windows/twips.h"

#include <QScreen>

namespace pixano {
namespace {

void PlaceMainWindow(Form1& window)
{
    constexpr double AboveTheMiddle = 3200;
    const QRect screen = window.screen()->geometry();
    const double left = (screen.width() - window.width()) / 2.0;
    const double top =
        screen.height() / 2.0 - window.height() / 2.0 - AboveTheMiddle / TwipsPerPixel;
    window.move(screen.topLeft() + QPoint(qRound(left), qRound(top)));
    // A place above the upper edge is kept where a pixel is a pixel. Enlarged, though, a screen of
    // the usual size is so low that the menus would be out of reach.
    if (window.devicePixelRatio() > 1) KeepOnScreen(window);
}

}  // namespace

void Form_Load(Session& s)
{
    PlaceMainWindow(s.form1);
    s.doc.CartellaAvvio = CurrentFolder();
    if (s.doc.firstFolder.isEmpty()) s.doc.firstFolder = s.doc.CartellaAvvio;
    s.form1.show();
    Form6 opening;
    opening.exec();
    Disabil(s);
}

}  // namespace pixano
