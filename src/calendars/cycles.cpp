// Mayan and Aztec day counts, and the registration of every cycle calendar.
#include "calendars/cycles.h"

#include "calendars/cycles_detail.h"
#include "calendars/families.h"
#include "core/errors.h"

namespace mc {

using cycles::Cycle;
using cycles::Shown;

namespace {

// Days since the long count's day 0.
long long MayanDays(const Context& ctx, JD jd) {
  return static_cast<long long>(jd) - MayanConstant(ctx);
}

CalDate HaabOf(CalendarEngine& engine, JD jd) {
  int h = FloorMod(MayanDays(engine.ctx(), jd) + 348, 365);
  return CalDate{h % 20, h / 20, -1};
}

// The 260-day count: number 1..13 as Day, name 1..20 as Month.
CalDate TzolkinOf(CalendarEngine& engine, JD jd) {
  long long x = MayanDays(engine.ctx(), jd);
  return CalDate{Cycle(x + 4, 13), Cycle(x + 20, 20), -1};
}

CalDate XiuhpohualliOf(CalendarEngine& engine, JD jd) {
  int h = FloorMod(MayanDays(engine.ctx(), jd) + 161, 365);
  return CalDate{h % 20 + 1, h / 20 + 1, -1};
}

}  // namespace

JD MayanConstant(const Context& ctx) {
  return ctx.settings.mayanConstant;
}

LongCount LongCountOfJD(const Context& ctx, JD jd) {
  long long x = MayanDays(ctx, jd);
  LongCount c;
  c.kin = FloorMod(x, 20);
  x = FloorDiv(x, 20);
  c.uinal = FloorMod(x, 18);
  x = FloorDiv(x, 18);
  c.tun = FloorMod(x, 20);
  x = FloorDiv(x, 20);
  c.katun = FloorMod(x, 20);
  c.baktun = static_cast<int>(FloorDiv(x, 20));
  return c;
}

JD JDOfLongCount(const Context& ctx, const LongCount& c) {
  long long x = c.baktun * 144000LL + c.katun * 7200LL + c.tun * 360LL + c.uinal * 20LL + c.kin;
  return static_cast<JD>(x + MayanConstant(ctx));
}

std::string LongCountText(const LongCount& c) {
  return std::to_string(c.baktun) + "." + std::to_string(c.katun) + "." + std::to_string(c.tun) +
         "." + std::to_string(c.uinal) + "." + std::to_string(c.kin);
}

std::optional<JD> LongCountTextToJD(Context& ctx, std::string_view text) {
  auto count = ParseLongCount(ctx, text);
  if (!count) return std::nullopt;
  // Computed wide: a large constant must not wrap into the range.
  long long jd = count->baktun * 144000LL + count->katun * 7200LL + count->tun * 360LL +
                 count->uinal * 20LL + count->kin + MayanConstant(ctx);
  if (jd < FirstJulianDay() || jd > LastJulianDay()) {
    ShowError(ctx, Err("Mayan long count date lies outside supported range."));
    return std::nullopt;
  }
  return static_cast<JD>(jd);
}

int LordOfTheNight(const Context& ctx, JD jd) {
  LongCount c = LongCountOfJD(ctx, jd);
  return Cycle(2 * c.uinal + c.kin, 9);
}

Xiuhmolpilli XiuhmolpilliOf(CalendarEngine& engine, JD jd) {
  CalDate x = XiuhpohualliOf(engine, jd);
  const int dayOfYear = 20 * (x.month - 1) + x.day;
  Xiuhmolpilli bearer;
  // The bearer is the day 20 Tititl, the 360th of the year.
  bearer.number = TzolkinOf(engine, jd + 360 - dayOfYear).day;
  int name = TzolkinOf(engine, jd - dayOfYear + 1).month - 1;
  bearer.nameIndex = (name == 3 || name == 8 || name == 13 || name == 18) ? name : 0;
  return bearer;
}

std::string HaabText(Context& ctx, JD jd) {
  CalDate h = HaabOf(Calendars(ctx), jd);
  return std::to_string(h.day) + " " + Shown(ctx, kHaabMonths[static_cast<std::size_t>(h.month)]);
}

std::string TzolkinText(Context& ctx, JD jd) {
  CalDate t = TzolkinOf(Calendars(ctx), jd);
  return std::to_string(t.day) + " " + Shown(ctx, kTzolkinNames[static_cast<std::size_t>(t.month)]);
}

std::string TonalpohualliText(Context& ctx, JD jd) {
  CalDate t = TzolkinOf(Calendars(ctx), jd);
  return std::to_string(t.day) + " " +
         Shown(ctx, kTonalpohualliNames[static_cast<std::size_t>(t.month)]);
}

std::string XiuhpohualliText(Context& ctx, JD jd) {
  CalendarEngine& engine = Calendars(ctx);
  CalDate x = XiuhpohualliOf(engine, jd);
  Xiuhmolpilli bearer = XiuhmolpilliOf(engine, jd);
  std::string name =
      bearer.nameIndex ? Shown(ctx, kTonalpohualliNames[static_cast<std::size_t>(bearer.nameIndex)])
                       : std::string("?????");
  return std::to_string(x.day) + " " +
         Shown(ctx, kXiuhpohualliMonths[static_cast<std::size_t>(x.month)]) + " (Month " +
         std::to_string(x.month) + "), Xiuhmolpilli year " + std::to_string(bearer.number) + " " +
         name;
}

std::string LordOfTheNightText(Context& ctx, JD jd) {
  return "G" + std::to_string(LordOfTheNight(ctx, jd));
}

std::string CycleDateText(Context& ctx, CalType type, JD jd) {
  switch (type) {
    case CalType::May:
      return LongCountText(LongCountOfJD(ctx, jd));
    case CalType::Haab:
    case CalType::Tzo:
    case CalType::Ton:
    case CalType::Xih: {
      CalDate d = Calendars(ctx).JDToDate(type, jd);
      return std::to_string(d.day) + "/" + std::to_string(d.month);
    }
    default:
      return FormatDateText(ctx, type, Calendars(ctx).JDToDate(type, jd));
  }
}

void RegisterCycleRules(RulesTable& table) {
  table[static_cast<int>(CalType::Haab)].jdToDate = HaabOf;
  table[static_cast<int>(CalType::Tzo)].jdToDate = TzolkinOf;
  table[static_cast<int>(CalType::Ton)].jdToDate = TzolkinOf;
  table[static_cast<int>(CalType::Xih)].jdToDate = XiuhpohualliOf;
  cycles::RegisterBalineseRules(table);
  cycles::RegisterJavaneseRules(table);
  cycles::RegisterYorubaRules(table);
}

}  // namespace mc
