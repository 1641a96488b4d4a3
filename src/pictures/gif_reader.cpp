// GIF files: the first frame that has pixels, on its screen.
#include "files/refusal.h"
#include "pictures/decoders.h"
#include "pictures/gif_pixels.h"
#include "pictures/little_endian.h"
#include "pictures/picture_size.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace pixano {
namespace {

enum Block { Extension = 0x21, Frame = 0x2C, EndOfFile = 0x3B };

[[noreturn]] void RefuseDamaged()
{
    throw Refusal("il file GIF è danneggiato");
}

/// The order in which a frame's rows come.
std::vector<int> RowOrder(int height, bool interlaced)
{
    struct Pass {
        int first;
        int step;
    };
    constexpr std::array<Pass, 1> OnePass{{{0, 1}}};
    constexpr std::array<Pass, 4> FourPasses{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(height));
    for (const Pass pass : interlaced ? std::span<const Pass>(FourPasses) : OnePass)
        for (int y = pass.first; y < height; y += pass.step)
            rows.push_back(y);
    return rows;
}

class GifReader {
  public:
    /// Reads up to the pixels of the first frame that has some. Throws Refusal.
    explicit GifReader(ByteSource& source) : source_(source)
    {
        ReadScreen();
        FindFrame();
        CheckSize(frame_.width, frame_.height);
        if (width_ == 0 || height_ == 0) TakeFrameAsScreen();
        CheckSize(width_, height_);
    }

    PictureRead Read()
    {
        const int codeSize = NextByte();
        if (codeSize > GifPixels::LargestCodeSize) RefuseDamaged();
        PictureRead read{Surface(width_, height_)};
        GifPixels pixels(source_, codeSize);
        const bool complete = Draw(pixels, read.picture);
        read.truncated = strayBytes_ || !complete;
        return read;
    }

  private:
    /// Black for a colour that the file does not have.
    using Palette = std::array<Colour, 256>;

    struct FrameHead {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        bool interlaced = false;
    };

    void Fill(std::span<std::byte> bytes)
    {
        if (source_.Read(bytes) < bytes.size()) RefuseDamaged();
    }

    int NextByte()
    {
        const int byte = source_.Next();
        if (byte < 0) RefuseDamaged();
        return byte;
    }

    void ReadScreen()
    {
        std::array<std::byte, 13> head{};
        Fill(head);
        width_ = Load16(&head[6]);
        height_ = Load16(&head[8]);
        colours_ = ReadPalette(head[10]).value_or(Palette{});
    }

    /// The colours that follow a head with these flags; nothing when there are none.
    std::optional<Palette> ReadPalette(std::byte flags)
    {
        constexpr std::byte There{0x80};
        constexpr std::byte Count{7};
        if ((flags & There) != There) return std::nullopt;
        std::array<std::byte, std::size_t{3} * 256> bytes{};
        const std::size_t count = std::size_t{2} << std::to_integer<int>(flags & Count);
        Fill(std::span(bytes).first(3 * count));
        Palette palette{};
        for (std::size_t i = 0; i < count; ++i)
            palette[i] = std::to_integer<Colour>(bytes[3 * i]) |
                         std::to_integer<Colour>(bytes[3 * i + 1]) << 8 |
                         std::to_integer<Colour>(bytes[3 * i + 2]) << 16;
        return palette;
    }

    void FindFrame()
    {
        for (;;) {
            const int block = NextByte();
            if (block == EndOfFile) throw Refusal("il file GIF non contiene nessuna immagine");
            if (block == Extension)
                ReadExtension();
            else if (block == Frame && ReadFrameHead())
                return;
            else if (block != Frame)
                strayBytes_ = true;
        }
    }

    void ReadExtension()
    {
        constexpr int GraphicControl = 0xF9;
        constexpr int ControlLength = 4;
        const int kind = NextByte();
        for (int length = NextByte(); length > 0; length = NextByte()) {
            std::array<std::byte, 255> block{};
            Fill(std::span(block).first(static_cast<std::size_t>(length)));
            if (kind != GraphicControl || length != ControlLength) continue;
            const bool transparent = (block[0] & std::byte{1}) != std::byte{0};
            transparent_ = transparent ? std::to_integer<int>(block[3]) : -1;
        }
    }

    /// False when the frame has no pixels; it is skipped then, with all that belongs to it.
    bool ReadFrameHead()
    {
        std::array<std::byte, 9> head{};
        Fill(head);
        frame_ = {Load16(head.data()), Load16(&head[2]), Load16(&head[4]), Load16(&head[6]),
                  (head[8] & std::byte{0x40}) != std::byte{0}};
        const std::optional<Palette> own = ReadPalette(head[8]);
        if (frame_.width > 0 && frame_.height > 0) {
            if (own) colours_ = *own;
            if (transparent_ >= 0) colours_[static_cast<std::size_t>(transparent_)] = Background;
            return true;
        }
        NextByte();  // the code size
        for (int length = NextByte(); length > 0; length = NextByte())
            source_.Seek(source_.Position() + static_cast<std::uint64_t>(length));
        transparent_ = -1;
        return false;
    }

    void TakeFrameAsScreen()
    {
        width_ = frame_.width;
        height_ = frame_.height;
        frame_.left = 0;
        frame_.top = 0;
    }

    /// Draws what of the frame lies on the screen. False when pixels are missing.
    bool Draw(GifPixels& pixels, Surface& surface)
    {
        std::vector<std::uint16_t> row(static_cast<std::size_t>(frame_.width));
        for (const int y : RowOrder(frame_.height, frame_.interlaced)) {
            if (!frame_.interlaced && frame_.top + y >= surface.Height()) return true;
            const std::size_t got = pixels.Read(row);
            int x = frame_.left;
            for (const std::uint16_t pixel : std::span(row).first(got))
                surface.PSet(x++, frame_.top + y, pixel < colours_.size() ? colours_[pixel] : 0);
            if (got < row.size()) return false;
        }
        return true;
    }

    ByteSource& source_;
    int width_ = 0;
    int height_ = 0;
    Palette colours_{};
    /// The index that is no colour but a hole; -1 when there is none.
    int transparent_ = -1;
    FrameHead frame_;
    /// Bytes between the blocks that belong to none.
    bool strayBytes_ = false;
};

}  // namespace

PictureRead DecodeGif(ByteSource& source)
{
    return GifReader(source).Read();
}

}  // namespace pixano
