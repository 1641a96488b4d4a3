// What an effect is to whoever runs it. Knows neither which effects there are nor what starts them.
#pragma once

#include "canvas/work.h"

#include <string_view>

namespace pixano {

enum class Family { Geometry, ColourAndArt, Composite };

/// What a run-time error in the effect ends. An effect that refuses a picture with InvalidCall has
/// changed nothing that is seen: that ends the command alone, whatever stands here.
enum class FaultEnds { Command, Program };

struct Effect {
    std::string_view name;  ///< `Effetto`, UTF-8
    void (*run)(Work&);     ///< from the capture to the last pixel
    Family family;
    int selector = 0;       ///< `IndValore` of its strength; 0 = takes none
    bool reseeds = false;   ///< its frame reseeds the random numbers
    bool captioned = true;  ///< the canvas bears its name afterwards
    FaultEnds faultEnds = FaultEnds::Command;
};

}  // namespace pixano
