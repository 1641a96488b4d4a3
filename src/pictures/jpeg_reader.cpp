// JPEG files, decoded by libjpeg straight into the picture's rows.
#include "files/refusal.h"
#include "pictures/decoders.h"
#include "pictures/exif_orientation.h"
#include "pictures/jpeg_errors.h"
#include "pictures/jpeg_source.h"
#include "pictures/picture_size.h"
#include "pictures/upright_canvas.h"

#include <algorithm>
#include <array>
#include <bit>

#include <jerror.h>

namespace pixano {
namespace {

/// A progressive file has about ten scans. Each may cost the work of a whole picture and only a few
/// bytes of the file, so a small file could keep the program busy for hours.
constexpr int MostScans = 500;
constexpr std::int64_t MostScannedPixels = std::int64_t{8} << 30;

/// The layout of a surface's pixels: red in the lowest byte of a word, &HFF in the highest.
constexpr J_COLOR_SPACE ReadLayout = JCS_EXT_RGBA;

bool HasInks(const jpeg_decompress_struct& jpeg)
{
    return jpeg.jpeg_color_space == JCS_CMYK || jpeg.jpeg_color_space == JCS_YCCK;
}

/// Turns a row of inks (cyan, magenta, yellow, black; 255 is none of it) into a row of a surface,
/// in place. Whoever writes inks writes them inverted, with Adobe's mark or without it.
void InksToPixels(std::span<std::uint32_t> row)
{
    for (std::uint32_t& pixel : row) {
        const auto inks = std::bit_cast<std::array<std::uint8_t, 4>>(pixel);
        const auto shade = [&](unsigned ink) { return (ink * inks[3] + 127) / 255; };
        pixel = Surface::Opaque | shade(inks[0]) | shade(inks[1]) << 8 | shade(inks[2]) << 16;
    }
}

class JpegReader {
  public:
    explicit JpegReader(ByteSource& bytes) : source_(bytes)
    {
        jpeg_.err = &errors_;
        jpeg_.client_data = this;
        errors_.onWarning = NoteWarning;
        source_.onEnd = NoteEnd;
        progress_.progress_monitor = CheckWork;
        Run([this] { jpeg_create_decompress(&jpeg_); });
        jpeg_.progress = &progress_;
        source_.AttachTo(jpeg_);
    }
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader() { jpeg_destroy_decompress(&jpeg_); }

    PictureRead Read()
    {
        Run([this] { jpeg_read_header(&jpeg_, TRUE); });
        CheckSize(jpeg_.image_width, jpeg_.image_height);
        const auto width = static_cast<int>(jpeg_.image_width);
        const auto height = static_cast<int>(jpeg_.image_height);
        UprightCanvas canvas(width, height, ExifOrientation(source_.Exif()));
        jpeg_.out_color_space = HasInks(jpeg_) ? JCS_CMYK : ReadLayout;
        present_ = height;
        Run([this] { jpeg_start_decompress(&jpeg_); });
        Run([this, &canvas] { ReadRows(canvas); });
        // Where only the mark of the end is missing all pixels are there; further scans are
        // unknown.
        if (source_.Ended() && jpeg_has_multiple_scans(&jpeg_) != FALSE) damaged_ = true;
        if (present_ == height) CheckRest();
        return {canvas.Finish(present_), damaged_};
    }

  private:
    static JpegReader& Of(j_common_ptr jpeg)
    {
        return *static_cast<JpegReader*>(jpeg->client_data);
    }

    template <class Step>
    void Run(Step&& step)
    {
        if (!errors_.Run(step)) throw Refusal(errors_.Reason());
    }

    void ReadRows(UprightCanvas& canvas)
    {
        const std::size_t width = jpeg_.output_width;
        const bool inks = HasInks(jpeg_);
        while (static_cast<int>(jpeg_.output_scanline) < present_) {
            std::uint32_t* const row = canvas.Row(static_cast<int>(jpeg_.output_scanline));
            auto* samples = reinterpret_cast<JSAMPROW>(row);
            jpeg_read_scanlines(&jpeg_, &samples, 1);
            if (inks) InksToPixels({row, width});
        }
    }

    /// Reads on to the mark of the end: pixels that took too few bytes or too many are not what was
    /// written. All rows are there, so nothing here is a reason to refuse the picture.
    void CheckRest()
    {
        if (!errors_.Run([this] { jpeg_finish_decompress(&jpeg_); })) damaged_ = true;
    }

    static void NoteWarning(j_common_ptr common, int code)
    {
        if (code == JWRN_JFIF_MAJOR) return;  // a number of a version, which changes no pixel
        JpegReader& reader = Of(common);
        reader.damaged_ = true;
        if (code == JWRN_HIT_MARKER && reader.jpeg_.unread_marker == JPEG_EOI) reader.NoteCut();
    }

    /// The file has no more bytes. The arithmetic decoder goes on without a warning, as if zeros
    /// followed: a sound file may end so, but then with the mark of the end.
    static void NoteEnd(j_decompress_ptr jpeg)
    {
        JpegReader& reader = Of(reinterpret_cast<j_common_ptr>(jpeg));
        if (jpeg->arith_code == FALSE) return;
        reader.damaged_ = true;
        reader.NoteCut();
    }

    /// The picture ends within a scan. If that is the first one, nothing is known below the row of
    /// blocks that is being read.
    void NoteCut()
    {
        if (jpeg_.input_scan_number > 1) return;
        const int blockRow = jpeg_.max_v_samp_factor * DCTSIZE;
        const int begun = (static_cast<int>(jpeg_.input_iMCU_row) + 1) * blockRow;
        present_ = std::min(present_, begun);
    }

    static void CheckWork(j_common_ptr common)
    {
        const jpeg_decompress_struct& jpeg = Of(common).jpeg_;
        const std::int64_t pixels = std::int64_t{jpeg.image_width} * jpeg.image_height;
        static_assert(MostScans == 500 && MostScannedPixels / 1'000'000 == 8589);
        if (jpeg.input_scan_number > MostScans)
            JpegErrors::Of(common).Fail("il file JPEG è fatto di troppi strati (più di 500)");
        if (jpeg.input_scan_number * pixels > MostScannedPixels)
            JpegErrors::Of(common).Fail(
                "il file JPEG è fatto di troppi strati (più di 8589 milioni "
                "di pixel in tutto)");
    }

    JpegErrors errors_;
    JpegSource source_;
    jpeg_progress_mgr progress_{};
    jpeg_decompress_struct jpeg_{};
    /// How many rows the file has data for.
    int present_ = 0;
    /// What is shown may not be what was written.
    bool damaged_ = false;
};

}  // namespace

PictureRead DecodeJpeg(ByteSource& source)
{
    return JpegReader(source).Read();
}

}  // namespace pixano
