#include "ui/print_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core/errors.h"
#include "ui/desktop.h"
#include "ui/printing.h"
#include "ui/screen_colours.h"

namespace mc::ui {

namespace {

constexpr const char* kPdfPrinter = "PDF file";

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QComboBox* Combo(QWidget* parent, const char* name, const QStringList& items,
                 const std::string& current) {
  auto* c = new QComboBox(parent);
  c->setObjectName(name);
  c->addItems(items);
  int i = c->findText(Q(current));
  if (i < 0) {
    c->addItem(Q(current));
    i = c->count() - 1;
  }
  c->setCurrentIndex(i);
  return c;
}

QDoubleSpinBox* MarginBox(QWidget* parent, const char* name) {
  auto* b = new QDoubleSpinBox(parent);
  b->setObjectName(name);
  b->setDecimals(3);
  b->setRange(0, 20);
  b->setSingleStep(0.1);
  return b;
}

}  // namespace

PrintForm::PrintForm(Desktop& desktop, const std::string& output, QWidget* parent,
                     const PrintFont* listingFont)
    : QDialog(parent), desktop_(desktop) {
  setObjectName("Form29");
  setWindowTitle("Print Settings");
  loaded_ = LoadPrintSettings(desktop.ctx());
  PrintDocument doc = SplitForPrinting(output, loaded_);
  if (listingFont) {
    doc.title.clear();
    doc.text = output;
    storedBody_ = loaded_.body;
    loaded_.body = *listingFont;
  } else if (IsTableLikeOutput(doc.title)) {
    loaded_.body.name = loaded_.bodyFixedFontName;
  }

  auto* layout = new QVBoxLayout(this);
  auto* docBox = new QGroupBox("Document", this);
  auto* docGrid = new QGridLayout(docBox);
  title_ = new QLineEdit(Q(doc.title), docBox);
  title_->setObjectName("txtTitle");
  header_ = new QLineEdit(Q(doc.header), docBox);
  header_->setObjectName("txtHeader");
  footer_ = new QLineEdit(Q(doc.footer), docBox);
  footer_->setObjectName("txtFooter");
  text_ = new QPlainTextEdit(docBox);
  text_->setObjectName("txtText");
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setPlainText(Q(doc.text).replace("\r\n", "\n"));
  docGrid->addWidget(new QLabel("Title", docBox), 0, 0);
  docGrid->addWidget(title_, 0, 1);
  docGrid->addWidget(new QLabel("Header", docBox), 1, 0);
  docGrid->addWidget(header_, 1, 1);
  docGrid->addWidget(new QLabel("Footer", docBox), 2, 0);
  docGrid->addWidget(footer_, 2, 1);
  docGrid->addWidget(text_, 3, 0, 1, 2);
  layout->addWidget(docBox, 1);

  auto* fontBox = new QGroupBox("Fonts", this);
  auto* fontGrid = new QGridLayout(fontBox);
  titleFont_ = AddFontRow(fontGrid, 0, "Title", loaded_.title, false);
  headerFont_ = AddFontRow(fontGrid, 1, "Header", loaded_.header, false);
  bodyFont_ = AddFontRow(fontGrid, 2, "Body", loaded_.body, true);
  footerFont_ = AddFontRow(fontGrid, 3, "Footer", loaded_.footer, false);
  auto* note = new QLabel(
      "To maintain any required vertical alignment of text, use a fixed width font such as "
      "Courier New.",
      fontBox);
  note->setWordWrap(true);
  fontGrid->addWidget(note, 4, 0, 1, 6);
  layout->addWidget(fontBox);

  auto* pageBox = new QGroupBox("Page", this);
  auto* pageGrid = new QGridLayout(pageBox);
  QStringList printers = {"(Default Printer)"};
  for (const QString& p : QPrinterInfo::availablePrinterNames()) printers << p;
  printers << kPdfPrinter;
  printer_ = Combo(pageBox, "cboPrinter", printers, loaded_.printerName);
  quality_ =
      Combo(pageBox, "cboQuality", {"(Default Print Quality)", "Draft", "Low", "Medium", "High"},
            loaded_.printQuality);
  paper_ = Combo(pageBox, "cboPaperSize", {"A4", "A3", "A5", "Letter", "Legal"}, loaded_.paperSize);
  orientation_ = Combo(pageBox, "cboOrientation", {"Portrait", "Landscape"}, loaded_.orientation);
  bin_ = Combo(pageBox, "cboPaperBin", {"(Default Paper Bin)"}, loaded_.paperBin);
  spacing_ =
      Combo(pageBox, "cboLineSpacing", {"Single", "1.5 Lines", "Double"}, loaded_.lineSpacing);
  copies_ = new QSpinBox(pageBox);
  copies_->setObjectName("spnCopies");
  copies_->setRange(1, 99);
  marginUnit_ = Combo(pageBox, "cboMarginUnit", {"cm", "inches"}, loaded_.marginUnit);
  left_ = MarginBox(pageBox, "txtMarginLeft");
  right_ = MarginBox(pageBox, "txtMarginRight");
  top_ = MarginBox(pageBox, "txtMarginTop");
  bottom_ = MarginBox(pageBox, "txtMarginBottom");
  pageNumbers_ = new QCheckBox("Print page numbers", pageBox);
  dateTime_ = new QCheckBox("Print date and time", pageBox);
  border_ = new QCheckBox("Draw border around document", pageBox);
  headerLine_ = new QCheckBox("Draw line under header", pageBox);
  footerLine_ = new QCheckBox("Draw line above footer", pageBox);
  int r = 0;
  auto add = [&](const char* label, QWidget* w, int col) {
    pageGrid->addWidget(new QLabel(label, pageBox), r, col);
    pageGrid->addWidget(w, r, col + 1);
  };
  add("Printer", printer_, 0), add("Print quality", quality_, 2), ++r;
  add("Paper size", paper_, 0), add("Orientation", orientation_, 2), ++r;
  add("Paper bin", bin_, 0), add("Copies", copies_, 2), ++r;
  add("Line spacing", spacing_, 0), add("Margin unit", marginUnit_, 2), ++r;
  add("Left margin", left_, 0), add("Right margin", right_, 2), ++r;
  add("Top margin", top_, 0), add("Bottom margin", bottom_, 2), ++r;
  pageGrid->addWidget(pageNumbers_, r, 0, 1, 2);
  pageGrid->addWidget(dateTime_, r++, 2, 1, 2);
  pageGrid->addWidget(border_, r, 0, 1, 2);
  pageGrid->addWidget(headerLine_, r++, 2, 1, 2);
  pageGrid->addWidget(footerLine_, r, 0, 1, 2);
  layout->addWidget(pageBox);

  auto* buttons = new QHBoxLayout;
  auto* print = new QPushButton("&Print", this);
  print->setObjectName("cmdPrint");
  auto* cancel = new QPushButton("&Cancel", this);
  cancel->setObjectName("cmdCancel");
  buttons->addStretch();
  buttons->addWidget(print);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(print, &QPushButton::clicked, this, [this] {
    if (Print()) accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(marginUnit_, &QComboBox::currentTextChanged, this, [this](const QString& unit) {
    PrintSettings s = Settings();
    s.marginUnit = unit == "cm" ? "inches" : "cm";  // the unit the boxes were in
    ConvertMargins(s, unit.toStdString());
    ShowSettings(s);
  });

  ShowSettings(loaded_);
  ApplyScreenColours(desktop.ctx(), this, 29);
  resize(760, 820);
}

PrintForm::FontRow PrintForm::AddFontRow(QGridLayout* grid, int row, const QString& label,
                                         const PrintFont& font, bool bodyRow) {
  FontRow f;
  grid->addWidget(new QLabel(label, this), row, 0);
  if (bodyRow) {
    f.name = Combo(this, "cboBodyFont", {Q(loaded_.bodyFixedFontName), Q(loaded_.bodyPropFontName)},
                   font.name);
  } else {
    auto* c = new QFontComboBox(this);
    c->setCurrentFont(QFont(Q(font.name)));
    c->setEditText(Q(font.name));
    f.name = c;
  }
  f.name->setObjectName("cbo" + label + "Font");
  f.size = new QSpinBox(this);
  f.size->setRange(4, 72);
  f.size->setObjectName("spn" + label + "Size");
  f.bold = new QCheckBox("Bold", this);
  f.italic = new QCheckBox("Italic", this);
  f.underline = new QCheckBox("Underline", this);
  grid->addWidget(f.name, row, 1);
  grid->addWidget(f.size, row, 2);
  grid->addWidget(f.bold, row, 3);
  grid->addWidget(f.italic, row, 4);
  grid->addWidget(f.underline, row, 5);
  return f;
}

void PrintForm::ShowSettings(const PrintSettings& s) {
  auto showFont = [](FontRow& row, const PrintFont& f) {
    row.size->setValue(f.size);
    row.bold->setChecked(f.bold);
    row.italic->setChecked(f.italic);
    row.underline->setChecked(f.underline);
  };
  showFont(titleFont_, s.title);
  showFont(headerFont_, s.header);
  showFont(bodyFont_, s.body);
  showFont(footerFont_, s.footer);
  copies_->setValue(s.copies);
  left_->setValue(s.marginLeft);
  right_->setValue(s.marginRight);
  top_->setValue(s.marginTop);
  bottom_->setValue(s.marginBottom);
  pageNumbers_->setChecked(s.pageNumbers);
  dateTime_->setChecked(s.dateAndTime);
  border_->setChecked(s.border);
  headerLine_->setChecked(s.lineUnderHeader);
  footerLine_->setChecked(s.lineAboveFooter);
}

PrintSettings PrintForm::Settings() const {
  PrintSettings s = loaded_;
  auto readFont = [](const FontRow& row, PrintFont& f) {
    f.name = row.name->currentText().toStdString();
    f.size = row.size->value();
    f.bold = row.bold->isChecked();
    f.italic = row.italic->isChecked();
    f.underline = row.underline->isChecked();
  };
  readFont(titleFont_, s.title);
  readFont(headerFont_, s.header);
  readFont(bodyFont_, s.body);
  readFont(footerFont_, s.footer);
  s.printerName = printer_->currentText().toStdString();
  s.printQuality = quality_->currentText().toStdString();
  s.paperSize = paper_->currentText().toStdString();
  s.orientation = orientation_->currentText().toStdString();
  s.paperBin = bin_->currentText().toStdString();
  s.lineSpacing = spacing_->currentText().toStdString();
  s.copies = copies_->value();
  s.marginUnit = marginUnit_->currentText().toStdString();
  s.marginLeft = left_->value();
  s.marginRight = right_->value();
  s.marginTop = top_->value();
  s.marginBottom = bottom_->value();
  s.pageNumbers = pageNumbers_->isChecked();
  s.dateAndTime = dateTime_->isChecked();
  s.border = border_->isChecked();
  s.lineUnderHeader = headerLine_->isChecked();
  s.lineAboveFooter = footerLine_->isChecked();
  s.lastHeader = header_->text().toStdString();
  s.lastFooter = footer_->text().toStdString();
  return s;
}

PrintDocument PrintForm::Document() const {
  PrintDocument d;
  d.title = title_->text().toStdString();
  d.header = header_->text().toStdString();
  d.footer = footer_->text().toStdString();
  d.text = text_->toPlainText().toStdString();
  return d;
}

bool PrintForm::Print(const QString& pdfFile) {
  PrintSettings s = Settings();
  QPrinter printer(QPrinter::HighResolution);
  QString file = pdfFile;
  if (file.isEmpty() && s.printerName == kPdfPrinter) {
    file = QFileDialog::getSaveFileName(this, "Print to PDF file", QString(), "PDF files (*.pdf)");
    if (file.isEmpty()) return false;
  }
  if (!file.isEmpty()) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
  } else if (s.printerName != "(Default Printer)") {
    printer.setPrinterName(QString::fromStdString(s.printerName));
  }
  ConfigurePrinter(printer, s);
  Context& ctx = desktop_.ctx();
  const QString dateLine = QString::fromStdString(PrintDateLine(ctx, ctx.Now()));
  if (RenderDocument(printer, s, Document(), dateLine) == 0) {
    ctx.settings.lastFileOpened = s.printerName;
    ShowRunTimeError(ctx, kDeviceIO);
    return false;
  }
  if (storedBody_) s.body = *storedBody_;
  StorePrintSettings(ctx, s);
  return true;
}

}  // namespace mc::ui
