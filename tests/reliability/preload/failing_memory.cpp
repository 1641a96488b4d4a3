// Memory, as the C++ library asks for it.
#include "reliability/preload/failing.h"

#include <cstdlib>
#include <new>

namespace failing = pixano::test::failing;

void* operator new(std::size_t count)
{
    // What a picture, its rows or its file take; without a few bytes for a window no toolkit goes
    // on.
    constexpr std::size_t Least = 4096;
    if (count >= Least && failing::Fails(pixano::test::Allocates)) {
        ++failing::failed;
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(count)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*count*/) noexcept
{
    std::free(memory);
}
