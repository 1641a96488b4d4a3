// A pixel working file that needs no disk, for runs without a window.
#include "canvas/fault.h"
#include "canvas/large_pages.h"
#include "canvas/pixel_file.h"

#include <cstddef>
#include <vector>

namespace pixano {
namespace {

class Memory : public PixelFile::Store {
  public:
    using Window = PixelFile::Store::Window;

    Window Create() override
    {
        used_ = 0;
        return NextChunk();
    }

    Window Append(Colour* /*end*/) override { return NextChunk(); }

    void Finish(Colour* end) override { end_ = end; }

    void Open() override { reading_ = 0; }

    Window Next() override
    {
        if (reading_ == used_) throw Fault(FaultKind::InputPastEnd);
        Colour* const first = chunks_[reading_].data();
        Colour* const full = first + Length(reading_);
        ++reading_;
        Colour* const last = reading_ == used_ ? end_ : full;
        if (first == last) throw Fault(FaultKind::InputPastEnd);
        return {first, last};
    }

    void Close() override {}

    void Kill() override { used_ = 0; }

  private:
    /// Chunks never move: growing one long array would copy it and hold it twice meanwhile. All but
    /// the first are so long that they can lie on the system's large pages.
    static constexpr std::size_t Length(std::size_t chunk)
    {
        constexpr std::size_t First = std::size_t{1} << 18;
        constexpr std::size_t Later = std::size_t{1} << 21;
        return chunk == 0 ? First : Later;
    }

    Window NextChunk()
    {
        if (used_ == chunks_.size()) chunks_.emplace_back(Length(used_));
        Colour* const first = chunks_[used_].data();
        Colour* const last = first + Length(used_);
        ++used_;
        return {first, last};
    }

    /// Kept for the next file: memory that the system gives afresh costs more than writing to it.
    std::vector<std::vector<Colour, LargePages<Colour>>> chunks_;
    std::size_t used_ = 0;
    Colour* end_ = nullptr;
    std::size_t reading_ = 0;
};

}  // namespace

std::unique_ptr<PixelFile::Store> MemoryStore()
{
    return std::make_unique<Memory>();
}

}  // namespace pixano
