// Integer division rounded down, as calendar arithmetic wants it: days and
// years before an epoch fall into the cycle before, not towards zero. Both
// work in 64 bits, so that day counts of any calendar fit.
#pragma once

namespace mc {

// The quotient rounded towards minus infinity.
constexpr long long FloorDiv(long long a, long long b) {
  const long long q = a / b;
  return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

// The remainder that goes with FloorDiv, for a positive divisor: 0 .. b-1.
constexpr int FloorMod(long long a, int b) {
  const long long r = a % b;
  return static_cast<int>(r < 0 ? r + b : r);
}

}  // namespace mc
