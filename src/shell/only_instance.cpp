#include "shell/only_instance.h"

#include "files/refusal.h"
#include "files/regular_file.h"
#include "windows/file_names.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace pixano {
namespace {

constexpr int Flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;

Descriptor OpenLock(const std::string& path)
{
    struct stat status = {};
    Descriptor file(Uninterrupted([&] { return open(path.c_str(), Flags, 0600); }));
    if (!file || fstat(file.Number(), &status) != 0) throw Refusal(errno);
    RequireRegular(status.st_mode);
    return file;
}

}  // namespace

OnlyInstance::OnlyInstance(const QString& path)
{
    TellRefusal("usare", FileBytes(path), [&] {
        file_ = OpenLock(FileBytes(path));
        held_ = flock(file_.Number(), LOCK_EX | LOCK_NB) == 0;
        if (!held_ && errno != EWOULDBLOCK) throw Refusal(errno);
    });
}

}  // namespace pixano
