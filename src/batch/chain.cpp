#include "batch/chain.h"

namespace pixano::batch {
namespace {

void RunEffect(Work& w, const Step& step, const Strengths& valori)
{
    const Effect& effect = *step.effect;
    w.Valori = valori;
    w.IndValore = static_cast<std::int16_t>(effect.selector);
    if (step.strength) w.Valori.at(static_cast<std::size_t>(effect.selector)) = *step.strength;
    // Check mark and snapshot have no place here, so where the frame reseeds makes no difference.
    if (effect.reseed != Reseed::Never) w.Randomize();
    effect.run(w);
    w.ElabSer.Kill();
}

}  // namespace

void PutOnCanvas(Work& w, Surface picture)
{
    w.Picture1 = std::move(picture);
    w.Larg = w.Picture1.Width();
    w.Alt = w.Picture1.Height();
}

std::string Caption(std::string_view text, const Work& w)
{
    return std::string(text) + "   " + std::to_string(w.Larg) + "x" + std::to_string(w.Alt);
}

std::string RunChain(Work& w, std::span<const Step> steps, const Strengths& valori,
                     std::string caption, ChainProgress& progress)
{
    for (const Step& step : steps) {
        progress.Begins(*step.effect);
        try {
            RunEffect(w, step, valori);
        } catch (const Fault& fault) {
            throw EffectFailed(std::string(step.effect->name) + ": " + fault.what());
        }
        if (step.effect->closing != Closing::ModifiedUnload)
            caption = Caption(step.effect->name, w);
    }
    return caption;
}

}  // namespace pixano::batch
