// GIF files: the first frame on its screen, read by giflib.
#include "files/refusal.h"
#include "pictures/decoders.h"
#include "pictures/picture_size.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <vector>

#include <gif_lib.h>

namespace pixano {
namespace {

/// Hands giflib the file's bytes. Within a frame's data, a file that ends too early looks as if its
/// last block were as short as what is left of it, and as if the frame ended there: so giflib gives
/// every pixel that the file has.
class GifBytes {
  public:
    explicit GifBytes(ByteSource& source) : source_(source) {}

    /// From here on giflib reads a block's length, the block, the next one's length...
    void EnterFrameData() { lengthIsNext_ = inFrameData_ = true; }

    static int Read(GifFileType* gif, GifByteType* into, int count)
    {
        return static_cast<GifBytes*>(gif->UserData)->Read({into, static_cast<std::size_t>(count)});
    }

  private:
    int Read(std::span<GifByteType> into)
    {
        const std::size_t got = source_.Read(std::as_writable_bytes(into));
        if (!inFrameData_) return static_cast<int>(got);
        if (lengthIsNext_) ShortenBlock(into.front(), got);
        lengthIsNext_ = !lengthIsNext_;
        return static_cast<int>(into.size());
    }

    void ShortenBlock(GifByteType& length, std::size_t got)
    {
        const std::uint64_t most = got == 0 ? 0 : source_.Remaining();
        length = static_cast<GifByteType>(std::min<std::uint64_t>(length, most));
    }

    ByteSource& source_;
    bool inFrameData_ = false;
    bool lengthIsNext_ = false;
};

struct CloseGif {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

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
    /// Reads up to the pixels of the first frame. Throws Refusal.
    explicit GifReader(ByteSource& source) : bytes_(source)
    {
        source.Seek(0);
        gif_.reset(DGifOpen(&bytes_, GifBytes::Read, nullptr));
        if (!gif_) RefuseDamaged();
        FindFrame();
        if (DGifGetImageDesc(gif_.get()) == GIF_ERROR) RefuseDamaged();
        bytes_.EnterFrameData();
        frame_ = gif_->Image;
        if (frame_.Width > 0 && frame_.Height > 0) CheckSize(frame_.Width, frame_.Height);
        if (gif_->SWidth == 0 || gif_->SHeight == 0) TakeFrameAsScreen();
        CheckSize(gif_->SWidth, gif_->SHeight);
    }

    int Width() const { return gif_->SWidth; }
    int Height() const { return gif_->SHeight; }

    /// Draws what of the frame lies on the screen, asking giflib for rows in pieces of
    /// `pixelsAtOnce`: a piece that it cannot give whole is lost. False when pixels are missing.
    bool Draw(Surface& surface, int pixelsAtOnce)
    {
        if (frame_.Width == 0) return true;
        const Palette colours = Colours();
        const auto row = std::span(row_).first(static_cast<std::size_t>(frame_.Width));
        for (const int y : RowOrder(frame_.Height, frame_.Interlace)) {
            if (!frame_.Interlace && frame_.Top + y >= surface.Height()) return true;
            const std::size_t got = ReadRow(row, static_cast<std::size_t>(pixelsAtOnce));
            DrawRow(surface, frame_.Top + y, row.first(got), colours);
            if (got < row.size()) return false;
        }
        return true;
    }

  private:
    using Palette = std::array<Colour, 256>;

    void FindFrame()
    {
        GifRecordType record = UNDEFINED_RECORD_TYPE;
        while (DGifGetRecordType(gif_.get(), &record) == GIF_OK) {
            if (record == IMAGE_DESC_RECORD_TYPE) return;
            if (record == TERMINATE_RECORD_TYPE)
                throw Refusal("il file GIF non contiene nessuna immagine");
            if (record == EXTENSION_RECORD_TYPE) ReadExtension();
        }
        RefuseDamaged();
    }

    void ReadExtension()
    {
        int code = 0;
        GifByteType* block = nullptr;
        int result = DGifGetExtension(gif_.get(), &code, &block);
        if (result == GIF_OK && block != nullptr && code == GRAPHICS_EXT_FUNC_CODE)
            DGifExtensionToGCB(block[0], block + 1, &control_);
        while (result == GIF_OK && block != nullptr)
            result = DGifGetExtensionNext(gif_.get(), &block);
        if (result == GIF_ERROR) RefuseDamaged();
    }

    void TakeFrameAsScreen()
    {
        gif_->SWidth = frame_.Width;
        gif_->SHeight = frame_.Height;
        frame_.Left = 0;
        frame_.Top = 0;
    }

    /// Black for a colour that the file does not have.
    Palette Colours() const
    {
        Palette colours{};
        const ColorMapObject* const map =
            frame_.ColorMap != nullptr ? frame_.ColorMap : gif_->SColorMap;
        const int count = map != nullptr ? std::min(map->ColorCount, 256) : 0;
        for (int i = 0; i < count; ++i) {
            const GifColorType& c = map->Colors[i];
            colours[static_cast<std::size_t>(i)] = c.Red | c.Green << 8 | c.Blue << 16;
        }
        if (control_.TransparentColor != NO_TRANSPARENT_COLOR)
            colours[static_cast<std::size_t>(control_.TransparentColor)] = Background;
        return colours;
    }

    std::size_t ReadRow(std::span<GifPixelType> row, std::size_t pixelsAtOnce)
    {
        std::size_t got = 0;
        while (got < row.size()) {
            const std::size_t count = std::min(pixelsAtOnce, row.size() - got);
            if (DGifGetLine(gif_.get(), &row[got], static_cast<int>(count)) == GIF_ERROR) break;
            got += count;
        }
        return got;
    }

    void DrawRow(Surface& surface, int y, std::span<const GifPixelType> row, const Palette& colours)
    {
        int x = frame_.Left;
        for (const GifPixelType pixel : row)
            surface.PSet(x++, y, colours[pixel]);
    }

    GifBytes bytes_;
    std::unique_ptr<GifFileType, CloseGif> gif_;
    GraphicsControlBlock control_{0, false, 0, NO_TRANSPARENT_COLOR};
    GifImageDesc frame_{};
    std::array<GifPixelType, LongestSide> row_{};
};

}  // namespace

PictureRead DecodeGif(ByteSource& source)
{
    GifReader reader(source);
    PictureRead read{Surface(reader.Width(), reader.Height())};
    if (reader.Draw(read.picture, LongestSide)) return read;
    // Whole rows go fast; where one fails, its first pixels may still be there.
    read.truncated = true;
    GifReader(source).Draw(read.picture, 1);
    return read;
}

}  // namespace pixano
