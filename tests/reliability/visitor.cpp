// The windowed program visiting a picture that somebody else has made: opens it, tries every
// command on it but saving, and ends: pixano-visitor PICTURE.
#include "shell/application.h"
#include "shell/commands.h"
#include "shell/controls.h"
#include "shell/events.h"
#include "shell/program.h"
#include "shell/run.h"
#include "support/entries.h"
#include "support/scripted_dialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <iostream>

namespace pixano::test {
namespace {

const Starts& StartedBy(int index)
{
    return MenuEntries()[static_cast<std::size_t>(index - 1)].starts;
}

void EverythingButSaving(Session& s)
{
    for (int index = 1; index <= 60; ++index)
        if (EffectIn(StartedBy(index)) != nullptr) Start(s, StartedBy(index));
    for (const int index : {entry::Undo, entry::Redo, entry::Orig, entry::Redo})
        Start(s, StartedBy(index));
    for (const PaletteButton& button : PaletteButtons()) {
        // A slider window that comes up is confirmed.
        QTimer::singleShot(0, [] {
            if (auto* const modal = QApplication::activeModalWidget())
                modal->findChild<QPushButton*>("Command1")->click();
        });
        Start(s, button.starts);
        QCoreApplication::processEvents();
    }
}

class Visitor {
  public:
    Visitor(Session& session, ScriptedDialogs& dialogs) : session_(session), dialogs_(dialogs) {}

    void Live()
    {
        QTimer::singleShot(0, [this] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (modal != nullptr && modal->objectName() == "Form6") {
                QTest::mouseClick(modal->findChild<QWidget*>("Picture1"), Qt::LeftButton);
                Live();
            } else if (session_.busy) {
                Live();
            } else {
                Visit();
            }
        });
    }

  private:
    void Visit()
    {
        std::cout << (session_.doc.open ? "open" : "not open") << std::endl;
        EverythingButSaving(session_);
        if (session_.doc.Modificato == 1) dialogs_.answers.push_back(false);
        Start(session_, StartedBy(entry::Esci));
    }

    Session& session_;
    ScriptedDialogs& dialogs_;
};

}  // namespace
}  // namespace pixano::test

int main(int argc, char* argv[])
{
    using namespace pixano;
    QApplication application(argc, argv);
    PrepareApplication(application);
    test::ScriptedDialogs dialogs;
    Session session(dialogs, ProgramControls(), Timer(1));
    test::Visitor visitor(session, dialogs);
    visitor.Live();
    Options options;
    options.picture = argv[1];
    const int status = RunAsOnlyInstance(session, options);
    for (const test::ShownBox& box : dialogs.told)
        std::cout << "told " << box.text.toStdString() << std::endl;
    return status;
}
