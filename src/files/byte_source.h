// The bytes of a picture, from an open file or from memory. Knows no format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pixano {

/// Reads bytes one after another, or from a place on. Nothing here throws, so that it can be called
/// from inside a C library; what went wrong is told by `Error`. What is read is never kept: a file
/// of any length takes no more memory than a short one.
class ByteSource {
  public:
    /// The bytes in memory, which must outlive the source.
    explicit ByteSource(std::span<const std::byte> bytes);
    /// `size` bytes of an open regular file from `start` on; the file stays the caller's.
    ByteSource(int descriptor, std::uint64_t size, std::uint64_t start = 0);
    /// What comes out of an open pipe, terminal or device, which stays the caller's. More than
    /// `most` bytes are an error, EFBIG.
    static ByteSource Stream(int descriptor, std::uint64_t most);

    bool IsStream() const { return isStream_; }
    std::uint64_t Position() const { return windowEnd_ - window_.size(); }
    /// Whether there is no further byte.
    bool AtEnd() noexcept { return window_.empty() && !Refill(); }

    /// Goes to `position`, or to the end if that lies beyond it. A stream goes back only as long as
    /// no more than `KeptOfStream` bytes of it were read; else that is an error, ESPIPE.
    void Seek(std::uint64_t position) noexcept;
    static constexpr std::uint64_t KeptOfStream = 1 << 16;
    /// Fills `into`; gives how many bytes there were: fewer only at the end or after an error.
    std::size_t Read(std::span<std::byte> into) noexcept;
    /// The next bytes where they lie, at least one; none at the end or after an error. They hold
    /// until the next call.
    std::span<const std::byte> Take() noexcept;
    /// The next byte; -1 at the end or after an error.
    int Next() noexcept
    {
        if (window_.empty() && !Refill()) return -1;
        const int byte = std::to_integer<int>(window_.front());
        window_ = window_.subspan(1);
        return byte;
    }

    /// The errno of the first read that failed; 0 when none has.
    int Error() const { return error_; }

  private:
    bool Refill() noexcept;
    void SeekInStream(std::uint64_t position) noexcept;
    std::size_t ReadFile(std::span<std::byte> into) noexcept;

    int descriptor_ = -1;
    bool isStream_ = false;
    int error_ = 0;
    /// Of a stream: how much there may be.
    std::uint64_t size_;
    std::uint64_t start_ = 0;
    /// Where in the source the window ends.
    std::uint64_t windowEnd_ = 0;
    std::span<const std::byte> window_;
    std::span<const std::byte> memory_;
    std::vector<std::byte> buffer_;
};

}  // namespace pixano
