// Makes the user guide: the Markdown files named on the command line, each beginning on a page of its own, as
// one PDF on A4 paper with page numbers. Runs without a display. Equal sources give equal bytes, whenever it
// is built.
#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <memory>
#include <vector>

namespace {

constexpr int kResolution = 600;
constexpr double kPointsPerInch = 72;
constexpr QMarginsF kMargins(20, 16, 20, 16); // millimetres
constexpr double kFooter = 24;                // points at the foot of each page
constexpr int kTextSize = 10;                 // of letters, in points, as all below
constexpr std::array kHeadingSizes = {21, 15, 12};
constexpr int kFooterSize = 8;
// The first of two columns, in percent of the table, by the length of its texts.
constexpr double kNarrowColumn = 30;
constexpr double kWideColumn = 44;
constexpr qsizetype kManyLetters = 28;
constexpr double kBorderWidth = 0.5;
constexpr QColor kAccent(0xb5, 0x65, 0x1a);
constexpr QColor kBorder(0xc4, 0xc4, 0xc4);
constexpr QColor kHeadRow(0xf3, 0xec, 0xe4);

std::vector<QTextTable*> tablesOf(const QTextFrame& frame) {
  std::vector<QTextTable*> tables;
  for (QTextFrame* child : frame.childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(child))
      tables.push_back(table);
  }
  return tables;
}

qsizetype longestText(const QTextTable& table, int column) {
  qsizetype longest = 0;
  for (int row = 0; row < table.rows(); ++row) {
    QTextCursor cell = table.cellAt(row, column).firstCursorPosition();
    longest = std::max(longest, cell.block().text().size());
  }
  return longest;
}

void formatTable(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setBorder(kBorderWidth);
  format.setBorderBrush(kBorder);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderCollapse(true);
  format.setCellPadding(2.5);
  format.setCellSpacing(0);
  format.setHeaderRowCount(1); // repeated where a table goes over the page
  format.setTopMargin(4);
  format.setBottomMargin(8);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  if (table.columns() == 2) {
    const double first = longestText(table, 0) > kManyLetters ? kWideColumn : kNarrowColumn;
    format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, first),
                                      QTextLength(QTextLength::PercentageLength, 100 - first)});
  }
  table.setFormat(format);
  for (int row = 0; row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) {
      QTextTableCellFormat cell = table.cellAt(row, column).format().toTableCellFormat();
      cell.setBorder(kBorderWidth);
      cell.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      cell.setBorderBrush(kBorder);
      if (row == 0)
        cell.setBackground(kHeadRow);
      table.cellAt(row, column).setFormat(cell);
    }
  }
}

// Headings and paragraphs: sizes, and the space around them.
void formatBlock(const QTextBlock& block) {
  const int level = block.blockFormat().headingLevel();
  QTextCursor cursor(block);
  QTextBlockFormat format = block.blockFormat();
  const bool isInTable = cursor.currentTable() != nullptr;
  if (level > 0) {
    format.setTopMargin(level == 1 ? 0 : level == 2 ? 14 : 9);
    format.setBottomMargin(level == 1 ? 10 : 4);
    format.setNonBreakableLines(true);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat heading;
    heading.setProperty(QTextFormat::FontPixelSize,
                        kHeadingSizes[static_cast<std::size_t>(std::min(level, 3)) - 1]);
    heading.setFontWeight(QFont::Bold);
    heading.setForeground(level == 3 ? QColor(Qt::black) : kAccent);
    cursor.setCharFormat(heading); // in place of the sizes that Markdown headings come with
  } else {
    format.setTopMargin(0);
    format.setBottomMargin(isInTable ? 0 : block.textList() != nullptr ? 2.5 : 6);
    format.setLineHeight(116, QTextBlockFormat::ProportionalHeight);
  }
  QTextCursor(block).setBlockFormat(format);
}

// Pictures are as wide as the page.
void fitPictures(QTextDocument& document, double width) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      if (!fragment.charFormat().isImageFormat())
        continue;
      QTextImageFormat format = fragment.charFormat().toImageFormat();
      const QUrl place = document.baseUrl().resolved(QUrl(format.name()));
      const QSize size = QImageReader(place.toLocalFile()).size();
      if (!size.isValid())
        continue; // tells that it is missing by an empty frame
      format.setWidth(width);
      format.setHeight(std::floor(width * size.height() / size.width()));
      QTextCursor cursor(&document);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      break; // one picture a paragraph
    }
  }
}

