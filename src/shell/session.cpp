#include "shell/session.h"

#include "shell/places.h"

#include <QApplication>

namespace pixano {

Session::Session(Dialogs& dialogBoxes, Timer timer)
    : dialogs(dialogBoxes),
      progress(form4),
      work(TextStore(file::Pixels.toStdString()), progress, timer),
      form2(work.Picture1)
{
    form2.leftFree = Form10::FromRightEdge();
    form9.leftFree = Form10::FromRightEdge();
    form4.effectName = [this] { return doc.Effetto; };
}

void EndProgram(Session& s, int status)
{
    s.ending = status;
    for (QWidget* window :
         std::initializer_list<QWidget*>{&s.form10, &s.form9, &s.form4, &s.form2, &s.form1})
        window->hide();
    QApplication::exit(status);
}

}  // namespace pixano
