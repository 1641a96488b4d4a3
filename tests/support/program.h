// The windowed program as a fixture: a desk in folders of its own.
#pragma once

#include "support/desk.h"

namespace pixano::test {

/// Whether another window takes the focus back from that one, as it does for a moment.
inline bool FocusIsKeptFrom(const QWidget& raised)
{
    return raised.findChild<QObject*>("FocusKeeper") != nullptr;
}

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
class SessionInFolders : public testing::Test, protected Folders, protected Desk {
  protected:
    explicit SessionInFolders(const Controls& controls = ProgramControls()) : Desk(controls) {}

    /// The bytes of a file in the folder that the program runs in, or of one named in full.
    static std::string Bytes(const QString& name) { return BytesOf(Path(name).toStdString()); }
    static void Write(const QString& name, const std::string& bytes)
    {
        WriteBytes(Path(name).toStdString(), bytes);
    }
    /// The path of a file beside the program.
    QString Beside(const QString& name) const { return Root() + "/program/" + name; }
    /// Puts the file beside the program, which lies in a folder of its own.
    void Ship(const QString& name, const std::string& bytes)
    {
        QDir(Root()).mkdir("program");
        session.programFolder = Root() + "/program";
        Write(Beside(name), bytes);
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
    using Desk::Open;
    void Open(const QString& name, const Surface& picture) { Open(Made(name, picture)); }

    History MenuHistory() const
    {
        return {Enabled(entry::Undo), Enabled(entry::Orig), Enabled(entry::Redo)};
    }
    History PaletteHistory()
    {
        return {Button("SSCommand15").isEnabled(), Button("SSCommand16").isEnabled(),
                Button("SSCommand17").isEnabled()};
    }

    Letters CanvasLetters() const { return LettersOf(Canvas()); }
    Letters PreviewLetters() { return LettersOf(session.form9.Image1().Picture()); }
    QString CanvasCaption() const { return session.form2.windowTitle(); }
    QString PreviewCaption() const { return session.form9.windowTitle(); }
};

/// The program as it is before its start.
class UnstartedProgram : public SessionInFolders {
  protected:
    explicit UnstartedProgram(const Controls& controls = ProgramControls())
        : SessionInFolders(controls)
    {
        ConnectEvents(session);
    }
};

/// Starts the program and clicks the start-up picture away.
class Program : public UnstartedProgram {
  protected:
    explicit Program(const Controls& controls = ProgramControls()) : UnstartedProgram(controls)
    {
        Start();
    }
};

}  // namespace pixano::test
