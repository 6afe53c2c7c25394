#pragma once
#include "app/editor/KTEditorSelection.h"

/// Stars, 0 to 5. No star is no rating.

inline constexpr int kKTMostStars = 5;

/// The stars to draw for @p value; ratings outside the range, such as -1 for "rejected", draw the nearest.
int KTStarsOfRating(const KTSelectedValue& value);
/// The rating of @p stars; absent for 0.
KTValue KTRatingOfStars(int stars);
/// The stars that a key of the keyboard means, "0" to "5"; nothing for any other.
std::optional<int> KTStarsForKey(char32_t character);
/// The stars after a click on the star of that number, from 1: a click on the last one that shines puts all
/// out.
int KTStarsAfterClick(int star, int present);
