#include "shell/options_screens.h"

#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "support/test_program.h"

namespace mc {
namespace {

class OptionsTest : public ::testing::Test {
 protected:
  OptionsTest() { p.Start(); }
  std::string Ini(int form, const char* key) { return ReadIniFile(p.ctx, form, key); }
  test::TestProgram p;
};

TEST_F(OptionsTest, GeneralOptionsWriteTheirKeysAndTheBlock) {
  GeneralOptionsScreen g(p.ctx);
  g.SetShowJulianDay(false);
  g.SetShowSeconds(false);
  g.SetShowYear(true);
  g.SetShow24Hour(false);
  g.SetMinimiseToTray(false);
  EXPECT_EQ(Ini(0, "Show Julian Day"), "No");
  EXPECT_EQ(Ini(0, "Show Seconds"), "No");
  EXPECT_EQ(Ini(0, "Show Year"), "Yes");
  EXPECT_EQ(Ini(0, "Show 24-Hour Clock"), "No");
  EXPECT_EQ(Ini(0, "Minimise to System Tray"), "No");
  const SettingsBlock& s = p.ctx.settings;
  EXPECT_EQ(s.showJulianDay + s.showSeconds + s.showYear + s.show24Hour + s.minimiseToTray,
            "NoNoYesNoNo");

  g.SetFavouriteCalendar("Hebrew");
  EXPECT_EQ(g.FavouriteCalendar(), "Hebrew");
  g.SetStartDay(7);
  EXPECT_EQ(Ini(0, "Start Day"), "7");
  EXPECT_EQ(s.startDay, 7);
  g.SetStartDay(9);  // no such day: nothing changes
  EXPECT_EQ(s.startDay, 7);
  g.SetIslamicLeapScheme(3);
  g.SetIslamicEpochDay("Thursday");
  g.SetIslamicEpochDay("Monday");
  EXPECT_EQ(Ini(0, "Islamic Leap Year Scheme"), "3");
  EXPECT_EQ(Ini(0, "Islamic Epoch Day of Week"), "Thursday");
  EXPECT_EQ(s.islamicLeapScheme, 3);
  EXPECT_EQ(s.islamicEpochDay, "Thursday");
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(OptionsTest, OpeningScreensAndCalendarLists) {
  auto entries = GeneralOptionsScreen::OpeningScreens();
  ASSERT_GT(entries.size(), 60u);
  EXPECT_EQ(entries[0], "Main screen (1)");
  EXPECT_EQ(entries[1], std::string(40, '-'));
  EXPECT_EQ(entries[2], "ABSI Calculator (83)");
  auto has = [&](const char* e) {
    return std::find(entries.begin(), entries.end(), e) != entries.end();
  };
  EXPECT_TRUE(has("Quick Notes (25)"));
  EXPECT_TRUE(has("What Time is it in? (16)"));
  EXPECT_FALSE(has("Find (74)"));
  EXPECT_FALSE(has("Data Input (72)"));
  EXPECT_EQ(GeneralOptionsScreen::ScreenOfEntry("What Time is it in? (16)"), 16);
  EXPECT_EQ(GeneralOptionsScreen::ScreenOfEntry(entries[1]), 0);

  GeneralOptionsScreen g(p.ctx);
  EXPECT_FALSE(g.SetOpeningScreen(entries[1]));
  EXPECT_EQ(g.OpeningScreen(), "Main screen (1)");
  EXPECT_TRUE(g.SetOpeningScreen("Quick Notes (25)"));
  EXPECT_EQ(Ini(0, "Opening Screen"), "Quick Notes (25)");

  auto calendars = GeneralOptionsScreen::CalendarNames();
  EXPECT_EQ(calendars.front(), "Afghan");
  EXPECT_NE(std::find(calendars.begin(), calendars.end(), "Gregorian"), calendars.end());
  EXPECT_EQ(std::find(calendars.begin(), calendars.end(), "Julian Day"), calendars.end());
  EXPECT_TRUE(std::is_sorted(calendars.begin(), calendars.end()));
}

TEST_F(OptionsTest, MayanConstantThroughTheDataInputBox) {
  GeneralOptionsScreen g(p.ctx);
  p.sink.replies = {"584285", "0", "abc", std::nullopt, "  ", "1.5"};
  EXPECT_TRUE(g.SetMayanConstant());
  EXPECT_EQ(Ini(0, "Mayan Constant"), "584285");
  EXPECT_EQ(p.ctx.settings.mayanConstant, 584285);
  EXPECT_EQ(p.sink.messages[0].caption, "Mayan and Aztec Constant");
  const std::string prompt = g.MayanPrompt();
  EXPECT_NE(prompt.find("current value = 584285"), std::string::npos);
  EXPECT_NE(prompt.find(" to "), std::string::npos);
  EXPECT_NE(prompt.find("Leave blank for the default value."), std::string::npos);
  EXPECT_FALSE(g.SetMayanConstant());  // "0": refused silently
  EXPECT_FALSE(g.SetMayanConstant());  // unreadable
  EXPECT_FALSE(g.SetMayanConstant());  // cancelled
  EXPECT_EQ(p.ctx.settings.mayanConstant, 584285);
  EXPECT_TRUE(g.SetMayanConstant());  // emptied: the default again
  EXPECT_EQ(Ini(0, "Mayan Constant"), "584283");
  EXPECT_FALSE(g.SetMayanConstant());
  EXPECT_EQ(p.ctx.settings.mayanConstant, 584283);
  EXPECT_EQ(p.sink.messages.size(), 6u);  // the six prompts and nothing else
}

// Values of a key in every section of the file, by section number.
std::map<int, std::string> KeyInEverySection(const std::string& ini, const std::string& key) {
  std::map<int, std::string> values;
  int section = -1;
  for (const auto& line : SplitLines(ini)) {
    long long n = 0;
    if (StartsWith(line, "[Form") && ParseInt(line.substr(5, line.size() - 6), n))
      section = static_cast<int>(n);
    else if (StartsWith(line, key))
      values[section] = TrimCopy(line.substr(line.find('=') + 1));
  }
  return values;
}

TEST_F(OptionsTest, ColourOptionsForOneScreenOrAll) {
  ColourOptionsScreen c(p.ctx);
  const auto& targets = ColourOptionsScreen::Targets();
  EXPECT_EQ(targets[0].name, "All screens");
  EXPECT_EQ(targets[1].name, "Main screen");
  EXPECT_EQ(targets[2].name, std::string(40, '-'));
  auto target = [&](const char* name) {
    for (const auto& t : targets)
      if (t.name == name) return t;
    ADD_FAILURE() << name;
    return targets[2];
  };
  EXPECT_EQ(target("Enlarged Plot").section, 18);
  EXPECT_EQ(
      std::count_if(targets.begin(), targets.end(),
                    [](const auto& t) { return t.name == "About" || t.name == "Data Input"; }),
      0);

  c.SetColour(target("Quick Notes"), ColourOptionsScreen::Kind::Button, 255);
  EXPECT_EQ(Ini(25, "Button Colour"), "255");
  EXPECT_EQ(*c.Colour(target("Quick Notes"), ColourOptionsScreen::Kind::Button), 255);
  EXPECT_EQ(Ini(26, "Button Colour"), "13172735");

  c.SetColour(targets[0], ColourOptionsScreen::Kind::Text, 4210752);
  for (const auto& [section, value] :
       KeyInEverySection(p.Read("mercod.ini"), "Non-Button Text Colour"))
    EXPECT_EQ(value, "4210752") << section;

  c.RestoreClassicGrey();
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Success!", "Classic grey colours have been applied to all screens."}));
  auto backgrounds = KeyInEverySection(p.Read("mercod.ini"), "Screen Background Colour");
  EXPECT_EQ(backgrounds[1], "-2147483644");
  EXPECT_EQ(backgrounds[84], "12632256");
  EXPECT_EQ(backgrounds[28], "12632256");
  EXPECT_EQ(Ini(1, "Button Colour"), "14211288");
  EXPECT_EQ(Ini(40, "Non-Button Text Colour"), "16711680");

  c.RestoreDefaultColours();
  EXPECT_EQ(p.sink.Last(), "Default colours have been applied to all screens.");
  for (const char* key : {"Screen Background Colour", "Button Colour", "Non-Button Text Colour"}) {
    auto values = KeyInEverySection(p.Read("mercod.ini"), key);
    EXPECT_GT(values.size(), 70u);
    for (const auto& [section, value] : values)
      EXPECT_EQ(value, std::string(key) == "Button Colour"            ? "13172735"
                       : std::string(key) == "Non-Button Text Colour" ? "0"
                                                                      : "16774593")
          << section << " " << key;
  }
}

TEST_F(OptionsTest, FavouritesAndFonts) {
  FavouritesOptionsScreen f(p.ctx);
  EXPECT_TRUE(f.Shown()[7]);
  f.SetShown(7, false);
  f.SetShown(68, true);
  EXPECT_EQ(Ini(1, "Show Menu Item 7"), "No");
  EXPECT_EQ(Ini(1, "Show Menu Item 68"), "Yes");
  EXPECT_EQ(Ini(1, "Show Menu Item 6"), "No");  // item 6 stands ahead of 60 to 68
  EXPECT_FALSE(f.Shown()[7]);
  f.SetMenuShown(false);
  EXPECT_FALSE(f.MenuShown());
  EXPECT_EQ(Ini(1, "Show Favourites Menu"), "No");

  FontOptionsScreen display(p.ctx, 46), user(p.ctx, 47);
  EXPECT_FALSE(p.ctx.settings.fontsChanged);
  display.SetSize(FontOptionsScreen::Which::Fixed, 12);
  EXPECT_TRUE(p.ctx.settings.fontsChanged);
  display.SetBold(FontOptionsScreen::Which::Fixed, false);
  display.SetName(FontOptionsScreen::Which::Proportional, "DejaVu Sans");
  user.SetName(FontOptionsScreen::Which::Fixed, "DejaVu Sans Mono");
  user.SetBold(FontOptionsScreen::Which::Proportional, true);
  EXPECT_EQ(Ini(46, "Fixed Width Font Size"), "12");
  EXPECT_EQ(Ini(46, "Fixed Width Font Bold"), "False");
  EXPECT_EQ(Ini(46, "Proportional Width Font Name"), "DejaVu Sans");
  EXPECT_EQ(Ini(47, "Fixed Width Font Name"), "DejaVu Sans Mono");
  EXPECT_EQ(Ini(47, "Proportional Width Font Bold"), "True");
  EXPECT_EQ(Ini(47, "Fixed Width Font Size"), "9");  // the other form is untouched
  const SettingsBlock& s = p.ctx.settings;
  EXPECT_EQ(s.displayFixedFont.size, 12);
  EXPECT_EQ(s.displayFixedFont.bold, "False");
  EXPECT_EQ(s.displayPropFont.name, "DejaVu Sans");
  EXPECT_EQ(s.userFixedFont.name, "DejaVu Sans Mono");
  EXPECT_EQ(s.userPropFont.bold, "True");
  EXPECT_EQ(s.userFixedFont.size, 9);
}

}  // namespace
}  // namespace mc
