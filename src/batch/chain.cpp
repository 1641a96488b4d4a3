#include "batch/chain.h"

#include "effects/frame.h"

namespace pixano::batch {

std::string Caption(std::string_view text, const Work& w)
{
    return std::string(text) + "   " + std::to_string(w.Larg) + "x" + std::to_string(w.Alt);
}

std::string RunChain(Work& w, std::span<const Step> steps, const Strengths& valori,
                     std::string_view before, ChainProgress& progress)
{
    // clang-tidy 19 does not see that the loop changes it.
    std::string caption(before);  // NOLINT(misc-const-correctness)
    for (const Step& step : steps) {
        progress.Begins(*step.effect);
        w.Valori = valori;
        if (step.strength)
            w.Valori.at(static_cast<std::size_t>(step.effect->selector)) = *step.strength;
        try {
            RunOnCanvas(w, *step.effect);
        } catch (const Fault& fault) {
            throw EffectFailed(std::string(step.effect->name) + ": " + fault.what());
        }
        if (step.effect->captioned) caption = Caption(step.effect->name, w);
    }
    return caption;
}

}  // namespace pixano::batch
