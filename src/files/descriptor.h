// An open file of the system, closed when its owner goes. Knows no picture.
#pragma once

#include "files/byte_sink.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace pixano {

/// Repeats a call to the system that a signal has interrupted.
template <class Call>
int Uninterrupted(Call call)
{
    int result = 0;
    do {
        result = call();
    } while (result < 0 && errno == EINTR);
    return result;
}

/// Owns a file descriptor.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor()
    {
        if (number_ < 0) return;
        // Whoever asks why his own call failed is not to hear of this one.
        const int error = errno;
        close(number_);
        errno = error;
    }

    explicit operator bool() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// False when the file could not be completed; errno tells why. (An interrupted call has closed
    /// it all the same: another try would close somebody else's.)
    bool Close() { return close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

  private:
    int number_ = -1;
};

/// Writes to an open file, pipe or terminal, which stays the caller's.
class DescriptorSink final : public ByteSink {
  public:
    explicit DescriptorSink(int descriptor) : descriptor_(descriptor) {}
    bool Write(std::span<const std::byte> bytes) noexcept override;
    int Error() const noexcept override { return error_; }

  private:
    int descriptor_;
    int error_ = 0;
};

}  // namespace pixano
