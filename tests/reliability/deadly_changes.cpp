// Preloaded into a program: kills it just before the n-th time that it makes, writes, renames or
// deletes a file. n is in the environment as PIXANO_DIE_AT; 0 lets it live.
#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

void Change()
{
    static const char* const text = std::getenv("PIXANO_DIE_AT");
    static const long at = text == nullptr ? 0 : std::atol(text);
    static std::atomic<long> changes = 0;
    if (++changes == at) kill(getpid(), SIGKILL);
}

template <typename Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool Writes(int flags)
{
    return (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
}

int OpenedAt(const char* call, int folder, const char* path, int flags, unsigned mode)
{
    if (Writes(flags)) Change();
    return Real<int(int, const char*, int, unsigned)>(call)(folder, path, flags, mode);
}

unsigned ModeIn(int flags, std::va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, unsigned) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = ModeIn(flags, arguments);
    va_end(arguments);
    return OpenedAt("openat", AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = ModeIn(flags, arguments);
    va_end(arguments);
    return OpenedAt("openat64", AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = ModeIn(flags, arguments);
    va_end(arguments);
    return OpenedAt("openat", folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = ModeIn(flags, arguments);
    va_end(arguments);
    return OpenedAt("openat64", folder, path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t count)
{
    // Its reports go through standard output; they change no file.
    if (file > STDERR_FILENO) Change();
    return Real<ssize_t(int, const void*, size_t)>("write")(file, bytes, count);
}

int rename(const char* from, const char* to) noexcept
{
    Change();
    return Real<int(const char*, const char*)>("rename")(from, to);
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept
{
    Change();
    return Real<int(int, const char*, int, const char*)>("renameat")(fromFolder, from, toFolder,
                                                                     to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept
{
    Change();
    return Real<int(int, const char*, int, const char*, unsigned)>("renameat2")(
        fromFolder, from, toFolder, to, flags);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    Change();
    return Real<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from, toFolder,
                                                                        to, flags);
}

int unlink(const char* path) noexcept
{
    Change();
    return Real<int(const char*)>("unlink")(path);
}

int unlinkat(int folder, const char* path, int flags) noexcept
{
    Change();
    return Real<int(int, const char*, int)>("unlinkat")(folder, path, flags);
}

int remove(const char* path) noexcept
{
    Change();
    return Real<int(const char*)>("remove")(path);
}
}
