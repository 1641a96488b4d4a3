// pixano-batch: the effects on files of pictures, without windows.
#include "batch/batch.h"

#include <csignal>
#include <filesystem>
#include <vector>

#include <malloc.h>

namespace {

/// What a picture leaves is there for the next one: by itself the C library hands most of it back,
/// and clearing fresh pages took small pictures longer than all the rest. Longer blocks, which
/// `LargePages` looks after, and the matrices, of which most effects touch little, stay the
/// system's.
void KeepFreedMemory()
{
    mallopt(M_MMAP_THRESHOLD, 4 << 20);
    mallopt(M_TRIM_THRESHOLD, 64 << 20);
}

}  // namespace

int main(int argc, char* argv[])
{
    // A file that grows past the limit set for it fails like a full disk instead of ending us.
    std::signal(SIGXFSZ, SIG_IGN);
    KeepFreedMemory();
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return pixano::batch::RunBatch(arguments, program.parent_path().string());
}
