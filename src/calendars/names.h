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

inline constexpr NameList<7> kWeekdayNames = {"",          "Sunday",   "Monday", "Tuesday",
                                              "Wednesday", "Thursday", "Friday", "Saturday"};
inline constexpr NameList<12> kMonthNames = {
    "",     "January", "February",  "March",   "April",    "May",     "June",
    "July", "August",  "September", "October", "November", "December"};

inline constexpr NameList<12> kAfghanMonths = {"",     "Hamal",    "Sawar", "Jawza", "Saratan",
                                               "Asad", "Sonboleh", "Mizan", "Aqrab", "Qaws",
                                               "Jedi", "Dalw",     "Hut"};

inline constexpr NameList<7> kArmenianWeekdays = {
    "",       "Miashabathi", "Erkoushabathi", "Erekhshabathi", "Chorekhshabathi", "Hingshabathi",
    "Urbath", "Shabath"};
inline constexpr NameList<13> kArmenianMonths = {
    "",         "Nawasardi", "Hori",    "Sahmi",  "Tre",     "K'aloch", "Arach",
    "Mehekani", "Areg",      "Ahekani", "Mareri", "Margach", "Hrotich", "Aweleach"};

inline constexpr NameList<7> kBanglaWeekdays = {
    "", "RobiBar", "ShomBar", "MongolBar", "BudhBar", "BryhoshpotiBar", "ShukroBar", "ShoniBar"};
inline constexpr NameList<12> kBanglaMonths = {
    "",       "Boishakh",  "Jyeshtho", "Asharh", "Shrabon", "Bhadro", "Aswin",
    "Kartik", "Ograyohon", "Poush",    "Magh",   "Falgun",  "Choitro"};

// Six Coptic weekday names: the seventh is blank.
inline constexpr NameList<7> kCopticWeekdays = {"",        "Tkyriake", "Pesnau", "Pshoment",
                                                "Peftoou", "Ptiou",    "Psoou",  ""};
inline constexpr NameList<13> kCopticMonths = {
    "",          "Thoout",   "Paope",   "Athor", "Koiak", "Tobe",   "Meshir",
    "Paremotep", "Parmoute", "Pashons", "Paone", "Epep",  "Mesore", "Epagomene"};

inline constexpr NameList<13> kEgyptianMonths = {
    "",          "Thoth",     "Phaophi", "Athyr", "Choiak", "Tybi",   "Mechir",
    "Phamenoth", "Pharmuthi", "Pachon",  "Payni", "Epiphi", "Mesori", "Epagomenai"};

inline constexpr NameList<7> kEthiopicWeekdays = {"",    "Ihud",  "Sanyo", "Maksanyo",
                                                  "Rob", "Hamus", "Arb",   "Kidamme"};
inline constexpr NameList<13> kEthiopicMonths = {
    "",        "Maskaram", "Teqemt", "Hedar", "Takhsas", "Ter",    "Yakatit",
    "Magabit", "Miyazya",  "Genbot", "Sane",  "Hamle",   "Nahase", "Pagumen"};

inline constexpr NameList<7> kPersianWeekdays = {"",           "Yek-shanbeh",  "Do-shanbeh",
                                                 "Se-shanbeh", "Char-shanbeh", "Panj-shanbeh",
                                                 "Jom'eh",     "Shanbeh"};
inline constexpr NameList<12> kPersianMonths = {
    "",     "Farvardin", "Ordibehesht", "Xordad", "Tir",    "Mordad", "Shahrivar",
    "Mehr", "Aban",      "Azar",        "Dey",    "Bahman", "Esfand"};

inline constexpr NameList<7> kSikhWeekdays = {"",         "Atvaar",   "Somvaar",    "Mangalvaar",
                                              "Budhvaar", "Veervaar", "Shukravaar", "Sanicharvaar"};
inline constexpr NameList<12> kSikhMonths = {"",      "Chet",   "Vaisakh", "Jeth",  "Harh",
                                             "Sawan", "Bhadon", "Asu",     "Katik", "Maghar",
                                             "Poh",   "Magh",   "Phagan"};

inline constexpr NameList<7> kThaiWeekdays = {"",         "Wan a-tit",   "Wan chan", "Wan angkaan",
                                              "Wan phut", "Wan paruhat", "Wan suk",  "Wan sao"};
