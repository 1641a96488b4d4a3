// The calls on a file that is open already, each by its descriptor.
#include "reliability/preload/failing.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace pixano::test::failing {
namespace {

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

}  // namespace
}  // namespace pixano::test::failing

// The system's own names, which come before those of its library.
namespace failing = pixano::test::failing;
using enum pixano::test::Call;

extern "C" {

ssize_t read(int descriptor, void* bytes, std::size_t count)
{
    return failing::Taking(descriptor, [=] { return syscall(SYS_read, descriptor, bytes, count); });
}

ssize_t pread(int descriptor, void* bytes, std::size_t count, off_t place)
{
    return failing::Taking(descriptor,
                           [=] { return syscall(SYS_pread64, descriptor, bytes, count, place); });
}

ssize_t pread64(int descriptor, void* bytes, std::size_t count, off64_t place)
{
    return pread(descriptor, bytes, count, place);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    return failing::Writing(descriptor, count, [=](std::size_t most) {
        return syscall(SYS_write, descriptor, bytes, most);
    });
}

ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t place)
{
    return failing::Writing(descriptor, count, [=](std::size_t most) {
        return syscall(SYS_pwrite64, descriptor, bytes, most, place);
    });
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t count, off64_t place)
{
    return pwrite(descriptor, bytes, count, place);
}

ssize_t writev(int descriptor, const iovec* parts, int count)
{
    return failing::Writing(
        descriptor, std::numeric_limits<int>::max(), [=](std::size_t most) -> ssize_t {
            if (most == std::numeric_limits<int>::max())
                return syscall(SYS_writev, descriptor, parts, count);
            return syscall(SYS_write, descriptor, parts->iov_base, std::min(most, parts->iov_len));
        });
}

int fsync(int descriptor)
{
    return failing::OnDescriptor(descriptor, Synchronises,
                                 [=] { return syscall(SYS_fsync, descriptor); });
}

int fdatasync(int descriptor)
{
    return failing::OnDescriptor(descriptor, Synchronises,
                                 [=] { return syscall(SYS_fdatasync, descriptor); });
}

int fchmod(int descriptor, mode_t mode)
{
    return failing::OnDescriptor(descriptor, Changes,
                                 [=] { return syscall(SYS_fchmod, descriptor, mode); });
}

int fchown(int descriptor, uid_t owner, gid_t group)
{
    return failing::OnDescriptor(descriptor, Changes,
                                 [=] { return syscall(SYS_fchown, descriptor, owner, group); });
}

int ftruncate(int descriptor, off_t size)
{
    return failing::OnDescriptor(descriptor, Changes,
                                 [=] { return syscall(SYS_ftruncate, descriptor, size); });
}

int ftruncate64(int descriptor, off64_t size)
{
    return ftruncate(descriptor, size);
}

int fstat(int descriptor, struct stat* status)
{
    return failing::OnDescriptor(descriptor, Looks,
                                 [=] { return syscall(SYS_fstat, descriptor, status); });
}

int fstat64(int descriptor, struct stat64* status)
{
    return fstat(descriptor, reinterpret_cast<struct stat*>(status));
}

/// The file is closed whatever is told, as the system does it.
int close(int descriptor)
{
    const bool counts = failing::active && failing::IsFileOrFolder(descriptor);
    const int result = static_cast<int>(syscall(SYS_close, descriptor));
    return counts ? failing::FailingOr(Closes, [=] { return result; }) : result;
}

}  // extern "C"
