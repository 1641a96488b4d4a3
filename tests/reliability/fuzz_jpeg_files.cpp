// JPEG files: sequential, progressive and arithmetic, grey, in colours and in inks, with and
// without an Exif block.
#include "pictures/jpeg_maker.h"
#include "reliability/fuzz_kinds.h"

#include <algorithm>
#include <array>

namespace pixano::test {
namespace {

using Set = std::function<void(jpeg_compress_struct&)>;

void Coarse(jpeg_compress_struct& jpeg)
{
    jpeg_set_quality(&jpeg, 60, TRUE);
}

void CoarseProgressive(jpeg_compress_struct& jpeg)
{
    Coarse(jpeg);
    Progressive(jpeg);
}

void Halved(jpeg_compress_struct& jpeg)
{
    Coarse(jpeg);
    jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 2;
}

void HalvedProgressive(jpeg_compress_struct& jpeg)
{
    Halved(jpeg);
    Progressive(jpeg);
}

void Restarting(jpeg_compress_struct& jpeg)
{
    Coarse(jpeg);
    jpeg.restart_interval = 2;
}

void Arithmetic(jpeg_compress_struct& jpeg)
{
    Coarse(jpeg);
    jpeg.arith_code = TRUE;
}

void ArithmeticRestarting(jpeg_compress_struct& jpeg)
{
    Arithmetic(jpeg);
    jpeg.restart_interval = 2;
}

void ArithmeticProgressive(jpeg_compress_struct& jpeg)
{
    CoarseProgressive(jpeg);
    jpeg.arith_code = TRUE;
}

void WithoutAdobesMark(jpeg_compress_struct& jpeg)
{
    Coarse(jpeg);
    jpeg.write_Adobe_marker = FALSE;
}

void OneScanForEachColour(jpeg_compress_struct& jpeg)
{
    static constexpr jpeg_scan_info Scans[] = {
        {1, {0}, 0, 63, 0, 0}, {1, {1}, 0, 63, 0, 0}, {1, {2}, 0, 63, 0, 0}};
    jpeg.scan_info = Scans;
    jpeg.num_scans = 3;
}

/// An Exif block that turns the picture a quarter, by a long number, and a block of another kind.
void WriteExif(jpeg_compress_struct& jpeg)
{
    const Bytes exif = Bytes()
                           .Add(std::string_view("Exif\0\0II*\0\x08\0\0\0", 14))
                           .U16(1)
                           .U16(0x0112)
                           .U16(4)
                           .U32(1)
                           .U32(6)
                           .U32(0);
    const auto* const data = reinterpret_cast<const JOCTET*>(exif.Vector().data());
    jpeg_write_marker(&jpeg, JPEG_APP0 + 1, data, static_cast<unsigned>(exif.Size()));
    jpeg_write_marker(&jpeg, JPEG_COM, data, 5);
}

/// Samples that stand for light or for inks, as many as a pixel has.
Bytes OtherColours(J_COLOR_SPACE space, std::size_t components, const Set& set)
{
    JpegPlan plan{.width = 21, .height = 18, .space = space, .set = set};
    for (std::size_t i = 0; i < 21 * 18 * components; ++i)
        plan.samples.push_back(static_cast<std::uint8_t>(i * 5 + i / 84 * 3));
    return MakeJpeg(plan);
}

/// A file that is cut, one that has lost a restart marker, and one that begins with too much.
void AddDamaged(const Surface& picture, std::vector<Bytes>& files)
{
    files.push_back(MakeJpeg(picture, Arithmetic).Without(90));
    Bytes lost = MakeJpeg(picture, Restarting);
    std::vector<std::byte>& bytes = lost.Vector();
    constexpr std::array Marker{std::byte{0xFF}, std::byte{0xD0}};
    const auto found = std::search(bytes.begin(), bytes.end(), Marker.begin(), Marker.end());
    bytes.erase(found, found + 2);
    files.push_back(lost);
    files.push_back(MakeJpeg(picture, Coarse));
    files.back().Vector().insert(files.back().Vector().begin() + 2, std::byte{0x20});
}

}  // namespace

std::vector<Bytes> JpegFiles()
{
    const Surface picture = Shaded(37, 26);
    std::vector<Bytes> files;
    for (const auto set :
         {Coarse, CoarseProgressive, Halved, HalvedProgressive, Restarting, Arithmetic,
          ArithmeticRestarting, ArithmeticProgressive, OneScanForEachColour})
        files.push_back(MakeJpeg(picture, set));
    for (const auto set : {Coarse, CoarseProgressive}) {
        files.push_back(MakeJpeg(picture, set, WriteExif));
        files.push_back(OtherColours(JCS_GRAYSCALE, 1, set));
        files.push_back(OtherColours(JCS_CMYK, 4, set));
        files.push_back(OtherColours(JCS_CMYK, 4, [set](jpeg_compress_struct& jpeg) {
            set(jpeg);
            jpeg_set_colorspace(&jpeg, JCS_YCCK);
        }));
    }
    files.push_back(OtherColours(JCS_CMYK, 4, WithoutAdobesMark));
    files.push_back(InScans(16, 16, 40));
    AddDamaged(picture, files);
    return files;
}

}  // namespace pixano::test
