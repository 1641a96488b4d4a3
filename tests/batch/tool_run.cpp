#include "batch/tool_run.h"

#include <stdexcept>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pixano::batch::test {
namespace {

class FileActions {
  public:
    FileActions() { ::posix_spawn_file_actions_init(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }

    void Open(int descriptor, const std::string& path, int flags)
    {
        ::posix_spawn_file_actions_addopen(&actions_, descriptor, path.c_str(), flags, 0600);
    }
    void ChangeFolder(const std::string& path)
    {
        ::posix_spawn_file_actions_addchdir_np(&actions_, path.c_str());
    }
    const posix_spawn_file_actions_t* Get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

pid_t Start(const std::vector<std::string>& command, const FileActions& actions)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (::posix_spawnp(&child, arguments[0], actions.Get(), nullptr, arguments.data(), environ) !=
        0)
        throw std::runtime_error("cannot start " + command[0]);
    return child;
}

}  // namespace

Ran RunProgram(const std::vector<std::string>& command, const std::string& folder,
               const std::string& input)
{
    const TemporaryFolder said;
    FileActions actions;
    actions.Open(STDIN_FILENO, input, O_RDONLY);
    actions.Open(STDOUT_FILENO, said / "out", O_WRONLY | O_CREAT);
    actions.Open(STDERR_FILENO, said / "err", O_WRONLY | O_CREAT);
    actions.ChangeFolder(folder);
    int status = 0;
    ::waitpid(Start(command, actions), &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), BytesOf(said / "out"),
            BytesOf(said / "err")};
}

}  // namespace pixano::batch::test
