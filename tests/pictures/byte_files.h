// Files of spelt-out bytes in a folder of a test's own.
#pragma once

#include "pictures/bytes.h"
#include "support/temporary_folder.h"

#include <fstream>
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
    return Bytes().Add(BytesOf(path));
}

inline unsigned PermissionsOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

}  // namespace pixano::test
