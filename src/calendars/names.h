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

// ---- Cycle calendars: Mayan, Aztec, Balinese, Javanese, Yoruba; Roman dates ----

// Haab months are counted from 0: Pop = 0 .. Uayeb = 18.
inline constexpr std::array<std::string_view, 19> kHaabMonths = {
    "Pop", "Uo",  "Zip", "Zotz",   "Tzec", "Xul", "Yaxkin", "Mol",   "Chen", "Yax",
    "Zac", "Ceh", "Mac", "Kankin", "Muan", "Pax", "Kayab",  "Cumku", "Uayeb"};
inline constexpr NameList<20> kTzolkinNames = {
    "",      "Imix", "Ik",  "Akbal", "Kan", "Chicchan", "Cimi",  "Manik",  "Lamat", "Muluc", "Oc",
    "Chuen", "Eb",   "Ben", "Ix",    "Men", "Cib",      "Caban", "Etznab", "Cauac", "Ahau"};
inline constexpr NameList<20> kTonalpohualliNames = {
    "",        "Cipactli", "Ehecatl",       "Calli",      "Cuetzpalin", "Coatl",     "Miquiztli",
    "Mazatl",  "Tochtli",  "Atl",           "Itzcuintli", "Ozomahtli",  "Malinalli", "Acatl",
    "Ocelotl", "Cuauhtli", "Cozcacuauhtli", "Ollin",      "Tecpatl",    "Quiahuitl", "Xochitl"};
inline constexpr NameList<19> kXiuhpohualliMonths = {"",
                                                     "Izcalli",
                                                     "Cuauhuitlehua",
                                                     "Tlacaxipehualiztli",
                                                     "Tozoztontli",
                                                     "Hueitozoztli",
                                                     "Toxcatl",
                                                     "Etzcualiztli",
                                                     "Tecuilhuitontli",
                                                     "Hueitecuilhuitl",
                                                     "Tlaxochimaco",
                                                     "Xocolhuetzi",
                                                     "Ochpaniztli",
                                                     "Teotleco",
                                                     "Tepeilhuitl",
                                                     "Quecholli",
                                                     "Panquetzaliztli",
                                                     "Atemoztli",
                                                     "Tititl",
                                                     "Nenmontemi"};

// The ten concurrent weeks of the Pawukon, by their number of days.
inline constexpr NameList<2> kDwiwaraNames = {"", "Menga", "Pepet"};
inline constexpr NameList<3> kTriwaraNames = {"", "Pasah", "Beteng", "Kajeng"};
inline constexpr NameList<4> kCaturwaraNames = {"", "Sri", "Laba", "Jaya", "Menala"};
inline constexpr NameList<5> kPancawaraNames = {"", "Umanis", "Pahing", "Pon", "Wage", "Keliwon"};
inline constexpr NameList<6> kSadwaraNames = {"",        "Tungleh", "Aryang", "Urukung",
                                              "Paniron", "Was",     "Maulu"};
inline constexpr NameList<7> kSaptawaraNames = {"",     "Radite",    "Coma",  "Anggara",
                                                "Buda", "Wrhaspati", "Sukra", "Saniscara"};
inline constexpr NameList<8> kAsatawaraNames = {"",      "Cri",    "Indra", "Guru", "Yama",
                                                "Ludra", "Brahma", "Kala",  "Uma"};
inline constexpr NameList<9> kSangawaraNames = {"",     "Dangu",   "Jangur",  "Gigis", "Nohan",
                                                "Ogan", "Erangan", "Urungan", "Tulus", "Dadi"};
inline constexpr NameList<10> kDasawaraNames = {
    "", "Pandita", "Pati", "Suka", "Duka", "Shri", "Manuh", "Manusa", "Raja", "Dewa", "Raksasa"};
