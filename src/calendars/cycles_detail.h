// Shared pieces of the cycle calendars' source files.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "calendars/names.h"
#include "calendars/registry.h"
#include "core/int_math.h"

namespace mc::cycles {

// a mod m with 0 read as m: 1..m.
constexpr int Cycle(long long a, int m) {
  int r = FloorMod(a, m);
  return r == 0 ? m : r;
}

// A name as the user has chosen to see it (accented or plain letters).
inline std::string Shown(const Context& ctx, std::string_view name) {
  return ctx.settings.plainLetters ? PlainLetters(name) : std::string(name);
}

// Entry `index` of a name list, as shown.
template <std::size_t M>
std::string ShownAt(const Context& ctx, const std::array<std::string_view, M>& list, int index) {
  return Shown(ctx, list[static_cast<std::size_t>(index)]);
}

void RegisterBalineseRules(RulesTable& table);
void RegisterJavaneseRules(RulesTable& table);
void RegisterYorubaRules(RulesTable& table);

}  // namespace mc::cycles
