#include "app/editor/KTRating.h"

#include <algorithm>

int KTStarsOfRating(const KTSelectedValue& value) {
    const auto rating = value.value.number();
    return rating ? std::clamp(int(rating->rounded(0).toInteger()), 0, kKTMostStars) : 0;
}

KTValue KTRatingOfStars(int stars) {
    return stars > 0 ? KTValue(std::min(stars, kKTMostStars)) : KTValue();
}

std::optional<int> KTStarsForKey(char32_t character) {
    return character >= U'0' && character <= U'5' ? std::optional(int(character - U'0')) : std::nullopt;
}

int KTStarsAfterClick(int star, int present) {
    return star == present ? 0 : std::clamp(star, 0, kKTMostStars);
}
