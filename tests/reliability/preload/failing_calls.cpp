#include "reliability/preload/failing_calls.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace pixano::test {
namespace {

std::atomic<bool> active{false};
std::atomic<long> calls{0};
std::atomic<long> failed{0};
std::atomic<long> room{0};
FailingCalls orders;

/// Whether this call is one of those that fail; counts it.
bool Fails(Call kind)
{
    if (!active || (orders.only & kind) == 0) return false;
    const long number = ++calls;
    if (number < orders.first || number > orders.last) return false;
    if (orders.as == FailingCalls::As::Death) raise(SIGKILL);
    return true;
}

int Failed(int error)
{
    ++failed;
    errno = error;
    return -1;
}

/// What the file system has never been able to do is no failure.
int Refused(int error)
{
    errno = error;
    return -1;
}

/// Sockets, pipes and the toolkit's own events are left alone.
bool IsFileOrFolder(int descriptor)
{
    struct stat status = {};
    return syscall(SYS_fstat, descriptor, &status) == 0 &&
           (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

/// A call whose whole failure is an error.
template <class Make>
int FailingOr(Call kind, Make call)
{
    if (Fails(kind) && orders.as == FailingCalls::As::Error) return Failed(orders.error);
    return static_cast<int>(call());
}

template <class Make>
int OnDescriptor(int descriptor, Call kind, Make call)
{
    if (!active || !IsFileOrFolder(descriptor)) return static_cast<int>(call());
    return FailingOr(kind, call);
}

/// `call` writes as many bytes as it is told.
template <class Make>
ssize_t Writing(int descriptor, std::size_t count, Make call)
{
    if (!active || !IsFileOrFolder(descriptor)) return call(count);
    if (Fails(Writes)) {
        if (orders.as == FailingCalls::As::Error) return Failed(orders.error);
        ++failed;
        return orders.as == FailingCalls::As::Half ? call((count + 1) / 2) : 0;
    }
    if (orders.room < 0) return call(count);
    const long left = room;
    if (left <= 0) return Failed(ENOSPC);
    const ssize_t done = call(std::min(count, static_cast<std::size_t>(left)));
    room -= std::max<long>(done, 0);
    return done;
}

template <class Make>
ssize_t Taking(int descriptor, Make call)
{
    const bool fails = active && IsFileOrFolder(descriptor) && Fails(Takes);
    return fails && orders.as == FailingCalls::As::Error ? Failed(orders.error) : call();
}

int OpenAt(int folder, const char* path, int flags, mode_t mode)
{
    if (active && orders.oldFileSystem && (flags & O_TMPFILE) == O_TMPFILE)
        return Refused(EOPNOTSUPP);
    const bool reads = (flags & (O_WRONLY | O_RDWR | O_CREAT | O_DIRECTORY)) == 0;
    return FailingOr(reads ? Reads : Opens,
                     [=] { return syscall(SYS_openat, folder, path, flags, mode); });
}

/// Takes the orders of a program into which this library is preloaded.
[[gnu::constructor]] void BeginAsOrdered()
{
    const char* const text = std::getenv("PIXANO_FAILING_CALLS");
    FailingCalls ordered;
    if (text == nullptr) return;
    if (std::sscanf(text, "%ld %ld %d %u", &ordered.first, &ordered.last, &ordered.error,
                    &ordered.only) < 3)
        return;
    if (ordered.error == 0) ordered.as = FailingCalls::As::Death;
    BeginToFail(ordered);
}

[[gnu::destructor]] void TellHowManyFailed()
{
    const char* const path = std::getenv("PIXANO_FAILED_CALLS");
    if (path == nullptr) return;
    const long count = EndFailing();
    if (std::FILE* const file = std::fopen(path, "w")) {
        std::fprintf(file, "%ld\n", count);
        std::fclose(file);
    }
}

}  // namespace

void BeginToFail(const FailingCalls& given)
{
    orders = given;
    calls = failed = 0;
    room = given.room;
    active = true;
}

long EndFailing()
{
    active = false;
    return failed;
}

long CountedCalls()
{
    return calls;
}

}  // namespace pixano::test

// The system's own names, which come before those of its library. Those of open have labels: its
// third parameter may be missing, and is then not looked at.
extern "C" {

int FailingOpen(const char* path, int flags, mode_t mode) asm("open");
int FailingOpen64(const char* path, int flags, mode_t mode) asm("open64");
int FailingOpenAt(int folder, const char* path, int flags, mode_t mode) asm("openat");
int FailingOpenAt64(int folder, const char* path, int flags, mode_t mode) asm("openat64");

int FailingOpen(const char* path, int flags, mode_t mode)
{
    return pixano::test::OpenAt(AT_FDCWD, path, flags, mode);
}

int FailingOpen64(const char* path, int flags, mode_t mode)
{
    return pixano::test::OpenAt(AT_FDCWD, path, flags, mode);
}

int FailingOpenAt(int folder, const char* path, int flags, mode_t mode)
{
    return pixano::test::OpenAt(folder, path, flags, mode);
}

int FailingOpenAt64(int folder, const char* path, int flags, mode_t mode)
{
    return pixano::test::OpenAt(folder, path, flags, mode);
}

ssize_t read(int descriptor, void* bytes, std::size_t count)
{
    return pixano::test::Taking(descriptor,
                                [=] { return syscall(SYS_read, descriptor, bytes, count); });
}

ssize_t pread(int descriptor, void* bytes, std::size_t count, off_t place)
{
    return pixano::test::Taking(
        descriptor, [=] { return syscall(SYS_pread64, descriptor, bytes, count, place); });
}

ssize_t pread64(int descriptor, void* bytes, std::size_t count, off64_t place)
{
    return pread(descriptor, bytes, count, place);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    return pixano::test::Writing(descriptor, count, [=](std::size_t most) {
        return syscall(SYS_write, descriptor, bytes, most);
    });
}

ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t place)
{
    return pixano::test::Writing(descriptor, count, [=](std::size_t most) {
        return syscall(SYS_pwrite64, descriptor, bytes, most, place);
    });
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t count, off64_t place)
{
    return pwrite(descriptor, bytes, count, place);
}

ssize_t writev(int descriptor, const iovec* parts, int count)
{
    return pixano::test::Writing(
        descriptor, std::numeric_limits<int>::max(), [=](std::size_t most) -> ssize_t {
            if (most == std::numeric_limits<int>::max())
                return syscall(SYS_writev, descriptor, parts, count);
            return syscall(SYS_write, descriptor, parts->iov_base, std::min(most, parts->iov_len));
        });
}

int fsync(int descriptor)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Synchronises,
                                      [=] { return syscall(SYS_fsync, descriptor); });
}

