// BMP files as this program writes them: 24 bits, bottom-up, a 40-byte header.
#include "files/refusal.h"
#include "files/system_reason.h"
#include "pictures/encoders.h"
#include "pictures/little_endian.h"

#include <algorithm>
#include <array>
#include <vector>

namespace pixano {
namespace {

constexpr std::size_t HeaderSize = 54;
constexpr std::size_t BlockSize = 1 << 18;  // fits the processor's cache

void Put(ByteSink& sink, std::span<const std::byte> bytes)
{
    if (!sink.Write(bytes)) throw Refusal(SystemReason(sink.Error()));
}

std::array<std::byte, HeaderSize> Header(const Surface& surface, std::size_t stride)
{
    constexpr std::uint32_t PixelsPerMetre = 3780;  // 96 dots an inch
    const auto size =
        static_cast<std::uint32_t>(stride * static_cast<std::size_t>(surface.Height()));
    std::array<std::byte, HeaderSize> header{};
    std::byte* const bytes = header.data();
    Store16(bytes, 'B' | 'M' << 8);
    Store32(bytes + 2, HeaderSize + size);
    Store32(bytes + 10, HeaderSize);
    Store32(bytes + 14, 40);
    Store32(bytes + 18, static_cast<std::uint32_t>(surface.Width()));
    Store32(bytes + 22, static_cast<std::uint32_t>(surface.Height()));
    Store16(bytes + 26, 1);   // planes
    Store16(bytes + 28, 24);  // bits a pixel
    Store32(bytes + 34, size);
    Store32(bytes + 38, PixelsPerMetre);
    Store32(bytes + 42, PixelsPerMetre);
    return header;
}

/// Writes the row's pixels as blue, green, red.
void StoreRow(std::span<const std::uint32_t> row, std::byte* bytes)
{
    // Four bytes are stored at once: the fourth is the next pixel's, but behind the last.
    for (const std::uint32_t pixel : row.first(row.size() - 1)) {
        Store32(bytes, ByteSwapped(pixel) >> 8);
        bytes += 3;
    }
    const std::uint32_t last = ByteSwapped(row.back()) >> 8;
    Store16(bytes, static_cast<std::uint16_t>(last));
    bytes[2] = static_cast<std::byte>(last >> 16);
}

}  // namespace

void EncodeBmp(const Surface& surface, ByteSink& sink)
{
    const std::size_t stride = (static_cast<std::size_t>(surface.Width()) * 3 + 3) / 4 * 4;
    const int rowsInBlock = static_cast<int>(std::max<std::size_t>(1, BlockSize / stride));
    // What fills a row up to its stride is nought from here on.
    std::vector<std::byte> block(static_cast<std::size_t>(rowsInBlock) * stride);
    Put(sink, Header(surface, stride));
    for (int bottom = surface.Height(); bottom > 0; bottom -= rowsInBlock) {
        const int top = std::max(0, bottom - rowsInBlock);
        const std::size_t size = static_cast<std::size_t>(bottom - top) * stride;
        std::byte* row = block.data() + size;
        // The surface is read downwards, as memory likes it; the block is filled upwards.
        for (int y = top; y < bottom; ++y) {
            row -= stride;
            StoreRow(surface.Row(y), row);
        }
        Put(sink, {block.data(), size});
    }
}

}  // namespace pixano
