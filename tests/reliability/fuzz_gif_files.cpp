// GIF files: spelt out, and coded with growing codes by giflib.
#include "pictures/gif_maker.h"
#include "reliability/fuzz_kinds.h"

#include <array>
#include <stdexcept>

#include <gif_lib.h>

namespace pixano::test {
namespace {

std::vector<int> Indices(int count)
{
    std::vector<int> indices;
    for (int i = 0; i < count; ++i)
        indices.push_back(i * 7 / 5 % 4);
    return indices;
}

/// A frame of its own colours or of the screen's, in several blocks.
Bytes Frame(std::uint32_t left, std::uint32_t top, std::uint32_t width, std::uint32_t height,
            int flags)
{
    Bytes frame = GifFrame(left, top, width, height, flags);
    if ((flags & 0x80) != 0) frame.Add(GifTable);
    return frame.Add(GifPixels(Indices(static_cast<int>(width * height)), 20));
}

Bytes Comment()
{
    return Bytes{0x21, 0xFE, 4}.Add("nota").Add({3}).Add("poi").Add({0});
}

/// A picture of 256 colours whose codes grow to their full length.
Bytes Coded(int width, int height)
{
    Bytes file;
    const auto take = [](GifFileType* gif, const GifByteType* bytes, int count) {
        const auto* const text = reinterpret_cast<const char*>(bytes);
        static_cast<Bytes*>(gif->UserData)->Add({text, static_cast<std::size_t>(count)});
        return count;
    };
    GifFileType* const gif = EGifOpen(&file, take, nullptr);
    std::array<GifColorType, 256> colours{};
    for (std::size_t i = 0; i < colours.size(); ++i)
        colours[i].Red = colours[255 - i].Green = static_cast<GifByteType>(i);
    ColorMapObject* const map = GifMakeMapObject(256, colours.data());
    EGifPutScreenDesc(gif, width, height, 8, 0, map);
    EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr);
    GifFreeMapObject(map);
    for (int i = 0; i < width * height; ++i)
        EGifPutPixel(gif, static_cast<GifPixelType>(i / 3 * 37 + i * i / 11));
    if (EGifCloseFile(gif, nullptr) == GIF_ERROR) throw std::runtime_error("no GIF was made");
    return file;
}

/// Frames without pixels before one whose pixels take many bits.
Bytes Wide(int pixelBits)
{
    return GifScreen(7, 3)
        .Add(GifTransparency(1))
        .Add(GifFrame(0, 0, 0, 3, 0x81))
        .Add(GifTable)
        .Add(GifPixels({1, 2}))
        .Add(GifFrame(0, 0, 7, 0))
        .Add(GifPixels({}))
        .Add(GifFrame(0, 0, 7, 3))
        .Add(GifPixels(Indices(21), 9, pixelBits))
        .Add(GifEnd);
}

void AddDamaged(std::vector<Bytes>& files)
{
    const Bytes frame = Frame(0, 0, 9, 7, 0);
    files.push_back(GifScreen(9, 7).Add({0, 99, 0}).Add(frame).Add(GifEnd));
    files.push_back(GifScreen(9, 7).Add(GifFrame(0, 0, 9, 7)).Add(GifCoded({4, 1, 6, 7}, 2)));
}

}  // namespace

std::vector<Bytes> GifFiles()
{
    std::vector<Bytes> files;
    files.push_back(GifScreen(9, 7).Add(Frame(0, 0, 9, 7, 0)).Add(GifEnd));
    files.push_back(GifScreen(9, 17).Add(Frame(0, 0, 9, 17, 0x40)).Add(GifEnd));
    files.push_back(GifScreen(12, 12, false)
                        .Add(Comment())
                        .Add(GifTransparency(2))
                        .Add(Frame(2, 3, 8, 6, 0x81))
                        .Add(GifEnd));
    files.push_back(GifScreen(10, 10)
                        .Add(Bytes{0x21, 0xFF, 11}.Add("NETSCAPE2.0").Add({3, 1, 0, 0, 0}))
                        .Add(GifTransparency(0))
                        .Add(Frame(0, 0, 10, 10, 0))
                        .Add(GifTransparency(1))
                        .Add(Frame(3, 3, 4, 4, 0xC1))
                        .Add(GifEnd));
    files.push_back(GifScreen(0, 0).Add(Frame(5, 5, 6, 5, 0)).Add(GifEnd));
    files.push_back(Coded(60, 50));
    files.push_back(Coded(8, 8));
    files.push_back(Wide(9));
    files.push_back(Wide(11));
    AddDamaged(files);
    return files;
}

}  // namespace pixano::test
