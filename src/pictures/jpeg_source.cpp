#include "pictures/jpeg_source.h"

#include "pictures/exif_orientation.h"

#include <algorithm>

namespace pixano {
namespace {

constexpr std::size_t LongestSegment = 65535;
/// With 512 bytes at hand libjpeg takes a faster way, on which it passes over bad codes in silence.
constexpr std::size_t AtOnce = 511;
constexpr JOCTET EndOfImage[] = {0xFF, JPEG_EOI};

}  // namespace

JpegSource::JpegSource(ByteSource& bytes) : jpeg_source_mgr{}, bytes_(bytes)
{
    exif_.reserve(LongestSegment);  // so that no call from libjpeg needs memory
    init_source = [](j_decompress_ptr) {};
    fill_input_buffer = Fill;
    skip_input_data = Skip;
    resync_to_restart = jpeg_resync_to_restart;
    term_source = [](j_decompress_ptr) {};
}

void JpegSource::AttachTo(jpeg_decompress_struct& jpeg)
{
    jpeg.src = this;
    jpeg_set_marker_processor(&jpeg, JPEG_APP0 + 1, ReadApp1);
}

boolean JpegSource::Fill(j_decompress_ptr jpeg)
{
    JpegSource& source = Of(jpeg);
    if (source.waiting_.empty()) source.waiting_ = source.bytes_.Take();
    const auto taken = source.waiting_.first(std::min(AtOnce, source.waiting_.size()));
    source.waiting_ = source.waiting_.subspan(taken.size());
    if (taken.empty() && !source.ended_ && source.onEnd != nullptr) source.onEnd(jpeg);
    source.ended_ = taken.empty();
    source.next_input_byte =
        source.ended_ ? EndOfImage : reinterpret_cast<const JOCTET*>(taken.data());
    source.bytes_in_buffer = source.ended_ ? sizeof EndOfImage : taken.size();
    return TRUE;
}

void JpegSource::Skip(j_decompress_ptr jpeg, long count)
{
    JpegSource& source = Of(jpeg);
    while (count > 0) {
        if (source.bytes_in_buffer == 0) Fill(jpeg);
        if (source.ended_) return;
        const std::size_t skipped =
            std::min(static_cast<std::size_t>(count), source.bytes_in_buffer);
        source.next_input_byte += skipped;
        source.bytes_in_buffer -= skipped;
        count -= static_cast<long>(skipped);
    }
}

std::byte JpegSource::NextByte(j_decompress_ptr jpeg)
{
    if (bytes_in_buffer == 0) Fill(jpeg);
    --bytes_in_buffer;
    return std::byte{*next_input_byte++};
}

boolean JpegSource::ReadApp1(j_decompress_ptr jpeg)
{
    JpegSource& source = Of(jpeg);
    const auto high = std::to_integer<long>(source.NextByte(jpeg));
    const long length = (high << 8 | std::to_integer<long>(source.NextByte(jpeg))) - 2;
    if (!source.exif_.empty()) {
        Skip(jpeg, length);
        return TRUE;
    }
    for (long i = 0; i < length && !source.ended_; ++i)
        source.exif_.push_back(source.NextByte(jpeg));
    if (!BeginsAsExif(source.exif_)) source.exif_.clear();
    return TRUE;
}

}  // namespace pixano
