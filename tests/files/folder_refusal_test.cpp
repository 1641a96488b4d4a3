// What is said of a folder in which nothing can be made, replaced or deleted, whoever tries.
#include "files/folder_refusal.h"

#include "files/atomic_file.h"
#include "files/own_file.h"
#include "support/hindrances.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* NoRight = "manca il permesso di scrivere nella cartella";
constexpr const char* Missing = "la cartella non esiste";

struct Way {
    const char* name;
    void (*go)(const std::string& path);
};

void SaveDocument(const std::string& path)
{
    ReplaceFile(path, AtomicFile::Purpose::Document, [](ByteSink&) {});
}

const Way Makers[] = {
    {"create", [](const std::string& path) { CreateOwnFile(path); }},
    {"replace", [](const std::string& path) { ReplaceOwnFile(path, "new"); }},
    {"save", SaveDocument},
};

std::string RefusalOf(const Way& way, const std::string& path)
{
    try {
        way.go(path);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "";
}

/// The current folder, until the object goes.
class InFolder {
  public:
    explicit InFolder(const std::string& path) { fs::current_path(path); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
    ~InFolder() { fs::current_path(before_); }

  private:
    fs::path before_ = fs::current_path();
};

TEST(FolderRefusal, SaysThatTheRightIsMissing)
{
    const TemporaryFolder folder;
    WriteBytes(folder / "old", "older");
    const OrdinaryUser user{folder.Path()};
    const Locked locked(folder.Path());
    for (const Way& way : Makers) {
        EXPECT_EQ(RefusalOf(way, folder / "new"), NoRight) << way.name;
        EXPECT_EQ(RefusalOf(way, folder / "old"), NoRight) << way.name;
    }
    EXPECT_EQ(RefusalOf({"delete", DeleteOwnFile}, folder / "old"), NoRight);
    EXPECT_EQ(BytesOf(folder / "old"), "older");
}

TEST(FolderRefusal, SaysThatTheFolderIsMissing)
{
    const TemporaryFolder folder;
    for (const Way& way : Makers)
        EXPECT_EQ(RefusalOf(way, folder / "missing/a"), Missing) << way.name;
}

TEST(FolderRefusal, SaysThatTheCurrentFolderWasDeleted)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "gone");
    const InFolder inside(folder / "gone");
    fs::remove(folder / "gone");
    for (const Way& way : Makers)
        EXPECT_EQ(RefusalOf(way, "a"), Missing) << way.name;
}

TEST(FolderRefusal, SaysThatTheFolderTakesNoFiles)
{
    // The system's account of the programs that run, which says of every new file that it is not
    // there.
    for (const Way& way : Makers)
        EXPECT_EQ(RefusalOf(way, "/proc/a.bmp"), "la cartella non accetta file nuovi") << way.name;
    const InFolder inside("/proc");
    for (const Way& way : Makers)
        EXPECT_EQ(RefusalOf(way, "a.bmp"), "la cartella non accetta file nuovi") << way.name;
}

TEST(FolderRefusal, SaysWhateverElseTheSystemSays)
{
    for (const int error : {ENOSPC, EPERM, EROFS}) {
        try {
            RefuseIn("/", error);
        } catch (const Refusal& refusal) {
            EXPECT_EQ(refusal.what(), SystemReason(error));
            EXPECT_EQ(refusal.Kind(), Refusal(error).Kind());
        }
    }
}

}  // namespace
}  // namespace pixano::test
