// Feeds libjpeg from a source of bytes, and keeps the Exif block that passes by. Knows no pixels.
#pragma once

#include "files/byte_source.h"

#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace pixano {

/// The source manager of one decompression, which it must outlive.
class JpegSource : public jpeg_source_mgr {
  public:
    explicit JpegSource(ByteSource& bytes);
    JpegSource(const JpegSource&) = delete;
    JpegSource& operator=(const JpegSource&) = delete;

    void AttachTo(jpeg_decompress_struct& jpeg);

    /// libjpeg asked for more than the file has and was told that the picture ends.
    bool Ended() const { return ended_; }
    /// Called when it first does.
    void (*onEnd)(j_decompress_ptr jpeg) = nullptr;
    /// The first APP1 segment that begins as Exif does; empty when there is none.
    std::span<const std::byte> Exif() const { return exif_; }

  private:
    static JpegSource& Of(j_decompress_ptr jpeg) { return *static_cast<JpegSource*>(jpeg->src); }
    static boolean Fill(j_decompress_ptr jpeg);
    static void Skip(j_decompress_ptr jpeg, long count);
    static boolean ReadApp1(j_decompress_ptr jpeg);
    std::byte NextByte(j_decompress_ptr jpeg);

    ByteSource& bytes_;
    std::span<const std::byte> waiting_;
    std::vector<std::byte> exif_;
    bool ended_ = false;
};

}  // namespace pixano
