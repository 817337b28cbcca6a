// Waves for patterns that need many of them.
#pragma once

#include "platform/coreimage/kernel/Batch.h"

namespace ci {

/// The cosine of whole turns, to five digits.
template <class V>
V cosineOfTurns(const V& turns)
{
    const V quarter = 0.25f - abs(V(turns - round(turns)));
    const V s = quarter * quarter;
    return quarter * polynomial(s, 39.2f, -76.58f, 81.5997f, -41.34155f, 6.283185f);
}

} // namespace ci
