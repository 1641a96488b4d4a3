#include "shell/only_instance.h"

#include "canvas/fault.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace pixano {
namespace {

constexpr int Flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;

bool IsRegular(const Descriptor& file)
{
    struct stat status {};
    return file && fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

OnlyInstance::OnlyInstance(const QString& path)
    : file_(open(path.toStdString().c_str(), Flags, 0600))
{
    if (!IsRegular(file_)) throw Fault(FaultKind::FileAccess, path.toStdString());
    held_ = flock(file_.Number(), LOCK_EX | LOCK_NB) == 0;
    if (!held_ && errno != EWOULDBLOCK) throw Fault(FaultKind::FileAccess, path.toStdString());
}

}  // namespace pixano
