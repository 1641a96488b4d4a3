#include "files/own_file.h"

#include "files/refusal.h"
#include "support/hindrances.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

template <typename Step>
std::string RefusalIn(Step step)
{
    try {
        step();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return {};
}

/// The mask that takes no permission away.
class NoMask {
  public:
    NoMask() : before_(umask(0)) {}
    NoMask(const NoMask&) = delete;
    NoMask& operator=(const NoMask&) = delete;
    ~NoMask() { umask(before_); }

  private:
    mode_t before_;
};

class OwnFile : public testing::Test {
  protected:
    TemporaryFolder folder;
    const std::string file = folder / "a";
};

TEST_F(OwnFile, IsTheUsersAlone)
{
    const NoMask none;
    CreateOwnFile(file);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    ReplaceOwnFile(file, "abc");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    ReplaceOwnFile(folder / "b", "abc");
    EXPECT_EQ(fs::status(folder / "b").permissions(), fs::perms(0600));
    // Even where the one before was everybody's.
    WriteBytes(folder / "c", "older");
    fs::permissions(folder / "c", fs::perms(0666));
    ReplaceOwnFile(folder / "c", "abc");
    EXPECT_EQ(fs::status(folder / "c").permissions(), fs::perms(0600));
}

TEST_F(OwnFile, TakesThePlaceOfALinkAndLeavesWhereItLed)
{
    WriteBytes(folder / "other", "older");
    for (const bool create : {true, false}) {
        fs::remove(file);
        fs::create_symlink(folder / "other", file);
        create ? void(CreateOwnFile(file)) : ReplaceOwnFile(file, "new");
        EXPECT_FALSE(fs::is_symlink(file));
        EXPECT_EQ(BytesOf(folder / "other"), "older");
    }
    EXPECT_EQ(BytesOf(file), "new");
    EXPECT_EQ(folder.Names(), (std::set<std::string>{"a", "other"}));
}

TEST_F(OwnFile, NeedsItsFolder)
{
    const std::string lost = folder / "missing/a";
    EXPECT_EQ(RefusalIn([&] { CreateOwnFile(lost); }), "la cartella non esiste");
    EXPECT_EQ(RefusalIn([&] { ReplaceOwnFile(lost, "abc"); }), "la cartella non esiste");
    EXPECT_EQ(RefusalIn([&] { ReplaceOwnFile(folder / "", "abc"); }), "manca il nome del file");
    EXPECT_EQ(RefusalIn([&] { DeleteOwnFile(file); }), "il file non esiste");
    fs::create_directory(file);
    for (const std::string& said :
         {RefusalIn([&] { CreateOwnFile(file); }), RefusalIn([&] { DeleteOwnFile(file); }),
          RefusalIn([&] { ReplaceOwnFile(file, "abc"); }), RefusalIn([&] { ReadOwnFile(file); })})
        EXPECT_EQ(said, "è una cartella");
}

TEST_F(OwnFile, IsReadUpTo64Kilobytes)
{
    const std::string longest(64 * 1024, 'x');
    WriteBytes(file, longest);
    EXPECT_EQ(ReadOwnFile(file), longest);
    WriteBytes(file, longest + "x");
    EXPECT_EQ(RefusalIn([&] { ReadOwnFile(file); }), "il file supera la dimensione consentita");
    WriteBytes(file, "");
    EXPECT_EQ(ReadOwnFile(file), "");
    fs::create_symlink(file, folder / "link");
    EXPECT_EQ(RefusalIn([&] { ReadOwnFile(folder / "link"); }), "è un collegamento");
    EXPECT_EQ(ReadOwnFile(folder / "link", Links::Followed), "");
}

TEST_F(OwnFile, StaysAsItWasWhereTheNewOneDoesNotFit)
{
    WriteBytes(file, "older");
    {
        const FileSizeLimit limit(100);
        EXPECT_EQ(RefusalIn([&] { ReplaceOwnFile(file, std::string(200, 'x')); }),
                  "il file supera la dimensione consentita");
    }
    EXPECT_EQ(BytesOf(file), "older");
    EXPECT_EQ(folder.Names(), (std::set<std::string>{"a"}));
}

}  // namespace
}  // namespace pixano::test
