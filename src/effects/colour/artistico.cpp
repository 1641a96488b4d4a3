// "Artistico 1" to "Artistico 6": the picture as the difference between itself and its mirror
// image.
#include "effects/colour/colour.h"
#include "effects/colour/in_place.h"

#include <algorithm>
#include <cstdlib>

namespace pixano {
namespace {

enum class Mirror { Horizontal, Vertical, Both };
enum class Paint { Pixel, Partner };
enum class Above { PassedOn, Clamped };  ///< a difference above white

/// The two halves come out unlike: partners in the second half of the pass have been painted
/// already.
template <Mirror mirror, Paint target, Above above>
void MirrorDifference(Work& w)
{
    const int right = w.Larg - 1;
    const int bottom = w.Alt - 1;
    InPlace(w, [&canvas = w.Picture1, right, bottom](int x, int y) {
        const int px = mirror == Mirror::Vertical ? x : right - x;
        const int py = mirror == Mirror::Horizontal ? y : bottom - y;
        const Colour difference = std::abs(canvas.Point(x, y) - canvas.Point(px, py));
        const Colour d = above == Above::Clamped ? std::min(difference, White) : difference;
        if constexpr (target == Paint::Pixel)
            canvas.PSet(x, y, d);
        else
            canvas.PSet(px, py, d);
    });
}

}  // namespace

/// "Artistico 1". It draws nothing from the generator that it reseeds: the next effect does.
void ArtUno(Work& w)
{
    w.Randomize();
    MirrorDifference<Mirror::Both, Paint::Pixel, Above::PassedOn>(w);
}

/// "Artistico 2".
void ArtDue(Work& w)
{
    MirrorDifference<Mirror::Both, Paint::Partner, Above::PassedOn>(w);
}

/// "Artistico 3".
void ArTre(Work& w)
{
    MirrorDifference<Mirror::Horizontal, Paint::Partner, Above::Clamped>(w);
}

/// "Artistico 4".
void ArtQuat(Work& w)
{
    MirrorDifference<Mirror::Vertical, Paint::Pixel, Above::Clamped>(w);
}

/// "Artistico 5".
void ArtCinq(Work& w)
{
    MirrorDifference<Mirror::Horizontal, Paint::Pixel, Above::Clamped>(w);
}

/// "Artistico 6".
void ArtSei(Work& w)
{
    MirrorDifference<Mirror::Vertical, Paint::Partner, Above::Clamped>(w);
}

}  // namespace pixano
