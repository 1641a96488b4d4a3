// A folder for the files of one test, gone when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace pixano::test {

class TemporaryFolder {
  public:
    TemporaryFolder()
        : path_((std::filesystem::temp_directory_path() / "pixano-test-XXXXXX").string())
    {
        if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    /// The names in the folder.
    std::size_t Count() const
    {
        using Entries = std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(Entries(path_), Entries()));
    }

  private:
    std::string path_;
};

inline std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteFile(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

}  // namespace pixano::test
