// Files of spelt-out bytes in a folder of a test's own.
#pragma once

#include "pictures/bytes.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <string>

#include <sys/stat.h>

namespace pixano::test {

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

inline unsigned PermissionsOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

}  // namespace pixano::test
