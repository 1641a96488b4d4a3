#include "effects/catalogue.h"

#include "effects/composite/composite.h"
#include "effects/geometry/geometry.h"

#include <algorithm>
#include <array>

namespace pixano {
namespace {

constexpr auto Effects = std::to_array<Effect>({
    // ---- geometry ----
    {.name = "Capovolgi", .run = Capov, .family = Family::Geometry, .entry = 32},
    {.name = "Specchio", .run = Specchio, .family = Family::Geometry, .entry = 31},
    {.name = "Capovolgi a Specchio", .run = CapovSpec, .family = Family::Geometry},
    {.name = "Rotazione -90°", .run = RotazMeno, .family = Family::Geometry},
    {.name = "Rotazione +90°", .run = RotazPiu, .family = Family::Geometry},
    // ---- colour ----

    // ---- composite ----
    {.name = "Mini Foto Rnd",
     .run = MiniRnd,
     .family = Family::Composite,
     .entry = 37,
     .closing = Closing::ModifiedUnload,
     .faultEnds = FaultEnds::Program},
    {.name = "Multi Step Verticale",
     .run = Vertstep,
     .family = Family::Composite,
     .entry = 39,
     .faultEnds = FaultEnds::Program},
    {.name = "Multi Step Orizzontale",
     .run = Orizstep,
     .family = Family::Composite,
     .entry = 40,
     .faultEnds = FaultEnds::Program},
    {.name = "MultiFoto Step",
     .run = MultiFotoStep,
     .family = Family::Composite,
     .faultEnds = FaultEnds::Program},
    {.name = "Deformazione Casuale",
     .run = MulStepRnd,
     .family = Family::Composite,
     .entry = 41,
     .reseed = Reseed::AfterAbil,
     .faultEnds = FaultEnds::Program},
    {.name = "Mix Verticale",
     .run = MixVert,
     .family = Family::Composite,
     .closing = Closing::ModifiedUnloadCaption,
     .faultEnds = FaultEnds::Program},
    {.name = "Mix Orizzontale",
     .run = MixOriz,
     .family = Family::Composite,
     .closing = Closing::ModifiedUnloadCaption,
     .faultEnds = FaultEnds::Program},
    {.name = "Mix Multifoto",
     .run = MixMultif,
     .family = Family::Composite,
     .closing = Closing::ModifiedUnloadCaption,
     .faultEnds = FaultEnds::Program},
});

}  // namespace

std::span<const Effect> Catalogue()
{
    return Effects;
}

const Effect* FindEffect(std::string_view name)
{
    const auto* const found = std::ranges::find(Effects, name, &Effect::name);
    return found == Effects.end() ? nullptr : found;
}

const Effect* EffectOfEntry(int index)
{
    if (index == 0) return nullptr;
    const auto* const found = std::ranges::find(Effects, index, &Effect::entry);
    return found == Effects.end() ? nullptr : found;
}

}  // namespace pixano
