// Files of pictures: BMP, JPEG and GIF in; BMP, PNG and JPEG out. Knows pixels, no window.
#pragma once

#include "canvas/fault.h"
#include "files/byte_sink.h"
#include "pictures/extras.h"
#include "pictures/picture_read.h"

#include <cstddef>
#include <span>
#include <string>

namespace pixano {

/// A picture file cannot be read or written. `what()` is one Italian sentence without a full stop,
/// UTF-8, that names the file and says why.
class PictureError : public Fault {
  public:
    using Fault::Fault;
};

/// The picture in the file `path` (UTF-8). The format is told by the content, not by the name:
/// BMP, JPEG (turned upright by its Exif orientation) or GIF (its first frame that has pixels;
/// `Background` shows through where it is transparent). Only regular files are read, of 1 to 32767
/// pixels a side and at most 256 Mpixel. Every pixel of the result is defined by the file alone.
/// Throws PictureError.
PictureRead ReadPicture(const std::string& path);

/// The same for a file that this program wrote for itself: a link with that name is refused, not
/// followed. Throws PictureError.
PictureRead ReadWorkingPicture(const std::string& path);

/// The same for a file's content that is already in memory; `name` stands for the file in messages.
/// Throws PictureError.
PictureRead ReadPictureFrom(std::span<const std::byte> content, const std::string& name);

/// The same for what an open file, pipe or device gives from where it stands on. Nothing is kept of
/// it but the picture, and no more is asked for than that takes. Throws PictureError.
PictureRead ReadPictureFrom(int descriptor, const std::string& name);

/// Writes the surface as an uncompressed 24-bit BMP, bottom-up with a 40-byte header, to the file
/// `path` (UTF-8). The file appears, or replaces an old one, only when it is complete and on disk;
/// when anything fails the old file is untouched and no new one is left. A link stays, and the file
/// that it leads to is replaced. Throws PictureError.
void SaveBitmap(const Surface& surface, const std::string& path);

/// The same for a picture that the program rescues: no link is followed, only the user may read it.
void SavePrivateBitmap(const Surface& surface, const std::string& path);

/// The same bytes for a file that the program writes for itself and deletes when it ends: whatever
/// has that name is replaced when the new file is complete, links are not followed, only the user
/// may read it, and nothing waits for the disk. Throws PictureError.
void WriteWorkingBitmap(const Surface& surface, const std::string& path);

enum class PictureFormat { Bmp, Png, Jpeg };

/// The format that a file name's extension asks for: ".bmp", ".png", ".jpg" or ".jpeg", in capitals
/// or not. Throws PictureError for every other.
PictureFormat FormatOf(const std::string& path);

/// As `SaveBitmap`, in the format that the name's extension asks for. Throws PictureError.
void SavePicture(const Surface& surface, const std::string& path);

/// As `SavePicture`, with extras. Throws PictureError.
void SaveWithExtras(const Surface& surface, const std::string& path, const Extras& extras);

/// Gives the surface, as a complete file of that format, to the sink; `name` stands for where it
/// goes in messages. Throws PictureError.
void Encode(const Surface& surface, PictureFormat format, ByteSink& sink, const std::string& name,
            const Extras& extras = {});

}  // namespace pixano
