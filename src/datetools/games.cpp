#include "datetools/games.h"

namespace mc {

namespace {

const GamesHost* HostOf(const std::vector<GamesHost>& table, int year) {
  for (const auto& h : table)
    if (h.year == year) return &h;
  return nullptr;
}

// Cancelled Games keep their number but have no place.
bool Held(const GamesHost& h) {
  return h.text.find(" in ") != std::string_view::npos;
}

}  // namespace

const std::vector<GamesHost>& SummerOlympicHosts() {
  static const std::vector<GamesHost> t = {
      {1896, "I in Athens, Greece"},
      {1900, "II in Paris, France"},
      {1904, "III in St. Louis, USA"},
      {1908, "IV in London, England"},
      {1912, "V in Stockholm, Sweden"},
      {1916, "VI"},
      {1920, "VII in Antwerp, Belgium"},
      {1924, "VIII in Paris, France"},
      {1928, "IX in Amsterdam, Netherlands"},
      {1932, "X in Los Angeles, USA"},
      {1936, "XI in Berlin, Germany"},
      {1940, "XII"},
      {1944, "XIII"},
      {1948, "XIV in London, England"},
      {1952, "XV in Helsinki, Finland"},
      {1956, "XVI in Melbourne, Australia and Stockholm, Sweden"},
      {1960, "XVII in Rome, Italy"},
      {1964, "XVIII in Tokyo, Japan"},
      {1968, "XIX in Mexico City, Mexico"},
      {1972, "XX in Munich, Germany"},
      {1976, "XXI in Montreal, Canada"},
      {1980, "XXII in Moscow, Russia"},
      {1984, "XXIII in Los Angeles, USA"},
      {1988, "XXIV in Seoul, South Korea"},
      {1992, "XXV in Barcelona, Spain"},
      {1996, "XXVI in Atlanta, USA"},
      {2000, "XXVII in Sydney, Australia"},
      {2004, "XXVIII in Athens, Greece"},
      {2008, "XXIX in Beijing, China"},
      {2012, "XXX in London, England"},
      {2016, "XXXI in Rio de Janeiro, Brazil"},
      {2020, "XXXII in Tokyo, Japan"},
  };
  return t;
}

const std::vector<GamesHost>& WinterOlympicHosts() {
  static const std::vector<GamesHost> t = {
      {1924, "I in Chamonix, France"},
      {1928, "II in St. Moritz, Switzerland"},
      {1932, "III in Lake Placid, USA"},
      {1936, "IV in Garmisch-Partenkirchen, Germany"},
      {1948, "V in St. Moritz, Switzerland"},
      {1952, "VI in Oslo, Norway"},
      {1956, "VII in Cortina d'Ampezzo, Italy"},
      {1960, "VIII in Squaw Valley, USA"},
      {1964, "IX in Innsbruck, Austria"},
      {1968, "X in Grenoble, France"},
      {1972, "XI in Sapporo, Japan"},
      {1976, "XII in Innsbruck, Austria"},
      {1980, "XIII in Lake Placid, USA"},
      {1984, "XIV in Sarajevo, Yugoslavia"},
      {1988, "XV in Calgary, Canada"},
      {1992, "XVI in Albertville, France"},
      {1994, "XVII in Lillehammer, Norway"},
      {1998, "XVIII in Nagano, Japan"},
      {2002, "XIX in Salt Lake City, USA"},
      {2006, "XX in Turin, Italy"},
      {2010, "XXI in Vancouver, Canada"},
      {2014, "XXII in Sochi, Russia"},
      {2018, "XXIII in Pyeongchang, South Korea"},
      {2022, "XXIV in Beijing, China"},
  };
  return t;
}

const std::vector<GamesHost>& CommonwealthGamesHosts() {
  static const std::vector<GamesHost> t = {
      {1930, "I in Hamilton, Canada"},
      {1934, "II in London, England"},
      {1938, "III in Sydney, Australia"},
      {1950, "IV in Auckland, New Zealand"},
      {1954, "V in Vancouver, Canada"},
      {1958, "VI in Cardiff, Wales"},
      {1962, "VII in Perth, Australia"},
      {1966, "VIII in Kingston, Jamaica"},
      {1970, "IX in Edinburgh, Scotland"},
      {1974, "X in Christchurch, New Zealand"},
      {1978, "XI in Edmonton, Canada"},
      {1982, "XII in Brisbane, Australia"},
      {1986, "XIII in Edinburgh, Scotland"},
      {1990, "XIV in Auckland, New Zealand"},
      {1994, "XV in Victoria, Canada"},
      {1998, "XVI in Kuala Lumpur, Malaysia"},
      {2002, "XVII in Manchester, England"},
      {2006, "XVIII in Melbourne, Australia"},
      {2010, "XIX in Delhi, India"},
      {2014, "XX in Glasgow, Scotland"},
      {2018, "XXI in Gold Coast, Australia"},
      // Awarded to Durban, which withdrew; held in Birmingham.
      {2022, "XXII in Birmingham, England"},
  };
  return t;
}

const std::vector<GamesHost>& EuropeanAthleticsHosts() {
  static const std::vector<GamesHost> t = {
      {1934, "Turin, Italy"},
      {1938, "Paris, France"},
      {1946, "Oslo, Norway"},
      {1950, "Brussels, Belgium"},
      {1954, "Bern, Switzerland"},
      {1958, "Stockholm, Sweden"},
      {1962, "Belgrade, Yugoslavia"},
      {1966, "Budapest, Hungary"},
      {1969, "Athens, Greece"},
      {1971, "Helsinki, Finland"},
      {1974, "Rome, Italy"},
      {1978, "Prague, Czechoslovakia"},
      {1982, "Athens, Greece"},
      {1986, "Stuttgart, West Germany"},
      {1990, "Split, Yugoslavia"},
      {1994, "Helsinki, Finland"},
      {1998, "Budapest, Hungary"},
      {2002, "Munich, Germany"},
      {2006, "Gothenburg, Sweden"},
      {2010, "Barcelona, Spain"},
      {2012, "Helsinki, Finland"},
      {2014, "Zurich, Switzerland"},
      {2016, "Amsterdam, Netherlands"},
      {2018, "Berlin, Germany"},
      {2020, "Paris, France"},
  };
  return t;
}

const std::vector<GamesHost>& WorldAthleticsHosts() {
  static const std::vector<GamesHost> t = {
      {1983, "Helsinki, Finland"},
      {1987, "Rome, Italy"},
      {1991, "Tokyo, Japan"},
      {1993, "Stuttgart, Germany"},
      {1995, "Gothenburg, Sweden"},
      {1997, "Athens, Greece"},
      {1999, "Seville, Spain"},
      {2001, "Edmonton, Canada"},
      {2003, "Paris, France"},
      {2005, "Helsinki, Finland"},
      {2007, "Osaka, Japan"},
      {2009, "Berlin, Germany"},
      {2011, "Daegu, South Korea"},
      {2013, "Moscow, Russia"},
      {2015, "Beijing, China"},
      {2017, "London, England"},
      {2019, "Doha, Qatar"},
      // Planned for 2021, held in 2022.
      {2022, "Eugene, Oregon, USA"},
  };
  return t;
}

std::vector<std::string> GamesLinesOfYear(int year) {
  std::vector<std::string> lines;
  auto add = [&](const std::string& prefix, const GamesHost* h) {
    if (h && Held(*h)) lines.push_back(prefix + std::string(h->text) + ".");
  };
  add("The year of the modern Summer Olympic Games ", HostOf(SummerOlympicHosts(), year));
  if (year == 1906) lines.push_back("The year of the intercalated modern Olympic Games in Athens.");
  add("The year of the Winter Olympic Games ", HostOf(WinterOlympicHosts(), year));
  const char* empire = year <= 1950   ? "British Empire Games "
                       : year <= 1962 ? "British Empire and Commonwealth Games "
                       : year <= 1974 ? "British Commonwealth Games "
                                      : "Commonwealth Games ";
  add(std::string("The year of the ") + empire, HostOf(CommonwealthGamesHosts(), year));
  if (const GamesHost* h = HostOf(EuropeanAthleticsHosts(), year))
    lines.push_back("The year of the European Athletics Championships in " + std::string(h->text) +
                    ".");
  if (const GamesHost* h = HostOf(WorldAthleticsHosts(), year))
    lines.push_back("The year of the World Athletics Championships in " + std::string(h->text) +
                    ".");
  return lines;
}

}  // namespace mc
