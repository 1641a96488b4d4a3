#include "panels/palette_table.h"

#include <array>

namespace pixano {
namespace {

using enum PaletteFrame;

constexpr const char* SuperiorPicture = "riflesso_superiore.gif";
constexpr const char* InferiorPicture = "riflesso_inferiore.gif";

// clang-format off
constexpr auto Buttons = std::to_array<PaletteButton>({
    {"SSCommand15", "Annulla",    "", Funzioni, nullptr, "Annulla", 58},
    {"SSCommand16", "Originale",  "", Funzioni, nullptr, "Originale", 59},
    {"SSCommand17", "Ripristina", "", Funzioni, nullptr, "Ripristina", 60},

    {"SSCommand7",  "<->",   " Riflesso Verticale Sinistro ",     Riflessi, nullptr, "Riflesso Verticale Sinistro", 19},
    {"SSCommand8",  ">-<",   " Riflesso Verticale Destro",        Riflessi, nullptr, "Riflesso Verticale Destro", 20},
    {"SSCommand9",  "",      " Riflesso Orizzontale Superiore ",  Riflessi, SuperiorPicture, "Riflesso Orizzontale Superiore", 22},
    {"SSCommand10", "",      " Riflesso Orizzontale Inferiore ",  Riflessi, InferiorPicture, "Riflesso Orizzontale Inferiore", 23},
    {"SSCommand11", "<<>>",  " Doppia Foto Verticale ",           Riflessi, nullptr, "Doppia Foto Verticale", 25},
    {"SSCommand12", "^+^+",  " Doppia Foto Orizzontale ",         Riflessi, nullptr, "Doppia Foto Orizzontale", 26},
    {"SSCommand13", ":] [:", " Specchio",                         Riflessi, nullptr, "Specchio", 31},
    {"SSCommand14", "+180°", " Capovolgi ",                       Riflessi, nullptr, "Capovolgi", 32},
    {"SSCommand24", "-90°",  " Rotazione di 90° a Sinistra ",     Riflessi, nullptr, "Rotazione di 90° a Sinistra", 0, "Rotazione -90°"},
    {"SSCommand25", "+90°",  " Rotazione di 90° a Destra ",       Riflessi, nullptr, "Rotazione di 90° a Destra", 0, "Rotazione +90°"},
    {"SSCommand26", "-180°", " Capovolgi a Specchio ",            Riflessi, nullptr, "Capovolgi a Specchio", 0, "Capovolgi a Specchio"},

    {"SSCommand2",  "Deformazione",    "", Effetti, nullptr, "Deformazione", 41},
    {"SSCommand1",  "Mini Foto Rnd",   "", Effetti, nullptr, "Mini Foto Rnd", 37},
    {"SSCommand3",  "MultiFoto",       "", Effetti, nullptr, "MultiFoto", 33},
    {"SSCommand4",  "Negativo",        "", Effetti, nullptr, "Negativo", 0, "Negativo Artistico"},
    {"SSCommand5",  "Colorazione",     "", Effetti, nullptr, "Colorazione", 0, "Colorazione"},
    {"SSCommand6",  "Vetro",           "", Effetti, nullptr, "Vetro", 0, "Vetro"},
    {"SSCommand18", "MultiFoto Step",  "", Effetti, nullptr, "MultiFoto Step", 0, "MultiFoto Step"},
    {"SSCommand19", "Mix Verticale",   "", Effetti, nullptr, "Mix Verticale", 0, "Mix Verticale"},
    {"SSCommand20", "Mix Orizzontale", "", Effetti, nullptr, "Mix Orizzontale", 0, "Mix Orizzontale"},
    {"SSCommand21", "Mix Multifoto",   "", Effetti, nullptr, "Mix Multifoto", 0, "Mix Multifoto"},
    {"SSCommand22", "Foto Color Rnd",  "", Effetti, nullptr, "Foto Color Rnd", 0, "Foto Color Rnd"},
    {"SSCommand23", "Forbici",         "", Effetti, nullptr, "Forbici", 0, "Forbici"},

    {"Command1", "", "", None, "ingrandisci.jpg", "Ingrandisci l'anteprima", 0, nullptr,  0.3},
    {"Command2", "", "", None, "riduci.jpg",      "Riduci l'anteprima",      0, nullptr, -0.3},
});
// clang-format on

}  // namespace

std::span<const PaletteButton> PaletteButtons()
{
    return Buttons;
}

}  // namespace pixano
