// Every effect tried on one picture: a small picture for each, and the page that shows them.
#pragma once

#include "batch/chain.h"
#include "batch/picture_job.h"
#include "batch/sheet_page.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace pixano::batch {

class Sheet {
  public:
    /// Reads the picture and writes its small one. `plan` outlives the sheet; `valori` are the
    /// strengths that the effects are tried with. Throws PictureError.
    Sheet(const CommandLine& line, const PlannedSheet& plan, const Strengths& valori);

    /// Tries the effect at that place of the catalogue. An effect that the picture's size does not
    /// allow is done all the same: the page says so. Several threads may try at once, each at
    /// places of its own.
    Outcome Try(std::size_t place, ChainProgress& progress);

    /// Throws Fault.
    void WritePage() const;

  private:
    std::string TriedCaption(SheetEntry& entry, const PlannedPicture& planned,
                             ChainProgress& progress) const;

    const PlannedSheet& plan_;
    const std::uint64_t seed_;
    Surface picture_;
    std::string notice_;  ///< said once, with the first effect
    SheetContents contents_;
};

}  // namespace pixano::batch
