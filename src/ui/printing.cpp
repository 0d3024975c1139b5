#include "ui/printing.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QStringList>

namespace mc::ui {

namespace {

QFont FontOf(const PrintFont& f) {
  QFont font(QString::fromStdString(f.name));
  font.setPointSize(f.size > 0 ? f.size : 10);
  font.setBold(f.bold);
  font.setItalic(f.italic);
  font.setUnderline(f.underline);
  return font;
}

double SpacingFactor(const std::string& spacing) {
  if (spacing == "Double") return 2.0;
  if (spacing.rfind("1.5", 0) == 0) return 1.5;
  return 1.0;
}

QPageSize PageSizeOf(const std::string& name) {
  if (name == "Letter") return QPageSize(QPageSize::Letter);
  if (name == "Legal") return QPageSize(QPageSize::Legal);
  if (name == "A3") return QPageSize(QPageSize::A3);
  if (name == "A5") return QPageSize(QPageSize::A5);
  return QPageSize(QPageSize::A4);
}

}  // namespace

void ConfigurePrinter(QPrinter& printer, const PrintSettings& s) {
  const double mm = s.marginUnit == "inches" ? 25.4 : 10.0;
  QPageLayout layout(
      PageSizeOf(s.paperSize),
      s.orientation == "Landscape" ? QPageLayout::Landscape : QPageLayout::Portrait,
      QMarginsF(s.marginLeft * mm, s.marginTop * mm, s.marginRight * mm, s.marginBottom * mm),
      QPageLayout::Millimeter);
  printer.setPageLayout(layout);
  printer.setCopyCount(s.copies > 0 ? s.copies : 1);
  if (s.printQuality == "Draft" || s.printQuality == "Low") printer.setResolution(150);
  if (s.printQuality == "High") printer.setResolution(600);
}

int RenderDocument(QPagedPaintDevice& device, const PrintSettings& s, const PrintDocument& doc,
                   const QString& dateLine) {
  QPainter painter(&device);
  if (!painter.isActive()) return 0;
  const QRectF page(0, 0, device.width(), device.height());
  const QFont titleFont = FontOf(s.title), headerFont = FontOf(s.header);
  const QFont bodyFont = FontOf(s.body), footerFont = FontOf(s.footer);
  const QFontMetricsF headerM(headerFont, &device), footerM(footerFont, &device);
  const QFontMetricsF bodyM(bodyFont, &device), titleM(titleFont, &device);
  const double gap = bodyM.height() * 0.5;
  const bool hasHeader = !doc.header.empty() || s.dateAndTime;
  const double top = page.top() + (hasHeader ? headerM.height() + gap : 0);
  const double bottom = page.bottom() - footerM.height() - gap;
  const double lineStep = bodyM.lineSpacing() * SpacingFactor(s.lineSpacing);

  QString text = QString::fromStdString(doc.text);
  text.replace("\r\n", "\n");
  QStringList lines = text.split('\n');
  while (!lines.isEmpty() && lines.back().isEmpty()) lines.removeLast();

  int pageNumber = 1;
  auto decorate = [&] {
    if (hasHeader) {
      painter.setFont(headerFont);
      QRectF band(page.left(), page.top(), page.width(), headerM.height());
      painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(doc.header));
      if (s.dateAndTime) painter.drawText(band, Qt::AlignRight | Qt::AlignVCenter, dateLine);
      if (s.lineUnderHeader)
        painter.drawLine(QPointF(page.left(), band.bottom() + gap / 2),
                         QPointF(page.right(), band.bottom() + gap / 2));
    }
    painter.setFont(footerFont);
    QRectF band(page.left(), page.bottom() - footerM.height(), page.width(), footerM.height());
    painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(doc.footer));
    if (s.pageNumbers)
      painter.drawText(band, Qt::AlignRight | Qt::AlignVCenter, QString("Page %1").arg(pageNumber));
    if (s.lineAboveFooter)
      painter.drawLine(QPointF(page.left(), band.top() - gap / 2),
                       QPointF(page.right(), band.top() - gap / 2));
    if (s.border) painter.drawRect(page.adjusted(-gap / 2, -gap / 2, gap / 2, gap / 2));
  };

  decorate();
  double y = top;
  if (!doc.title.empty()) {
    painter.setFont(titleFont);
    painter.drawText(QRectF(page.left(), y, page.width(), titleM.height()), Qt::AlignHCenter,
                     QString::fromStdString(doc.title));
    y += titleM.height() + gap;
  }
  painter.setFont(bodyFont);
  for (const QString& line : lines) {
    if (y + bodyM.height() > bottom) {
      device.newPage();
      ++pageNumber;
      decorate();
      painter.setFont(bodyFont);
      y = top;
    }
    painter.drawText(QPointF(page.left(), y + bodyM.ascent()), line);
    y += lineStep;
  }
  return pageNumber;
}

}  // namespace mc::ui
