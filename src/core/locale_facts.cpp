#include "core/locale_facts.h"

#include <clocale>
#include <ctime>

namespace mc {

bool IsKnownDateOrder(std::string_view order) {
  for (auto o : kDateOrders)
    if (o == order) return true;
  return false;
}

std::string DateOrderOfSample(std::string_view sample) {
  auto d = sample.find('2');
  auto m = sample.find('1');
  auto y = sample.find('6');
  if (d == m || d == y || m == y) return "Unidentified";
  if (d < m && m < y) return "d/m/y";
  if (m < d && d < y) return "m/d/y";
  if (y < m && m < d) return "y/m/d";
  if (d < y && y < m) return "d/y/m";
  if (y < d && d < m) return "y/d/m";
  return "m/y/d";
}

std::string DetectDateOrder() {
  std::tm tm{};
  tm.tm_mday = 23;
  tm.tm_mon = 9;
  tm.tm_year = 4567 - 1900;
  char buf[64];
  std::size_t n = std::strftime(buf, sizeof buf, "%x", &tm);
  return DateOrderOfSample(std::string_view(buf, n));
}

char DetectDecimalSeparator() {
  const std::lconv* lc = std::localeconv();
  return (lc && lc->decimal_point && lc->decimal_point[0] == ',') ? ',' : '.';
}

void AdoptUserLocale() {
  std::setlocale(LC_ALL, "");
}

}  // namespace mc
