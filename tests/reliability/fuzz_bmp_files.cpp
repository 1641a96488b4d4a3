// BMP files of every depth, coding and header.
#include "pictures/bmp_maker.h"
#include "reliability/fuzz_kinds.h"

namespace pixano::test {
namespace {

/// `count` bytes in which hardly two are alike.
Bytes Noise(std::size_t count)
{
    Bytes bytes;
    for (std::size_t i = 0; i < count; ++i)
        bytes.Add({static_cast<int>(i * 167 + i / 7 * 29)});
    return bytes;
}

std::size_t PixelBytes(int width, int height, unsigned bits)
{
    const auto columns = static_cast<std::size_t>(width);
    return (columns * bits + 31) / 32 * 4 * static_cast<std::size_t>(height);
}

Bytes Plain(const BmpHead& head, const Bytes& extra)
{
    return Bmp(head, extra, Noise(PixelBytes(head.width, std::abs(head.height), head.bits)));
}

Bytes Masks(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return Bytes().U32(red).U32(green).U32(blue);
}

void AddPlain(std::vector<Bytes>& files)
{
    for (const unsigned bits : {1U, 2U, 4U, 8U}) {
        const std::size_t colours = std::size_t{1} << bits;
        files.push_back(Plain({.width = 19, .height = 7, .bits = bits}, Noise(colours * 4)));
        files.push_back(
            Plain({.size = 12, .width = 9, .height = 5, .bits = bits}, Noise(colours * 3)));
    }
    files.push_back(Plain({.width = 6, .height = 3, .bits = 8, .colours = 5}, Noise(20)));
    for (const unsigned bits : {16U, 24U, 32U})
        for (const int height : {8, -8})
            files.push_back(Plain({.width = 11, .height = height, .bits = bits}, {}));
    files.push_back(
        Plain({.width = 6, .height = 3, .bits = 8, .colours = 5, .offset = 54}, Noise(20)));
    files.push_back(Plain({.width = 6, .height = 3, .offset = 0}, {}));
    files.push_back(Plain({.size = 12, .width = 5, .height = 4, .bits = 24}, {}));
    files.push_back(Plain({.size = 64, .width = 5, .height = 4, .bits = 24}, Bytes().Zeros(24)));
}

void AddMasked(std::vector<Bytes>& files)
{
    const Bytes shortMasks = Masks(0xF800, 0x07E0, 0x001F);
    const Bytes longMasks = Masks(0x3FF00000, 0x000FFC00, 0x000003FF);
    const Bytes byteMasks = Masks(0x0000FF00, 0x00FF0000, 0xFF000000);
    const BmpHead narrow{.width = 7, .height = 6, .bits = 16, .compression = 3};
    const BmpHead wide{.width = 7, .height = 6, .bits = 32, .compression = 3};
    files.push_back(Plain(narrow, shortMasks));
    files.push_back(Plain(wide, longMasks));
    files.push_back(Plain(wide, byteMasks));
    BmpHead withAlpha = wide;
    withAlpha.compression = 6;
    files.push_back(Plain(withAlpha, Bytes(byteMasks).U32(0xFF)));
    for (const std::uint32_t size : {52U, 56U, 108U, 124U}) {
        BmpHead longer = wide;
        longer.size = size;
        files.push_back(Plain(longer, Bytes(byteMasks).Zeros(size - 52)));
    }
}

void AddRuns(std::vector<Bytes>& files)
{
    // Runs, pixels one by one, a jump, the end of a row and of the picture.
    const Bytes eight{3, 1, 0, 4, 5, 6, 7, 8, 0, 0, 0, 2, 2, 1, 5, 9, 0, 3, 1, 2, 3, 0, 0, 1};
    const Bytes four{5, 0x12, 0, 5, 0x34, 0x56, 0x70, 0, 0, 0, 0, 2, 1, 1, 4, 0xAB, 0, 1};
    const Bytes trueColour{3, 10, 20, 30, 0, 3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 0, 1};
    files.push_back(
        Bmp({.width = 9, .height = 5, .bits = 8, .compression = 1}, Noise(1024), eight));
    files.push_back(Bmp({.width = 9, .height = 5, .bits = 4, .compression = 2}, Noise(64), four));
    files.push_back(Bmp({.size = 64, .width = 7, .height = 3, .bits = 24, .compression = 4},
                        Bytes().Zeros(24), trueColour));
}

}  // namespace

std::vector<Bytes> BmpFiles()
{
    std::vector<Bytes> files;
    AddPlain(files);
    AddMasked(files);
    AddRuns(files);
    return files;
}

}  // namespace pixano::test
