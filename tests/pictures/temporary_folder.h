// A folder of a test's own, gone with all that is in it when the test ends.
#pragma once

#include "pictures/bytes.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace pixano::test {

class TemporaryFolder {
  public:
    TemporaryFolder()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "pixano-test-XXXXXX";
        path_ = mkdtemp(pattern.data());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    std::string operator/(const std::string& name) const { return path_ / name; }
    std::string Path() const { return path_; }
    /// The names of all that is in the folder, hidden files too.
    std::set<std::string> Names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.insert(entry.path().filename());
        return names;
    }

  private:
    std::filesystem::path path_;
};

inline void WriteFile(const std::string& path, const Bytes& content)
{
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(content.Vector().data()),
               static_cast<std::streamsize>(content.Size()));
}

inline Bytes ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return Bytes().Add(std::string_view(text));
}

}  // namespace pixano::test
