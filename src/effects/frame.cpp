#include "effects/frame.h"

namespace pixano {

void PutOnCanvas(Work& w, Surface picture)
{
    w.Picture1 = std::move(picture);
    w.Larg = w.Picture1.Width();
    w.Alt = w.Picture1.Height();
}

void RunOnCanvas(Work& w, const Effect& effect, const AroundLoops& around)
{
    // What an effect left behind that ended in a fault is not this one's to delete.
    w.ElabSer.Forget();
    if (effect.selector != 0) w.IndValore = static_cast<std::int16_t>(effect.selector);
    if (effect.reseeds) w.Randomize();
    around.before();
    effect.run(w);
    around.after();
    w.ElabSer.Kill();
}

}  // namespace pixano
