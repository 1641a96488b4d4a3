// Pictures into files, the same bytes at every run. Knows no drawing.
#include "picture_writer.h"

#include <QFile>
#include <QImageWriter>

#include <gif_lib.h>

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

namespace pixano::art {

namespace {

constexpr int Transparent = 255;

[[noreturn]] void Refuse(const QString& path)
{
    throw std::runtime_error("cannot write " + path.toStdString());
}

void Write(const QImage& picture, const QString& path, const char* format, int quality)
{
    QImageWriter writer(path, format);
    writer.setQuality(quality);
    writer.setOptimizedWrite(true);
    if (!writer.write(picture)) Refuse(path);
}

/// A picture by numbers: its cells and what each number looks like.
struct Indexed {
    std::vector<GifByteType> cells;
    std::vector<GifColorType> table;
};

GifByteType Rounded(int level, int step)
{
    return static_cast<GifByteType>(std::min(255, (level + step / 2) / step * step));
}

/// The picture with every level rounded to a multiple of `step`; false when the table is too small.
bool Index(const QImage& picture, int step, Indexed& result)
{
    std::map<QRgb, int> numbers;
    result = {};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (qAlpha(pixel) < 128) {
                result.cells.push_back(Transparent);
                continue;
            }
            const GifColorType colour{Rounded(qRed(pixel), step), Rounded(qGreen(pixel), step),
                                      Rounded(qBlue(pixel), step)};
            const QRgb key = qRgb(colour.Red, colour.Green, colour.Blue);
            const auto [place, added] =
                numbers.try_emplace(key, static_cast<int>(result.table.size()));
            if (added) result.table.push_back(colour);
            if (result.table.size() > Transparent) return false;
            result.cells.push_back(static_cast<GifByteType>(place->second));
        }
    }
    return true;
}

Indexed FinestIndex(const QImage& picture)
{
    Indexed result;
    for (int step = 1; !Index(picture, step, result);)
        ++step;
    result.table.resize(Transparent + 1);
    return result;
}

int Append(GifFileType* gif, const GifByteType* bytes, int count)
{
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), count);
    return count;
}

struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

bool PutFrame(GifFileType* gif, const QImage& picture, Indexed& indexed)
{
    const std::unique_ptr<ColorMapObject, FreeMap> map(
        GifMakeMapObject(Transparent + 1, indexed.table.data()));
    GraphicsControlBlock control{};
    control.TransparentColor = Transparent;
    GifByteType extension[4];
    EGifGCBToExtension(&control, extension);
    EGifSetGifVersion(gif, true);
    const int width = picture.width();
    const int height = picture.height();
    if (EGifPutScreenDesc(gif, width, height, 8, 0, map.get()) == GIF_ERROR) return false;
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, extension) == GIF_ERROR) return false;
    if (EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) == GIF_ERROR) return false;
    for (int y = 0; y < height; ++y)
        if (EGifPutLine(gif, indexed.cells.data() + y * width, width) == GIF_ERROR) return false;
    return true;
}

}  // namespace

void WriteJpeg(const QImage& picture, const QString& path, int quality)
{
    Write(picture.convertToFormat(QImage::Format_RGB32), path, "jpg", quality);
}

void WritePng(const QImage& picture, const QString& path)
{
    Write(picture.convertToFormat(QImage::Format_ARGB32), path, "png", -1);
}

void WriteGif(const QImage& picture, const QString& path)
{
    const QImage straight = picture.convertToFormat(QImage::Format_ARGB32);
    Indexed indexed = FinestIndex(straight);
    QByteArray bytes;
    GifFileType* gif = EGifOpen(&bytes, Append, nullptr);
    if (gif == nullptr) Refuse(path);
    const bool put = PutFrame(gif, straight, indexed);
    const bool closed = EGifCloseFile(gif, nullptr) == GIF_OK;
    if (!put || !closed) Refuse(path);
    WriteBytes(bytes, path);
}

void WriteBytes(const QByteArray& bytes, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        Refuse(path);
}

}  // namespace pixano::art
