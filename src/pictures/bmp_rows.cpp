// Uncompressed BMP pixels, read in large blocks of whole rows.
#include "files/refusal.h"
#include "pictures/bit_channel.h"
#include "pictures/bmp_pixels.h"
#include "pictures/little_endian.h"

#include <algorithm>
#include <functional>

namespace pixano {
namespace {

/// Turns the bytes of a row's first pixels into these pixels. Three bytes past the row's last may
/// be looked at, not used.
using RowReader = std::function<void(const std::byte*, std::span<std::uint32_t>)>;

void ReadBlueGreenRed(const std::byte* bytes, std::span<std::uint32_t> row)
{
    for (std::uint32_t& pixel : row) {
        pixel = ByteSwapped(Load32(bytes) << 8) | Surface::Opaque;
        bytes += 3;
    }
}

RowReader IndexReader(const BmpHeader& header)
{
    if (header.bits == 8)
        return [&palette = header.palette](const std::byte* bytes, std::span<std::uint32_t> row) {
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = palette[std::to_integer<std::size_t>(bytes[x])];
        };
    return [&palette = header.palette, bits = header.bits](const std::byte* bytes,
                                                           std::span<std::uint32_t> row) {
        const unsigned mask = (1U << bits) - 1;
        int shift = 8;
        for (std::uint32_t& pixel : row) {
            shift -= bits;
            pixel = palette[std::to_integer<unsigned>(*bytes) >> shift & mask];
            if (shift > 0) continue;
            shift = 8;
            ++bytes;
        }
    };
}

struct Channels {
    explicit Channels(const BmpHeader& header)
        : red(header.masks[0]), green(header.masks[1]), blue(header.masks[2])
    {
        if (!red.SideBySide() || !green.SideBySide() || !blue.SideBySide())
            throw Refusal("le maschere dei colori del file BMP non sono valide");
    }
    std::uint32_t Of(std::uint32_t pixel) const
    {
        return Surface::Opaque | red.Of(pixel) | green.Of(pixel) << 8 | blue.Of(pixel) << 16;
    }
    bool AreBytes() const { return red.IsByte() && green.IsByte() && blue.IsByte(); }

    BitChannel red;
    BitChannel green;
    BitChannel blue;
};

/// Pixels of 16 bits, looked up in a table of all that there can be.
RowReader ShortReader(const Channels& channels)
{
    std::vector<std::uint32_t> colours(1 << 16);
    for (std::uint32_t pixel = 0; pixel < colours.size(); ++pixel)
        colours[pixel] = channels.Of(pixel);
    return [colours = std::move(colours)](const std::byte* bytes, std::span<std::uint32_t> row) {
        for (std::uint32_t& pixel : row) {
            pixel = colours[Load16(bytes)];
            bytes += 2;
        }
    };
}

RowReader LongReader(const Channels& channels)
{
    if (!channels.AreBytes())
        return [channels](const std::byte* bytes, std::span<std::uint32_t> row) {
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = channels.Of(Load32(bytes + 4 * x));
        };
    return [r = channels.red.Shift(), g = channels.green.Shift(),
            b = channels.blue.Shift()](const std::byte* bytes, std::span<std::uint32_t> row) {
        for (std::size_t x = 0; x < row.size(); ++x) {
            const std::uint32_t pixel = Load32(bytes + 4 * x);
            row[x] = Surface::Opaque | (pixel >> r & 255) | (pixel >> g & 255) << 8 |
                     (pixel >> b & 255) << 16;
        }
    };
}

RowReader ReaderFor(const BmpHeader& header)
{
    if (header.bits == 24) return ReadBlueGreenRed;
    if (header.bits <= 8) return IndexReader(header);
    const Channels channels(header);
    return header.bits == 16 ? ShortReader(channels) : LongReader(channels);
}

}  // namespace

bool ReadBmpRows(ByteSource& source, const BmpHeader& header, Surface& surface)
{
    constexpr std::size_t BlockSize = 1 << 18;  // fits the processor's cache
    const auto width = static_cast<std::size_t>(header.width);
    const auto bits = static_cast<std::size_t>(header.bits);
    const std::size_t stride = (width * bits + 31) / 32 * 4;
    const std::size_t rowsInBlock = std::max<std::size_t>(1, BlockSize / stride);
    const RowReader readRow = ReaderFor(header);
    std::vector<std::byte> block(rowsInBlock * stride + 3);
    std::size_t got = 0;
    std::size_t used = 0;
    for (int y = 0; y < header.height; ++y) {
        if (used == got) {
            const auto rows = static_cast<std::size_t>(header.height - y);
            got = source.Read(std::span(block).first(std::min(rowsInBlock, rows) * stride));
            used = 0;
        }
        const std::size_t bytes = std::min(stride, got - used);
        // The padding of the last row may be missing: only pixels count.
        const std::size_t pixels = std::min(width, bytes * 8 / bits);
        readRow(block.data() + used, surface.Row(RowOf(header, y)).first(pixels));
        if (pixels < width) return false;
        used += bytes;
    }
    return true;
}

}  // namespace pixano
