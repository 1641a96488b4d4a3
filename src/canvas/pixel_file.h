// The pixel working file: colour values written one after another, then read in the same order.
// Knows neither the canvas nor the order in which an effect walks it.
#pragma once

#include "canvas/surface.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

namespace pixano {

/// A sequence of colour values that an effect writes, reads back once and drops.
///
/// `Write` and `Input` work on a window of values; only when it is full or used up is a `Store`
/// asked, which keeps the values in memory or as text on disk.
class PixelFile {
  public:
    /// Where the values are kept. Each call hands over or back a window of values.
    class Store {
      public:
        struct Window {
            Colour* first = nullptr;
            Colour* last = nullptr;
        };
        virtual ~Store() = default;
        /// Starts an empty file, replacing an old one; gives the first window to be filled.
        virtual Window Create() = 0;
        /// Takes the values from the window's start up to `end`; gives the next window to be
        /// filled.
        virtual Window Append(Colour* end) = 0;
        /// Takes the last values and closes the file.
        virtual void Finish(Colour* end) = 0;
        /// Opens the file at its first value.
        virtual void Open() = 0;
        /// The next values, at least one. Throws InputPastEnd, TypeMismatch or Overflow.
        virtual Window Next() = 0;
        /// Closes the file, whether it is being read or written.
        virtual void Close() = 0;
        /// Deletes the file.
        virtual void Kill() = 0;
    };

    explicit PixelFile(std::unique_ptr<Store> store) : store_(std::move(store)) {}

    /// Opens the file for writing, replacing an old one. Throws FileAccess.
    void OpenForOutput();
    /// Adds one value. Throws DiskFull.
    void Write(Colour value)
    {
        if (next_ == window_.last) [[unlikely]]
            Flush();
        *next_++ = value;
    }
    /// Adds the colours of a surface's pixels. Throws DiskFull.
    void Write(std::span<const std::uint32_t> pixels);
    /// Reads the next value; the first call opens the file. Throws InputPastEnd, TypeMismatch,
    /// Overflow, FileNotFound or FileAccess.
    Colour Input()
    {
        if (next_ == window_.last) [[unlikely]]
            Refill();
        return *next_++;
    }
    /// Reads the next `count` values and calls `step(i, value)` for each, i from 0: as many calls
    /// of `Input`, in loops that the compiler knows the length of. Throws what they throw.
    template <typename Step>
    void Input(int count, Step step)
    {
        for (int i = 0; i < count;) {
            if (next_ == window_.last) Refill();
            const int end =
                i + static_cast<int>(std::min<std::ptrdiff_t>(count - i, window_.last - next_));
            for (const Colour* value = std::exchange(next_, next_ + (end - i)); i < end; ++i)
                step(i, *value++);
        }
    }
    /// Closes the file; what was written is complete afterwards. Throws DiskFull.
    void Close();
    /// Closes the file and deletes it, if it was made and neither killed nor forgotten since.
    /// Throws FileNotFound or FileAccess.
    void Kill();
    /// Closes the file, without completing what was written, and leaves it where it is.
    void Forget();

  private:
    enum class Mode { Closed, Output, Input };

    [[gnu::cold]] void Flush();
    [[gnu::cold]] void Refill();

    std::unique_ptr<Store> store_;
    Store::Window window_;
    Colour* next_ = nullptr;
    Mode mode_ = Mode::Closed;
    bool made_ = false;
};

/// Values kept in memory, four bytes each. Nothing appears on disk.
std::unique_ptr<PixelFile::Store> MemoryStore();

}  // namespace pixano
