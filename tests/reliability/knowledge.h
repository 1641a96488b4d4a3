// What is known of a victim's unsaved work from the lines that it told before it was killed, and
// whether the next start does right by it.
#pragma once

#include <QString>

#include <set>
#include <string>
#include <vector>

namespace pixano::test {

class Knowledge {
  public:
    /// `dataFolder`: where pictures that are not wanted are put aside.
    explicit Knowledge(QString dataFolder) : dataFolder_(std::move(dataFolder)) {}

    /// Takes all lines of one victim and how it ended (see Child::Wait). What is wrong with them;
    /// empty when nothing is.
    std::string Learn(const std::vector<std::string>& lines, int end);

    /// Every picture that was ever on a canvas.
    std::set<std::string> seen;
    int offers = 0;
    int brought = 0;
    int putAside = 0;

  private:
    struct State {
        std::string picture;
        bool modified = false;
        bool faulted = false;
    };

    static State StateIn(const std::string& line);
    std::string Line(const std::string& line);
    std::string Ready(const State& state);
    std::string Told(const std::string& text);
    void Reached(const State& state);
    bool IsAside() const;

    QString dataFolder_;
    /// What may be brought back.
    std::set<std::string> good_;
    /// It has to be offered: it was unsaved beyond doubt.
    bool owed_ = false;
    bool endedWell_ = false;
    bool offered_ = false;
    bool wanted_ = false;
    bool answered_ = false;
    bool underWay_ = false;
    State next_;
};

/// The checksum of the picture in the file; empty when it is not whole.
std::string ChecksumOfFile(const QString& path);

}  // namespace pixano::test
