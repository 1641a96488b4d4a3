#include "reliability/fuzz_memory.h"

#include "canvas/large_pages.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t NoLimit = SIZE_MAX / 2;

std::atomic<std::size_t> room{NoLimit};
std::atomic<unsigned char> fill{0};

/// Whether there are so many bytes; takes them.
bool Take(std::size_t count)
{
    constexpr std::size_t Small = 128 * 1024;  // more than one buffer for a file
    if (count < Small) return true;
    if (count > room) return false;
    if (room < NoLimit) room -= count;
    return true;
}

void* Filled(void* memory, std::size_t count)
{
    if (memory != nullptr) std::memset(memory, fill, count);
    return memory;
}

}  // namespace

#ifdef __SANITIZE_ADDRESS__

// The sanitizer has taken malloc's place; what C++ asks for can still be answered here.
const bool pixano::test::MallocIsBounded = false;

void* operator new(std::size_t count)
{
    void* const memory = Take(count) ? std::malloc(count) : nullptr;
    if (memory == nullptr) throw std::bad_alloc();
    return Filled(memory, count);
}

/// The sanitizer's own would be told that its memory comes back by another way.
void* operator new(std::size_t count, const std::nothrow_t& /*unused*/) noexcept
{
    return Take(count) ? Filled(std::malloc(count), count) : nullptr;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void* AlignedMemory(std::size_t alignment, std::size_t count)
{
    void* memory = nullptr;
    return posix_memalign(&memory, alignment, count) == 0 ? memory : nullptr;
}

#else

const bool pixano::test::MallocIsBounded = true;

extern "C" {

void* __libc_malloc(std::size_t count);

/// Comes before the C library's own, for the libraries of the formats too.
void* malloc(std::size_t count)
{
    return Take(count) ? Filled(__libc_malloc(count), count) : nullptr;
}

void* __libc_memalign(std::size_t alignment, std::size_t count);

}  // extern "C"

void* AlignedMemory(std::size_t alignment, std::size_t count)
{
    return __libc_memalign(alignment, count);
}

#endif

/// Where long arrays of pixels come from.
extern "C" void* aligned_alloc(std::size_t alignment, std::size_t count)
{
    return Take(count) ? Filled(AlignedMemory(alignment, count), count) : nullptr;
}

namespace pixano::test {

[[gnu::noinline]] void FillFreshMemory(unsigned char byte)
{
    constexpr std::size_t Deeper = 256 * 1024;  // than what is tested goes
    fill = byte;
    volatile unsigned char stack[Deeper];
    for (volatile unsigned char& place : stack)
        place = byte;
}

MemoryRoom::MemoryRoom(std::size_t bytes)
{
    // A block of a length that nobody asks for: those kept for the next picture are freed.
    constexpr std::size_t Unusual = std::size_t{6} << 20;
    GiveBackLargePages(TakeLargePages(Unusual), Unusual);
    room = bytes;
}

MemoryRoom::~MemoryRoom()
{
    room = NoLimit;
}

}  // namespace pixano::test
