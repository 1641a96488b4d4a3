#include "pictures/jpeg_maker.h"

#include <cstdlib>

namespace pixano::test {

Bytes MakeJpeg(const JpegPlan& plan)
{
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = static_cast<JDIMENSION>(plan.width);
    jpeg.image_height = static_cast<JDIMENSION>(plan.height);
    jpeg.in_color_space = plan.space;
    jpeg.input_components = plan.space == JCS_GRAYSCALE ? 1 : plan.space == JCS_CMYK ? 4 : 3;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 100, TRUE);
    for (int i = 0; i < jpeg.num_components; ++i)
        jpeg.comp_info[i].h_samp_factor = jpeg.comp_info[i].v_samp_factor = 1;
    if (plan.set) plan.set(jpeg);
    jpeg_start_compress(&jpeg, TRUE);
    if (plan.write) plan.write(jpeg);
    std::vector<std::uint8_t> samples = plan.samples;
    const std::size_t stride = samples.size() / static_cast<std::size_t>(plan.height);
    while (jpeg.next_scanline < jpeg.image_height) {
        JSAMPROW row = samples.data() + jpeg.next_scanline * stride;
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    Bytes file;
    file.Add({reinterpret_cast<const char*>(memory), size});
    std::free(memory);
    return file;
}

Bytes MakeJpeg(const Surface& surface, const std::function<void(jpeg_compress_struct&)>& set,
               const std::function<void(jpeg_compress_struct&)>& write)
{
    JpegPlan plan{.width = surface.Width(), .height = surface.Height(), .set = set, .write = write};
    for (const Colour colour : ColoursOf(surface))
        for (const int shift : {0, 8, 16})
            plan.samples.push_back(static_cast<std::uint8_t>(colour >> shift & 255));
    return MakeJpeg(plan);
}

namespace {

/// All pixels, in the order red, green, blue; `warnings`: how often libjpeg warned.
Colours Decoded(const Bytes& file, long& warnings)
{
    jpeg_decompress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    errors.output_message = [](j_common_ptr) {};
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(file.Vector().data()), file.Size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg.out_color_space = JCS_RGB;
    jpeg_start_decompress(&jpeg);
    std::vector<std::uint8_t> row(jpeg.output_width * std::size_t{3});
    Colours colours;
    while (jpeg.output_scanline < jpeg.output_height) {
        JSAMPROW samples = row.data();
        jpeg_read_scanlines(&jpeg, &samples, 1);
        for (std::size_t i = 0; i < row.size(); i += 3)
            colours.push_back(Rgb(row[i], row[i + 1], row[i + 2]));
    }
    jpeg_destroy_decompress(&jpeg);
    warnings = errors.num_warnings;
    return colours;
}

}  // namespace

Colours DecodedByLibjpeg(const Bytes& file)
{
    long warnings = 0;
    return Decoded(file, warnings);
}

long WarningsOfLibjpeg(const Bytes& file)
{
    long warnings = 0;
    Decoded(file, warnings);
    return warnings;
}

Surface Shaded(int width, int height)
{
    Surface surface(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            surface.PSet(x, y, Rgb(x * 255 / width, y * 255 / height, (x * 5 + y * 3) & 255));
    return surface;
}

Bytes WithSides(Bytes file, int width, int height)
{
    std::vector<std::byte>& bytes = file.Vector();
    std::size_t i = 2;
    while (bytes[i + 1] != std::byte{0xC0} && bytes[i + 1] != std::byte{0xC2})
        i += 2 + (std::to_integer<std::size_t>(bytes[i + 2]) << 8 |
                  std::to_integer<std::size_t>(bytes[i + 3]));
    bytes[i + 5] = static_cast<std::byte>(height >> 8);
    bytes[i + 6] = static_cast<std::byte>(height & 255);
    bytes[i + 7] = static_cast<std::byte>(width >> 8);
    bytes[i + 8] = static_cast<std::byte>(width & 255);
    return file;
}

Bytes WithScans(int width, int height, int scans)
{
    static constexpr jpeg_scan_info Script[] = {
        {1, {0}, 0, 0, 0, 0}, {1, {0}, 1, 63, 0, 1}, {1, {0}, 1, 63, 1, 0}};
    JpegPlan plan{.width = width, .height = height, .space = JCS_GRAYSCALE};
    plan.samples.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 77);
    plan.set = [](jpeg_compress_struct& jpeg) {
        jpeg.scan_info = Script;
        jpeg.num_scans = 3;
    };
    Bytes file = MakeJpeg(plan);
    std::vector<std::byte>& bytes = file.Vector();
    std::size_t last = bytes.size() - 2;
    while (bytes[last] != std::byte{0xFF} || bytes[last + 1] != std::byte{0xDA})
        --last;
    const std::vector<std::byte> scan(bytes.begin() + static_cast<std::ptrdiff_t>(last),
                                      bytes.end() - 2);
    bytes.resize(bytes.size() - 2);
    for (int i = 1; i < scans; ++i)
        bytes.insert(bytes.end(), scan.begin(), scan.end());
    return file.Add({0xFF, 0xD9});
}

Bytes InScans(int width, int height, int scans)
{
    constexpr int Finest = 10;
    std::vector<jpeg_scan_info> script{{1, {0}, 0, 0, 0, 0}};
    for (int pattern = 1; pattern < DCTSIZE2; ++pattern)
        for (int bit = Finest; bit >= 0; --bit)
            script.push_back({1, {0}, pattern, pattern, bit == Finest ? 0 : bit + 1, bit});
    JpegPlan plan{.width = width, .height = height, .space = JCS_GRAYSCALE};
    plan.samples.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 77);
    plan.set = [&](jpeg_compress_struct& jpeg) {
        jpeg.scan_info = script.data();
        jpeg.num_scans = scans;
    };
    return MakeJpeg(plan);
}

}  // namespace pixano::test
