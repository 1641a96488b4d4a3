// The whole windowed program with a scripted user, in a folder of its own.
#pragma once

#include "pictures/picture_files.h"
#include "shell/commands.h"
#include "shell/menu_table.h"
#include "shell/palette_commands.h"
#include "shell/start_end.h"
#include "support/effect_run.h"
#include "support/scripted_dialogs.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace pixano::test {

/// Starts the program in an empty folder, with an empty data folder, and clicks the start-up
/// picture away.
class Program : public testing::Test {
  protected:
    Program() : before_(QDir::currentPath())
    {
        qputenv("XDG_DATA_HOME", folder_.filePath("data").toUtf8());
        QDir(folder_.path()).mkdir("work");
        QDir::setCurrent(folder_.filePath("work"));
        ConnectEvents(session);
        ClickAway();
        Run(session, "Avvio", FaultEnds::Program, [&] { Form_Load(session); });
    }
    ~Program() override { QDir::setCurrent(before_); }

    /// A path in the folder that the program runs in.
    static QString Path(const QString& name) { return QDir::current().filePath(name); }

    /// Makes a bitmap of the picture and gives its path.
    static QString Made(const QString& name, const Surface& picture)
    {
        SaveBitmap(picture, Path(name).toStdString());
        return Path(name);
    }

    /// Opens the picture by way of the menu; the dialog answers with that name.
    void Open(const QString& path)
    {
        dialogs.openNames.push_back(path);
        ClickEntry(entry::Apri);
    }
    void Open(const QString& name, const Surface& picture) { Open(Made(name, picture)); }

    /// Clicks the menu entry with that `Index` as a user would; it has to be enabled.
    void ClickEntry(int index)
    {
        QAction& action = session.form1.Control(index - 1);
        EXPECT_TRUE(action.isEnabled()) << action.objectName().toStdString();
        action.trigger();
    }
    bool Enabled(int index) const { return session.form1.Control(index - 1).isEnabled(); }
    /// Runs the effect of that name as its control does.
    void Apply(const char* effect)
    {
        const Effect* const row = FindEffect(effect);
        ASSERT_NE(row, nullptr) << effect;
        RunEffectCommand(session, *row);
    }

    /// Once a modal window is up, clicks its start-up picture.
    static void ClickAway()
    {
        QTimer::singleShot(0, [] {
            auto* const modal = QApplication::activeModalWidget();
            ASSERT_NE(modal, nullptr);
            QTest::mouseClick(modal->findChild<QWidget*>("Picture1"), Qt::LeftButton);
        });
    }

    const Surface& Canvas() const { return session.work.Picture1; }
    QString CanvasCaption() const { return session.form2.windowTitle(); }
    QString PreviewCaption() const { return session.form9.windowTitle(); }

    QTemporaryDir folder_;
    ScriptedDialogs dialogs;
    Session session{dialogs, Timer(1)};

  private:
    QString before_;
};

}  // namespace pixano::test
