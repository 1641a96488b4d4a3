// BMP files as this program writes them: 24 bits, bottom-up, a 40-byte header.
#include "pictures/encoders.h"
#include "pictures/little_endian.h"
#include "pictures/refusal.h"
#include "pictures/system_reason.h"

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

/// Writes the row's pixels as blue, green, red. One byte after the last is overwritten.
void StoreRow(std::span<const std::uint32_t> row, std::byte* bytes)
{
    for (const std::uint32_t pixel : row) {
        Store32(bytes, ByteSwapped(pixel) >> 8);
        bytes += 3;
    }
}

}  // namespace

void EncodeBmp(const Surface& surface, ByteSink& sink)
{
    const std::size_t used = static_cast<std::size_t>(surface.Width()) * 3;
    const std::size_t stride = (used + 3) / 4 * 4;
    Put(sink, Header(surface, stride));
    const std::size_t rowsInBlock = std::max<std::size_t>(1, BlockSize / stride);
    std::vector<std::byte> block(rowsInBlock * stride + 1);
    std::size_t filled = 0;
    for (int y = surface.Height() - 1; y >= 0; --y) {
        std::byte* const row = block.data() + filled;
        StoreRow(surface.Row(y), row);
        std::fill(row + used, row + stride, std::byte{0});
        filled += stride;
        if (filled < rowsInBlock * stride && y > 0) continue;
        Put(sink, {block.data(), filled});
        filled = 0;
    }
}

}  // namespace pixano
