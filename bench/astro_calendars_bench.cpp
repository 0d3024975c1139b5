// Conversion speed of the astronomical calendars: Chinese conversions inside
// a year already built, cold year builds, and the astronomical Persian
// calendar, whose every conversion evaluates the equinox series.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "calendars/astro.h"
#include "calendars/chinese.h"
#include "calendars/gregorian.h"
#include "calendars/registry.h"
#include "core/context.h"

namespace mc {
namespace {

// A context with no program folder and a silent sink: the calendars need none.
class SilentSink final : public MessageSink {
 public:
  void Show(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return false; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
};

struct Engine {
  FixedClock clock{LocalDateTime{2026, 11, 23, 10, 30, 0, 0}};
  SilentSink sink;
  Context ctx{std::filesystem::path("."), clock, sink};
  CalendarEngine& cal = Calendars(ctx);
};

void BM_ChineseJDToDateInBuiltYear(benchmark::State& state) {
  Engine e;
  const JD first = GregorianToJD(1, 3, 2023);
  e.cal.JDToDate(CalType::Chi, first);
  JD jd = first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(e.cal.JDToDate(CalType::Chi, jd));
    if (++jd == first + 300) jd = first;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseJDToDateInBuiltYear);

void BM_ChineseDateToJDInBuiltYear(benchmark::State& state) {
  Engine e;
  const int year = 2023 + kChineseYearOffset;
  int day = 1, month = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(e.cal.DateToJD(CalType::Chi, day, month, year));
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
  Engine e;
  JD jd = GregorianToJD(1, 6, 1645);
  for (auto _ : state) {
    benchmark::DoNotOptimize(e.cal.JDToDate(CalType::Chi, jd));
    jd += 397;
    if (jd > GregorianToJD(1, 6, 2999)) jd = GregorianToJD(1, 6, 1645);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChineseJDToDateColdEngine);

void BM_AstroPersianDateToJD(benchmark::State& state) {
  Engine e;
  int year = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(e.cal.DateToJD(CalType::APer, 15, 6, year));
    if (++year > 2500) year = 1;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AstroPersianDateToJD);

void BM_AstroPersianJDToDate(benchmark::State& state) {
  Engine e;
  const JD first = PersianNewYearJD(1), last = PersianNewYearJD(2501) - 1;
  JD jd = first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(e.cal.JDToDate(CalType::APer, jd));
    jd += 331;
    if (jd > last) jd = first;
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AstroPersianJDToDate);

}  // namespace
}  // namespace mc

BENCHMARK_MAIN();
