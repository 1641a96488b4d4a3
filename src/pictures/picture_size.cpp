#include "pictures/picture_size.h"

#include "files/refusal.h"

namespace pixano {

std::string LongestSideText()
{
    return "i lati possono avere al massimo " + std::to_string(LongestSide) + " pixel";
}

void CheckSize(std::int64_t width, std::int64_t height)
{
    const std::string size = std::to_string(width) + " x " + std::to_string(height);
    if (width <= 0 || height <= 0)
        throw Refusal("le misure dell'immagine non sono valide (" + size + ")");
    if (width > LongestSide || height > LongestSide)
        throw Refusal("l'immagine è troppo grande (" + size + "): " + LongestSideText());
    if (width * height > MostPixels)
        throw Refusal("l'immagine è troppo grande (" + size +
                      "): può avere al massimo 268 milioni di pixel");
}

}  // namespace pixano
