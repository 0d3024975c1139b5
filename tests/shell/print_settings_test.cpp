#include "shell/print_settings.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mc {
namespace {

TEST(PrintSettings, StoringWhatWasLoadedLeavesTheFileAlone) {
  test::TestProgram p;
  p.Start();
  const std::string before = p.Read("mercod.ini");
  StorePrintSettings(p.ctx, LoadPrintSettings(p.ctx));
  EXPECT_EQ(p.Read("mercod.ini"), before);
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST(PrintSettings, EveryKeyComesBackAsStored) {
  test::TestProgram p;
  p.Start();
  PrintSettings s;
  s.title = {"Georgia", 20, false, true, true};
  s.header = {"Verdana", 9, true, true, false};
  s.body = {"Courier New", 12, true, false, true};
  s.footer = {"Tahoma", 7, false, false, true};
  s.bodyFixedFontName = "Consolas";
  s.bodyPropFontName = "Calibri";
  s.lineSpacing = "Double";
  s.printerName = "Office";
  s.printQuality = "High";
  s.paperSize = "Letter";
  s.orientation = "Landscape";
  s.paperBin = "Tray 2";
  s.copies = 3;
  s.lastHeader = "Head";
  s.lastFooter = "Foot";
  s.marginUnit = "inches";
  s.marginLeft = 1.25;
  s.marginRight = 0.5;
  s.marginTop = 0.75;
  s.marginBottom = 1;
  s.pageNumbers = true;
  s.dateAndTime = false;
  s.border = true;
  s.lineUnderHeader = true;
  s.lineAboveFooter = true;
  StorePrintSettings(p.ctx, s);
  EXPECT_TRUE(p.sink.messages.empty()) << p.sink.Last();

  const PrintSettings r = LoadPrintSettings(p.ctx);
  for (auto [got, want] : {std::pair{&r.title, &s.title}, std::pair{&r.header, &s.header},
                           std::pair{&r.footer, &s.footer}}) {
    EXPECT_EQ(got->name, want->name);
    EXPECT_EQ(got->size, want->size) << want->name;
    EXPECT_EQ(got->bold, want->bold) << want->name;
    EXPECT_EQ(got->italic, want->italic) << want->name;
    EXPECT_EQ(got->underline, want->underline) << want->name;
  }
  // The body font has no name of its own: it is the fixed-width one.
  EXPECT_EQ(r.body.name, "Consolas");
  EXPECT_EQ(r.body.size, 12);
  EXPECT_TRUE(r.body.bold);
  EXPECT_FALSE(r.body.italic);
  EXPECT_TRUE(r.body.underline);
  EXPECT_EQ(r.bodyPropFontName, "Calibri");
  EXPECT_EQ(r.lineSpacing, "Double");
  EXPECT_EQ(r.printerName, "Office");
  EXPECT_EQ(r.printQuality, "High");
  EXPECT_EQ(r.paperSize, "Letter");
  EXPECT_EQ(r.orientation, "Landscape");
  EXPECT_EQ(r.paperBin, "Tray 2");
  EXPECT_EQ(r.copies, 3);
  EXPECT_EQ(r.lastHeader, "Head");
  EXPECT_EQ(r.lastFooter, "Foot");
  EXPECT_EQ(r.marginUnit, "inches");
  EXPECT_EQ(r.marginLeft, 1.25);
  EXPECT_EQ(r.marginRight, 0.5);
  EXPECT_EQ(r.marginTop, 0.75);
  EXPECT_EQ(r.marginBottom, 1);
  EXPECT_TRUE(r.pageNumbers);
  EXPECT_FALSE(r.dateAndTime);
  EXPECT_TRUE(r.border);
  EXPECT_TRUE(r.lineUnderHeader);
  EXPECT_TRUE(r.lineAboveFooter);
}

}  // namespace
}  // namespace mc
