// The menu entries as their users count them: the `Index` of those that tests click, and the effect
// that each starts.
#pragma once

#include "shell/controls.h"

#include <array>

namespace pixano::test {

namespace entry {
inline constexpr int Apri = 2;
inline constexpr int Salva = 3;
inline constexpr int Esci = 35;
inline constexpr int Undo = 58;
inline constexpr int Orig = 59;
inline constexpr int Redo = 60;
inline constexpr int Inf = 61;
inline constexpr int Inter = 62;
}  // namespace entry

/// How many entries there are.
inline int EntryCount()
{
    return static_cast<int>(MenuEntries().size());
}

struct EffectEntry {
    int index;
    const char* effect;
};

/// Every entry that starts an effect.
inline constexpr auto EffectEntries = std::to_array<EffectEntry>({
    {6, "Ingr. Top"},
    {7, "Ingr. Bottom"},
    {8, "Ingr. Sinistro"},
    {9, "Ingr. Destro"},
    {11, "Ingr. Top Sinistro"},
    {12, "Ingr. Top Destro"},
    {14, "Ingr. Bottom Sinistro"},
    {15, "Ingr. Bottom Destro"},
    {16, "Ingr. Centro"},
    {19, "Rifl. Vert. Sinistro"},
    {20, "Rifl. Vert. Destro"},
    {22, "Rifl.o Oriz. Superiore"},
    {23, "Rifl. Oriz. Inferiore"},
    {25, "Doppia Foto Verticale"},
    {26, "Doppia Foto Orizzontale"},
    {31, "Specchio"},
    {32, "Capovolgi"},
    {33, "Multifoto"},
    {37, "Mini Foto Rnd"},
    {39, "Multi Step Verticale"},
    {40, "Multi Step Orizzontale"},
    {41, "Deformazione Casuale"},
    {43, "Distorsione 1"},
    {44, "Distorsione 2"},
    {46, "Empireo 1"},
    {47, "Empireo 2"},
    {49, "Fantastic 1"},
    {50, "Fantastic 2"},
    {52, "Artistico 1"},
    {53, "Artistico 2"},
    {54, "Artistico 3"},
    {55, "Artistico 4"},
    {56, "Artistico 5"},
    {57, "Artistico 6"},
});

/// The `Index` of the entry that starts the effect; 0 = none.
inline int EntryOf(const Effect& effect)
{
    for (const auto& [index, name] : EffectEntries)
        if (effect.name == name) return index;
    return 0;
}

/// The effect that a row starts, or nullptr.
inline const Effect* EffectIn(const Starts& starts)
{
    const auto* const effect = std::get_if<const Effect*>(&starts);
    return effect != nullptr ? *effect : nullptr;
}

}  // namespace pixano::test
