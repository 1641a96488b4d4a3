#include "pictures/picture_files.h"

#include "files/atomic_file.h"
#include "files/refusal.h"
#include "files/regular_file.h"
#include "pictures/decoders.h"
#include "pictures/encoders.h"
#include "pictures/icc_profile.h"
#include "pictures/picture_size.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

namespace pixano {
namespace {

template <class Step>
auto Telling(const char* verb, const std::string& name, Step step)
{
    return TellRefusal<PictureError>(verb, name, step);
}

PictureRead DecodeByContent(ByteSource& source)
{
    std::array<char, 6> start{};
    const std::size_t got = source.Read(std::as_writable_bytes(std::span(start)));
    source.Seek(0);
    const std::string_view magic(start.data(), got);
    if (magic.starts_with("BM")) return DecodeBmp(source);
    if (magic.starts_with("\xFF\xD8")) return DecodeJpeg(source);
    if (magic == "GIF87a" || magic == "GIF89a") return DecodeGif(source);
    if (source.Error() == 0 && magic.empty()) throw Refusal("il file è vuoto");
    throw Refusal("non è un'immagine BMP, JPEG o GIF");
}

/// A stream that goes on for longer is no picture, whatever it began as: every pixel in four bytes,
/// every row padded or ended by a mark, and a generous head.
constexpr std::uint64_t LongestStream = 4 * (MostPixels + LongestSide) + (std::uint64_t{1} << 20);

PictureRead Decode(ByteSource& source)
{
    try {
        PictureRead read = DecodeByContent(source);
        if (source.Error() == 0) {
            // A stream does not come back to what lies before the pixels.
            if (!source.IsStream()) read.profile = ProfileIn(source);
            return read;
        }
    } catch (const Refusal&) {
        // A file that could not be read to its end looks damaged: the cause is what counts.
        if (source.Error() == 0) throw;
    }
    if (source.Error() != EFBIG) throw Refusal(source.Error());
    throw Refusal("arrivano più di " + std::to_string(LongestStream / 1'000'000) +
                  " milioni di byte, che nessuna immagine richiede");
}

/// What the descriptor gives from where it stands on.
ByteSource SourceFrom(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) throw Refusal(errno);
    const off_t start = S_ISREG(status.st_mode) ? lseek(descriptor, 0, SEEK_CUR) : -1;
    if (start < 0 || start >= status.st_size) return ByteSource::Stream(descriptor, LongestStream);
    return {descriptor, static_cast<std::uint64_t>(status.st_size - start),
            static_cast<std::uint64_t>(start)};
}

PictureRead ReadFile(const std::string& path, Links links)
{
    return Telling("leggere", path, [&] {
        const RegularFile file = OpenRegularFile(path, links);
        if (file.size == 0) throw Refusal("il file è vuoto");
        ByteSource source(file.descriptor.Number(), file.size);
        return Decode(source);
    });
}

void EncodeAs(const Surface& surface, PictureFormat format, ByteSink& sink, const Extras& extras)
{
    if (surface.Width() == 0 || surface.Height() == 0)
        throw Refusal("non c'è nessuna immagine da scrivere");
    switch (format) {
    case PictureFormat::Bmp:
        EncodeBmp(surface, sink);
        break;
    case PictureFormat::Png:
        EncodePng(surface, sink, extras);
        break;
    case PictureFormat::Jpeg:
        EncodeJpeg(surface, sink, extras);
        break;
    }
}

void WriteFile(const Surface& surface, const std::string& path, PictureFormat format,
               AtomicFile::Purpose purpose, const Extras& extras = {})
{
    Telling("salvare", path, [&] {
        ReplaceFile(path, purpose,
                    [&](ByteSink& file) { EncodeAs(surface, format, file, extras); });
    });
}

}  // namespace

PictureRead ReadPicture(const std::string& path)
{
    return ReadFile(path, Links::Followed);
}

PictureRead ReadWorkingPicture(const std::string& path)
{
    return ReadFile(path, Links::Refused);
}

PictureRead ReadPictureFrom(std::span<const std::byte> content, const std::string& name)
{
    return Telling("leggere", name, [&] {
        ByteSource source(content);
        return Decode(source);
    });
}

PictureRead ReadPictureFrom(int descriptor, const std::string& name)
{
    return Telling("leggere", name, [&] {
        ByteSource source = SourceFrom(descriptor);
        return Decode(source);
    });
}

void SaveBitmap(const Surface& surface, const std::string& path)
{
    WriteFile(surface, path, PictureFormat::Bmp, AtomicFile::Purpose::Document);
}

void SavePrivateBitmap(const Surface& surface, const std::string& path)
{
    WriteFile(surface, path, PictureFormat::Bmp, AtomicFile::Purpose::Rescue);
}

void WriteWorkingBitmap(const Surface& surface, const std::string& path)
{
    WriteFile(surface, path, PictureFormat::Bmp, AtomicFile::Purpose::Working);
}

PictureFormat FormatOf(const std::string& path)
{
    std::string name = path.substr(path.rfind('/') + 1);
    std::ranges::transform(name, name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    });
    if (name.ends_with(".bmp")) return PictureFormat::Bmp;
    if (name.ends_with(".png")) return PictureFormat::Png;
    if (name.ends_with(".jpg") || name.ends_with(".jpeg")) return PictureFormat::Jpeg;
    throw PictureError(
        FaultKind::InvalidCall,
        "Impossibile salvare «" + path +
            "»: il nome deve finire in .bmp, .png, .jpg o .jpeg, o non avere estensione");
}

void SavePicture(const Surface& surface, const std::string& path)
{
    SaveWithExtras(surface, path, {});
}

void SaveWithExtras(const Surface& surface, const std::string& path, const Extras& extras)
{
    WriteFile(surface, path, FormatOf(path), AtomicFile::Purpose::Document, extras);
}

void Encode(const Surface& surface, PictureFormat format, ByteSink& sink, const std::string& name,
            const Extras& extras)
{
    Telling("scrivere", name, [&] { EncodeAs(surface, format, sink, extras); });
}

}  // namespace pixano
