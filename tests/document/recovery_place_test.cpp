// Where the note of the canvas's copy lies, and the names that it may hold.
#include "document/places.h"
#include "document/recovery_note.h"
#include "support/program.h"
#include "windows/file_names.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

using NotedPlace = SessionInFolders;

TEST_F(NotedPlace, HasAnyName)
{
    for (const char* const name :
         {"100%25.bmp", "%", "a\nb.bmp", "\xFF\xFE.bmp", "perché no.bmp"}) {
        const QString path = FileName(Path("").toStdString() + name);
        WriteRecoveryNote({path, path + "2", 3, 1});
        const std::optional<RecoveryNote> note = ReadRecoveryNote();
        ASSERT_TRUE(note) << name;
        EXPECT_EQ(note->copy, path);
        EXPECT_EQ(note->picture, path + "2");
    }
}

TEST_F(NotedPlace, IsAFolderOfTheUsersOwnWhoeverWasLetIntoIt)
{
    const std::string folder = MakeDataFolder().toStdString();
    for (const mode_t open : {0750U, 0701U, 0720U, 01700U}) {
        ASSERT_EQ(chmod(folder.c_str(), open), 0);
        MakeDataFolder();
        struct stat status = {};
        ASSERT_EQ(stat(folder.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700U) << std::oct << open;
    }
}

}  // namespace
}  // namespace pixano::test
