// Working files that are not what the program left: whatever a command finds in their place, it
// does what it has to, or says so. It never waits, never follows a link, never shows another
// picture.
#include "reliability/tampering.h"
#include "reliability/working_commands.h"

#include <algorithm>
#include <functional>

namespace pixano::test {
namespace {

/// Words are no numbers, which read as 0; five of them are missing all the same, and so are five in
/// a picture.
bool Denied(const Command& command, const std::string& file, const std::string& tampering)
{
    const bool inTheWay = tampering == "folder" && command.writes.contains(file);
    return command.reads.contains(file) || (inTheWay && !command.silent);
}

class WorkingFiles : public Watched<testing::TestWithParam<std::tuple<std::string, Tampering>>> {};

TEST_P(WorkingFiles, AreRepairedOrReported)
{
    const auto& [file, tampering] = GetParam();
    for (const Command& command : Commands()) {
        SCOPED_TRACE(command.name);
        const Folders folders;
        const Elsewhere elsewhere(folders.Root().toStdString() + "/altrove.bmp");
        Busy busy;
        const QString name = QString::fromStdString(file);
        const QString path = InDataFolder(file) ? folders.Data(name) : Folders::Path(name);
        const bool redo = std::string(command.name) == "redo";
        tampering.with(path.toStdString(), elsewhere);
        command.give(busy);
        const bool folder = std::string(tampering.name) == "folder";
        // "Originale" has just written what "Ripristina" reads, or has it in memory.
        const bool denied = !redo && Denied(command, file, tampering.name);
        // What goes on all the same, though a file could not be written, tells of it.
        const bool remarked = folder && (file == "recupero.txt" || command.writes.contains(file) ||
                                         (redo && file == "temp2.bml"));
        if (!remarked) {
            EXPECT_EQ(!busy.desk.dialogs.told.empty(), denied && !command.silent);
        }
        EXPECT_LE(busy.desk.dialogs.told.size(), 1U);
        ExpectWhatTheCommandMeans(command, busy, denied);
        EXPECT_NE(busy.desk.Canvas(), elsewhere.Picture());
        EXPECT_TRUE(elsewhere.Untouched());
        EXPECT_FALSE(std::filesystem::exists(elsewhere.Path().string() + ".nuovo"));
    }
}

std::string NameOf(const testing::TestParamInfo<std::tuple<std::string, Tampering>>& info)
{
    std::string name = std::get<0>(info.param) + '_' + std::get<1>(info.param).name;
    std::ranges::replace(name, '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Each, WorkingFiles,
                         testing::Combine(testing::Values("temp.bml", "temp2.bml", "elab.ser",
                                                          "elabor.tmp", "percors.dat", "valori.tip",
                                                          "recupero.txt"),
                                          testing::ValuesIn(Tamperings)),
                         NameOf);

std::string TamperingName(const testing::TestParamInfo<Tampering>& info)
{
    return info.param.name;
}

/// "Ripristina" reads what an undo has left.
class RedoSnapshot : public Watched<testing::TestWithParam<Tampering>> {};

TEST_P(RedoSnapshot, IsReportedWhenItIsNotTheOneThatWasLeft)
{
    const Folders folders;
    const Elsewhere elsewhere(folders.Root().toStdString() + "/altrove.bmp");
    Busy busy;
    busy.desk.ClickEntry(entry::Undo);
    GetParam().with(folders.Data("temp2.bml").toStdString(), elsewhere);
    busy.desk.ClickEntry(entry::Redo);
    EXPECT_EQ(busy.desk.dialogs.told.size(), 1U);
    EXPECT_EQ(busy.desk.Canvas(), busy.first);
    EXPECT_TRUE(elsewhere.Untouched());
}

INSTANTIATE_TEST_SUITE_P(Each, RedoSnapshot, testing::ValuesIn(Tamperings), TamperingName);

/// Does something once the progress window appears: the pixels are captured then and not yet read.
class OnceCaptured : public QObject {
  public:
    OnceCaptured(Session& session, std::function<void()> then) : then_(std::move(then))
    {
        session.form4.installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) then_();
        return QObject::eventFilter(watched, event);
    }

  private:
    std::function<void()> then_;
};

class PixelFileMeanwhile : public Watched<testing::TestWithParam<Tampering>> {};

TEST_P(PixelFileMeanwhile, EndsTheEffectWithAMessage)
{
    const Folders folders;
    const Elsewhere elsewhere(folders.Root().toStdString() + "/altrove.bmp");
    Busy busy;
    {
        const OnceCaptured then(busy.desk.session, [&] {
            GetParam().with(Folders::Path("elab.ser").toStdString(), elsewhere);
        });
        busy.desk.Apply("Specchio");
    }
    ASSERT_EQ(busy.desk.dialogs.told.size(), 1U);
    EXPECT_TRUE(busy.desk.dialogs.told.front().text.startsWith("Errore durante il comando"));
    EXPECT_TRUE(elsewhere.Untouched());
    // What is in the way may still be in the way: a folder is not the program's own to delete.
    std::filesystem::remove_all("elab.ser");
    busy.desk.session.form4.close();
    busy.desk.ClickEntry(entry::Undo);
    EXPECT_EQ(busy.desk.Canvas(), busy.second) << "the picture before the effect is not lost";
}

INSTANTIATE_TEST_SUITE_P(Each, PixelFileMeanwhile, testing::ValuesIn(Tamperings), TamperingName);

TEST(RememberedPathLink, IsNotRead)
{
    const Folders folders;
    Busy busy;
    const std::string elsewhere = folders.Root().toStdString() + "/altrove.txt";
    tampering::Put(elsewhere, "\"/usr/share/figura.bmp\"\r\n");
    std::filesystem::remove("percors.dat");
    std::filesystem::create_symlink(elsewhere, "percors.dat");
    busy.desk.dialogs.answers.push_back(false);
    busy.desk.dialogs.openNames.push_back(std::nullopt);
    busy.desk.ClickEntry(entry::Apri);
    EXPECT_EQ(busy.desk.dialogs.openFolders.back(), QDir::currentPath());
}

}  // namespace
}  // namespace pixano::test
