// Memory for long arrays of pixels: on the system's large pages, and again in the place of the
// array before. Having small or fresh pages cleared took more time than most effects.
#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace pixano {

/// `bytes` of memory that may hold anything. Throws std::bad_alloc.
void* TakeLargePages(std::size_t bytes);

/// Gives back what the last call with as many `bytes` gave, on the same thread or another.
void GiveBackLargePages(void* block, std::size_t bytes) noexcept;

/// Lets a vector lie there. Elements that are given no value have none.
template <typename T>
struct LargePages {
    using value_type = T;

    LargePages() = default;
    template <typename U>
    explicit LargePages(const LargePages<U>& /*other*/)
    {
    }

    // The names are those that the library asks for.
    // NOLINTBEGIN(readability-identifier-naming)
    T* allocate(std::size_t count)
    {
        if (count > static_cast<std::size_t>(-1) / sizeof(T)) throw std::bad_array_new_length();
        return static_cast<T*>(TakeLargePages(count * sizeof(T)));
    }
    void deallocate(T* block, std::size_t count) noexcept
    {
        GiveBackLargePages(block, count * sizeof(T));
    }
    void construct(T* place) { ::new (static_cast<void*>(place)) T; }
    template <typename... Values>
    void construct(T* place, const Values&... values)
    {
        std::construct_at(place, values...);
    }
    // NOLINTEND(readability-identifier-naming)
    friend bool operator==(const LargePages&, const LargePages&) = default;
};

}  // namespace pixano
