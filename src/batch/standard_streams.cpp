#include "batch/standard_streams.h"

#include "files/descriptor.h"

#include <unistd.h>

namespace pixano::batch {

PictureRead ReadStandardInput()
{
    return ReadPictureFrom(STDIN_FILENO, "standard input");
}

void WriteStandardOutput(const Surface& surface)
{
    DescriptorSink output(STDOUT_FILENO);
    Encode(surface, PictureFormat::Bmp, output, "standard output");
}

}  // namespace pixano::batch
