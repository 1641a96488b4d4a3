// What bears the name of the pixel working file but is none, and a device without room for it.
#include "files/text_file.h"
#include "support/faults.h"
#include "support/hindrances.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

TEST_F(TextFile, IsNotFoundWhenItIsMissing)
{
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileNotFound);
}

TEST_F(TextFile, CannotBeMadeInAFolderThatIsMissing)
{
    PixelFile lost(TextStore(folder / "no/elab.ser"));
    EXPECT_EQ(FaultIn([&] { lost.OpenForOutput(); }), FaultKind::FileAccess);
}

TEST_F(TextFile, DoesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    EXPECT_TRUE(fs::is_fifo(path));
    Write({3});
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(path)));
    EXPECT_EQ(file.Input(), 3);
}

TEST_F(TextFile, IsNoFolder)
{
    fs::create_directory(path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    EXPECT_EQ(FaultIn([&] { file.OpenForOutput(); }), FaultKind::FileAccess);
    EXPECT_TRUE(fs::is_directory(path));
    file.Kill();
    EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(TextFile, DoesNotFollowALink)
{
    const fs::path other = folder / "letter.txt";
    WriteBytes(other, "1\r\n");
    fs::create_symlink(other, path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    Write({4});
    EXPECT_EQ(BytesOf(other), "1\r\n");
    EXPECT_FALSE(fs::is_symlink(path));
    EXPECT_EQ(BytesOf(path), "4\r\n");
}

TEST_F(TextFile, DoesNotMakeTheFileThatADeadLinkNames)
{
    const fs::path other = folder / "letter.txt";
    fs::create_symlink(other, path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    Write({4});
    EXPECT_FALSE(fs::exists(other));
    EXPECT_EQ(file.Input(), 4);
}

TEST_F(TextFile, IsNamedInTheMessage)
{
    try {
        file.Input();
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(std::string(fault.what()),
                  "Impossibile leggere «" + path.string() + "»: il file non esiste");
    }
}

TEST_F(TextFile, FailsOnAFullDeviceAndWorksOnceThereIsRoom)
{
    std::optional<FaultKind> whileWriting;
    std::optional<FaultKind> whenClosed;
    {
        const FileSizeLimit room(1000);
        whileWriting = FaultIn([&] { Write(std::vector<Colour>(50000, 16777215)); });
        whenClosed = FaultIn([&] { Write(std::vector<Colour>(101, 16777215)); });
    }
    EXPECT_EQ(whileWriting, FaultKind::DiskFull);
    EXPECT_EQ(whenClosed, FaultKind::DiskFull);
    Write({8, 9});
    EXPECT_EQ(BytesOf(path), "8\r\n9\r\n");
    EXPECT_EQ(file.Input(), 8);
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(TextFile, TakesWhatJustFits)
{
    std::optional<FaultKind> fault;
    {
        const FileSizeLimit room(1000);
        fault = FaultIn([&] { Write(std::vector<Colour>(100, 16777215)); });
    }
    EXPECT_EQ(fault, std::nullopt);
    EXPECT_EQ(fs::file_size(path), 1000U);
}

}  // namespace
}  // namespace pixano::test
