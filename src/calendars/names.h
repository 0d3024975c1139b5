// Names of days and months, each list indexed from 1 as the calendars number
// them (weekday 1 = Sunday). Lists are written with their accented letters;
// PlainLetters() gives the spelling for users who choose plain letters.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace mc {

template <std::size_t N>
using NameList = std::array<std::string_view, N + 1>;  // entry 0 unused

inline constexpr NameList<7> kWeekdayNames = {
    "", "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
inline constexpr NameList<12> kMonthNames = {
    "",     "January", "February",  "March",   "April",    "May",     "June",
    "July", "August",  "September", "October", "November", "December"};

inline constexpr NameList<12> kAfghanMonths = {
    "", "Hamal", "Sawar", "Jawza", "Saratan", "Asad", "Sonboleh",
    "Mizan", "Aqrab", "Qaws", "Jedi", "Dalw", "Hut"};

inline constexpr NameList<7> kArmenianWeekdays = {
    "", "Miashabathi", "Erkoushabathi", "Erekhshabathi", "Chorekhshabathi",
    "Hingshabathi", "Urbath", "Shabath"};
inline constexpr NameList<13> kArmenianMonths = {
    "",        "Nawasardi", "Hori",     "Sahmi",   "Tre",    "K'aloch",  "Arach",
    "Mehekani", "Areg",     "Ahekani",  "Mareri",  "Margach", "Hrotich", "Aweleach"};

inline constexpr NameList<7> kBanglaWeekdays = {
    "", "RobiBar", "ShomBar", "MongolBar", "BudhBar", "BryhoshpotiBar", "ShukroBar", "ShoniBar"};
inline constexpr NameList<12> kBanglaMonths = {
    "", "Boishakh", "Jyeshtho", "Asharh", "Shrabon", "Bhadro", "Aswin",
    "Kartik", "Ograyohon", "Poush", "Magh", "Falgun", "Choitro"};

// Six Coptic weekday names: the seventh is blank.
inline constexpr NameList<7> kCopticWeekdays = {
    "", "Tkyriake", "Pesnau", "Pshoment", "Peftoou", "Ptiou", "Psoou", ""};
inline constexpr NameList<13> kCopticMonths = {
    "",        "Thoout",   "Paope",     "Athor",    "Koiak",  "Tobe",  "Meshir",
    "Paremotep", "Parmoute", "Pashons", "Paone",    "Epep",   "Mesore", "Epagomene"};

inline constexpr NameList<13> kEgyptianMonths = {
    "",        "Thoth",  "Phaophi",   "Athyr",     "Choiak", "Tybi",   "Mechir",
    "Phamenoth", "Pharmuthi", "Pachon", "Payni", "Epiphi", "Mesori", "Epagomenai"};

inline constexpr NameList<7> kEthiopicWeekdays = {
    "", "Ihud", "Sanyo", "Maksanyo", "Rob", "Hamus", "Arb", "Kidamme"};
inline constexpr NameList<13> kEthiopicMonths = {
    "",       "Maskaram", "Teqemt", "Hedar",  "Takhsas", "Ter",    "Yakatit",
    "Magabit", "Miyazya", "Genbot", "Sane",   "Hamle",   "Nahase", "Pagumen"};

inline constexpr NameList<7> kPersianWeekdays = {
    "", "Yek-shanbeh", "Do-shanbeh", "Se-shanbeh", "Char-shanbeh",
    "Panj-shanbeh", "Jom'eh", "Shanbeh"};
inline constexpr NameList<12> kPersianMonths = {
    "", "Farvardin", "Ordibehesht", "Xordad", "Tir", "Mordad", "Shahrivar",
    "Mehr", "Aban", "Azar", "Dey", "Bahman", "Esfand"};

inline constexpr NameList<7> kSikhWeekdays = {
    "", "Atvaar", "Somvaar", "Mangalvaar", "Budhvaar", "Veervaar", "Shukravaar", "Sanicharvaar"};
inline constexpr NameList<12> kSikhMonths = {
    "", "Chet", "Vaisakh", "Jeth", "Harh", "Sawan", "Bhadon",
    "Asu", "Katik", "Maghar", "Poh", "Magh", "Phagan"};

inline constexpr NameList<7> kThaiWeekdays = {
    "", "Wan a-tit", "Wan chan", "Wan angkaan", "Wan phut", "Wan paruhat", "Wan suk", "Wan sao"};
inline constexpr NameList<12> kThaiMonths = {
    "", "Moggarakom", "Goompaphan", "Meenakom", "May-sa-yon", "Prues-saphakom", "Mithunayon",
    "Garagadakom", "Singhakom", "Gan-ya-yon", "Tulakom", "Prues-sajigayon", "Tanwakom"};

inline constexpr NameList<7> kTurkishWeekdays = {
    "", "Pazar", "Pazartesi", "Sali", "Çarsamba", "Persembe", "Cuma", "Cumartesi"};
inline constexpr NameList<12> kTurkishMonths = {
    "", "Ocak", "Shubat", "Mart", "Nisan", "Mayis", "Haziran",
    "Temmuz", "Aghustos", "Eylul", "Ekim", "Kasim", "Aralik"};

inline constexpr NameList<13> kParsiMonths = {
    "",     "Fravardin", "Ardibehest", "Khordad", "Tir",         "Amardad",   "Shehrevar",
    "Meher", "Avan",     "Adar",       "Dae",     "Bahman",      "Aspandarmad", "Epagomenai"};

// The same text with accented Latin letters replaced by their plain forms
// ("Vendémiaire" -> "Vendemiaire", "Çarsamba" -> "Carsamba").
std::string PlainLetters(std::string_view text);

// Hindu calendars. Lunar months from Chaitra; the month lists of the calendar
// views call the ninth month "Agrahayana". Solar months are the signs from Mesha.
inline constexpr NameList<12> kHinduLunarMonths = {
    "", "Chaitra", "Vaisakha", "Jyaistha", "Ashadha", "Sravana", "Bhadrapada",
    "Asvina", "Kartika", "Margasirsha", "Pausha", "Magha", "Phalguna"};
inline constexpr NameList<12> kHinduCalendarLunarMonths = {
    "", "Chaitra", "Vaisakha", "Jyaistha", "Ashadha", "Sravana", "Bhadrapada",
    "Asvina", "Kartika", "Agrahayana", "Pausha", "Magha", "Phalguna"};
inline constexpr NameList<12> kHinduSolarMonths = {
    "", "Mesha", "Vrishabha", "Mithuna", "Karka", "Simha", "Kanya",
    "Tula", "Vrischika", "Dhanu", "Makara", "Kumbha", "Mina"};
inline constexpr NameList<7> kHinduWeekdays = {
    "", "Ravivara", "Chandravara", "Mangalavara", "Buddhavara", "Brihaspatvara", "Sukravara",
    "Sanivara"};

}  // namespace mc
