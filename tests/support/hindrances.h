// What keeps a program from writing: a limit on the size of files, missing rights.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

namespace pixano::test {

/// No file may grow beyond `bytes` while this lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

  private:
    rlimit before_{};
};

/// Whoever runs the tests is an ordinary user while this lives, who owns `paths`.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(std::initializer_list<std::string> paths)
    {
        constexpr uid_t Nobody = 65534;
        if (before_ != 0) return;
        for (const std::string& path : paths)
            EXPECT_EQ(chown(path.c_str(), Nobody, Nobody), 0);
        EXPECT_EQ(seteuid(Nobody), 0);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }

  private:
    uid_t before_ = geteuid();
};

}  // namespace pixano::test
