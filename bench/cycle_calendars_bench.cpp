// Day-number conversions of the cycle calendars, Roman numerals and dates.
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "calendars/cycles.h"
#include "calendars/gregorian.h"
#include "calendars/roman.h"

namespace {

// Days spread over the supported years of each calendar.
mc::JD SpreadDay(std::int64_t i) {
  return mc::GregorianToJD(1, 1, 1700) + static_cast<mc::JD>((i * 7919) % 2'900'000);
}

void JDToDate(benchmark::State& state, mc::CalType type) {
  mc::bench::StartedProgram p;
  std::int64_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(p.engine.JDToDate(type, SpreadDay(i++)));
  state.SetItemsProcessed(state.iterations());
}

void DateToJD(benchmark::State& state, mc::CalType type) {
  mc::bench::StartedProgram p;
  std::vector<mc::CalDate> dates;
  for (int k = 0; k < 4096; ++k) dates.push_back(p.engine.JDToDate(type, SpreadDay(k)));
  std::size_t i = 0;
  for (auto _ : state) {
    const mc::CalDate& d = dates[i++ & 4095];
    benchmark::DoNotOptimize(p.engine.DateToJD(type, d.day, d.month, d.year));
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(JDToDate, Bal, mc::CalType::Bal);
BENCHMARK_CAPTURE(DateToJD, Bal, mc::CalType::Bal);
BENCHMARK_CAPTURE(JDToDate, Jav, mc::CalType::Jav);
BENCHMARK_CAPTURE(DateToJD, Jav, mc::CalType::Jav);
BENCHMARK_CAPTURE(JDToDate, Yor, mc::CalType::Yor);
BENCHMARK_CAPTURE(DateToJD, Yor, mc::CalType::Yor);
BENCHMARK_CAPTURE(JDToDate, Haab, mc::CalType::Haab);
BENCHMARK_CAPTURE(JDToDate, Tzo, mc::CalType::Tzo);
BENCHMARK_CAPTURE(JDToDate, Ton, mc::CalType::Ton);
BENCHMARK_CAPTURE(JDToDate, Xih, mc::CalType::Xih);

void LongCountBothWays(benchmark::State& state) {
  mc::bench::StartedProgram p;
  std::int64_t i = 0;
  for (auto _ : state) {
    mc::LongCount c = mc::LongCountOfJD(p.ctx, SpreadDay(i++));
    benchmark::DoNotOptimize(mc::JDOfLongCount(p.ctx, c));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(LongCountBothWays);

void PawukonReportLines(benchmark::State& state) {
  mc::bench::StartedProgram p;
  std::int64_t i = 0;
  for (auto _ : state) {
    mc::JD jd = SpreadDay(i++);
    benchmark::DoNotOptimize(mc::PawukonLine(p.ctx, jd));
    benchmark::DoNotOptimize(mc::PawukonDetailLines(p.ctx, jd));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PawukonReportLines);

void RomanNumeralsBothWays(benchmark::State& state) {
  int n = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(mc::FromRoman(mc::ToRoman(n)));
    n = n % 3999 + 1;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RomanNumeralsBothWays);

void RomanDateOfTheYear(benchmark::State& state) {
  int day = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(mc::RomanDate(day % 28 + 1, day % 12 + 1, 2000));
    ++day;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RomanDateOfTheYear);

}  // namespace

BENCHMARK_MAIN();
