#include "reliability/preload/failing_calls.h"

#include "reliability/preload/failing.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace pixano::test {
namespace failing {
namespace {

std::atomic<long> calls{0};

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

int Refused(int error)
{
    errno = error;
    return -1;
}

bool IsFileOrFolder(int descriptor)
{
    struct stat status = {};
    return syscall(SYS_fstat, descriptor, &status) == 0 &&
           (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

}  // namespace failing

void BeginToFail(const FailingCalls& given)
{
    failing::orders = given;
    failing::calls = failing::failed = 0;
    failing::room = given.room;
    failing::active = true;
}

long EndFailing()
{
    failing::active = false;
    return failing::failed;
}

long CountedCalls()
{
    return failing::calls;
}

}  // namespace pixano::test
