// What keeps a program from writing, for as long as an object lives: a limit on the size of files,
// missing rights.
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <initializer_list>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {

/// No file may grow beyond `bytes`, as on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        // As the programs do.
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit before_{};
    void (*handler_)(int) = SIG_DFL;
};

/// Whoever runs the tests is an ordinary user, who owns `paths` and all that is in them.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(std::initializer_list<std::string> paths)
    {
        if (before_ != 0) return;
        for (const std::string& path : paths) {
            Own(path);
            if (!std::filesystem::is_directory(path)) continue;
            for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
                Own(entry.path());
        }
        EXPECT_EQ(seteuid(Nobody), 0);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }

  private:
    static constexpr uid_t Nobody = 65534;
    static void Own(const std::filesystem::path& path)
    {
        EXPECT_EQ(lchown(path.c_str(), Nobody, Nobody), 0);
    }

    uid_t before_ = geteuid();
};

/// Nothing can be made, replaced or deleted in the folder.
class Locked {
  public:
    explicit Locked(std::string folder) : folder_(std::move(folder)) { Set(0500); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() { Set(0700); }

  private:
    void Set(mode_t mode) const { EXPECT_EQ(chmod(folder_.c_str(), mode), 0); }

    std::string folder_;
};

}  // namespace pixano::test
