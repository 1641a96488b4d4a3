// The list of all effects. Whoever starts, lists, tests or measures effects reads it here.
#pragma once

#include "canvas/work.h"

#include <span>
#include <string_view>

namespace pixano {

enum class Family { Geometry, Colours, Composite };

/// When the frame reseeds the random numbers for the effect.
enum class Reseed {
    Never,
    AfterAbil,     ///< before the check mark moves
    BeforeEffect,  ///< after the check mark, before the snapshot
};

/// The order of the frame's last steps.
enum class Closing {
    UnloadCaptionModified,  ///< progress window unloaded, canvas captioned, `Modificato` set
    ModifiedUnloadCaption,  ///< `Modificato` set first
    ModifiedUnload,         ///< the same without a new caption
};

/// What a run-time error in the effect ends. An effect that refuses a picture with InvalidCall has
/// changed nothing that is seen: that ends the command alone, whatever stands here.
enum class FaultEnds { Command, Program };

struct Effect {
    std::string_view name;  ///< `Effetto`, UTF-8
    void (*run)(Work&);     ///< from the capture to the last pixel
    Family family;
    int entry = 0;     ///< `Index` of its menu entry; 0 = none
    int selector = 0;  ///< `IndValore` of its strength; 0 = takes none
    Closing closing = Closing::UnloadCaptionModified;
    Reseed reseed = Reseed::Never;
    FaultEnds faultEnds = FaultEnds::Command;
};

/// All effects, family by family.
std::span<const Effect> Catalogue();

/// The effect of that exact name, or nullptr.
const Effect* FindEffect(std::string_view name);

/// The effect that the menu entry with that `Index` starts, or nullptr.
const Effect* EffectOfEntry(int index);

}  // namespace pixano