int fdatasync(int descriptor)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Synchronises,
                                      [=] { return syscall(SYS_fdatasync, descriptor); });
}

int fchmod(int descriptor, mode_t mode)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Changes,
                                      [=] { return syscall(SYS_fchmod, descriptor, mode); });
}

int fchown(int descriptor, uid_t owner, gid_t group)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Changes, [=] {
        return syscall(SYS_fchown, descriptor, owner, group);
    });
}

int ftruncate(int descriptor, off_t size)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Changes,
                                      [=] { return syscall(SYS_ftruncate, descriptor, size); });
}

int ftruncate64(int descriptor, off64_t size)
{
    return ftruncate(descriptor, size);
}

/// The file is closed whatever is told, as the system does it.
int close(int descriptor)
{
    const bool counts = pixano::test::active && pixano::test::IsFileOrFolder(descriptor);
    const int result = static_cast<int>(syscall(SYS_close, descriptor));
    return counts ? pixano::test::FailingOr(pixano::test::Closes, [=] { return result; }) : result;
}

int renameat2(int folder, const char* from, int newFolder, const char* to, unsigned flags)
{
    if (pixano::test::active && pixano::test::orders.oldFileSystem && flags != 0)
        return pixano::test::Refused(EINVAL);
    return pixano::test::FailingOr(pixano::test::Names, [=] {
        return syscall(SYS_renameat2, folder, from, newFolder, to, flags);
    });
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
    return pixano::test::FailingOr(pixano::test::Names, [=] {
        return syscall(SYS_linkat, folder, from, newFolder, to, flags);
    });
}

int unlinkat(int folder, const char* path, int flags)
{
    return pixano::test::FailingOr(pixano::test::Deletes,
                                   [=] { return syscall(SYS_unlinkat, folder, path, flags); });
}

int unlink(const char* path)
{
    return unlinkat(AT_FDCWD, path, 0);
}

int mkdir(const char* path, mode_t mode)
{
    return pixano::test::FailingOr(pixano::test::Makes,
                                   [=] { return syscall(SYS_mkdirat, AT_FDCWD, path, mode); });
}

int fstatat(int folder, const char* path, struct stat* status, int flags)
{
    return pixano::test::FailingOr(
        pixano::test::Looks, [=] { return syscall(SYS_newfstatat, folder, path, status, flags); });
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

int fstat(int descriptor, struct stat* status)
{
    return pixano::test::OnDescriptor(descriptor, pixano::test::Looks,
                                      [=] { return syscall(SYS_fstat, descriptor, status); });
}

int fstat64(int descriptor, struct stat64* status)
{
    return fstat(descriptor, reinterpret_cast<struct stat*>(status));
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status)
{
    // Of a descriptor it is asked with an empty path.
    if ((flags & AT_EMPTY_PATH) != 0 && folder >= 0 && !pixano::test::IsFileOrFolder(folder))
        return static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, status));
    return pixano::test::FailingOr(
        pixano::test::Looks, [=] { return syscall(SYS_statx, folder, path, flags, mask, status); });
}

int faccessat(int folder, const char* path, int mode, int flags)
{
    return pixano::test::FailingOr(
        pixano::test::Looks, [=] { return syscall(SYS_faccessat2, folder, path, mode, flags); });
}

int access(const char* path, int mode)
{
    return faccessat(AT_FDCWD, path, mode, 0);
}

int remove(const char* path)
{
    const int result = unlink(path);
    return result < 0 && errno == EISDIR ? unlinkat(AT_FDCWD, path, AT_REMOVEDIR) : result;
}

int link(const char* from, const char* to)
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

}  // extern "C"
