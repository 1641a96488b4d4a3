#include "files/byte_source.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace pixano {
namespace {

constexpr std::size_t BufferSize = ByteSource::KeptOfStream;

}  // namespace

ByteSource::ByteSource(std::span<const std::byte> bytes)
    : size_(bytes.size()), windowEnd_(bytes.size()), window_(bytes), memory_(bytes)
{
}

ByteSource::ByteSource(int descriptor, std::uint64_t size, std::uint64_t start)
    : descriptor_(descriptor), size_(size), start_(start), buffer_(BufferSize)
{
}

ByteSource ByteSource::Stream(int descriptor, std::uint64_t most)
{
    ByteSource source(descriptor, most);
    source.isStream_ = true;
    return source;
}

void ByteSource::Seek(std::uint64_t position) noexcept
{
    position = std::min(position, size_);
    if (descriptor_ < 0) {
        window_ = memory_.subspan(position);
        return;
    }
    if (isStream_) {
        SeekInStream(position);
        return;
    }
    window_ = {};
    windowEnd_ = position;
}

void ByteSource::SeekInStream(std::uint64_t position) noexcept
{
    if (position < Position() && windowEnd_ > BufferSize) {
        window_ = {};
        error_ = ESPIPE;
        return;
    }
    if (position < windowEnd_ && windowEnd_ <= BufferSize) {
        window_ = std::span(buffer_).subspan(position, windowEnd_ - position);
        return;
    }
    while (Position() < position && !AtEnd())
        window_ = window_.subspan(std::min<std::uint64_t>(window_.size(), position - Position()));
}

std::size_t ByteSource::Read(std::span<std::byte> into) noexcept
{
    std::size_t done = 0;
    while (done < into.size()) {
        const std::span<std::byte> rest = into.subspan(done);
        const bool keeps = isStream_ && windowEnd_ < BufferSize;
        if (window_.empty() && descriptor_ >= 0 && !keeps && rest.size() >= BufferSize) {
            const std::size_t got = ReadFile(rest);
            if (got == 0) break;
            windowEnd_ += got;
            done += got;
            continue;
        }
        if (window_.empty() && !Refill()) break;
        const std::size_t count = std::min(rest.size(), window_.size());
        std::copy_n(window_.begin(), count, rest.begin());
        window_ = window_.subspan(count);
        done += count;
    }
    return done;
}

std::span<const std::byte> ByteSource::Take() noexcept
{
    if (window_.empty()) Refill();
    const std::span<const std::byte> taken = window_;
    window_ = {};
    return taken;
}

bool ByteSource::Refill() noexcept
{
    if (descriptor_ < 0) return false;
    // A stream's first bytes stay where they are, lest somebody goes back to them.
    const std::size_t kept = isStream_ && windowEnd_ < BufferSize ? windowEnd_ : 0;
    const std::size_t got = ReadFile(std::span(buffer_).subspan(kept));
    window_ = {buffer_.data() + kept, got};
    windowEnd_ += got;
    return got > 0;
}

/// Reads on where the window ends; 0 at the end or after an error.
std::size_t ByteSource::ReadFile(std::span<std::byte> into) noexcept
{
    if (error_ != 0) return 0;
    const std::size_t wanted = std::min<std::uint64_t>(into.size(), size_ - windowEnd_);
    ssize_t got = 0;
    do {
        got = isStream_ ? read(descriptor_, into.data(), wanted)
                        : pread(descriptor_, into.data(), wanted,
                                static_cast<off_t>(start_ + windowEnd_));
    } while (got < 0 && errno == EINTR);
    if (got < 0) error_ = errno;
    if (isStream_ && windowEnd_ == size_) error_ = EFBIG;
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

}  // namespace pixano
