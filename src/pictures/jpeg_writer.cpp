// JPEG files as this program writes them: the best quality that still makes small files.
#include "files/refusal.h"
#include "files/system_reason.h"
#include "pictures/encoders.h"
#include "pictures/jpeg_errors.h"

#include <bit>
#include <vector>

namespace pixano {
namespace {

constexpr std::size_t OutputSize = 1 << 16;

constexpr J_COLOR_SPACE WrittenLayout = JCS_EXT_RGBX;

/// libjpeg's view of a sink.
class JpegTarget : public jpeg_destination_mgr {
  public:
    explicit JpegTarget(ByteSink& sink) : jpeg_destination_mgr{}, sink_(sink), buffer_(OutputSize)
    {
        init_destination = [](j_compress_ptr jpeg) { Of(jpeg).Empty(); };
        empty_output_buffer = [](j_compress_ptr jpeg) -> boolean {
            Of(jpeg).Put(jpeg, OutputSize);
            return TRUE;
        };
        term_destination = [](j_compress_ptr jpeg) {
            Of(jpeg).Put(jpeg, OutputSize - Of(jpeg).free_in_buffer);
        };
    }

  private:
    static JpegTarget& Of(j_compress_ptr jpeg) { return *static_cast<JpegTarget*>(jpeg->dest); }

    void Empty()
    {
        next_output_byte = buffer_.data();
        free_in_buffer = OutputSize;
    }
    void Put(j_compress_ptr jpeg, std::size_t count)
    {
        if (!sink_.Write(std::as_bytes(std::span(buffer_).first(count))))
            JpegErrors::Of(reinterpret_cast<j_common_ptr>(jpeg)).Fail("");
        Empty();
    }

    ByteSink& sink_;
    std::vector<JOCTET> buffer_;
};

class JpegWriter {
  public:
    JpegWriter(ByteSink& sink, const Extras& extras) : sink_(sink), extras_(extras), target_(sink)
    {
        jpeg_.err = &errors_;
        Run([this] { jpeg_create_compress(&jpeg_); });
        jpeg_.dest = &target_;
    }
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;
    ~JpegWriter() { jpeg_destroy_compress(&jpeg_); }

    void Write(const Surface& surface)
    {
        Run([this, &surface] { Start(surface); });
        Run([this, &surface] { WriteRows(surface); });
    }

  private:
    template <class Step>
    void Run(Step&& step)
    {
        if (errors_.Run(step)) return;
        throw Refusal(sink_.Error() != 0 ? SystemReason(sink_.Error()) : errors_.Reason());
    }

    void Start(const Surface& surface)
    {
        jpeg_.image_width = static_cast<JDIMENSION>(surface.Width());
        jpeg_.image_height = static_cast<JDIMENSION>(surface.Height());
        jpeg_.input_components = 4;
        jpeg_.in_color_space = WrittenLayout;
        jpeg_set_defaults(&jpeg_);
        jpeg_set_quality(&jpeg_, extras_.quality, TRUE);
        // The colours as fine as the light: effects draw edges one pixel wide.
        jpeg_.comp_info[0].h_samp_factor = 1;
        jpeg_.comp_info[0].v_samp_factor = 1;
        jpeg_start_compress(&jpeg_, TRUE);
        if (!extras_.profile.empty())
            jpeg_write_icc_profile(&jpeg_, reinterpret_cast<const JOCTET*>(extras_.profile.data()),
                                   static_cast<unsigned>(extras_.profile.size()));
    }

    void WriteRows(const Surface& surface)
    {
        for (int y = 0; y < surface.Height(); ++y) {
            // libjpeg only reads through this pointer.
            auto* const row = const_cast<std::uint32_t*>(surface.Row(y).data());
            auto* samples = reinterpret_cast<JSAMPROW>(row);
            jpeg_write_scanlines(&jpeg_, &samples, 1);
        }
        jpeg_finish_compress(&jpeg_);
    }

    ByteSink& sink_;
    const Extras& extras_;
    JpegErrors errors_;
    JpegTarget target_;
    jpeg_compress_struct jpeg_{};
};

}  // namespace

void EncodeJpeg(const Surface& surface, ByteSink& sink, const Extras& extras)
{
    JpegWriter(sink, extras).Write(surface);
}

}  // namespace pixano
