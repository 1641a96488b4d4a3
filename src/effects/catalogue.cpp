#include "effects/catalogue.h"

namespace pixano {

const Effect* FindEffect(std::string_view name)
{
    const auto* const found = std::ranges::find(Effects, name, &Effect::name);
    return found == Effects.end() ? nullptr : found;
}

}  // namespace pixano
