// BMP pixels in runs (RLE4, RLE8, RLE24).
#include "pictures/bmp_pixels.h"

#include <algorithm>

namespace pixano {
namespace {

/// Where the next pixel goes, counted in the file's order of rows. A run that leaves its row is
/// cut.
class Pen {
  public:
    Pen(const BmpHeader& header, Surface& surface) : header_(header), surface_(surface) {}

    void Draw(std::uint32_t pixel)
    {
        if (x_ == header_.width) return;
        surface_.Row(RowOf(header_, y_))[static_cast<std::size_t>(x_)] = pixel;
        ++x_;
    }
    void NextRow() { Move(-x_, 1); }
    void Move(int columns, int rows)
    {
        x_ = std::min(x_ + columns, header_.width);
        y_ += rows;
    }
    /// No pixel can come any more that shows.
    bool BelowPicture() const { return y_ >= header_.height; }
    bool AtLastPixel() const { return y_ == header_.height - 1 && x_ == header_.width; }

  private:
    const BmpHeader& header_;
    Surface& surface_;
    int x_ = 0;
    int y_ = 0;
};

class RunReader {
  public:
    RunReader(ByteSource& source, const BmpHeader& header, Surface& surface)
        : source_(source), header_(header), pen_(header, surface)
    {
    }

    /// False when the file ended before the picture did.
    bool Read()
    {
        while (!pen_.BelowPicture()) {
            const int count = source_.Next();
            if (count > 0) {
                Repeat(count);
                continue;
            }
            const int order = count == 0 ? source_.Next() : -1;
            if (order == EndOfPicture) return true;
            if (order < 0 || ended_) return pen_.AtLastPixel();
            Obey(order);
        }
        return true;
    }

  private:
    enum Order { EndOfRow, EndOfPicture, Jump };

    void Obey(int order)
    {
        if (order == EndOfRow)
            pen_.NextRow();
        else if (order == Jump)
            DoJump();
        else
            Copy(order);
    }

    void DoJump()
    {
        const int columns = source_.Next();
        const int rows = source_.Next();
        if (rows < 0)
            ended_ = true;
        else
            pen_.Move(columns, rows);
    }

    /// `count` pixels of one colour; of two that take turns in RLE4.
    void Repeat(int count)
    {
        if (header_.coding == BmpCoding::Rle24) {
            const std::uint32_t pixel = NextTrueColour();
            for (int i = 0; i < count && !ended_; ++i)
                pen_.Draw(pixel);
            return;
        }
        const int value = NextByte();
        for (int i = 0; i < count && !ended_; ++i)
            pen_.Draw(Indexed(value, i));
    }

    /// `count` pixels each on its own, in a whole number of 16-bit words.
    void Copy(int count)
    {
        int bytes = 0;
        int value = 0;
        for (int i = 0; i < count; ++i) {
            std::uint32_t pixel = 0;
            if (header_.coding == BmpCoding::Rle24) {
                pixel = NextTrueColour();
                bytes += 3;
            } else {
                if (header_.coding == BmpCoding::Rle8 || i % 2 == 0) {
                    value = NextByte();
                    ++bytes;
                }
                pixel = Indexed(value, i);
            }
            if (ended_) return;
            pen_.Draw(pixel);
        }
        if (bytes % 2 != 0) source_.Next();
    }

    std::uint32_t Indexed(int value, int i) const
    {
        if (header_.coding == BmpCoding::Rle8) return header_.palette[static_cast<unsigned>(value)];
        return header_.palette[static_cast<unsigned>(i % 2 == 0 ? value >> 4 : value & 15)];
    }

    int NextByte()
    {
        const int byte = source_.Next();
        if (byte < 0) ended_ = true;
        return std::max(byte, 0);
    }

    std::uint32_t NextTrueColour()
    {
        const auto blue = static_cast<std::uint32_t>(NextByte());
        const auto green = static_cast<std::uint32_t>(NextByte());
        const auto red = static_cast<std::uint32_t>(NextByte());
        return Surface::Opaque | red | green << 8 | blue << 16;
    }

    ByteSource& source_;
    const BmpHeader& header_;
    Pen pen_;
    bool ended_ = false;
};

}  // namespace

bool ReadBmpRuns(ByteSource& source, const BmpHeader& header, Surface& surface)
{
    return RunReader(source, header, surface).Read();
}

}  // namespace pixano
