// Working files that cannot be written or read: a full disk, a folder or a file without the rights.
#include "reliability/working_commands.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

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
