// The tools palette.
#include "document/showing.h"
#include "effects/catalogue.h"
#include "shell/click_handlers.h"
#include "shell/controls.h"

#include <array>

namespace pixano {
namespace {

using enum PaletteFrame;

constexpr const char* SuperiorPicture = "riflesso_superiore.gif";
constexpr const char* InferiorPicture = "riflesso_inferiore.gif";

/// How much one click changes `Zoom`.
constexpr double ZoomStep = 0.3;

void Command1_Click(Session& s)
{
    ChangeZoom(s, ZoomStep);
}

void Command2_Click(Session& s)
{
    ChangeZoom(s, -ZoomStep);
}

// clang-format off
constexpr auto Buttons = std::to_array<PaletteButton>({
    {"SSCommand15", "Annulla",         "",                                   Funzioni, "Annulla",                        click::Annulla},
    {"SSCommand16", "Originale",       "",                                   Funzioni, "Originale",                      click::Originale},
    {"SSCommand17", "Ripristina",      "",                                   Funzioni, "Ripristina",                     click::Ripristina},

    {"SSCommand7",  "<->",             " Riflesso Verticale Sinistro ",      Riflessi, "Riflesso Verticale Sinistro",    EffectOf(Sinvert)},
    {"SSCommand8",  ">-<",             " Riflesso Verticale Destro",         Riflessi, "Riflesso Verticale Destro",      EffectOf(Desvert)},
    {"SSCommand9",  "",                " Riflesso Orizzontale Superiore ",   Riflessi, "Riflesso Orizzontale Superiore", EffectOf(Super), SuperiorPicture},
    {"SSCommand10", "",                " Riflesso Orizzontale Inferiore ",   Riflessi, "Riflesso Orizzontale Inferiore", EffectOf(Infer), InferiorPicture},
    {"SSCommand11", "<<>>",            " Doppia Foto Verticale ",            Riflessi, "Doppia Foto Verticale",          EffectOf(Vertdop)},
    {"SSCommand12", "^+^+",            " Doppia Foto Orizzontale ",          Riflessi, "Doppia Foto Orizzontale",        EffectOf(Orizdop)},
    {"SSCommand13", ":] [:",           " Specchio",                          Riflessi, "Specchio",                       EffectOf(Specchio)},
    {"SSCommand14", "+180°",           " Capovolgi ",                        Riflessi, "Capovolgi",                      EffectOf(Capov)},
    {"SSCommand24", "-90°",            " Rotazione di 90° a Sinistra ",      Riflessi, "Rotazione di 90° a Sinistra",    EffectOf(RotazMeno)},
    {"SSCommand25", "+90°",            " Rotazione di 90° a Destra ",        Riflessi, "Rotazione di 90° a Destra",      EffectOf(RotazPiu)},
    {"SSCommand26", "-180°",           " Capovolgi a Specchio ",             Riflessi, "Capovolgi a Specchio",           EffectOf(CapovSpec)},

    {"SSCommand2",  "Deformazione",    "",                                   Effetti,  "Deformazione",                   EffectOf(MulStepRnd)},
    {"SSCommand1",  "Mini Foto Rnd",   "",                                   Effetti,  "Mini Foto Rnd",                  EffectOf(MiniRnd)},
    {"SSCommand3",  "MultiFoto",       "",                                   Effetti,  "MultiFoto",                      EffectOf(Multifoto)},
    {"SSCommand4",  "Negativo",        "",                                   Effetti,  "Negativo",                       EffectOf(Negativo)},
    {"SSCommand5",  "Colorazione",     "",                                   Effetti,  "Colorazione",                    EffectOf(Colorazione)},
    {"SSCommand6",  "Vetro",           "",                                   Effetti,  "Vetro",                          EffectOf(Vetro)},
    {"SSCommand18", "MultiFoto Step",  "",                                   Effetti,  "MultiFoto Step",                 EffectOf(MultiFotoStep)},
    {"SSCommand19", "Mix Verticale",   "",                                   Effetti,  "Mix Verticale",                  EffectOf(MixVert)},
    {"SSCommand20", "Mix Orizzontale", "",                                   Effetti,  "Mix Orizzontale",                EffectOf(MixOriz)},
    {"SSCommand21", "Mix Multifoto",   "",                                   Effetti,  "Mix Multifoto",                  EffectOf(MixMultif)},
    {"SSCommand22", "Foto Color Rnd",  "",                                   Effetti,  "Foto Color Rnd",                 EffectOf(ColorRnd)},
    {"SSCommand23", "Forbici",         "",                                   Effetti,  "Forbici",                        EffectOf(Forbici)},

    {"Command1",    "",                "",                                   None,     "Ingrandisci l'anteprima",        Command{"Scala dell'anteprima", Command1_Click}, "ingrandisci.jpg"},
    {"Command2",    "",                "",                                   None,     "Riduci l'anteprima",             Command{"Scala dell'anteprima", Command2_Click}, "riduci.jpg"},
});
// clang-format on

}  // namespace

PaletteTable PaletteButtons()
{
    return Buttons;
}

Controls ProgramControls()
{
    return {MenuEntries(), PaletteButtons()};
}

}  // namespace pixano
