// The Print Settings screen (form 29): the document's title, header, footer
// and text, with every setting of [Form29], and "&Print".
#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "shell/print_settings.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFontComboBox;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;
class QGridLayout;

namespace mc::ui {

class Desktop;

class PrintForm : public QDialog {
  Q_OBJECT
 public:
  // With `listingFont` the whole output is the text, printed in that font;
  // the stored body font is left as it was.
  PrintForm(Desktop& desktop, const std::string& output, QWidget* parent = nullptr,
            const PrintFont* listingFont = nullptr);

  // The settings as the widgets hold them.
  PrintSettings Settings() const;
  PrintDocument Document() const;

  // "&Print": prints, then stores the settings and the header and footer.
  // With a file name the document goes to that PDF file instead of a printer.
  bool Print(const QString& pdfFile = QString());

 private:
  struct FontRow {
    QComboBox* name;
    QSpinBox* size;
    QCheckBox *bold, *italic, *underline;
  };
  FontRow AddFontRow(QGridLayout* grid, int row, const QString& label, const PrintFont& font,
                     bool bodyRow);
  void ShowSettings(const PrintSettings& s);

  Desktop& desktop_;
  PrintSettings loaded_;
  std::optional<PrintFont> storedBody_;  // the user's body font, while a listing has its own
  QLineEdit *title_, *header_, *footer_;
  QPlainTextEdit* text_;
  FontRow titleFont_, headerFont_, bodyFont_, footerFont_;
  QComboBox *printer_, *quality_, *paper_, *orientation_, *bin_, *spacing_, *marginUnit_;
  QSpinBox* copies_;
  QDoubleSpinBox *left_, *right_, *top_, *bottom_;
  QCheckBox *pageNumbers_, *dateTime_, *border_, *headerLine_, *footerLine_;
};

}  // namespace mc::ui
