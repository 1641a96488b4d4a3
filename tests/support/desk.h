// The whole windowed program with a scripted user, in folders of its own.
#pragma once

#include "pictures/picture_files.h"
#include "shell/commands.h"
#include "shell/controls.h"
#include "shell/effect_frame.h"
#include "shell/events.h"
#include "shell/run.h"
#include "shell/shut_down.h"
#include "shell/start_up.h"
#include "support/effect_run.h"
#include "support/entries.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

namespace pixano::test {

/// Two folders of a test's own: the one that the program runs in, and its data folder.
class Folders {
  public:
    Folders() : before_(QDir::currentPath())
    {
        qputenv("XDG_DATA_HOME", folder_.filePath("data").toUtf8());
        QDir(folder_.path()).mkdir("work");
        QDir::setCurrent(folder_.filePath("work"));
    }
    ~Folders() { QDir::setCurrent(before_); }
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;

    QString Root() const { return folder_.path(); }
    /// A path in the folder that the program runs in.
    static QString Path(const QString& name) { return QDir::current().filePath(name); }
    /// A path in the program's data folder.
    QString Data(const QString& name) const { return folder_.filePath("data/pixano/" + name); }

  private:
    QTemporaryDir folder_;
    QString before_;
};

/// Does that to the start-up picture's window once it is up.
inline void OnceStartUpPictureIsUp(const std::function<void(QWidget&)>& closing)
{
    QTimer::singleShot(0, [closing] {
        QWidget* const modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        closing(*modal);
    });
}
inline void ClickAway(QWidget& startUpPicture)
{
    QTest::mouseClick(startUpPicture.findChild<QWidget*>("Picture1"), Qt::LeftButton);
}

/// A program that ended in an earlier test leaves word to every event loop; only a new main loop
/// forgets it.
inline void ForgetEarlierEnd()
{
    QTimer::singleShot(0, [] { QApplication::exit(0); });
    QApplication::exec();
}

/// The program's session before its start; what users do in it. Folders come before it.
class Desk {
  public:
    explicit Desk(const Controls& controls = ProgramControls())
        : session(dialogs, controls, Timer(1))
    {
        ForgetEarlierEnd();
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Runs the start-up; `closing` is done to the start-up picture's window once it is up.
    void Start(const std::function<void(QWidget&)>& closing = ClickAway)
    {
        OnceStartUpPictureIsUp(closing);
        RunCommand(session, "Avvio", Fatal::All, [&] { Form_Load(session); });
    }

    /// Opens the picture by way of the menu; the dialog answers with that name.
    void Open(const QString& path)
    {
        dialogs.openNames.push_back(path);
        ClickEntry(entry::Apri);
    }
    /// Saves by way of the menu; the dialog answers with that name.
    void SaveAs(const QString& path)
    {
        dialogs.saveNames.push_back(path);
        ClickEntry(entry::Salva);
    }
    /// Clicks the menu entry with that `Index` as a user would; it has to be enabled.
    void ClickEntry(int index)
    {
        EXPECT_TRUE(Enabled(index)) << Entry(index).objectName().toStdString();
        Entry(index).trigger();
    }
    bool Enabled(int index) const { return Entry(index).isEnabled(); }
    QAction& Entry(int index) const { return session.form1.Control(index - 1); }
    QPushButton& Button(const char* name) { return *session.form10.findChild<QPushButton*>(name); }

    /// Runs the effect of that name as a command, without what its control would ask first.
    void Apply(const char* effect)
    {
        const Effect* const row = FindEffect(effect);
        ASSERT_NE(row, nullptr) << effect;
        RunInFrame(*row);
    }
    void RunInFrame(const Effect& effect)
    {
        RunCommand(session, NameOf(effect), effect.fatal, [&] { RunEffect(session, effect); });
    }
    const Surface& Canvas() const { return session.work.Picture1; }

    ScriptedDialogs dialogs;
    Session session;
};

/// The program, started.
class StartedDesk : public Desk {
  public:
    StartedDesk()
    {
        ConnectEvents(session);
        Start();
    }
};

}  // namespace pixano::test
