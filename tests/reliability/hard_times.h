// A disk that is full and folders that cannot be written, for as long as an object lives.
#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {

/// No file may grow beyond so many bytes.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

  private:
    rlimit before_{};
};

/// Works without the administrator's rights, if the tests have them.
class AnybodysRights {
  public:
    explicit AnybodysRights(const QString& folder)
    {
        if (geteuid() != 0) return;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(folder.toStdString()))
            EXPECT_EQ(lchown(entry.path().c_str(), Nobody, Nobody), 0);
        EXPECT_EQ(lchown(folder.toStdString().c_str(), Nobody, Nobody), 0);
        EXPECT_EQ(seteuid(Nobody), 0);
    }
    ~AnybodysRights()
    {
        if (getuid() == 0) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }

  private:
    static constexpr uid_t Nobody = 65534;
};

/// Nothing can be made, replaced or deleted in the folder.
class Locked {
  public:
    explicit Locked(QString folder) : folder_(std::move(folder)) { Set(0500); }
    ~Locked() { Set(0700); }

  private:
    void Set(mode_t mode) const { EXPECT_EQ(chmod(folder_.toStdString().c_str(), mode), 0); }

    QString folder_;
};

}  // namespace pixano::test
