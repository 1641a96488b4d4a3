// One picture from file to file: read, effects, written. Knows nothing of the other pictures.
#pragma once

#include "batch/chain.h"
#include "batch/plan.h"
#include "pictures/picture_files.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace pixano::batch {

/// What is done to each picture.
struct Recipe {
    std::span<const Step> steps;
    Strengths valori{};
    std::optional<std::uint64_t> seed;
    std::optional<int> within;       ///< larger pictures are made smaller first
    int quality = Extras().quality;  ///< of JPEG results
};

/// How one picture ended. All texts are one line without its end, UTF-8; empty = nothing to say.
struct Outcome {
    bool done = false;
    std::string result;  ///< the result's name and caption
    std::string notice;  ///< a doubt about a picture that is done all the same
    std::string error;   ///< why it is not done
};

/// The doubt about a picture whose file ended before all its pixels were there; empty for a whole
/// one.
std::string NoticeOf(const std::string& input, bool truncated);

/// Never throws; when the picture is not done, no file has appeared or changed.
Outcome RunPictureJob(const PlannedPicture& picture, const Recipe& recipe, ChainProgress& progress);

}  // namespace pixano::batch
