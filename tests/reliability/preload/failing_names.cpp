// The calls that name a file: they open it, name it anew, delete it or look what it is.
#include "reliability/preload/failing.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace pixano::test::failing {
namespace {

int OpenAt(int folder, const char* path, int flags, mode_t mode)
{
    if (active && orders.oldFileSystem && (flags & O_TMPFILE) == O_TMPFILE)
        return Refused(EOPNOTSUPP);
    const bool reads = (flags & (O_WRONLY | O_RDWR | O_CREAT | O_DIRECTORY)) == 0;
    return FailingOr(reads ? Reads : Opens,
                     [=] { return syscall(SYS_openat, folder, path, flags, mode); });
}

}  // namespace
}  // namespace pixano::test::failing

// The system's own names, which come before those of its library. Those of open have labels: its
// third parameter may be missing, and is then not looked at.
namespace failing = pixano::test::failing;
using enum pixano::test::Call;

extern "C" {

int FailingOpen(const char* path, int flags, mode_t mode) asm("open");
int FailingOpen64(const char* path, int flags, mode_t mode) asm("open64");
int FailingOpenAt(int folder, const char* path, int flags, mode_t mode) asm("openat");
int FailingOpenAt64(int folder, const char* path, int flags, mode_t mode) asm("openat64");

int FailingOpen(const char* path, int flags, mode_t mode)
{
    return failing::OpenAt(AT_FDCWD, path, flags, mode);
}

int FailingOpen64(const char* path, int flags, mode_t mode)
{
    return failing::OpenAt(AT_FDCWD, path, flags, mode);
}

int FailingOpenAt(int folder, const char* path, int flags, mode_t mode)
{
    return failing::OpenAt(folder, path, flags, mode);
}

int FailingOpenAt64(int folder, const char* path, int flags, mode_t mode)
{
    return failing::OpenAt(folder, path, flags, mode);
}

int renameat2(int folder, const char* from, int newFolder, const char* to, unsigned flags)
{
    if (failing::active && failing::orders.oldFileSystem && flags != 0)
        return failing::Refused(EINVAL);
    return failing::FailingOr(
        Names, [=] { return syscall(SYS_renameat2, folder, from, newFolder, to, flags); });
}

int renameat(int folder, const char* from, int newFolder, const char* to)
{
    return renameat2(folder, from, newFolder, to, 0);
}

int rename(const char* from, const char* to)
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int linkat(int folder, const char* from, int newFolder, const char* to, int flags)
{
    return failing::FailingOr(
        Names, [=] { return syscall(SYS_linkat, folder, from, newFolder, to, flags); });
}

int link(const char* from, const char* to)
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int unlinkat(int folder, const char* path, int flags)
{
    return failing::FailingOr(Deletes, [=] { return syscall(SYS_unlinkat, folder, path, flags); });
}

int unlink(const char* path)
{
    return unlinkat(AT_FDCWD, path, 0);
}

int remove(const char* path)
{
    const int result = unlink(path);
    return result < 0 && errno == EISDIR ? unlinkat(AT_FDCWD, path, AT_REMOVEDIR) : result;
}

int mkdir(const char* path, mode_t mode)
{
    return failing::FailingOr(Makes, [=] { return syscall(SYS_mkdirat, AT_FDCWD, path, mode); });
}

int fstatat(int folder, const char* path, struct stat* status, int flags)
{
    return failing::FailingOr(Looks,
                              [=] { return syscall(SYS_newfstatat, folder, path, status, flags); });
}

int fstatat64(int folder, const char* path, struct stat64* status, int flags)
{
    return fstatat(folder, path, reinterpret_cast<struct stat*>(status), flags);
}

int stat(const char* path, struct stat* status)
{
    return fstatat(AT_FDCWD, path, status, 0);
}

int stat64(const char* path, struct stat64* status)
{
    return fstatat64(AT_FDCWD, path, status, 0);
}

int lstat(const char* path, struct stat* status)
{
    return fstatat(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int lstat64(const char* path, struct stat64* status)
{
    return fstatat64(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status)
{
    // Of a descriptor it is asked with an empty path.
    if ((flags & AT_EMPTY_PATH) != 0 && folder >= 0 && !failing::IsFileOrFolder(folder))
        return static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, status));
    return failing::FailingOr(
        Looks, [=] { return syscall(SYS_statx, folder, path, flags, mask, status); });
}

int faccessat(int folder, const char* path, int mode, int flags)
{
    return failing::FailingOr(Looks,
                              [=] { return syscall(SYS_faccessat2, folder, path, mode, flags); });
}

int access(const char* path, int mode)
{
    return faccessat(AT_FDCWD, path, mode, 0);
}

}  // extern "C"
