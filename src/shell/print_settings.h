// The Print Settings screen's model: the keys of [Form29], the document's
// title, header, footer and text, and the choice of body font.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

struct PrintFont {
  std::string name;
  int size = 10;
  bool bold = false, italic = false, underline = false;
};

struct PrintSettings {
  PrintFont title{"Arial", 16, true, false, false};
  PrintFont header{"Arial", 8, false, false, false};
  PrintFont body{"Courier New", 10, false, false, false};
  PrintFont footer{"Arial", 8, false, true, false};
  std::string bodyFixedFontName = "Courier New";
  std::string bodyPropFontName = "Arial";
  std::string lineSpacing = "Single";  // "Single", "1.5 Lines", "Double"
  std::string printerName = "(Default Printer)";
  std::string printQuality = "Medium";
  std::string paperSize = "A4";
  std::string orientation = "Portrait";
  std::string paperBin = "(Default Paper Bin)";
  int copies = 1;
  std::string lastHeader, lastFooter;
  std::string marginUnit = "cm";  // "cm" or "inches"
  double marginLeft = 2.54, marginRight = 2.54, marginTop = 2.54, marginBottom = 2.54;
  bool pageNumbers = false, dateAndTime = true, border = false;
  bool lineUnderHeader = false, lineAboveFooter = false;
};

inline constexpr std::string_view kDefaultFooter = "Results produced using Meridian Codex";

// Reads [Form29]; missing keys keep their defaults.
PrintSettings LoadPrintSettings(Context& ctx);
// Writes every key of [Form29] that differs from the file.
void StorePrintSettings(Context& ctx, const PrintSettings& settings);

// Margins in the other unit: cm <-> inches.
void ConvertMargins(PrintSettings& settings, std::string_view newUnit);

// A report printed as a table keeps its columns in the fixed-width font.
bool IsTableLikeOutput(std::string_view firstLine);

// The document: the first line is the title, the rest the text.
struct PrintDocument {
  std::string title, header, footer, text;
};
PrintDocument SplitForPrinting(std::string_view output, const PrintSettings& settings);

// The date in the page line, in the user's date order: "23/11/2026 10:30".
std::string PrintDateLine(Context& ctx, const LocalDateTime& now);

}  // namespace mc
