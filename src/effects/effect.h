// What an effect is to whoever runs it. Knows neither which effects there are nor what starts them.
#pragma once

#include "canvas/work.h"

#include <string_view>

namespace pixano {

enum class Family { Geometry, ColourAndArt, Composite };

struct Effect {
    std::string_view name;  ///< `Effetto`, UTF-8
    void (*run)(Work&);     ///< from the capture to the last pixel
    Family family;
    int selector = 0;           ///< `IndValore` of its strength; 0 = takes none
    bool reseeds = false;       ///< its frame reseeds the random numbers
    bool captioned = true;      ///< the canvas bears its name afterwards
    Fatal fatal = Fatal::None;  ///< the run-time errors in it that end the program
};

}  // namespace pixano
