// The windowed program in an empty folder with an empty data folder, for tests that start it more
// than once.
#pragma once

#include "pictures/picture_files.h"
#include "shell/commands.h"
#include "shell/controls.h"
#include "shell/effect_frame.h"
#include "shell/events.h"
#include "shell/run.h"
#include "shell/shut_down.h"
#include "shell/start_up.h"
#include "support/entries.h"
#include "support/scripted_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace pixano::test {

/// Two folders of a test's own: the one that the program runs in, and its data folder.
class Folders {
  public:
    Folders() : before_(QDir::currentPath())
    {
        qputenv("XDG_DATA_HOME", folder_.filePath("home").toUtf8());
        QDir(folder_.path()).mkdir("work");
        QDir::setCurrent(folder_.filePath("work"));
    }
    ~Folders() { QDir::setCurrent(before_); }

    QString Root() const { return folder_.path(); }
    static QString Work(const QString& name) { return QDir::current().filePath(name); }
    QString Data(const QString& name) const { return folder_.filePath("home/pixano/" + name); }

  private:
    QTemporaryDir folder_;
    QString before_;
};

/// Once a modal window is up, clicks its start-up picture.
inline void ClickAway()
{
    QTimer::singleShot(0, [] {
        auto* const modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        QTest::mouseClick(modal->findChild<QWidget*>("Picture1"), Qt::LeftButton);
    });
}

/// The program, started; `folders` outlives it.
class Desk {
  public:
    Desk()
    {
        ConnectEvents(session);
        ClickAway();
        Run(session, "Avvio", FaultEnds::Program, [this] { Form_Load(session); });
    }

    ~Desk()
    {
        // The application, too, was told to end; the next desk needs it.
        if (!session.ending) return;
        QTimer::singleShot(0, [] { QApplication::exit(0); });
        QApplication::exec();
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void Click(int entry) { session.form1.Control(entry - 1).trigger(); }
    void Open(const QString& path)
    {
        dialogs.openNames.push_back(path);
        Click(entry::Apri);
    }
    void Apply(const char* effect)
    {
        const Effect* const row = FindEffect(effect);
        ASSERT_NE(row, nullptr) << effect;
        Run(session, effect, row->faultEnds, [&] { RunEffect(session, *row); });
    }
    const Surface& Canvas() const { return session.work.Picture1; }

    ScriptedDialogs dialogs;
    Session session{dialogs, ProgramControls(), Timer(1)};
};

}  // namespace pixano::test
