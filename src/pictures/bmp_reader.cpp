// BMP files: which way the pixels of one are read.
#include "pictures/bmp_pixels.h"
#include "pictures/decoders.h"

namespace pixano {

PictureRead DecodeBmp(ByteSource& source)
{
    const BmpHeader header = ReadBmpHeader(source);
    PictureRead read{Surface(header.width, header.height)};
    const bool runs = header.coding != BmpCoding::Plain && header.coding != BmpCoding::Masks;
    const bool complete = runs ? ReadBmpRuns(source, header, read.picture)
                               : ReadBmpRows(source, header, read.picture);
    read.truncated = !complete;
    return read;
}

}  // namespace pixano
