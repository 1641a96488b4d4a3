// Writes the benchmarks' picture to a file: pixano-photograph COLUMNS ROWS FILE.
#include "measure.h"
#include "pictures/picture_files.h"

#include <cstdlib>

int main(int argc, char* argv[])
{
    if (argc != 4) return 2;
    pixano::SavePicture(pixano::bench::Photograph(std::atoi(argv[1]), std::atoi(argv[2])), argv[3]);
    return 0;
}
