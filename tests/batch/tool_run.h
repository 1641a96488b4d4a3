// Runs the real batch tool in a folder of its own and keeps what it said.
#pragma once

#include "pictures/picture_files.h"
#include "support/letters.h"
#include "support/temporary_folder.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace pixano::batch::test {

using pixano::test::BytesOf;
using pixano::test::Drawn;
using pixano::test::Letters;
using pixano::test::LettersOf;
using pixano::test::TemporaryFolder;
using pixano::test::WriteBytes;

struct Ran {
    int status = -1;  ///< the exit status; minus the signal's number when one ended it
    std::string out;
    std::string err;
};

/// Runs the program in `folder`; standard input is the file `input`.
Ran RunProgram(const std::vector<std::string>& command, const std::string& folder,
               const std::string& input = "/dev/null");

/// A folder with the tool running in it.
class Tool : public testing::Test {
  protected:
    Ran Run(std::vector<std::string> arguments, const std::string& input = "/dev/null") const
    {
        arguments.insert(arguments.begin(), program);
        return RunProgram(arguments, Folder(), input);
    }
    /// Runs a line of the shell, in which "$0" is the tool.
    Ran Shell(const std::string& line) const
    {
        return RunProgram({"sh", "-c", line, program}, Folder());
    }

    void Draw(const std::string& name, const Letters& rows) const
    {
        SaveBitmap(Drawn(rows), File(name));
    }
    Letters Result(const std::string& name) const
    {
        return LettersOf(ReadPicture(File(name)).picture);
    }
    std::string Bytes(const std::string& name) const { return BytesOf(File(name)); }
    bool Exists(const std::string& name) const { return std::filesystem::exists(File(name)); }

    std::string Folder() const { return folder / ""; }
    std::string File(const std::string& name) const { return folder / name; }
    auto FileCount() const
    {
        using Entries = std::filesystem::directory_iterator;
        return std::distance(Entries(Folder()), Entries());
    }

    std::string program = PIXANO_BATCH;
    TemporaryFolder folder;
};

}  // namespace pixano::batch::test
