// Conversions per second of the fixed-rule solar, Hebrew and Islamic
// calendars, through the engine's dispatchers as every caller uses them.
// Each run converts every day of about 300 years from 2000 C.E. on.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench_program.h"
#include "calendars/gregorian.h"
#include "calendars/registry.h"

namespace mc {
namespace {

constexpr JD kFirst = GregorianToJD(1, 1, 2000);
constexpr int kDays = 300 * 365;

JD FirstDayFor(CalType type) {
  // The Umm al-Qura table ends in 2077; the French Revolutionary calendar in 1806.
  if (type == CalType::UAQ) return GregorianToJD(1, 1, 1940);
  if (type == CalType::Fre) return GregorianToJD(22, 9, 1792);
  return kFirst;
}
int DaysFor(CalType type) {
  if (type == CalType::UAQ) return 50000;
  if (type == CalType::Fre) return 5000;
  return kDays;
}

// The started program holds the Umm al-Qura table of the build's folder.
void BM_JDToDate(benchmark::State& state, CalType type) {
  bench::StartedProgram p;
  CalendarEngine& engine = p.engine;
  const JD first = FirstDayFor(type);
  const int days = DaysFor(type);
  int i = 0;
  for (auto _ : state) {
    CalDate d = engine.JDToDate(type, first + i);
    benchmark::DoNotOptimize(d);
    if (++i == days) i = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_DateToJD(benchmark::State& state, CalType type) {
  bench::StartedProgram p;
  CalendarEngine& engine = p.engine;
  const JD first = FirstDayFor(type);
  std::vector<CalDate> dates;
  for (int i = 0; i < DaysFor(type); ++i) dates.push_back(engine.JDToDate(type, first + i));
  std::size_t i = 0;
  for (auto _ : state) {
    const CalDate& d = dates[i];
    benchmark::DoNotOptimize(engine.DateToJD(type, d.day, d.month, d.year));
    if (++i == dates.size()) i = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

#define CODEX_CALENDAR_BENCH(code)                     \
  BENCHMARK_CAPTURE(BM_JDToDate, code, CalType::code); \
  BENCHMARK_CAPTURE(BM_DateToJD, code, CalType::code)

CODEX_CALENDAR_BENCH(Arm);
CODEX_CALENDAR_BENCH(Egy);
CODEX_CALENDAR_BENCH(ParShe);
CODEX_CALENDAR_BENCH(PerQad);
CODEX_CALENDAR_BENCH(Fas);
CODEX_CALENDAR_BENCH(Cop);
CODEX_CALENDAR_BENCH(Eth);
CODEX_CALENDAR_BENCH(Fre);
CODEX_CALENDAR_BENCH(Ban);
CODEX_CALENDAR_BENCH(Ind);
CODEX_CALENDAR_BENCH(Sikh);
CODEX_CALENDAR_BENCH(NewAfg);
CODEX_CALENDAR_BENCH(Afg);
CODEX_CALENDAR_BENCH(Per);
CODEX_CALENDAR_BENCH(Bah);
CODEX_CALENDAR_BENCH(RevJul);
CODEX_CALENDAR_BENCH(Heb);
CODEX_CALENDAR_BENCH(Isl);
CODEX_CALENDAR_BENCH(UAQ);

}  // namespace
}  // namespace mc

BENCHMARK_MAIN();
