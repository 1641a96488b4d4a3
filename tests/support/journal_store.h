// A pixel working file whose values a test can look at, and a diary of who did what in which order.
#pragma once

#include "canvas/work.h"
#include "support/effect_run.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pixano::test {

using Diary = std::vector<std::string>;

/// What is written appears in `written`. Windows of three values, so that small pictures cross
/// their borders too.
class JournalStore : public PixelFile::Store {
  public:
    JournalStore(std::vector<Colour>& written, Diary& diary) : written_(written), diary_(diary) {}

    Window Create() override
    {
        diary_.emplace_back("create");
        written_.clear();
        return Room();
    }
    Window Append(Colour* end) override
    {
        written_.insert(written_.end(), room_, end);
        return Room();
    }
    void Finish(Colour* end) override
    {
        Append(end);
        diary_.emplace_back("finish");
    }
    void Open() override
    {
        diary_.emplace_back("open");
        next_ = 0;
    }
    Window Next() override
    {
        if (next_ == written_.size()) throw Fault(FaultKind::InputPastEnd);
        Colour* const value = &written_[next_++];
        return {value, value + 1};
    }
    void Close() override { diary_.emplace_back("close"); }
    void Kill() override { diary_.emplace_back("kill"); }

  private:
    Window Room() { return {std::begin(room_), std::end(room_)}; }

    std::vector<Colour>& written_;
    Diary& diary_;
    Colour room_[3] = {};
    std::size_t next_ = 0;
};

/// Runs one effect and keeps what it captured and a diary of its file and of its progress window.
class JournalRun {
  public:
    explicit JournalRun(Surface picture) { PutOnCanvas(work, std::move(picture)); }
    explicit JournalRun(const Letters& rows) : JournalRun(Drawn(rows)) {}

    JournalRun& Apply(void (*loops)(Work&))
    {
        RunOnCanvas(work, {.name = "", .run = loops, .family = Family::Geometry});
        return *this;
    }

    std::vector<Colour> written;
    Diary diary;

  private:
    class DiaryProgress : public Progress {
      public:
        explicit DiaryProgress(Diary& diary) : diary_(diary) {}
        void Show() override { diary_.emplace_back("show"); }

      private:
        Diary& diary_;
    };
    DiaryProgress progress_{diary};

  public:
    Work work{std::make_unique<JournalStore>(written, diary), progress_};
};

/// The colours of letters in one row, '!' for a point outside the picture.
inline std::vector<Colour> ColoursOf(const std::string& letters)
{
    std::vector<Colour> colours;
    for (const char letter : letters)
        colours.push_back(letter == '!' ? Outside : ColourOf(letter));
    return colours;
}

}  // namespace pixano::test
