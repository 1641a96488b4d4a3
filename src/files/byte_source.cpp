#include "files/byte_source.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace pixano {
namespace {

constexpr std::size_t BufferSize = 1 << 16;

}  // namespace

ByteSource::ByteSource(std::span<const std::byte> bytes)
    : size_(bytes.size()), windowEnd_(bytes.size()), window_(bytes), memory_(bytes)
{
}

ByteSource::ByteSource(int descriptor, std::uint64_t size)
    : descriptor_(descriptor), size_(size), buffer_(BufferSize)
{
}

void ByteSource::Seek(std::uint64_t position) noexcept
{
    position = std::min(position, size_);
    if (descriptor_ < 0) {
        window_ = memory_.subspan(position);
        return;
    }
    window_ = {};
    windowEnd_ = position;
}

std::size_t ByteSource::Read(std::span<std::byte> into) noexcept
{
    std::size_t done = 0;
    while (done < into.size()) {
        const std::span<std::byte> rest = into.subspan(done);
        if (window_.empty() && descriptor_ >= 0 && rest.size() >= BufferSize) {
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
    const std::size_t got = ReadFile(buffer_);
    window_ = {buffer_.data(), got};
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
        got = pread(descriptor_, into.data(), wanted, static_cast<off_t>(windowEnd_));
    } while (got < 0 && errno == EINTR);
    if (got < 0) error_ = errno;
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

}  // namespace pixano
