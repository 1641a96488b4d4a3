// Working pictures that were tampered with: told as a fault, never followed, never taken for the
// program's own; the next one written takes their place.
#include "document/working_pictures.h"

#include "canvas/fault.h"
#include "pictures/byte_files.h"
#include "support/hindrances.h"

#include <QString>

#include <gmock/gmock-matchers.h>

#include <optional>

#include <sys/stat.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

Surface Painted(int width, int height)
{
    Surface picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.PSet(x, y, Rgb(x, y, 7));
    return picture;
}

struct Tampering {
    const char* name;
    void (*tamper)(const TemporaryFolder& folder, const std::string& path);
    FaultKind told = FaultKind::FileAccess;
};

void PrintTo(const Tampering& tampering, std::ostream* out)
{
    *out << tampering.name;
}

/// A working picture of 20 by 10 pixels, tampered with, and beside it a file that is not the
/// program's.
class TamperedWith : public testing::TestWithParam<Tampering> {
  protected:
    TamperedWith()
    {
        SaveBitmap(picture, strange);
        bytes = ReadFile(strange);
        WriteWorkingBitmap(picture, path);
        GetParam().tamper(folder, path);
    }

    std::optional<FaultKind> FaultOfLoading() const
    {
        try {
            LoadWorkingPicture(QString::fromStdString(path), picture);
            return std::nullopt;
        } catch (const Fault& fault) {
            return fault.Kind();
        }
    }

    TemporaryFolder folder;
    const std::string path = folder / "temp.bml";
    const std::string strange = folder / "altrui.bmp";
    const Surface picture = Painted(20, 10);
    Bytes bytes;
};

TEST_P(TamperedWith, IsToldAndNotFollowed)
{
    // To an administrator nothing is unreadable.
    const OrdinaryUser user{folder.Path()};
    EXPECT_EQ(FaultOfLoading(), GetParam().told);
    EXPECT_EQ(ReadFile(strange), bytes);
}

TEST_P(TamperedWith, IsReplacedByTheNextOne)
{
    const bool folderInItsPlace = fs::is_directory(fs::symlink_status(path));
    const auto save = [this] { SaveWorkingPicture(picture, QString::fromStdString(path)); };
    if (folderInItsPlace) {
        EXPECT_THROW(save(), Fault);
        EXPECT_TRUE(fs::is_directory(path));
    } else {
        save();
        EXPECT_EQ(FaultOfLoading(), std::nullopt);
        struct stat status = {};
        lstat(path.c_str(), &status);
        EXPECT_EQ(status.st_mode & 07777, 0600U);
    }
    EXPECT_EQ(ReadFile(strange), bytes);
    EXPECT_EQ(folder.Names(), (std::set<std::string>{"altrui.bmp", "temp.bml"}));
}

constexpr Tampering Tamperings[] = {
    {"Missing", [](const auto&, const std::string& path) { fs::remove(path); },
     FaultKind::FileNotFound},
    {"Empty", [](const auto&, const std::string& path) { fs::resize_file(path, 0); }},
    {"CutInItsHeader", [](const auto&, const std::string& path) { fs::resize_file(path, 30); }},
    {"WithoutItsLastByte",
     [](const auto&, const std::string& path) { fs::resize_file(path, 54 + 20 * 10 * 3 - 1); }},
    {"AnotherPicture",
     [](const auto&, const std::string& path) { SaveBitmap(Painted(10, 20), path); }},
    {"NoPicture",
     [](const auto&, const std::string& path) { WriteFile(path, Bytes().Add("testo")); }},
    {"AFolder",
     [](const auto&, const std::string& path) {
         fs::remove(path);
         fs::create_directory(path);
     }},
    {"ALinkToAWholePicture",
     [](const auto& folder, const std::string& path) {
         fs::remove(path);
         fs::create_symlink(folder / "altrui.bmp", path);
     }},
    {"ALinkToADevice",
     [](const auto&, const std::string& path) {
         fs::remove(path);
         fs::create_symlink("/dev/zero", path);
     }},
    {"APipe",
     [](const auto&, const std::string& path) {
         fs::remove(path);
         EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
     }},
    {"Unreadable", [](const auto&, const std::string& path) { chmod(path.c_str(), 0); }}};

INSTANTIATE_TEST_SUITE_P(WorkingPicture, TamperedWith, testing::ValuesIn(Tamperings),
                         [](const auto& tried) { return std::string(tried.param.name); });

}  // namespace
}  // namespace pixano::test
