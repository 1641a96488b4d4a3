// The list of all effects. Whoever starts, lists, tests or measures effects reads it here.
#pragma once

#include "effects/colour/colour.h"
#include "effects/composite/composite.h"
#include "effects/effect.h"
#include "effects/geometry/geometry.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace pixano {

/// Family by family.
inline constexpr auto Effects = std::to_array<Effect>({
    {.name = "Capovolgi", .run = Capov, .family = Family::Geometry},
    {.name = "Specchio", .run = Specchio, .family = Family::Geometry},
    {.name = "Capovolgi a Specchio", .run = CapovSpec, .family = Family::Geometry},
    {.name = "Rotazione -90°", .run = RotazMeno, .family = Family::Geometry},
    {.name = "Rotazione +90°", .run = RotazPiu, .family = Family::Geometry},
    {.name = "Rifl. Vert. Sinistro", .run = Sinvert, .family = Family::Geometry},
    {.name = "Rifl. Vert. Destro", .run = Desvert, .family = Family::Geometry},
    {.name = "Rifl.o Oriz. Superiore", .run = Super, .family = Family::Geometry},
    {.name = "Rifl. Oriz. Inferiore", .run = Infer, .family = Family::Geometry},
    {.name = "Doppia Foto Verticale", .run = Vertdop, .family = Family::Geometry},
    {.name = "Doppia Foto Orizzontale", .run = Orizdop, .family = Family::Geometry},
    {.name = "Ingr. Top", .run = Top, .family = Family::Geometry},
    {.name = "Ingr. Bottom", .run = Bottom, .family = Family::Geometry},
    {.name = "Ingr. Sinistro", .run = Sini, .family = Family::Geometry},
    {.name = "Ingr. Destro", .run = Destro, .family = Family::Geometry},
    {.name = "Ingr. Top Sinistro", .run = Sintop, .family = Family::Geometry},
    {.name = "Ingr. Top Destro", .run = Destop, .family = Family::Geometry},
    {.name = "Ingr. Bottom Sinistro", .run = Sinbot, .family = Family::Geometry},
    {.name = "Ingr. Bottom Destro", .run = Desbot, .family = Family::Geometry},
    {.name = "Ingr. Centro", .run = Incentro, .family = Family::Geometry},
    {.name = "Multifoto", .run = Multifoto, .family = Family::Geometry},
    // ---- colour ----
    {.name = "Distorsione 1", .run = DisUno, .family = Family::ColourAndArt, .reseeds = true},
    {.name = "Distorsione 2", .run = DisDue, .family = Family::ColourAndArt, .reseeds = true},
    {.name = "Empireo 1", .run = EmpUno, .family = Family::ColourAndArt},
    {.name = "Empireo 2", .run = EmpDue, .family = Family::ColourAndArt},
    {.name = "Fantastic 1", .run = FantUno, .family = Family::ColourAndArt},
    {.name = "Fantastic 2", .run = FantDue, .family = Family::ColourAndArt},
    {.name = "Artistico 1", .run = ArtUno, .family = Family::ColourAndArt},
    {.name = "Artistico 2", .run = ArtDue, .family = Family::ColourAndArt},
    {.name = "Artistico 3", .run = ArTre, .family = Family::ColourAndArt},
    {.name = "Artistico 4", .run = ArtQuat, .family = Family::ColourAndArt},
    {.name = "Artistico 5", .run = ArtCinq, .family = Family::ColourAndArt},
    {.name = "Artistico 6", .run = ArtSei, .family = Family::ColourAndArt},
    {.name = "Negativo Artistico", .run = Negativo, .family = Family::ColourAndArt, .selector = 1},
    {.name = "Colorazione", .run = Colorazione, .family = Family::ColourAndArt, .selector = 2},
    {.name = "Vetro", .run = Vetro, .family = Family::ColourAndArt, .selector = 3},
    {.name = "Foto Color Rnd", .run = ColorRnd, .family = Family::ColourAndArt, .selector = 4},
    {.name = "Forbici", .run = Forbici, .family = Family::ColourAndArt, .selector = 5},
    // ---- composite ----
    {.name = "Mini Foto Rnd",
     .run = MiniRnd,
     .family = Family::Composite,
     .captioned = false,
     .fatal = Fatal::Index},
    {.name = "Multi Step Verticale",
     .run = Vertstep,
     .family = Family::Composite,
     .fatal = Fatal::Index},
    {.name = "Multi Step Orizzontale",
     .run = Orizstep,
     .family = Family::Composite,
     .fatal = Fatal::Index},
    {.name = "MultiFoto Step",
     .run = MultiFotoStep,
     .family = Family::Composite,
     .fatal = Fatal::Index},
    {.name = "Deformazione Casuale",
     .run = MulStepRnd,
     .family = Family::Composite,
     .reseeds = true,
     .fatal = Fatal::IndexAndDivision},
    {.name = "Mix Verticale", .run = MixVert, .family = Family::Composite, .fatal = Fatal::Index},
    {.name = "Mix Orizzontale", .run = MixOriz, .family = Family::Composite, .fatal = Fatal::Index},
    {.name = "Mix Multifoto", .run = MixMultif, .family = Family::Composite, .fatal = Fatal::Index},
});

static_assert(std::ranges::all_of(Effects,
                                  [](const Effect& effect) {
                                      return static_cast<std::size_t>(effect.selector) <
                                             std::tuple_size_v<Strengths>;
                                  }),
              "a strength is one of the cells that there are");

/// The row of that function; one that is missing does not compile.
consteval const Effect* EffectOf(void (*run)(Work&))
{
    const auto* const found = std::ranges::find(Effects, run, &Effect::run);
    if (found == Effects.end()) throw std::out_of_range("no effect has that function");
    return found;
}

/// The effect of that exact name, or nullptr.
const Effect* FindEffect(std::string_view name);

}  // namespace pixano
