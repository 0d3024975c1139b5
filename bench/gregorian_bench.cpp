// Day-number conversions of the Gregorian calendar and a million-day listing.
#include <benchmark/benchmark.h>

#include <ostream>
#include <streambuf>

#include "bench_program.h"
#include "calendars/gregorian.h"
#include "cli/cli_app.h"

namespace {

void BM_GregorianDateToJD(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::CalendarEngine& cal = p.engine;
  int day = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(cal.DateToJD(mc::CalType::Greg, day, 7, 2026));
    day = day % 28 + 1;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GregorianDateToJD);

void BM_GregorianJDToDate(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::CalendarEngine& cal = p.engine;
  mc::JD jd = 2451545;
  for (auto _ : state) {
    benchmark::DoNotOptimize(cal.JDToDate(mc::CalType::Greg, jd));
    jd = jd < 2900000 ? jd + 97 : 2299161;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GregorianJDToDate);

// codex-cli from-jd Greg over a million days, written to a stream that discards it.
void BM_FromJDMillionDays(benchmark::State& state) {
  struct Discard : std::streambuf {
    int overflow(int c) override { return c; }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
  } discard;
  std::ostream out(&discard), err(&discard);
  const std::string folder = mc::bench::BuildProgramFolder().string();
  for (auto _ : state) {
    mc::RunCli(
        {"--folder", folder, "--date-order", "d/m/y", "from-jd", "Greg", "2400000", "3399999"}, out,
        err);
  }
  state.SetItemsProcessed(state.iterations() * 1'000'000);
}
BENCHMARK(BM_FromJDMillionDays)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
