// PNG files as this program writes them: 8 bits a channel, compressed quickly.
#include "files/refusal.h"
#include "files/system_reason.h"
#include "pictures/encoders.h"
#include "pictures/guarded_calls.h"

#include <bit>
#include <cerrno>

#include <png.h>

namespace pixano {
namespace {

/// From version 4 on profiles consist of groups of four bytes. Some releases of libpng leave out
/// one that does not, others give up the picture.
bool HasWholeGroups(const std::vector<std::byte>& profile)
{
    constexpr std::size_t Version = 8;
    return profile.size() % 4 == 0 || profile.at(Version) < std::byte{4};
}

class PngWriter {
  public:
    PngWriter(ByteSink& sink, const Extras& extras) : sink_(sink), extras_(extras)
    {
        png_ = png_create_write_struct(PNG_LIBPNG_VER_STRING, this, Fail,
                                       [](png_structp, png_const_charp) {});
        if (png_ != nullptr) Run([this] { info_ = png_create_info_struct(png_); });
        if (info_ != nullptr) return;
        png_destroy_write_struct(&png_, nullptr);
        throw Refusal(SystemReason(ENOMEM));
    }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter() { png_destroy_write_struct(&png_, &info_); }

    void Write(const Surface& surface)
    {
        Run([this, &surface] { Start(surface); });
        Run([this, &surface] {
            for (int y = 0; y < surface.Height(); ++y)
                png_write_row(png_, reinterpret_cast<png_const_bytep>(surface.Row(y).data()));
            png_write_end(png_, info_);
        });
    }

  private:
    template <class Step>
    void Run(Step&& step)
    {
        if (!calls_.Run(step))
            throw Refusal(SystemReason(sink_.Error() != 0 ? sink_.Error() : ENOMEM));
    }

    void Start(const Surface& surface)
    {
        constexpr int FastLevel = 1;
        png_set_write_fn(png_, this, Put, nullptr);
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(surface.Width()),
                     static_cast<png_uint_32>(surface.Height()), 8, PNG_COLOR_TYPE_RGB,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_compression_level(png_, FastLevel);
        png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
        // A profile that libpng finds fault with is left out.
        png_set_benign_errors(png_, 1);
        if (!extras_.profile.empty() && HasWholeGroups(extras_.profile))
            png_set_iCCP(png_, info_, "ICC", PNG_COMPRESSION_TYPE_BASE,
                         reinterpret_cast<png_const_bytep>(extras_.profile.data()),
                         static_cast<png_uint_32>(extras_.profile.size()));
        png_write_info(png_, info_);
        png_set_filler(png_, 0, PNG_FILLER_AFTER);
    }

    static void Put(png_structp png, png_bytep bytes, std::size_t count)
    {
        PngWriter& writer = *static_cast<PngWriter*>(png_get_io_ptr(png));
        if (!writer.sink_.Write(std::as_bytes(std::span(bytes, count)))) writer.calls_.Leave();
    }

    [[noreturn]] static void Fail(png_structp png, png_const_charp /*message*/)
    {
        static_cast<PngWriter*>(png_get_error_ptr(png))->calls_.Leave();
    }

    ByteSink& sink_;
    const Extras& extras_;
    GuardedCalls calls_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

}  // namespace

void EncodePng(const Surface& surface, ByteSink& sink, const Extras& extras)
{
    PngWriter(sink, extras).Write(surface);
}

}  // namespace pixano