inline constexpr NameList<30> kWukuNames = {
    "",           "Sinta",     "Landhep",       "Wukir",       "Kuranthil", "Tolu",
    "Gumbreg",    "Warigalit", "Warigagung",    "Julungwangi", "Sungsang",  "Galungan",
    "Kuningan",   "Langkir",   "Mandhasiya",    "Julungpujud", "Pahang",    "Kuruwelut",
    "Merakeh",    "Tambir",    "Madhangkungan", "Maktal",      "Wuyé",      "Manahil",
    "Prangbakat", "Bala",      "Wugu",          "Wayang",      "Kulawu",    "Dhukut",
    "Watugunung"};
inline constexpr NameList<6> kIngkelNames = {"", "Wong", "Sato", "Mina", "Manuk", "Taru", "Buku"};
inline constexpr NameList<6> kIngkelJejepanNames = {"",     "Mina", "Paksi", "Patra",
                                                    "Sato", "Taru", "Wong"};
inline constexpr NameList<12> kWatekNames = {
    "",           "Buta-Gajah", "Buta-Lintah", "Buta-Uler",   "Gajah-Lembu", "Gajah-Lintah",
    "Suku-Gajah", "Suku-Uler",  "Watu-Lembu",  "Watu-Lintah", "Watu-Uler",   "Wong-Gajah",
    "Wong-Lembu"};
inline constexpr NameList<6> kRakamNames = {
    "",         "Demangkanduruan", "Kalatinantang", "Macan Ketawang", "Mantri Sinaroja",
    "Nujupati", "Sanggar Waringin"};
inline constexpr NameList<10> kParerasanNames = {
    "",           "Aras Kembang",       "Aras Tuding",  "Laku Air",
    "Laku Angin", "Laku Api",           "Laku Bintang", "Laku Bulan",
    "Laku Bumi",  "Laku Pandita Sakti", "Laku Surya"};
inline constexpr NameList<7> kPancaSudaNames = {"",
                                                "Wisesa Segara",
                                                "Sumur Sinaba",
                                                "Lebu Ketiup Angin",
                                                "Satriya Wibawa",
                                                "Tunggak Semi",
                                                "Satriya Wirang",
                                                "Bumi Kapetak"};
inline constexpr NameList<7> kDewaNames = {"",      "Indra", "Sri", "Brahma",
                                           "Wisnu", "Siwa",  "Uma", "Durga"};
inline constexpr NameList<7> kWayangNames = {"",       "Mantri", "Galuh",  "Yaksa-yaksi",
                                             "Merdah", "Tualen", "Sangut", "Delem"};
inline constexpr NameList<7> kTaruNames = {"",      "Bunut",    "Pule",       "Rangdu",
                                           "Ancak", "Beringin", "Kayu Putih", "Kepuh"};
inline constexpr NameList<7> kManukNames = {"",     "Siung", "Perkutut", "Gagak",
                                            "Dara", "Merak", "Bangau",   "Celepuk"};
inline constexpr NameList<7> kSatoNames = {"",     "Garuda", "Singa",   "Macan",
                                           "Ular", "Kucing", "Kambing", "Lembu"};
inline constexpr NameList<35> kLintangNames = {
    "",           "Gajah",    "Kiriman",        "Jongsarat",    "Tiwa-tiwa",     "Sangkatikel",
    "Bububolong", "Sungenge", "Waliku",         "Pedati",       "Kuda",          "Gajah Mina",
    "Bade",       "Magelut",  "Pegelangan",     "Kalasungsang", "Kukus",         "Asu",
    "Kartika",    "Naga",     "Banyang Angrem", "Ru",           "Patrem",        "Lembu",
    "Depat",      "Tangis",   "Salah Ukur",     "Perahu Pegat", "Puwuh Atarung", "Lawean",
    "Kelapa",     "Yuyu",     "Lumbung",        "Kumbha",       "Udang",         "Begoong"};
