#include "shell/answering.h"

#include "document/opening.h"
#include "shell/run.h"
#include "windows/window_operation.h"

#include <QApplication>
#include <QTimer>

#include <initializer_list>
#include <memory>
#include <utility>

namespace pixano {
namespace {

/// With the windows that are minimised; the menus get the focus.
void ComeForwardWithAll(Session& s)
{
    for (QWidget* const window : std::initializer_list<QWidget*>{&s.form2, &s.form9, &s.form10}) {
        // One that was closed while it was minimised still says so.
        if (!window->isVisible() || !window->isMinimized()) continue;
        ShowAgain(*window);
        KeepFocus(s.form1, *window);
    }
    BringForward(s.form1);
}

}  // namespace

void HearSecondStarts(Session& s, SecondStarts& starts)
{
    const auto waiting = std::make_shared<QStringList>();
    const auto openNext = [&s, waiting] {
        // cppcheck-suppress knownConditionTrueFalse ; it is filled below
        if (waiting->isEmpty() || s.ending) return;
        // cppcheck-suppress containerOutOfBounds ; it is not empty here
        RunCommand(s, "Apri", Fatal::None, [&] { OpenNamed(s, waiting->takeFirst()); });
    };
    s.afterCommand = [&s, openNext] { QTimer::singleShot(0, &s.form1, openNext); };
    // Whoever handed a picture over was told that it would be opened.
    s.beforeEnd = [&s, &starts, waiting] {
        // cppcheck-suppress knownConditionTrueFalse ; it is filled below
        while (!waiting->isEmpty()) {
            QStringList unopened = std::exchange(*waiting, {});
            unopened.removeDuplicates();
            s.dialogs.Tell(BoxIcon::Exclamation, title::Warning,
                           "Prima di chiudersi Pixano non ha aperto:\n«" + unopened.join("»,\n«") +
                               "».");
        }
        starts.StopListening();
    };
    QObject::connect(&starts, &SecondStarts::Called, &s.form1, [=, &s](const QString& picture) {
        if (QWidget* const asking = QApplication::activeModalWidget())
            BringForward(*asking);
        else if (picture.isEmpty())
            ComeForwardWithAll(s);
        else
            BringForward(s.form1);  // the opening does the rest
        if (!picture.isEmpty()) waiting->append(picture);
        openNext();
    });
}

}  // namespace pixano
