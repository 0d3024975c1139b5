#include "calendars/cal_type.h"

#include <array>

namespace mc {

namespace {

using C = CalType;

// Code, list name, report name, era, years, months, name in messages, article.
constexpr std::array<CalendarInfo, kCalTypeCount> kCalendars = {{
    {C::Greg, "Greg", "Gregorian", "Gregorian", "", 1582, 9999, 12, "Gregorian", false},
    {C::Jul, "Jul", "Julian", "Julian", " C.E.", 7, 9999, 12, "Julian", false},
    {C::RevJul, "RevJul", "Revised Julian", "Julian, revised", " C.E.", 1923, 9999, 12,
     "Revised Julian", false},
    {C::Afg, "Afg", "Afghan", "Afghan", "", 1, 9377, 12, "Afghan", true},
    {C::NewAfg, "NewAfg", "", "", "", 0, 0, 12, "", true},
    {C::Per, "Per", "Persian Arithmetic", "Persian arithmetic", " A.P.", 1, 9377, 12, "Persian",
     false},
    {C::APer, "APer", "Persian Astronomical", "Persian astronomical", " A.P.", 1, 2500, 12,
     "Persian", false},
    {C::Arm, "Arm", "Armenian", "Armenian", "", 1, 9453, 13, "Armenian", true},
    {C::Bah, "Bah", "Baha'i", "Baha'i", " B.E.", 1, 8155, 20, "Baha'i", false},
    {C::Bal, "Bal", "Balinese Saka", "Balinese Saka", "", 1737, 9920, 13, "Balinese Saka", false},
    {C::Ban, "Ban", "Bangla", "Bangla", " B.S.", 1374, 9405, 12, "Bangla", false},
    {C::Chi, "Chi", "Chinese", "Chinese", "", 4282, 5637, 13, "Chinese", false},
    {C::Vie, "Vie", "Vietnamese", "Vietnamese", "", 4282, 5637, 13, "Vietnamese", false},
    {C::Cop, "Cop", "Coptic", "Coptic", " A.M.", 1, 9715, 13, "Coptic", false},
    {C::Egy, "Egy", "Egyptian", "Egyptian", "", 755, 10753, 13, "Egyptian", true},
    {C::Eth, "Eth", "Ethiopic", "Ethiopic", " E.E.", 1, 9991, 13, "Ethiopic", true},
    {C::Fas, "Fas", "Parsi Fasli", "Parsi Fasli", "", 1276, 9367, 13, "Parsi Fasli", false},
    {C::ParShe, "ParShe", "Parsi Shenshai", "Parsi Shenshai", "", 500, 9373, 13, "Parsi Shenshai",
     false},
    {C::PerQad, "PerQad", "Parsi Kadmi", "Parsi Qadmi", "", 500, 9373, 13, "Parsi Kadmi", false},
    {C::Fre, "Fre", "French Revolutionary", "French Revolutonary", "", 1, 14, 13,
     "French Revolutionary", false},
    {C::Heb, "Heb", "Hebrew", "Hebrew", " A.M.", 3768, 13759, 13, "Hebrew", false},
    {C::HinLun, "HinLun", "Hindu Lunisolar Chaitra", "Hindu lunisolar Chaitra", " V.E.", 64, 10055,
     12, "Hindu lunisolar", false},
    {C::HinLun1, "HinLun1", "Hindu Lunisolar Ashada", "Hindu lunisolar Ashada", " V.E.", 64, 10054,
     12, "Hindu lunisolar", false},
    {C::HinLun2, "HinLun2", "Hindu Lunisolar Kartika", "Hindu lunisolar Kartika", " V.E.", 64,
     10054, 12, "Hindu lunisolar", false},
    {C::HinLun3, "HinLun3", "Hindu Lunisolar Rajasthan", "", " V.E.", 65, 10055, 12,
     "Hindu lunisolar", false},
    {C::HinSol, "HinSol", "Hindu Solar", "Hindu solar", " S.E.", 1, 9920, 12, "Hindu solar", false},
    {C::Ind, "Ind", "Indian National", "Indian National", " S.E.", 1879, 9920, 12,
     "Indian National", true},
    {C::Isl, "Isl", "Islamic Arithmetical", "Islamic arithmetical", " A.H.", 1, 9665, 12, "Islamic",
     true},
    {C::UAQ, "UAQ", "Islamic Umm al-Qura", "Islamic Umm al-Qura", " A.H.", 1356, 1500, 12,
     "Umm al-Qura", true},
    {C::Jav, "Jav", "Javanese Pawukon/Pasaran", "Javanese Pawukon/Pasaran", " A.J.", 1555, 10177,
     12, "Javanese", false},
    {C::Sikh, "Sikh", "Sikh Nanakshahi", "Sikh Nanakshahi", "", 531, 8530, 12, "Sikh Nanakshahi",
     false},
    {C::Yor, "Yor", "Yoruba", "Yoruba", "", 9625, 18041, 93, "Yoruba", false},
    {C::Haab, "Haab", "", "", "", 0, 0, 19, "", false},
    {C::Tzo, "Tzo", "", "", "", 0, 0, 20, "", false},
    {C::Ton, "Ton", "", "", "", 0, 0, 20, "", false},
    {C::Xih, "Xih", "", "", "", 0, 0, 19, "", false},
    {C::May, "May", "", "", "", 0, 0, 0, "", false},
    {C::JDA, "JDA", "Julian Day", "", "", 0, 0, 0, "", false},
    {C::Paw, "Paw", "", "", "", 1583, 9999, 0, "Gregorian", false},
    {C::Oly1, "Oly1", "", "", "", -776, 392, 0, "", false},
    {C::Oly2, "Oly2", "", "", "", 1, 292, 0, "", false},
}};

constexpr bool TableInOrder() {
  for (int i = 0; i < kCalTypeCount; ++i)
    if (static_cast<int>(kCalendars[i].type) != i) return false;
  return true;
}
static_assert(TableInOrder(), "calendar table must follow the order of CalType");

}  // namespace

const CalendarInfo& InfoOf(CalType type) {
  return kCalendars[static_cast<int>(type)];
}

std::string_view CodeOf(CalType type) {
  return InfoOf(type).code;
}

std::optional<CalType> CalTypeOfCode(std::string_view code) {
  for (const auto& c : kCalendars)
    if (c.code == code) return c.type;
  return std::nullopt;
}

bool IsHinduLunisolar(CalType type) {
  return type == CalType::HinLun || type == CalType::HinLun1 || type == CalType::HinLun2 ||
         type == CalType::HinLun3;
}

}  // namespace mc
