// Another process that tells what it does on its standard output, line by line.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace pixano::test {

class Child {
  public:
    /// Starts the program with the current folder and environment, and with `more` in it.
    explicit Child(const std::vector<std::string>& command,
                   const std::map<std::string, std::string>& more = {});
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Its next line; nothing when it has ended, or has told nothing for `patience` milliseconds.
    std::optional<std::string> Line(int patience = 20000);
    /// All lines up to its end.
    std::vector<std::string> Rest();
    /// Sends the signal.
    void Signal(int number) const;
    /// Waits for its end. Its exit status, or the negative number of the signal that ended it.
    int Wait();

    int Id() const { return id_; }

  private:
    int id_ = -1;
    int pipe_ = -1;
    std::string unread_;
};

}  // namespace pixano::test
