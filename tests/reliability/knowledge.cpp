#include "reliability/knowledge.h"

#include "pictures/picture_files.h"
#include "reliability/checksum.h"

#include <QDir>

#include <algorithm>
#include <sstream>

namespace pixano::test {

std::string ChecksumOfFile(const QString& path)
{
    try {
        const PictureRead read = ReadPicture(path.toStdString());
        return read.truncated ? std::string() : Checksum(read.picture);
    } catch (const PictureError&) {
        return {};
    }
}

Knowledge::State Knowledge::StateIn(const std::string& line)
{
    std::istringstream words(line);
    std::string word;
    std::string modified;
    std::string faulted;
    State state;
    words >> word >> state.picture >> modified >> faulted;
    state.modified = modified == "modified";
    state.faulted = faulted == "faulted";
    return state;
}

bool Knowledge::IsAside() const
{
    // What an error that ended the program has kept is not kept a second time.
    const QDir folder(dataFolder_);
    return std::ranges::any_of(
        folder.entryList({"recupero-*.bmp", "lavoro-*.bmp"}),
        [&](const QString& name) { return good_.contains(ChecksumOfFile(folder.filePath(name))); });
}

std::string Knowledge::Learn(const std::vector<std::string>& lines, int end)
{
    offered_ = wanted_ = underWay_ = false;
    for (const std::string& line : lines)
        if (const std::string wrong = Line(line); !wrong.empty()) return wrong;
    if (underWay_) {
        // Killed inside a command: the state before it will do, and the one after it.
        good_.insert(next_.picture);
        owed_ = owed_ && next_.modified;
    }
    endedWell_ = end == 0;
    if (endedWell_) {
        good_.clear();
        owed_ = answered_ = false;
    }
    return {};
}

std::string Knowledge::Line(const std::string& line)
{
    const std::string word = line.substr(0, line.find(' '));
    if (word == "wrong") return line;
    if (word == "offer") {
        ++offers;
        offered_ = true;
        if (endedWell_) return "an offer after a normal end: " + line;
        if (line.find(" Avviso! ") == std::string::npos) return "another title: " + line;
    }
    if (word == "wanted") wanted_ = true;
    if (word == "unwanted") answered_ = true;
    if (word == "told") return Told(line);
    if (word == "ready") return Ready(StateIn(line));
    if (word == "ending") owed_ = false;
    if (word == "begin") {
        next_ = StateIn(line);
        seen.insert(next_.picture);
        underWay_ = true;
    }
    if (word == "end") {
        underWay_ = false;
        Reached(StateIn(line));
    }
    return {};
}

std::string Knowledge::Told(const std::string& text)
{
    if (text.find("non è possibile recuperarle") != std::string::npos) return text;
    const std::string before = "L'immagine resta nel file «";
    const std::size_t at = text.find(before);
    if (at == std::string::npos) return {};
    const QString path = QString::fromStdString(text.substr(at + before.size())).chopped(2);
    if (!good_.contains(ChecksumOfFile(path))) return "put aside, but another picture: " + text;
    ++putAside;
    return {};
}

std::string Knowledge::Ready(const State& state)
{
    if (offered_ && wanted_) {
        if (!good_.contains(state.picture)) return "brought back, but another picture";
        if (!state.modified) return "brought back, but as if it were saved";
        ++brought;
        owed_ = true;
        good_ = {state.picture};
    } else {
        if (owed_ && !offered_ && !(answered_ && IsAside())) return "unsaved work was not offered";
        if (owed_ && offered_ && !IsAside()) return "what was not wanted is not aside";
        owed_ = false;
        good_.clear();
    }
    answered_ = false;
    return {};
}

void Knowledge::Reached(const State& state)
{
    seen.insert(state.picture);
    // A canvas that an effect left half drawn need not be kept: the whole picture before it is.
    if (!state.faulted) good_.clear();
    owed_ = state.faulted ? owed_ && state.modified : state.modified;
    good_.insert(state.picture);
}

}  // namespace pixano::test
