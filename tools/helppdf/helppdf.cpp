// Renders a help file written in Markdown to PDF: helppdf INPUT.md OUTPUT.pdf
// The document's title is its first heading. Runs without a display.
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <cstdio>

namespace {

// Ruled tables across the page width, with room in the cells.
void StyleTables(QTextFrame* frame) {
  for (QTextFrame* child : frame->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(child)) {
      QTextTableFormat f = table->format();
      f.setBorderCollapse(false);
      f.setBorder(0.5);
      f.setHeaderRowCount(1);
      f.setBorderBrush(QColor(150, 150, 150));
      f.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      f.setCellSpacing(0);
      f.setCellPadding(4);
      f.setWidth(QTextLength(QTextLength::PercentageLength, 100));
      f.setTopMargin(4);
      f.setBottomMargin(8);
      table->setFormat(f);
    }
    StyleTables(child);
  }
}

// Air above headings and between paragraphs.
void SpaceBlocks(QTextDocument& doc) {
  QTextCursor cursor(&doc);
  for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
    QTextBlockFormat f = b.blockFormat();
    const int level = f.headingLevel();
    if (level == 1) {
      f.setBottomMargin(10);
    } else if (level > 1) {
      f.setTopMargin(level == 2 ? 16 : 10);
      f.setBottomMargin(4);
    } else if (!b.textList()) {
      f.setBottomMargin(6);
    }
    cursor.setPosition(b.position());
    cursor.setBlockFormat(f);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: helppdf INPUT.md OUTPUT.pdf\n");
    return 2;
  }
  QFile in(QString::fromLocal8Bit(argv[1]));
  if (!in.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "helppdf: cannot read %s\n", argv[1]);
    return 1;
  }
  const QString markdown = QString::fromUtf8(in.readAll());
  const QRegularExpressionMatch heading =
      QRegularExpression("^# (.+)$", QRegularExpression::MultilineOption).match(markdown);
  const QString title = heading.hasMatch() ? heading.captured(1).trimmed() : "Meridian Codex";

  QTextDocument doc;
  QFont body("Liberation Sans", 10);
  body.setStyleHint(QFont::SansSerif);
  doc.setDefaultFont(body);
  doc.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
  StyleTables(doc.rootFrame());
  SpaceBlocks(doc);
  doc.setMetaInformation(QTextDocument::DocumentTitle, title);

  QPdfWriter pdf(QString::fromLocal8Bit(argv[2]));
  pdf.setTitle(title);
  pdf.setCreator("Meridian Codex");
  pdf.setResolution(300);
  pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter));
  doc.print(&pdf);  // paginates and numbers the pages
  return 0;
}
