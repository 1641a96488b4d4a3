// pixano-batch: the effects on files of pictures, without windows.
#include "batch/batch.h"

#include <csignal>
#include <filesystem>
#include <vector>

int main(int argc, char* argv[])
{
    // A file that grows past the limit set for it fails like a full disk instead of ending us.
    std::signal(SIGXFSZ, SIG_IGN);
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return pixano::batch::RunBatch(arguments, program.parent_path().string());
}
