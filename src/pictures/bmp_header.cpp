#include "pictures/bmp_header.h"

#include "files/refusal.h"
#include "pictures/little_endian.h"
#include "pictures/picture_size.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace pixano {
namespace {

constexpr std::size_t FileHeaderSize = 14;
constexpr std::size_t CoreHeaderSize = 12;    // OS/2, first version
constexpr std::size_t LongestOs2Header = 64;  // OS/2, second version
constexpr std::size_t ShortestHeader = 40;    // of those that have every field used here
constexpr std::size_t LongestHeader = 124;

/// The fields as they stand in the file.
struct Fields {
    std::uint32_t headerSize = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    unsigned planes = 0;
    int bits = 0;
    std::uint32_t compression = 0;
    std::uint32_t colours = 0;
    std::uint64_t pixels = 0;
    bool os2 = false;
    /// Red, green and blue masks, in the header or right behind it.
    std::array<std::uint32_t, 3> masks{};
    /// Where the palette begins.
    std::uint64_t palette = 0;
};

bool KnownHeaderSize(std::uint32_t size)
{
    constexpr std::array<std::uint32_t, 5> Windows{40, 52, 56, 108, 124};
    return size == CoreHeaderSize || (size >= 16 && size <= LongestOs2Header) ||
           std::ranges::find(Windows, size) != Windows.end();
}

bool IsOs2(std::uint32_t size)
{
    return size <= LongestOs2Header && size != 40 && size != 52 && size != 56;
}

Fields CoreFields(const std::byte* header)
{
    Fields fields;
    fields.width = Load16(header + 4);
    fields.height = Load16(header + 6);
    fields.planes = Load16(header + 8);
    fields.bits = Load16(header + 10);
    fields.os2 = true;
    return fields;
}

/// `header`: at least 52 bytes, zero where the file's header is shorter.
Fields LongFields(const std::byte* header)
{
    Fields fields;
    fields.width = static_cast<std::int32_t>(Load32(header + 4));
    fields.height = static_cast<std::int32_t>(Load32(header + 8));
    fields.planes = Load16(header + 12);
    fields.bits = Load16(header + 14);
    fields.compression = Load32(header + 16);
    fields.colours = Load32(header + 32);
    return fields;
}

/// What lies behind the header or at its end, where there are masks.
void ReadMasks(const std::byte* bytes, Fields& fields)
{
    constexpr std::uint32_t WithAlpha = 6;
    for (std::size_t i = 0; i < 3; ++i)
        fields.masks[i] = Load32(bytes + ShortestHeader + 4 * i);
    if (fields.headerSize == ShortestHeader && fields.compression == 3) fields.palette += 12;
    if (fields.headerSize == ShortestHeader && fields.compression == WithAlpha)
        fields.palette += 16;
}

Fields ReadFields(ByteSource& source)
{
    std::array<std::byte, FileHeaderSize + LongestHeader> start{};
    const std::size_t got = source.Read(start);
    if (got < FileHeaderSize + CoreHeaderSize) throw Refusal("il file BMP finisce troppo presto");
    const std::uint32_t size = Load32(start.data() + FileHeaderSize);
    if (!KnownHeaderSize(size)) throw Refusal("l'intestazione del file BMP non è valida");
    if (got < FileHeaderSize + size) throw Refusal("il file BMP finisce troppo presto");
    std::array<std::byte, LongestHeader> header{};
    std::copy_n(start.begin() + FileHeaderSize, size, header.begin());
    Fields fields = size == CoreHeaderSize ? CoreFields(header.data()) : LongFields(header.data());
    fields.headerSize = size;
    fields.os2 = IsOs2(size);
    fields.pixels = Load32(start.data() + 10);
    fields.palette = FileHeaderSize + size;
    if (!fields.os2) ReadMasks(start.data() + FileHeaderSize, fields);
    return fields;
}

[[noreturn]] void RefuseKind(const Fields& fields)
{
    throw Refusal("questo tipo di BMP non è previsto (" + std::to_string(fields.bits) +
                  " bit per pixel, compressione " + std::to_string(fields.compression) + ")");
}

BmpCoding UncompressedCoding(const Fields& fields)
{
    switch (fields.bits) {
    case 1:
    case 2:
    case 4:
    case 8:
    case 24:
        return BmpCoding::Plain;
    case 16:
    case 32:
        return BmpCoding::Masks;
    default:
        RefuseKind(fields);
    }
}

BmpCoding CodingOf(const Fields& fields)
{
    const bool direct = fields.bits == 16 || fields.bits == 32;
    switch (fields.compression) {
    case 0:
        return UncompressedCoding(fields);
    case 1:
        if (fields.bits == 8) return BmpCoding::Rle8;
        break;
    case 2:
        if (fields.bits == 4) return BmpCoding::Rle4;
        break;
    case 3:
    case 6:
        if (direct && !fields.os2) return BmpCoding::Masks;
        break;
    case 4:
        if (fields.os2 && fields.bits == 24) return BmpCoding::Rle24;
        if (!fields.os2) throw Refusal("il file BMP contiene un'immagine JPEG: non è previsto");
        break;
    case 5:
        if (!fields.os2) throw Refusal("il file BMP contiene un'immagine PNG: non è previsto");
        break;
    default:
        break;
    }
    RefuseKind(fields);
}

std::array<std::uint32_t, 3> MasksOf(const Fields& fields)
{
    if (fields.compression != 0) return fields.masks;
    if (fields.bits == 16) return {0x7C00, 0x03E0, 0x001F};
    return {0xFF0000, 0x00FF00, 0x0000FF};
}

/// As many colours as there can be between the header and the pixels.
std::vector<std::uint32_t> ReadPalette(ByteSource& source, const Fields& fields)
{
    constexpr std::uint32_t Black = 0xFF000000;
    std::vector<std::uint32_t> palette(256, Black);
    if (fields.bits > 8) return palette;
    const std::size_t entry = fields.headerSize == CoreHeaderSize ? 3 : 4;
    std::uint64_t count = std::uint64_t{1} << fields.bits;
    if (fields.colours > 0) count = std::min<std::uint64_t>(count, fields.colours);
    if (fields.pixels > fields.palette)
        count = std::min(count, (fields.pixels - fields.palette) / entry);
    std::array<std::byte, std::size_t{256} * 4> bytes{};
    source.Seek(fields.palette);
    const std::size_t got = source.Read(std::span(bytes).first(count * entry));
    for (std::size_t i = 0; i < got / entry; ++i) {
        const std::byte* const colour = bytes.data() + i * entry;
        palette[i] = Black | std::to_integer<std::uint32_t>(colour[2]) |
                     std::to_integer<std::uint32_t>(colour[1]) << 8 |
                     std::to_integer<std::uint32_t>(colour[0]) << 16;
    }
    return palette;
}

/// Goes to where the pixels begin. A file that leaves this open, or says that they begin where the
/// palette does, has them right behind the palette.
void GoToPixels(ByteSource& source, const Fields& fields)
{
    const bool indexed = fields.bits <= 8;
    if (fields.pixels == 0 || (indexed && fields.pixels == fields.palette)) {
        const std::uint64_t all = std::uint64_t{1} << (indexed ? fields.bits : 0);
        const std::uint64_t colours = fields.colours > 0 || !indexed ? fields.colours : all;
        source.Seek(fields.palette + colours * (fields.headerSize == CoreHeaderSize ? 3 : 4));
        return;
    }
    source.Seek(fields.pixels);
    if (fields.pixels < FileHeaderSize + fields.headerSize || source.AtEnd())
        throw Refusal("il file BMP dice che i pixel cominciano dove non possono stare");
}

}  // namespace

BmpHeader ReadBmpHeader(ByteSource& source)
{
    const Fields fields = ReadFields(source);
    CheckSize(fields.width, std::abs(fields.height));
    if (fields.planes != 1) throw Refusal("l'intestazione del file BMP non è valida");
    BmpHeader header;
    header.width = static_cast<int>(fields.width);
    header.height = static_cast<int>(std::abs(fields.height));
    header.topDown = fields.height < 0;
    header.bits = fields.bits;
    header.coding = CodingOf(fields);
    header.masks = MasksOf(fields);
    header.palette = ReadPalette(source, fields);
    GoToPixels(source, fields);
    return header;
}

}  // namespace pixano
