// A picture in a folder that somebody else has made: nothing is executed, loaded or written there,
// and no link there leads the program anywhere.
#include "reliability/child.h"
#include "support/desk.h"
#include "support/effect_run.h"
#include "support/temporary_folder.h"

#include <gmock/gmock-matchers.h>

#include <filesystem>
#include <fstream>
#include <map>

#include <sys/stat.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::Not;
using testing::StartsWith;

void Write(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

/// Everything in the folder: what it is, what it holds, when it was changed.
std::map<std::string, std::string> Everything(const fs::path& folder)
{
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        struct stat status = {};
        lstat(entry.path().c_str(), &status);
        std::string what = std::to_string(status.st_mode) + ' ' + std::to_string(status.st_ino) +
                           ' ' + std::to_string(status.st_mtim.tv_sec) + '.' +
                           std::to_string(status.st_mtim.tv_nsec) + ' ';
        if (entry.is_symlink())
            what += fs::read_symlink(entry.path());
        else if (entry.is_regular_file())
            what += BytesOf(entry.path());
        all[entry.path().lexically_relative(folder)] = what;
    }
    return all;
}

class ForeignFolder : public testing::Test {
  protected:
    ForeignFolder()
    {
        // Large enough for every effect.
        WriteWorkingBitmap(Varied(64, 48), Foreign("figura.bmp"));
        for (const char* name : {"qt.conf", "qtbase_it.qm", "pixano_it.qm", "recupero.txt",
                                 ".directory", "pixano.lock"})
            Write(Foreign(name), "[Paths]\nPrefix=.\nPlugins=plugins\nTranslations=.\n");
        for (const char* place : {"", "imageformats/", "platforms/", "styles/", "platformthemes/",
                                  "plugins/imageformats/", "plugins/platforms/", "plugins/styles/",
                                  "plugins/platformthemes/"})
            for (const char* name : {"libqjpeg.so", "libqgif.so", "libqoffscreen.so", "libqgtk3.so",
                                     "libQt6Core.so.6", "libjpeg.so.62"})
                CopyDecoy(std::string(place) + name);
    }

    std::string Foreign(const std::string& name) const
    {
        return folders.Root().toStdString() + "/altrui/" + name;
    }
    std::string Marker() const { return folders.Root().toStdString() + "/caricata"; }
    void CopyDecoy(const std::string& name) const
    {
        fs::create_directories(fs::path(Foreign(name)).parent_path());
        fs::copy_file(PIXANO_DECOY_LIBRARY, Foreign(name));
    }
    std::vector<std::string> Visit(std::map<std::string, std::string> more = {}) const
    {
        more["PIXANO_DECOY"] = Marker();
        more.try_emplace("QT_QPA_PLATFORM", "offscreen");
        Child visitor({PIXANO_VISITOR, Foreign("figura.bmp")}, more);
        std::vector<std::string> lines = visitor.Rest();
        lines.push_back("status " + std::to_string(visitor.Wait()));
        return lines;
    }

    const Folders folders;

  private:
    // Made before anything is put into it.
    const bool made_ = fs::create_directory(Foreign(""));
};

TEST_F(ForeignFolder, IsLeftAsItWasAndLoadsNothing)
{
    for (const char* name : {"valori.tip", "elab.ser", "elabor.tmp", "percors.dat", "temp.bml"})
        Write(Foreign(name), "\"/etc/passwd\"\r\n1e999\r\n");
    const auto before = Everything(Foreign(""));
    const auto lines = Visit();
    EXPECT_THAT(lines, Contains("open"));
    EXPECT_THAT(lines, Contains("status 0"));
    EXPECT_THAT(lines, Not(Contains(StartsWith("told"))));
    EXPECT_EQ(Everything(Foreign("")), before);
    EXPECT_FALSE(fs::exists(Marker()));
}

TEST_F(ForeignFolder, LeadsNowhereWhenTheProgramIsStartedInIt)
{
    const fs::path secret = folders.Root().toStdString() + "/segreto";
    Write(secret, "Questo non si tocca");
    const std::set<std::string> own{"valori.tip", "elab.ser", "elabor.tmp", "percors.dat"};
    for (const std::string& name : own)
        fs::create_symlink(secret, Foreign(name));
    auto before = Everything(Foreign(""));
    fs::current_path(Foreign(""));
    EXPECT_THAT(Visit(), Contains("open"));
    auto after = Everything(Foreign(""));
    EXPECT_EQ(BytesOf(secret), "Questo non si tocca");
    EXPECT_FALSE(fs::exists(Marker()));
    // Of its own files it leaves the last path and the strengths, as files.
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Foreign("percors.dat"))));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Foreign("valori.tip"))));
    EXPECT_FALSE(fs::exists(fs::symlink_status(Foreign("elab.ser"))));
    EXPECT_FALSE(fs::exists(fs::symlink_status(Foreign("elabor.tmp"))));
    for (const std::string& name : own) {
        before.erase(name);
        after.erase(name);
    }
    EXPECT_EQ(after, before);
}

TEST_F(ForeignFolder, WouldBeNoticedIfItWereLoaded)
{
    Visit({{"QT_PLUGIN_PATH", Foreign("plugins")}});
    EXPECT_TRUE(fs::exists(Marker()));
}

}  // namespace
}  // namespace pixano::test
