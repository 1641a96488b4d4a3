// The picture that is opened is never written, whatever is done with it.
#include "support/program.h"
#include "support/temporary_folder.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

/// A file as the system sees it; only the time of the last reading is left out.
struct FileState {
    std::string bytes;
    ino_t number = 0;
    mode_t mode = 0;
    std::int64_t modified = 0;
    std::int64_t changed = 0;

    friend bool operator==(const FileState&, const FileState&) = default;
};

std::int64_t Nanoseconds(const timespec& time)
{
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileState StateOf(const QString& path)
{
    struct stat status = {};
    stat(path.toStdString().c_str(), &status);
    return {BytesOf(path.toStdString()), status.st_ino, status.st_mode, Nanoseconds(status.st_mtim),
            Nanoseconds(status.st_ctim)};
}

class OpenedFile : public Program {
  protected:
    OpenedFile()
    {
        QDir().mkdir("foto");
        picture = Made("foto/aperta.bmp", Varied(30, 20));
        before = StateOf(picture);
        Open(picture);
    }

    void ExpectUntouched() const
    {
        EXPECT_EQ(StateOf(picture), before);
        EXPECT_EQ(QDir("foto").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList("aperta.bmp"));
    }

    QString picture;
    FileState before;
};

TEST_F(OpenedFile, IsUntouchedByEveryEffectAndEveryStepOfTheHistory)
{
    for (const Effect& effect : Effects) {
        RunInFrame(effect);
        ExpectUntouched();
        if (HasFailure()) FAIL() << effect.name;
    }
    for (const int step : {entry::Undo, entry::Redo, entry::Undo, entry::Orig}) {
        ClickEntry(step);
        ExpectUntouched();
    }
}

TEST_F(OpenedFile, IsUntouchedBySavingElsewhereAndByTheEnd)
{
    Apply("Specchio");
    SaveAs(Path("salvata.bmp"));
    ExpectUntouched();
    Apply("Specchio");
    session.doc.NomeSalvato = Path("salvata.bmp");
    dialogs.answers.push_back(true);
    ClickEntry(entry::Esci);
    EXPECT_EQ(session.ending, 0);
    EXPECT_EQ(ReadPicture(Path("salvata.bmp").toStdString()).picture, Varied(30, 20));
    ExpectUntouched();
}

TEST_F(OpenedFile, IsUntouchedWhenChangesAreThrownAway)
{
    Apply("Specchio");
    dialogs.answers.push_back(false);
    session.form2.close();
    EXPECT_FALSE(session.form2.isVisible());
    ExpectUntouched();
}

}  // namespace
}  // namespace pixano::test
