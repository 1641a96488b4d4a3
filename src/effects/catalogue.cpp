#include "effects/catalogue.h"

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

    // ---- composite ----

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
