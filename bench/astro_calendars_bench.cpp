// Conversion speed of the astronomical calendars: Chinese conversions inside
// a year already built, cold year builds, and the astronomical Persian
// calendar, whose every conversion evaluates the equinox series.
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "calendars/astro.h"
#include "calendars/chinese.h"
#include "calendars/gregorian.h"
#include "calendars/registry.h"

namespace mc {
namespace {

void BM_ChineseJDToDateInBuiltYear(benchmark::State& state) {
  bench::StartedProgram p;
  const JD first = GregorianToJD(1, 3, 2023);
  p.engine.JDToDate(CalType::Chi, first);
  JD jd = first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(p.engine.JDToDate(CalType::Chi, jd));
    if (++jd == first + 300) jd = first;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseJDToDateInBuiltYear);

void BM_ChineseDateToJDInBuiltYear(benchmark::State& state) {
  bench::StartedProgram p;
  const int year = 2023 + kChineseYearOffset;
  int day = 1, month = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(p.engine.DateToJD(CalType::Chi, day, month, year));
    if (++day > 29) {
      day = 1;
      month = month % 12 + 1;
    }
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseDateToJDInBuiltYear);

void BM_ChineseColdYearBuild(benchmark::State& state) {
  int g = 1645;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ComputeLunarYear(CalType::Chi, g));
    if (++g > 3000) g = 1645;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseColdYearBuild);

void BM_ChineseJDToDateColdEngine(benchmark::State& state) {
  // A fresh year every call: what a caller jumping through the centuries pays.
  bench::StartedProgram p;
  JD jd = GregorianToJD(1, 6, 1645);
  for (auto _ : state) {
    benchmark::DoNotOptimize(p.engine.JDToDate(CalType::Chi, jd));
    jd += 397;
    if (jd > GregorianToJD(1, 6, 2999)) jd = GregorianToJD(1, 6, 1645);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseJDToDateColdEngine);

void BM_AstroPersianDateToJD(benchmark::State& state) {
  bench::StartedProgram p;
  int year = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(p.engine.DateToJD(CalType::APer, 15, 6, year));
    if (++year > 2500) year = 1;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AstroPersianDateToJD);

void BM_AstroPersianJDToDate(benchmark::State& state) {
  bench::StartedProgram p;
  const JD first = PersianNewYearJD(1), last = PersianNewYearJD(2501) - 1;
  JD jd = first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(p.engine.JDToDate(CalType::APer, jd));
    jd += 331;
    if (jd > last) jd = first;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AstroPersianJDToDate);

}  // namespace
}  // namespace mc

BENCHMARK_MAIN();
