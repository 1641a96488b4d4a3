// The memory of a test program: what fresh memory holds, and how much of it there is.
#pragma once

#include <cstddef>

namespace pixano::test {

/// From now on fresh memory holds that byte everywhere, on the heap and below the stack's end.
void FillFreshMemory(unsigned char byte);

/// Whether the bound below holds for C libraries too, and not for C++ alone.
extern const bool MallocIsBounded;

/// While this lives, so many bytes can be had and no more; what is given back does not count, nor
/// do small pieces.
class MemoryRoom {
  public:
    explicit MemoryRoom(std::size_t bytes);
    MemoryRoom(const MemoryRoom&) = delete;
    MemoryRoom& operator=(const MemoryRoom&) = delete;
    ~MemoryRoom();
};

}  // namespace pixano::test
