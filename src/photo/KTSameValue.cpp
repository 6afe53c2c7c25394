#include "photo/KTSameValue.h"

#include "metadata/KTMetadataField.h"

namespace {

bool isNothing(const KTValue& value) {
    return !value.isSomething() || (value.list() && value.list()->empty());
}

} // namespace

bool KTIsSameValue(const KTValue& left, const KTValue& right) {
    if (isNothing(left) || isNothing(right))
        return isNothing(left) && isNothing(right);
    if (auto a = left.number(), b = right.number(); a && b) {
        const KTDecimal difference = *a > *b ? *a - *b : *b - *a;
        return KTMetadataField::diffRoundingBehavior(difference).isZero();
    }
    if (left.date() && right.date())
        return std::chrono::floor<std::chrono::seconds>(*left.date()) ==
               std::chrono::floor<std::chrono::seconds>(*right.date());
    if (left.components() && right.components())
        return left.components()->hasSameReading(*right.components());
    return left == right;
}