inline constexpr NameList<12> kThaiMonths = {
    "",           "Moggarakom",  "Goompaphan", "Meenakom",   "May-sa-yon", "Prues-saphakom",
    "Mithunayon", "Garagadakom", "Singhakom",  "Gan-ya-yon", "Tulakom",    "Prues-sajigayon",
    "Tanwakom"};

inline constexpr NameList<7> kTurkishWeekdays = {"",         "Pazar",    "Pazartesi", "Sali",
                                                 "Çarsamba", "Persembe", "Cuma",      "Cumartesi"};
inline constexpr NameList<12> kTurkishMonths = {"",      "Ocak",    "Shubat", "Mart",     "Nisan",
                                                "Mayis", "Haziran", "Temmuz", "Aghustos", "Eylul",
                                                "Ekim",  "Kasim",   "Aralik"};

inline constexpr NameList<13> kParsiMonths = {
    "",      "Fravardin", "Ardibehest", "Khordad", "Tir",    "Amardad",     "Shehrevar",
    "Meher", "Avan",      "Adar",       "Dae",     "Bahman", "Aspandarmad", "Epagomenai"};

// Chinese and Vietnamese calendars: the ten stems, the twelve branches with
// their animals (padded to one width), the twelve major solar terms from
// Great Cold to the Winter Solstice, and the weekdays.
inline constexpr NameList<10> kChineseStems = {
    "", "Jia", "Yi", "Bing", "Ding", "Wù", "Ji", "Geng", "Xin", "Rén", "Gui"};
inline constexpr NameList<12> kChineseBranches = {
    "",           "Zi   Rat",   "Chou Ox",     "Yín  Tiger", "Mao  Hare",   "Chén Dragon",
    "Sì   Snake", "Wu   Horse", "Wèi  Sheep",  "Shen Monkey", "Yu   Rooster", "Xu   Dog",
    "Hai  Pig"};
inline constexpr NameList<12> kChineseSolarTerms = {
    "",
    "Dahan         Great Cold        ",
    "Yushui        Rain Water        ",
    "Chunfen       Spring Equinox    ",
    "Guyu          Great Rain        ",
    "Xiaoman       Grain Full        ",
    "Xiazhi        Summer Solstice   ",
    "Dashu         Great Heat        ",
    "Chushu        Limit of Heat     ",
    "Qiufen        Autumnal Equinox  ",
    "Shuangjiang   Descent of Frost  ",
    "Xiaoxue       Slight Snow       ",
    "Dongzhi       Winter Solstice   "};
inline constexpr NameList<7> kChineseWeekdays = {
    "", "Xingqiri", "Xingqiyi", "Xingyier", "Xingqisan", "Xinqisi", "Xingqiwu", "Xingqiliu"};
inline constexpr NameList<10> kVietnameseStems = {
    "", "Giáp", "Ât", "Binh", "Õinh", "Mâ.u", "Ký", "Canh", "Tân", "Nhâm", "Quí"};
inline constexpr NameList<12> kVietnameseBranches = {
    "",           "Tý   Rat",   "Sù'u Buffalo", "D'ân Tiger",  "Mão  Cat",     "Thin Dragon",
    "Ty   Snake", "Ngo. Horse", "Mùi  Goat",    "Thân Monkey", "Dâ.u Rooster", "Tuât Dog",
    "Ho:i Pig"};
// The Vietnamese names in plain letters. These forms are the program's own
// (Ât becomes A't), not what PlainLetters() would make of the accented ones.
inline constexpr NameList<10> kVietnameseStemsPlain = {
    "", "Giap", "A't", "Binh", "Oinh", "Ma.u", "Ky", "Canh", "Tan", "Nham", "Qui"};
inline constexpr NameList<12> kVietnameseBranchesPlain = {
    "",           "Ty   Rat",   "Su'u Buffalo", "D'an Tiger",  "Mao  Cat",     "Thin Dragon",
    "Ty   Snake", "Ngo. Horse", "Mui  Goat",    "Than Monkey", "Da.u Rooster", "Tuât Dog",
    "Ho:i Pig"};

// The same text with accented Latin letters replaced by their plain forms
// ("Vendémiaire" -> "Vendemiaire", "Çarsamba" -> "Carsamba").
std::string PlainLetters(std::string_view text);