std::unique_ptr<QTextDocument> documentOf(const QString& path, QSizeF page) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return nullptr;
  auto document = std::make_unique<QTextDocument>();
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(kTextSize); // the document's unit is the point, whatever a screen's is
  font.setHintingPreference(QFont::PreferNoHinting);
  document->setDefaultFont(font);
  document->setUseDesignMetrics(true);
  document->setDocumentMargin(0);
  document->setBaseUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath())); // of its pictures
  document->setMarkdown(QString::fromUtf8(file.readAll()), QTextDocument::MarkdownDialectGitHub);
  for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
    formatBlock(block);
  fitPictures(*document, page.width());
  for (QTextTable* table : tablesOf(*document->rootFrame()))
    formatTable(*table);
  document->setPageSize(page);
  return document;
}

// The height that has to follow a heading on its page: some lines of text, or a table, unless it is a long
// one.
double leastHeightBehind(const QTextBlock& heading, const QAbstractTextDocumentLayout& layout,
                         double pageHeight) {
  constexpr double kSomeLines = 60;
  constexpr double kShortTable = 0.4; // of a page
  QTextTable* table = QTextCursor(heading.next()).currentTable();
  return table == nullptr ? kSomeLines
                          : std::min(layout.frameBoundingRect(table).height(), kShortTable * pageHeight);
}

// A heading never stands alone at the foot of a page: it goes over with what it announces.
void keepHeadingsWithText(QTextDocument& document) {
  const double height = document.pageSize().height();
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || !block.next().isValid())
      continue;
    const QRectF heading = layout.blockBoundingRect(block);
    const double foot = (std::floor(heading.top() / height) + 1) * height;
    if (heading.bottom() + leastHeightBehind(block, layout, height) <= foot)
      continue;
    QTextBlockFormat format = block.blockFormat();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).setBlockFormat(format);
    document.markContentsDirty(0,
                               document.characterCount()); // all anew: tables keep their old place otherwise
  }
}

void drawPages(const std::vector<std::unique_ptr<QTextDocument>>& parts, QPdfWriter& writer) {
  QPainter painter(&writer);
  const double scale = kResolution / kPointsPerInch;
  int pages = 0;
  for (const auto& part : parts)
    pages += part->pageCount();
  int number = 0;
  for (const auto& part : parts) {
    const QSizeF page = part->pageSize();
    for (int i = 0; i < part->pageCount(); ++i) {
      if (number++ > 0)
        writer.newPage();
      painter.save();
      painter.scale(scale, scale);
      painter.setPen(Qt::darkGray);
      QFont small = part->defaultFont();
      small.setPixelSize(kFooterSize);
      painter.setFont(small);
      const QRectF foot(0, page.height(), page.width(), kFooter);
      painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("HOOPTAB Basketball"));
      painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                       QStringLiteral("%1 / %2").arg(number).arg(pages));
      const QRectF shown(0, i * page.height(), page.width(), page.height());
      painter.translate(0, -shown.top());
      QAbstractTextDocumentLayout::PaintContext context;
      context.clip = shown;
      painter.setClipRect(shown);
      context.palette.setColor(QPalette::Text, Qt::black);
      part->documentLayout()->draw(&painter, context);
      painter.restore();
    }
  }
}

// Qt writes the hour of the build into the file. Another date of the same length takes its place, so that the
// table of places at the file's end stays right.
QByteArray withoutHourOfBuild(QByteArray pdf) {
  constexpr QByteArrayView kBefore("/CreationDate (D:");
  constexpr QByteArrayView kFixed("20260101000000");
  const qsizetype at = pdf.indexOf(kBefore);
  return at < 0 ? pdf : pdf.replace(at + kBefore.size(), kFixed.size(), kFixed);
}

} // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList words = QGuiApplication::arguments();
  if (words.size() < 3) {
    std::cerr << "Usage: make_guide GUIDE.pdf PART.md ...\n";
    return 2;
  }
  if (!QFontDatabase::families().contains(QStringLiteral("DejaVu Sans")))
    std::cerr << "make_guide: DejaVu Sans is not installed, the guide is set in another font\n";

  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(kMargins, QPageLayout::Millimeter);
    writer.setTitle(QStringLiteral("HOOPTAB Basketball"));
    const QSizeF paper = writer.pageLayout().paintRect(QPageLayout::Point).size();
    const QSizeF page(std::floor(paper.width()), std::floor(paper.height() - kFooter));
    std::vector<std::unique_ptr<QTextDocument>> parts;
    for (const QString& path : words.mid(2)) {
      parts.push_back(documentOf(path, page));
      if (parts.back() == nullptr) {
        std::cerr << "make_guide: cannot read " << path.toStdString() << '\n';
        return 1;
      }
      keepHeadingsWithText(*parts.back());
    }
    drawPages(parts, writer);
  }
  QFile file(words[1]);
  const QByteArray pdf = withoutHourOfBuild(bytes.data());
  if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush()) {
    std::cerr << "make_guide: cannot write " << words[1].toStdString() << '\n';
    return 1;
  }
  return 0;
}
