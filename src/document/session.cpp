#include "document/session.h"

#include "document/places.h"
#include "files/text_store.h"
#include "windows/file_names.h"
#include "windows/palette_strip.h"

#include <QApplication>

namespace pixano {

Session::Session(Dialogs& dialogBoxes, const Controls& controls, Timer timer)
    : dialogs(dialogBoxes),
      form1(controls.menu),
      progress(form4),
      work(TextStore(FileBytes(file::Pixels)), progress, timer),
      form2(work.Picture1),
      form10(controls.palette)
{
    form2.leftFree = PaletteStrip();
    form9.leftFree = PaletteStrip();
    form9.titleFree = &form2;
    form4.effectName = [this] { return doc.Effetto; };
}

void EndProgram(Session& s, int status)
{
    s.beforeEnd();
    s.ending = status;
    for (QWidget* window :
         std::initializer_list<QWidget*>{&s.form10, &s.form9, &s.form4, &s.form2, &s.form1})
        window->hide();
    QApplication::exit(status);
}

}  // namespace pixano
