#include "reliability/decoy/decoy.h"

#include <cstdio>
#include <cstdlib>

namespace {

struct Tells {
    Tells()
    {
        const char* const name = std::getenv("PIXANO_DECOY");
        if (name == nullptr) return;
        if (std::FILE* const file = std::fopen(name, "ab")) {
            std::fputs("loaded\n", file);
            std::fclose(file);
        }
    }
} tells;

}  // namespace
