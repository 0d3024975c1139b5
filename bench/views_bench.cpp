// Cost of the calendar views: year pages of the cheap and the dear calendars,
// and one month grid of each kind. The Chinese pages build their lunar year
// afresh each time (the engine's cache of built years is cleared).
#include <benchmark/benchmark.h>

#include <string_view>

#include "bench_program.h"
#include "calendars/chinese.h"
#include "calendars/registry.h"
#include "views/month_calendars.h"
#include "views/year_pages.h"

namespace {

using mc::CalType;

void YearPage(benchmark::State& state, CalType type, std::string_view caption, int firstYear) {
  mc::bench::StartedProgram p;
  int i = 0;
  for (auto _ : state) {
    if (type == CalType::Chi || type == CalType::Vie) mc::ClearLunarYearCache(mc::Calendars(p.ctx));
    // Alternate two years, so that no page reuses the last year built.
    benchmark::DoNotOptimize(mc::views::YearPage(p.ctx, type, caption, "", firstYear + i++ % 2));
  }
  state.SetLabel("one page");
}
BENCHMARK_CAPTURE(YearPage, Gregorian, CalType::Greg, "Gregorian", 2026)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(YearPage, Hebrew, CalType::Heb, "Hebrew", 5784)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(YearPage, Chinese, CalType::Chi, "Chinese", 4660)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(YearPage, HinduChaitra, CalType::HinLun, "", 2082)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(YearPage, HinduRajasthan, CalType::HinLun3, "", 2082)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(YearPage, HinduSolar, CalType::HinSol, "Hindu Solar", 1947)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(YearPage, Pawukon, CalType::Paw, "", 2025)->Unit(benchmark::kMillisecond);

// One step of the month spin, each a month grid with its heading and boxes.
void MonthStep(benchmark::State& state, std::string_view caption) {
  mc::bench::StartedProgram p;
  mc::MonthCalendarsScreen screen(p.ctx);
  screen.SelectCalendar(*mc::MonthCalendarsScreen::EntryIndex(caption));
  int i = 0;
  for (auto _ : state) {
    // Ten years up, ten years down, and again: every step a month of its own.
    benchmark::DoNotOptimize(screen.StepMonth(i++ / 120 % 2 == 0 ? 1 : -1));
    benchmark::DoNotOptimize(screen.GridText());
  }
}
BENCHMARK_CAPTURE(MonthStep, Gregorian, "Gregorian")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MonthStep, HinduChaitra, "Hindu Lunisolar Chaitra")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MonthStep, Chinese, "Chinese")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
