// Working files that are not what the program left: whatever a command finds in their place, it
// does what it has to, or says so. It never waits, never follows a link, never shows another
// picture.
#include "reliability/busy.h"
#include "reliability/tampering.h"
#include "shell/commands.h"
#include "support/hindrances.h"

#include <QPushButton>
#include <QSlider>

#include <functional>
#include <set>

#include <unistd.h>

namespace pixano::test {
namespace {

struct Command {
    const char* name;
    void (*give)(Busy& busy);
    /// The files that it cannot do without when they are not what they were.
    std::set<std::string> reads;
    /// The files whose place it needs, which only a folder denies it.
    std::set<std::string> writes;
    /// Errors are passed over.
    bool silent = false;
};

void AnswerSlider()
{
    QTimer::singleShot(0, [] {
        auto* const window = QApplication::activeModalWidget();
        // A window that could not read its strength is gone by now.
        if (window == nullptr) return;
        window->findChild<QSlider*>("Slider1")->setValue(700);
        window->findChild<QPushButton*>("Command1")->click();
        // The strengths could not be kept: the user thinks better of it.
        if (window->isVisible()) window->findChild<QPushButton*>("Command2")->click();
    });
}

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"effect",
         [](Busy& b) { b.desk.Apply("Specchio"); },
         {},
         {"temp.bml", "elab.ser", "elabor.tmp"}},
        {"turn", [](Busy& b) { b.desk.Apply("Rotazione +90°"); }, {}, {"temp.bml", "elabor.tmp"}},
        {"undo",
         [](Busy& b) { b.desk.ClickEntry(entry::Undo); },
         {"temp.bml"},
         {"temp2.bml"},
         true},
        {"redo",
         [](Busy& b) {
             b.desk.ClickEntry(entry::Orig);
             b.desk.dialogs.told.clear();
             b.desk.ClickEntry(entry::Redo);
         },
         {},
         {"temp2.bml"}},
        {"original", [](Busy& b) { b.desk.ClickEntry(entry::Orig); }, {}, {"temp2.bml"}, true},
        {"open",
         [](Busy& b) {
             b.desk.dialogs.answers.push_back(false);
             b.desk.Open(Folders::Path("b.bmp"));
         },
         {},
         {"percors.dat"},
         true},
        {"zoom",
         [](Busy& b) {
             Start(b.desk.session, PaletteButtons()[PaletteButtons().size() - 2].starts);
         },
         {},
         {"elabor.tmp"}},
        {"slider",
         [](Busy& b) {
             AnswerSlider();
             b.desk.session.form10.findChild<QPushButton*>("SSCommand6")->click();
         },
         {"valori.tip"},
         {"temp.bml", "elab.ser", "elabor.tmp"}},
        {"end",
         [](Busy& b) {
             b.desk.dialogs.answers.push_back(false);
             b.desk.ClickEntry(entry::Esci);
         },
         {},
         {"temp.bml", "temp2.bml", "elabor.tmp"}},
    };
    return commands;
}

bool InDataFolder(const std::string& file)
{
    return file.starts_with("temp") || file == "recupero.txt";
}

/// Words are no numbers, which read as 0; five of them are missing all the same, and so are five in
/// a picture.
bool Denied(const Command& command, const std::string& file, const std::string& tampering)
{
    const bool inTheWay = tampering == "folder" && command.writes.contains(file);
    return command.reads.contains(file) || (inTheWay && !command.silent);
}

/// Whatever waits, waits for ever: the signal ends the tests.
template <typename Base = testing::Test>
class Watched : public Base {
  protected:
    void SetUp() override { alarm(60); }
    void TearDown() override { alarm(0); }
};

class WorkingFiles : public Watched<testing::TestWithParam<std::tuple<std::string, Tampering>>> {};