inline constexpr NameList<27> kEkajalaRasiNames = {"",
                                                   "Bagna Mapasah",
                                                   "Buat Astawa",
                                                   "Buat kingking",
                                                   "Buat Lara",
                                                   "Buat Merang",
                                                   "Buat Sebet",
                                                   "Buat Suka",
                                                   "Dahat kingking",
                                                   "Kameranaan",
                                                   "Kamertaan",
                                                   "Kasobagian",
                                                   "Kinasihaning Amerta",
                                                   "Kinasihaning Jana",
                                                   "Langgeng Kayohanan",
                                                   "Luwih Bagia",
                                                   "Manggih Bagia",
                                                   "Manggih Suka",
                                                   "Patining Amertha",
                                                   "Rahayu",
                                                   "Sida Kasobagian",
                                                   "Subagia",
                                                   "Suka Binanggih",
                                                   "Suka Pinanggih",
                                                   "Suka Rahayu",
                                                   "Tininggalin Suka",
                                                   "Werdi Putra",
                                                   "Werdi Sarwa Mule"};

// Balinese Saka months by place: a year uses twelve or thirteen of the fourteen.
inline constexpr NameList<14> kBalineseSakaMonths = {
    "",       "Kadasa", "Jesta",  "Mala Jesta", "Sada",   "Mala Sada", "Kasa",   "Karo",
    "Katiga", "Kapat",  "Kalima", "Kanem",      "Kapitu", "Kaulu",     "Kasanga"};

inline constexpr NameList<12> kJavaneseMonths = {
    "",      "Sura",  "Sapar", "Mulud", "Bakdamulud", "Jumadilawal", "Jumadilakir",
    "Rejeb", "Ruwah", "Pasa",  "Sawal", "Sela",       "Besar"};
inline constexpr NameList<7> kJavaneseWeekdays = {"",
                                                  "Minggu (Adité)",
                                                  "Senèn (Soma)",
                                                  "Selasa (Hanggara)",
                                                  "Rebo (Buda)",
                                                  "Kemis (Respati)",
                                                  "Jemuwah (Sukra)",
                                                  "Setu (Tumpak)"};
inline constexpr NameList<5> kJavanesePasaran = {"", "Legi", "Paing", "Pon", "Wagé", "Kliwon"};
inline constexpr NameList<8> kJavaneseTaun = {"",
                                              "Alip (Purwana)",
                                              "Ehé (Karyana)",
                                              "Jimawal (Anama)",
                                              "Jé (Lalana)",
                                              "Dal (Ngawanga) ",
                                              "Bé (Pawaka)",
                                              "Wawu (Wasana)",
                                              "Jimakir (Swasana)"};
inline constexpr NameList<4> kJavaneseWindu = {"", "Adi (Linuwíh)", "Kuntara (Ulah)",
                                               "Sengara (Panjír)", "Sancaya (Sarawungan)"};

inline constexpr NameList<4> kYorubaDays = {"", "Ojo-Orunmila (Ifa)", "Ojo-Shango (Jakuta)",
                                            "Ojo-Ogun", "Ojo-Obatala"};
inline constexpr NameList<12> kYorubaMonths = {"",      "Sere",  "Erele", "Erena", "Igbe",
                                               "Ebibi", "Okudu", "Agemo", "Ogun",  "Owere",
                                               "Owaro", "Belu",  "Ope"};

// Month names of the Roman date, in the genitive; the date text turns them to
// the accusative where it counts towards a day.
inline constexpr NameList<12> kRomanMonths = {
    "",       "Ianuariae", "Februariae", "Martiae",  "Apriles",   "Maiae",    "Iuniae",
    "Iuliae", "Augustae",  "Septembres", "Octobres", "Novembres", "Decembres"};

// Indian National calendar months, Chaitra first as the year begins.
inline constexpr NameList<12> kIndianMonths = {
    "", "Chaitra", "Vaisakha", "Jyaishtha", "Ashadha", "Shravana", "Bhadra",
    "Ashvin", "Kartika", "Agrahayana", "Pausha", "Magha", "Phalguna"};

// The same text with accented Latin letters replaced by their plain forms
// ("Vendémiaire" -> "Vendemiaire", "Çarsamba" -> "Carsamba").
std::string PlainLetters(std::string_view text);

}  // namespace mc
