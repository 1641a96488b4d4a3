// A pixel working file that needs no disk, for runs without a window.
#include "canvas/fault.h"
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
        chunks_.clear();
        return AddChunk();
    }

    Window Append(Colour* /*end*/) override { return AddChunk(); }

    void Finish(Colour* end) override { end_ = end; }

    void Open() override { reading_ = 0; }

    Window Next() override
    {
        if (reading_ == chunks_.size()) throw Fault(FaultKind::InputPastEnd);
        Colour* const first = chunks_[reading_].get();
        ++reading_;
        Colour* const last = reading_ == chunks_.size() ? end_ : first + ChunkLength;
        if (first == last) throw Fault(FaultKind::InputPastEnd);
        return {first, last};
    }

    void Close() override {}

    void Kill() override { chunks_.clear(); }

  private:
    /// Chunks never move: growing one long array would copy it and hold it twice meanwhile.
    static constexpr std::size_t ChunkLength = std::size_t{1} << 18;

    Window AddChunk()
    {
        chunks_.push_back(std::make_unique_for_overwrite<Colour[]>(ChunkLength));
        Colour* const first = chunks_.back().get();
        return {first, first + ChunkLength};
    }

    std::vector<std::unique_ptr<Colour[]>> chunks_;
    Colour* end_ = nullptr;
    std::size_t reading_ = 0;
};

}  // namespace

std::unique_ptr<PixelFile::Store> MemoryStore()
{
    return std::make_unique<Memory>();
}

}  // namespace pixano
