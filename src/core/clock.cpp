#include "core/clock.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace mc {

namespace {
namespace chr = std::chrono;

chr::sys_days DaysOf(const LocalDateTime& t) {
  return chr::sys_days{chr::year{t.year} / chr::month{static_cast<unsigned>(t.month)} /
                       chr::day{static_cast<unsigned>(t.day)}};
}
}  // namespace

LocalDateTime AddMilliseconds(const LocalDateTime& t, std::int64_t ms) {
  const std::int64_t msPerDay = 86'400'000;
  std::int64_t inDay = ((t.hour * 60LL + t.minute) * 60 + t.second) * 1000 + t.millisecond + ms;
  std::int64_t dayShift = inDay / msPerDay;
  inDay %= msPerDay;
  if (inDay < 0) {
    inDay += msPerDay;
    --dayShift;
  }
  chr::year_month_day ymd{DaysOf(t) + chr::days{dayShift}};
  LocalDateTime r;
  r.year = static_cast<int>(ymd.year());
  r.month = static_cast<int>(static_cast<unsigned>(ymd.month()));
  r.day = static_cast<int>(static_cast<unsigned>(ymd.day()));
  r.millisecond = static_cast<int>(inDay % 1000);
  inDay /= 1000;
  r.second = static_cast<int>(inDay % 60);
  inDay /= 60;
  r.minute = static_cast<int>(inDay % 60);
  r.hour = static_cast<int>(inDay / 60);
  return r;
}

std::optional<LocalDateTime> ParseIsoDateTime(const std::string& text) {
  LocalDateTime t;
  char sep = 0;
  int consumed = 0;
  int n = std::sscanf(text.c_str(), "%5d-%2d-%2d%c%2d:%2d%n", &t.year, &t.month, &t.day, &sep,
                      &t.hour, &t.minute, &consumed);
  if (n != 6 || (sep != 'T' && sep != ' ')) return std::nullopt;
  if (static_cast<std::size_t>(consumed) < text.size()) {
    int more = 0;
    if (std::sscanf(text.c_str() + consumed, ":%2d%n", &t.second, &more) != 1 ||
        static_cast<std::size_t>(consumed + more) != text.size())
      return std::nullopt;
  }
  if (t.year < 1 || t.year > 9999 || t.hour > 23 || t.minute > 59 || t.second > 59 || t.hour < 0 ||
      t.minute < 0 || t.second < 0)
    return std::nullopt;
  chr::year_month_day ymd{chr::year{t.year}, chr::month{static_cast<unsigned>(t.month)},
                          chr::day{static_cast<unsigned>(t.day)}};
  if (t.month < 1 || t.day < 1 || !ymd.ok()) return std::nullopt;
  return t;
}

LocalDateTime SystemClock::Now() {
  auto now = chr::system_clock::now();
  std::time_t secs = chr::system_clock::to_time_t(now);
  auto ms = chr::duration_cast<chr::milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm tm{};
  localtime_r(&secs, &tm);
  return LocalDateTime{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday,          tm.tm_hour,
                       tm.tm_min,         tm.tm_sec,     static_cast<int>(ms)};
}

}  // namespace mc
