// Integer division rounded down, as calendar arithmetic wants it: days and
// years before an epoch fall into the cycle before, not towards zero.
#pragma once

#include <concepts>
#include <type_traits>

namespace mc {

// The quotient rounded towards minus infinity.
template <std::signed_integral A, std::signed_integral B>
constexpr std::common_type_t<A, B> FloorDiv(A a, B b) {
  const std::common_type_t<A, B> q = a / b;
  return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

// The remainder that goes with FloorDiv: 0 .. b-1 for a positive b.
template <std::signed_integral A, std::signed_integral B>
constexpr B FloorMod(A a, B b) {
  return static_cast<B>(a - FloorDiv(a, b) * b);
}

}  // namespace mc
