// The whole windowed program with a scripted user, in a folder of its own.
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
#include <QFileInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace pixano::test {

/// Which of the history commands can be used.
struct History {
    bool annulla;
    bool originale;
    bool ripristina;

    friend bool operator==(const History&, const History&) = default;
    friend std::ostream& operator<<(std::ostream& out, const History& h)
    {
        return out << "Annulla " << h.annulla << ", Originale " << h.originale << ", Ripristina "
                   << h.ripristina;
    }
};

/// The session in an empty folder, with an empty data folder; nothing has connected its events yet.
class SessionInFolders : public testing::Test {
  protected:
    explicit SessionInFolders(const Controls& controls = ProgramControls())
        : session(dialogs, controls, Timer(1)), before_(QDir::currentPath())
    {
        ForgetEarlierEnd();
        qputenv("XDG_DATA_HOME", folder_.filePath("data").toUtf8());
        QDir(folder_.path()).mkdir("work");
        QDir::setCurrent(folder_.filePath("work"));
    }
    ~SessionInFolders() override { QDir::setCurrent(before_); }

    /// Does that to the start-up picture's window once it is up.
    static void OnceStartUpPictureIsUp(const std::function<void(QWidget&)>& closing)
    {
        QTimer::singleShot(0, [closing] {
            QWidget* const modal = QApplication::activeModalWidget();
            ASSERT_NE(modal, nullptr);
            closing(*modal);
        });
    }
    static void ClickAway(QWidget& startUpPicture)
    {
        QTest::mouseClick(startUpPicture.findChild<QWidget*>("Picture1"), Qt::LeftButton);
    }

    /// A path in the folder that the program runs in.
    static QString Path(const QString& name) { return QDir::current().filePath(name); }
    /// A path in the program's data folder.
    QString Data(const QString& name) const { return folder_.filePath("data/pixano/" + name); }
    /// The bytes of a file in the folder that the program runs in, or of one named in full.
    static std::string Bytes(const QString& name) { return BytesOf(Path(name).toStdString()); }
    static void Write(const QString& name, const std::string& bytes)
    {
        WriteBytes(Path(name).toStdString(), bytes);
    }
    static bool Exists(const QString& path) { return QFileInfo::exists(path); }
    /// The letters of the picture in that file.
    static Letters Kept(const QString& path)
    {
        return LettersOf(ReadPicture(path.toStdString()).picture);
    }

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
        RunInFrame(*row);
    }
    /// Runs the effect as a command, without what its control would ask first.
    void RunInFrame(const Effect& effect)
    {
        pixano::Run(session, NameOf(effect), effect.faultEnds, [&] { RunEffect(session, effect); });
    }
    /// Saves by way of the menu; the dialog answers with that name.
    void SaveAs(const QString& path)
    {
        dialogs.saveNames.push_back(path);
        ClickEntry(entry::Salva);
    }

    QPushButton& Button(const char* name) { return *session.form10.findChild<QPushButton*>(name); }
    History MenuHistory() const
    {
        return {Enabled(entry::Undo), Enabled(entry::Orig), Enabled(entry::Redo)};
    }
    History PaletteHistory()
    {
        return {Button("SSCommand15").isEnabled(), Button("SSCommand16").isEnabled(),
                Button("SSCommand17").isEnabled()};
    }

    const Surface& Canvas() const { return session.work.Picture1; }
    Letters CanvasLetters() const { return LettersOf(Canvas()); }
    Letters PreviewLetters() { return LettersOf(session.form9.Image1().Picture()); }
    QString CanvasCaption() const { return session.form2.windowTitle(); }
    QString PreviewCaption() const { return session.form9.windowTitle(); }

    QTemporaryDir folder_;
    ScriptedDialogs dialogs;
    Session session;

  private:
    /// A program that ended in an earlier test leaves word to every event loop; only a new main
    /// loop forgets it.
    static void ForgetEarlierEnd()
    {
        QTimer::singleShot(0, [] { QApplication::exit(0); });
        QApplication::exec();
    }

    QString before_;
};

/// The program as it is before its start.
class UnstartedProgram : public SessionInFolders {
  protected:
    explicit UnstartedProgram(const Controls& controls = ProgramControls())
        : SessionInFolders(controls)
    {
        ConnectEvents(session);
    }

    /// Runs the start-up; `closing` is done to the start-up picture's window once it is up.
    void Start(const std::function<void(QWidget&)>& closing)
    {
        OnceStartUpPictureIsUp(closing);
        pixano::Run(session, "Avvio", FaultEnds::Program, [&] { Form_Load(session); });
    }
};

/// Starts the program and clicks the start-up picture away.
class Program : public UnstartedProgram {
  protected:
    explicit Program(const Controls& controls = ProgramControls()) : UnstartedProgram(controls)
    {
        Start(ClickAway);
    }
};

}  // namespace pixano::test
