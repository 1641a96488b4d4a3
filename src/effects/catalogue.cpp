#include "effects/catalogue.h"

#include "effects/colour/colour.h"
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
    {.name = "Rifl. Vert. Sinistro",
     .run = Sinvert,
     .family = Family::Geometry,
     .entry = 19,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Rifl. Vert. Destro",
     .run = Desvert,
     .family = Family::Geometry,
     .entry = 20,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Rifl.o Oriz. Superiore",
     .run = Super,
     .family = Family::Geometry,
     .entry = 22,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Rifl. Oriz. Inferiore",
     .run = Infer,
     .family = Family::Geometry,
     .entry = 23,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Doppia Foto Verticale", .run = Vertdop, .family = Family::Geometry, .entry = 25},
    {.name = "Doppia Foto Orizzontale", .run = Orizdop, .family = Family::Geometry, .entry = 26},
    {.name = "Ingr. Top",
     .run = Top,
     .family = Family::Geometry,
     .entry = 6,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Bottom",
     .run = Bottom,
     .family = Family::Geometry,
     .entry = 7,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Sinistro",
     .run = Sini,
     .family = Family::Geometry,
     .entry = 8,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Destro",
     .run = Destro,
     .family = Family::Geometry,
     .entry = 9,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Top Sinistro",
     .run = Sintop,
     .family = Family::Geometry,
     .entry = 11,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Top Destro",
     .run = Destop,
     .family = Family::Geometry,
     .entry = 12,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Bottom Sinistro",
     .run = Sinbot,
     .family = Family::Geometry,
     .entry = 14,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Bottom Destro",
     .run = Desbot,
     .family = Family::Geometry,
     .entry = 15,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Ingr. Centro",
     .run = Incentro,
     .family = Family::Geometry,
     .entry = 16,
     .closing = Closing::ModifiedUnloadCaption},
    {.name = "Multifoto",
     .run = Multifoto,
     .family = Family::Geometry,
     .entry = 33,
     .closing = Closing::ModifiedUnloadCaption},
    // ---- colour ----
    {.name = "Distorsione 1",
     .run = DisUno,
     .family = Family::Colours,
     .entry = 43,
     .reseed = Reseed::BeforeEffect},
    {.name = "Distorsione 2",
     .run = DisDue,
     .family = Family::Colours,
     .entry = 44,
     .reseed = Reseed::BeforeEffect},
    {.name = "Empireo 1", .run = EmpUno, .family = Family::Colours, .entry = 46},
    {.name = "Empireo 2", .run = EmpDue, .family = Family::Colours, .entry = 47},
    {.name = "Fantastic 1", .run = FantUno, .family = Family::Colours, .entry = 49},
    {.name = "Fantastic 2", .run = FantDue, .family = Family::Colours, .entry = 50},
    {.name = "Artistico 1", .run = ArtUno, .family = Family::Colours, .entry = 52},
    {.name = "Artistico 2", .run = ArtDue, .family = Family::Colours, .entry = 53},
    {.name = "Artistico 3", .run = ArTre, .family = Family::Colours, .entry = 54},
    {.name = "Artistico 4", .run = ArtQuat, .family = Family::Colours, .entry = 55},
    {.name = "Artistico 5", .run = ArtCinq, .family = Family::Colours, .entry = 56},
    {.name = "Artistico 6", .run = ArtSei, .family = Family::Colours, .entry = 57},
    {.name = "Negativo Artistico", .run = Negativo, .family = Family::Colours, .selector = 1},
    {.name = "Colorazione", .run = Colorazione, .family = Family::Colours, .selector = 2},
    {.name = "Vetro", .run = Vetro, .family = Family::Colours, .selector = 3},
    {.name = "Foto Color Rnd", .run = ColorRnd, .family = Family::Colours, .selector = 4},
    {.name = "Forbici", .run = Forbici, .family = Family::Colours, .selector = 5},
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
