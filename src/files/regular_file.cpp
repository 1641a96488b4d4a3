#include "files/regular_file.h"

#include "files/refusal.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace pixano {
namespace {

[[noreturn]] void RefuseMissing(const std::string& path, int error)
{
    struct stat status = {};
    if (error == ENOENT && lstat(path.c_str(), &status) == 0)
        throw Refusal("il collegamento porta a un file che non esiste");
    throw Refusal(error);
}

}  // namespace

void RequireRegular(unsigned mode)
{
    if (S_ISREG(mode)) return;
    if (S_ISDIR(mode)) throw Refusal("è una cartella");
    if (S_ISLNK(mode)) throw Refusal("è un collegamento");
    if (S_ISFIFO(mode)) throw Refusal("è una pipe, non un file");
    if (S_ISSOCK(mode)) throw Refusal("è un socket, non un file");
    throw Refusal("è un dispositivo, non un file");
}

RegularFile OpenRegularFile(const std::string& path, Links links)
{
    struct stat status = {};
    const bool follow = links == Links::Followed;
    // Looked at before it is opened: opening a device may already do something.
    if ((follow ? stat(path.c_str(), &status) : lstat(path.c_str(), &status)) != 0)
        RefuseMissing(path, errno);
    RequireRegular(status.st_mode);
    const int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | (follow ? 0 : O_NOFOLLOW);
    Descriptor descriptor(Uninterrupted([&] { return open(path.c_str(), flags); }));
    if (!descriptor || fstat(descriptor.Number(), &status) != 0) throw Refusal(errno);
    RequireRegular(status.st_mode);
    return {.descriptor = std::move(descriptor),
            .size = static_cast<std::uint64_t>(status.st_size)};
}

}  // namespace pixano
