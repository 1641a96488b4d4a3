// The palette as its users know it, spelled out once more: what every button shows and does.
#pragma once

#include <array>
#include <ostream>

namespace pixano::test {

struct ExpectedButton {
    const char* name;
    const char* caption;
    const char* toolTip;
    const char* frame;   ///< caption of the frame around it; "" = none
    int entry;           ///< `Index` of the menu entry that does the same; 0 = none
    const char* effect;  ///< the effect that it starts; "" = none
    int selector = 0;    ///< the strength that is asked for first; 0 = none
    double zoom = 0;

    friend std::ostream& operator<<(std::ostream& out, const ExpectedButton& button)
    {
        return out << button.name;
    }
};

// clang-format off
inline constexpr auto ExpectedButtons = std::to_array<ExpectedButton>({
    {"SSCommand15", "Annulla", "", "Funzioni ", 58, ""},
    {"SSCommand16", "Originale", "", "Funzioni ", 59, ""},
    {"SSCommand17", "Ripristina", "", "Funzioni ", 60, ""},
    {"SSCommand7", "<->", " Riflesso Verticale Sinistro ", "Riflessi ", 19, "Rifl. Vert. Sinistro"},
    {"SSCommand8", ">-<", " Riflesso Verticale Destro", "Riflessi ", 20, "Rifl. Vert. Destro"},
    {"SSCommand9", "", " Riflesso Orizzontale Superiore ", "Riflessi ", 22, "Rifl.o Oriz. Superiore"},
    {"SSCommand10", "", " Riflesso Orizzontale Inferiore ", "Riflessi ", 23, "Rifl. Oriz. Inferiore"},
    {"SSCommand11", "<<>>", " Doppia Foto Verticale ", "Riflessi ", 25, "Doppia Foto Verticale"},
    {"SSCommand12", "^+^+", " Doppia Foto Orizzontale ", "Riflessi ", 26, "Doppia Foto Orizzontale"},
    {"SSCommand13", ":] [:", " Specchio", "Riflessi ", 31, "Specchio"},
    {"SSCommand14", "+180°", " Capovolgi ", "Riflessi ", 32, "Capovolgi"},
    {"SSCommand24", "-90°", " Rotazione di 90° a Sinistra ", "Riflessi ", 0, "Rotazione -90°"},
    {"SSCommand25", "+90°", " Rotazione di 90° a Destra ", "Riflessi ", 0, "Rotazione +90°"},
    {"SSCommand26", "-180°", " Capovolgi a Specchio ", "Riflessi ", 0, "Capovolgi a Specchio"},
    {"SSCommand2", "Deformazione", "", "Effetti ", 41, "Deformazione Casuale"},
    {"SSCommand1", "Mini Foto Rnd", "", "Effetti ", 37, "Mini Foto Rnd"},
    {"SSCommand3", "MultiFoto", "", "Effetti ", 33, "Multifoto"},
    {"SSCommand4", "Negativo", "", "Effetti ", 0, "Negativo Artistico", 1},
    {"SSCommand5", "Colorazione", "", "Effetti ", 0, "Colorazione", 2},
    {"SSCommand6", "Vetro", "", "Effetti ", 0, "Vetro", 3},
    {"SSCommand18", "MultiFoto Step", "", "Effetti ", 0, "MultiFoto Step"},
    {"SSCommand19", "Mix Verticale", "", "Effetti ", 0, "Mix Verticale"},
    {"SSCommand20", "Mix Orizzontale", "", "Effetti ", 0, "Mix Orizzontale"},
    {"SSCommand21", "Mix Multifoto", "", "Effetti ", 0, "Mix Multifoto"},
    {"SSCommand22", "Foto Color Rnd", "", "Effetti ", 0, "Foto Color Rnd", 4},
    {"SSCommand23", "Forbici", "", "Effetti ", 0, "Forbici", 5},
    {"Command1", "", "", "", 0, "", 0, 0.3},
    {"Command2", "", "", "", 0, "", 0, -0.3},
});
// clang-format on

}  // namespace pixano::test
