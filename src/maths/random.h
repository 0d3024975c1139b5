// The program's shuffled random source, shared by the calculators: a
// Bays-Durham shuffle over the runtime generator, seeded from the clock.
#pragma once

#include "core/context.h"

namespace mc {

// A value 0 <= x < 1. A negative seedFlag reseeds from the clock first; the
// first call of a run seeds as well.
double NextRandom(Context& ctx, double seedFlag = 1);

}  // namespace mc
