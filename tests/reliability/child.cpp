#include "reliability/child.h"

#include <cerrno>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pixano::test {
namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> Environment(const std::map<std::string, std::string>& more)
{
    std::vector<std::string> all;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string text = *variable;
        if (!more.contains(text.substr(0, text.find('=')))) all.push_back(text);
    }
    for (const auto& [name, value] : more)
        all.push_back(name + '=' + value);
    return all;
}

}  // namespace

Child::Child(const std::vector<std::string>& command,
             const std::map<std::string, std::string>& more)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    std::vector<std::string> words = command;
    std::vector<std::string> variables = Environment(more);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // Whatever the tests themselves survive, their child is to die of it.
    sigset_t deadly;
    sigemptyset(&deadly);
    sigaddset(&deadly, SIGHUP);
    sigaddset(&deadly, SIGTERM);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &deadly);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const int error = posix_spawn(&id_, words.front().c_str(), &actions, &attributes,
                                  Pointers(words).data(), Pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    close(ends[1]);
    pipe_ = ends[0];
    if (error != 0) throw std::runtime_error(words.front() + " cannot be started");
}

Child::~Child()
{
    if (id_ > 0) {
        Signal(SIGKILL);
        Wait();
    }
    close(pipe_);
}

std::optional<std::string> Child::Line(int patience)
{
    for (;;) {
        if (const std::size_t end = unread_.find('\n'); end != std::string::npos) {
            std::string line = unread_.substr(0, end);
            unread_.erase(0, end + 1);
            return line;
        }
        pollfd ready{pipe_, POLLIN, 0};
        if (poll(&ready, 1, patience) <= 0) return std::nullopt;
        char more[4096];
        const ssize_t got = read(pipe_, more, sizeof more);
        if (got <= 0) return std::nullopt;
        unread_.append(more, static_cast<std::size_t>(got));
    }
}

std::vector<std::string> Child::Rest()
{
    std::vector<std::string> lines;
    while (const std::optional<std::string> line = Line())
        lines.push_back(*line);
    return lines;
}

void Child::Signal(int number) const
{
    if (id_ > 0) kill(id_, number);
}

int Child::Wait()
{
    int status = 0;
    while (waitpid(id_, &status, 0) < 0 && errno == EINTR) {
    }
    id_ = -1;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace pixano::test
