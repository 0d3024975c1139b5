#include "datetools/easter.h"

namespace mc {

EasterDate ComputeEaster(int year, CalType type) {
  const int g = year % 19;
  int i = 0, j = 0;
  if (type == CalType::Greg) {
    const int c = year / 100;
    const int h = (c - c / 4 - (8 * c + 13) / 25 + 19 * g + 15) % 30;
    i = h - (h / 28) * (1 - (29 / (h + 1)) * ((21 - g) / 11));
    j = (year + year / 4 + i + 2 - c + c / 4) % 7;
  } else if (type == CalType::Jul) {
    i = (19 * g + 15) % 30;
    j = (year + year / 4 + i) % 7;
  }
  const int l = i - j;
  EasterDate e;
  e.month = 3 + (l + 40) / 44;
  e.day = l + 28 - 31 * (e.month / 4);
  return e;
}

}  // namespace mc