// Baha'i: months (the day names are the same list), weekdays, years of the Vahid.
inline constexpr NameList<20> kBahaiMonths = {
    "",        "Baha'",    "Jalal", "Jamal",  "'Azamat", "Nur",     "Rahmat",
    "Kalimat", "Kamal",    "Asma'", "'Izzat", "Mashiyyat", "'Ilm",  "Qudrat",
    "Qawl",    "Masa'il",  "Sharaf", "Sultan", "Mulk",   "Ayyam-i-Ha", "'Ala'"};
inline constexpr NameList<7> kBahaiWeekdays = {
    "", "Jamal", "Kamal", "Fidal", "Idal", "Istijlal", "Istiqlal", "Jalal"};
inline constexpr NameList<19> kBahaiVahidYears = {
    "",     "Alif",  "Ba'",    "Ab",    "Dal",  "Bab",   "Vav",   "Abad",  "Jad",   "Baha'",
    "Hubb", "Bahhaj", "Javab", "Ahad",  "Vahhab", "Vidad", "Badi'", "Bahi", "Abha", "Vahid"};

// French Revolutionary: months, the days of the decade, the complementary days.
inline constexpr NameList<13> kFrenchMonths = {
    "",          "Vendémiaire", "Brumaire",  "Frimaire",  "Nivôse",    "Pluviôse",
    "Ventôse",   "Germinal",    "Floréal",   "Prairial",  "Messidor",  "Thermidor",
    "Fructidor", "Jours Complémentaire"};
inline constexpr NameList<10> kFrenchDecadeDays = {
    "",        "Primidi", "Duodi",  "Tridi",  "Quartidi", "Quintidi",
    "Sextidi", "Septidi", "Octidi", "Nonidi", "Decadi"};
inline constexpr NameList<6> kFrenchComplementaryDays = {
    "",
    "Fête de la Vertu",
    "Fête du Génie",
    "Fête du Travail",
    "Fête de l'Opinion",
    "Fête de la Récompense",
    "Jour de la Révolution"};

// Parsi (Fasli, Shenshai, Kadmi): the thirty day names and the Gatha days of
// month 13, the sixth being the leap day of the Fasli calendar.
inline constexpr NameList<30> kParsiDayNames = {
    "",          "Hormazd",   "Bahman",  "Ardibehest", "Shehrevar",  "Aspandarmad", "Khordad",
    "Amardad",   "Daepadar",  "Adar",    "Avan",       "Khorshed",   "Mohor",       "Tir",
    "Gosh",      "Daepmeher", "Meher",   "Srosh",      "Rashne",     "Fravardin",   "Behram",
    "Ram",       "Govad",     "Daepdin", "Din",        "Ashishvangh", "Ashtad",     "Asman",
    "Zamyad",    "Mahrespand", "Aneran"};
inline constexpr NameList<6> kParsiGathaDays = {
    "", "Ahunavad", "Ushtavad", "Spentomad", "Vohukhshathra", "Vahishtoist", "Avardad-sal-gah"};

// Hebrew: months in the engine's numbering (Tishri = 1, Adar II = 7), weekdays.
inline constexpr NameList<13> kHebrewMonths = {
    "",       "Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat", "Adar",
    "Adar II", "Nisan", "Iyyar",    "Sivan",  "Tammuz", "Av",    "Elul"};
inline constexpr NameList<7> kHebrewWeekdays = {
    "",           "Yom rishon",   "Yom sheni",  "Yom shelishi", "Yom revi'i",
    "Yom hamishi", "Yom shishi", "Yom shabbat"};

// Islamic (arithmetical and Umm al-Qura): months, weekdays.
inline constexpr NameList<12> kIslamicMonths = {
    "",         "Al-Muharram",     "Safar",           "Rabi' al-Awwal", "Rabi' al-Akhir",
    "Jumada 'l-Ula", "Jumada 'l-Akhira", "Rajab",     "Sha'ban",        "Ramadan",
    "Shawwal",  "Dhu 'l-Qa'da",    "Dhu 'l-Hijja"};
inline constexpr NameList<7> kIslamicWeekdays = {
    "",           "Yaum al-ahad", "Yaum al-ithnayn", "Yaum ath-thalatha'", "Yaum al-arba'a'",
    "Yaum al-khamis", "Yaum al-jum'a", "Yaum as-sabt"};
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
