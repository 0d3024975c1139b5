// Cost of the Hindu calendars: one conversion each way for the solar and the
// lunisolar reckonings, the building blocks they spend their time in, and the
// month and year questions the calendar views ask.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench_program.h"
#include "calendars/hindu.h"
#include "calendars/registry.h"

namespace {

using mc::CalType;
using mc::JD;

// Days spread over the supported range (years 64 to 10055 of the Vikrama era).
JD DayAt(std::int64_t i) {
  return 1724000 + static_cast<JD>((i * 7919) % 3640000);
}

void JDToDate(benchmark::State& state, CalType type) {
  mc::bench::StartedProgram p;
  std::int64_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(p.engine.JDToDate(type, DayAt(i++)));
}

void DateToJD(benchmark::State& state, CalType type) {
  mc::bench::StartedProgram p;
  // Dates of real days, made beforehand.
  std::vector<mc::CalDate> dates;
  for (int i = 0; i < 512; ++i) dates.push_back(p.engine.JDToDate(type, DayAt(i)));
  std::size_t i = 0;
  for (auto _ : state) {
    const mc::CalDate& d = dates[i++ % dates.size()];
    benchmark::DoNotOptimize(p.engine.DateToJD(type, d.day, d.month, d.year));
  }
}

BENCHMARK_CAPTURE(JDToDate, HinLun, CalType::HinLun);
BENCHMARK_CAPTURE(DateToJD, HinLun, CalType::HinLun);
BENCHMARK_CAPTURE(JDToDate, HinLun1, CalType::HinLun1);
BENCHMARK_CAPTURE(DateToJD, HinLun1, CalType::HinLun1);
BENCHMARK_CAPTURE(JDToDate, HinLun3, CalType::HinLun3);
BENCHMARK_CAPTURE(DateToJD, HinLun3, CalType::HinLun3);
BENCHMARK_CAPTURE(JDToDate, HinSol, CalType::HinSol);
BENCHMARK_CAPTURE(DateToJD, HinSol, CalType::HinSol);

void SolarMonthLength(benchmark::State& state) {
  mc::bench::StartedProgram p;
  int i = 0;
  for (auto _ : state) {
    ++i;
    benchmark::DoNotOptimize(p.engine.DaysInMonth(CalType::HinSol, 1900 + i % 100, i % 12 + 1));
  }
}
BENCHMARK(SolarMonthLength);

void LunisolarLeapYear(benchmark::State& state) {
  mc::bench::StartedProgram p;
  int i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(p.engine.IsLeapYear(CalType::HinLun, 2000 + i++));
}
BENCHMARK(LunisolarLeapYear);

void Sunrise(benchmark::State& state) {
  double t = 1.8e6;
  for (auto _ : state) benchmark::DoNotOptimize(mc::hindu::Sunrise(t += 1));
}
BENCHMARK(Sunrise);

void NewMoonBefore(benchmark::State& state) {
  double t = 1.8e6;
  for (auto _ : state) benchmark::DoNotOptimize(mc::hindu::NewMoonBefore(t += 1.37));
}
BENCHMARK(NewMoonBefore);

void OldLunisolar(benchmark::State& state) {
  int rd = 100000;
  for (auto _ : state) benchmark::DoNotOptimize(mc::hindu::OldLunarDateFromRD(rd++));
}
BENCHMARK(OldLunisolar);

}  // namespace

BENCHMARK_MAIN();