void ExpectWhatTheCommandMeans(const Command& command, Busy& busy, bool denied)
{
    const std::string name = command.name;
    const Surface& canvas = busy.desk.Canvas();
    if (name == "undo") {
        EXPECT_EQ(canvas, denied ? busy.second : busy.first);
    }
    if (name == "redo") {
        EXPECT_EQ(canvas, busy.second);
    }
    if (name == "original") {
        EXPECT_EQ(canvas, OpenedPicture());
    }
    if (name == "open") {
        EXPECT_EQ(canvas, Surface(3, 2, 0xFF));
    }
    if (name == "zoom" || name == "end") {
        EXPECT_EQ(canvas, busy.second);
    }
    if (name == "effect" && !denied) {
        EXPECT_NE(canvas, busy.second);
    }
    if (name == "end")
        EXPECT_EQ(busy.desk.session.ending, std::optional(denied ? 1 : 0));
    else if (name != "slider") {
        EXPECT_FALSE(busy.desk.session.ending);
    }
}

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

class DiskTrouble : public Watched<> {};

TEST_F(DiskTrouble, AFullDiskIsReportedAndLosesNothing)
{
    // Nothing fits; the snapshot of 198 bytes fits, the 63 pixel values as text do not.
    for (const rlim_t bytes : {rlim_t(0), rlim_t(250)}) {
        for (const Command& command : Commands()) {
            SCOPED_TRACE(std::string(command.name) + ' ' + std::to_string(bytes));
            const Folders folders;
            Busy busy;
            const std::string name = command.name;
            {
                const FileSizeLimit disk(bytes);
                command.give(busy);
            }
            const bool denied = (name == "effect" || name == "slider") ||
                                (bytes == 0 && (name == "turn" || name == "zoom"));
            const bool remarked = bytes == 0 && (name == "undo" || name == "original");
            if (name != "redo") {
                EXPECT_EQ(!busy.desk.dialogs.told.empty(), denied || remarked);
            }
            // "Ripristina" then shows what "Annulla" had left, or says that it cannot.
            const bool usual = !denied && name != "redo";
            if (usual && name != "undo" && name != "end")
                ExpectWhatTheCommandMeans(command, busy, false);
            if (denied && name != "turn" && name != "zoom") {
                EXPECT_EQ(busy.desk.Canvas(), busy.second);
            }
        }
    }
}

TEST_F(DiskTrouble, AnUnwritableFolderIsReportedAndLosesNothing)
{
    for (const bool data : {false, true}) {
        for (const Command& command : Commands()) {
            SCOPED_TRACE(std::string(command.name) + (data ? ", data folder" : ", current folder"));
            const std::string name = command.name;
            const Folders folders;
            Busy busy;
            const OrdinaryUser user{folders.Root().toStdString()};
            const Locked locked((data ? folders.Data("") : QDir::currentPath()).toStdString());
            command.give(busy);
            bool denied = name == "end" || name == "effect" || name == "slider" || name == "turn";
            if (!data) denied = denied || name == "zoom";
            const bool remarked = data && (name == "undo" || name == "original" || name == "redo");
            EXPECT_EQ(!busy.desk.dialogs.told.empty(), denied || remarked);
            if (name == "undo") {
                EXPECT_EQ(busy.desk.Canvas(), busy.first);
            }
            if (name == "original") {
                EXPECT_EQ(busy.desk.Canvas(), OpenedPicture());
            }
            if (name == "redo") {
                EXPECT_EQ(busy.desk.Canvas(), busy.second);
            }
            if (name == "effect") {
                EXPECT_EQ(busy.desk.Canvas(), busy.second);
            }
        }
    }
}

TEST_F(DiskTrouble, AnUnreadableFileIsReportedOrPassedOver)
{
    for (const std::string file :
         {"temp.bml", "temp2.bml", "elabor.tmp", "percors.dat", "valori.tip"}) {
        for (const Command& command : Commands()) {
            SCOPED_TRACE(std::string(command.name) + ' ' + file);
            const Folders folders;
            Busy busy;
            const OrdinaryUser user{folders.Root().toStdString()};
            const QString name = QString::fromStdString(file);
            const QString path = InDataFolder(file) ? folders.Data(name) : Folders::Path(name);
            ASSERT_EQ(chmod(path.toStdString().c_str(), 0), 0);
            command.give(busy);
            const bool denied = command.reads.contains(file);
            EXPECT_EQ(!busy.desk.dialogs.told.empty(), denied && !command.silent);
            ExpectWhatTheCommandMeans(command, busy, denied);
        }
    }
}

}  // namespace
}  // namespace pixano::test
