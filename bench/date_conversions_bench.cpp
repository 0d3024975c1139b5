// The Date Conversions report, the heaviest report of the calendars: every
// calendar's row (Chinese and Hindu included) and the detail lines.
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "calendars/date_conversions.h"
#include "calendars/gregorian.h"

namespace {

// A day of a different year each time, so that no lunar year is reused.
void BM_DateConversionsReport(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::JD jd = mc::GregorianToJD(1, 1, 1650);
  for (auto _ : state) {
    mc::CalDate d = mc::Calendars(p.ctx).JDToDate(mc::CalType::Greg, jd);
    benchmark::DoNotOptimize(mc::DateConversionsReport(p.ctx, mc::CalType::Greg, d, jd));
    jd += 400;
    if (jd > mc::GregorianToJD(1, 1, 2999)) jd -= 490000;
  }
}
BENCHMARK(BM_DateConversionsReport)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
