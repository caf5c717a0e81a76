#include "printing/ReportLayout.h"

#include "appearance/relabel.h"
#include "printing/SheetLayout.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr double kMargin = 12 * kUnitsPerMillimetre;
constexpr double kHeadHeight = 185;
constexpr double kFootHeight = 130;
constexpr double kGap = 130; // between blocks
constexpr double kSideGap = 6 * kUnitsPerMillimetre;
constexpr double kParagraphGap = 60;
constexpr double kAcrossPage =
    230 * kUnitsPerMillimetre; // wider pages have four shot charts side by side, others two
constexpr double kDiagramHeight = 46 * kUnitsPerMillimetre;
constexpr std::size_t kFewestRows = 3; // of a table at the foot or at the head of a page
constexpr double kSmallTable = 0.5;    // of a page: tables up to that are not torn
constexpr double kMostBlank = 1.0 / 3; // of a page that is left because a table begins on the next

double pictureHeight(const ReportPicture& picture, double width) {
  const auto* shots = std::get_if<ShotDrawing>(&picture.drawing);
  if (shots == nullptr)
    return kDiagramHeight;
  return width * court::kLength / court::kWidth + (shots->hasLegend() ? legendHeight(width) : 0);
}

double widthInGrid(double room, double across) {
  return (room - (across - 1) * kSideGap) / across;
}

QRectF bodyOf(QSizeF size) {
  return QRectF(QPointF(), size).adjusted(kMargin, kMargin + kHeadHeight, -kMargin, -kMargin - kFootHeight);
}

} // namespace

double legendHeight(double width) {
  constexpr double kPart = 0.06;
  return width * kPart;
}

ReportLayout::ReportLayout(const Report& report, const PageFormat& format) : m_report(report) {
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block))
      m_tables.try_emplace(table, *table, m_fonts);
  }
  m_layout = hooptab::pageLayout(format.paper, orientation(format));
  m_size = pageSize(m_layout);
  m_body = bodyOf(m_size);
  if (report.isOnePage) {
    m_pages.push_back(SheetLayout(report, m_fonts, m_tables, m_body).page());
    m_isDone = true;
    return;
  }
  m_pages.emplace_back();
  m_y = m_body.top();
  m_row = {m_y, m_body.right(), m_y};
  const bool isForm = !report.blocks.empty() && std::holds_alternative<FormSheet>(report.blocks.front());
  if (!isForm)
    placeLines(m_fonts.wrapped(PageFont::Title, toQt(report.title), m_body.width()), PageFont::Title);
}

// Upright where it is meant for one page, and unless a table is split into fewer parts across, or more tables
// of a grid have room there.
QPageLayout::Orientation ReportLayout::orientation(const PageFormat& format) {
  if (m_report.isOnePage)
    return QPageLayout::Portrait;
  std::size_t parts[2] = {};
  double inGrid[2] = {};
  for (const auto turn : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    const QRectF body = bodyOf(pageSize(hooptab::pageLayout(format.paper, turn)));
    for (auto& [table, layout] : m_tables)
      parts[turn] += layout.partsIn(body.width());
    inGrid[turn] = tablesAcross(body.width()) * body.height();
  }
  constexpr double kWorthTurning = 1.1;
  const bool isBetterTurned =
      parts[1] < parts[0] || (parts[1] == parts[0] && inGrid[1] > kWorthTurning * inGrid[0]);
  const auto fitting = isBetterTurned ? QPageLayout::Landscape : QPageLayout::Portrait;
  const auto chosen = format.turn == PageTurn::AsItFits   ? fitting
                      : format.turn == PageTurn::Portrait ? QPageLayout::Portrait
                                                          : QPageLayout::Landscape;
  const double room = bodyOf(pageSize(hooptab::pageLayout(format.paper, chosen))).width();
  const double gridWidth = std::min(widestInGrid(), widthInGrid(room, tablesAcross(room)));
  for (auto& [table, layout] : m_tables)
    table->isInGrid ? layout.fill(gridWidth) : layout.fit(room);
  return chosen;
}

double ReportLayout::widestInGrid() const {
  double widest = 0;
  for (const auto& [table, layout] : m_tables) {
    if (table->isInGrid)
      widest = std::max(widest, layout.naturalWidth());
  }
  return widest;
}

// As many as the widest of them allows, or one more where that takes only some width from their texts. 0
// without any.
double ReportLayout::tablesAcross(double room) const {
  constexpr double kNarrower = 0.85;
  const double widest = widestInGrid();
  if (widest == 0)
    return 0;
  double least = kNarrower * widest;
  for (const auto& [table, layout] : m_tables) {
    if (table->isInGrid)
      least = std::max(least, layout.leastWidth());
  }
  const double across = std::max(1.0, std::floor((room + kSideGap) / (widest + kSideGap)));
  return widthInGrid(room, across + 1) >= least ? across + 1 : across;
}

void ReportLayout::finish() {
  while (!m_isDone)
    step();
}

void ReportLayout::step() {
  if (m_table != nullptr)
    placeTablePart();
  else if (m_block < m_report.blocks.size())
    std::visit([this](const auto& block) { place(block); }, m_report.blocks[m_block++]);
  m_isDone = m_table == nullptr && m_block == m_report.blocks.size();
}

void ReportLayout::newPage() {
  m_pages.emplace_back();
  m_y = m_body.top();
  m_row = {m_y, m_body.right(), m_y};
}

bool ReportLayout::hasRoomBeside(double width, double height) const {
  return m_row.right + kSideGap + width <= m_body.right() + 1 && m_row.top + height <= m_body.bottom();
}

void ReportLayout::took(const QRectF& box) {
  const bool isBeside = box.left() > m_body.left();
  m_row = {box.top(), box.right(), isBeside ? std::max(m_row.bottom, box.bottom()) : box.bottom()};
  m_y = m_row.bottom + kGap;
}

void ReportLayout::placeLines(const QStringList& lines, PageFont font) {
  const double height = m_fonts.lineHeight(font);
  for (const QString& line : lines) {
    if (height > left())
      newPage();
    if (!line.isEmpty())
      page().texts.push_back({QRectF(m_body.left(), m_y, m_fonts.width(font, line), height), line, font});
    m_y += height;
  }
  m_row = {m_y, m_body.right(), m_y};
  m_y += font == PageFont::Cell ? kGap : kParagraphGap; // notes close what they stand below
}

void ReportLayout::place(const ReportParagraph& paragraph) {
  const bool isHeading = paragraph.style == ReportParagraph::Style::Heading;
  const PageFont font = isHeading                                         ? PageFont::Heading
                        : paragraph.style == ReportParagraph::Style::Note ? PageFont::Cell
                                                                          : PageFont::Body;
  // A heading does not stand alone at the foot of a page.
  if (isHeading && left() < m_fonts.lineHeight(font) + kParagraphGap + leastBelowHeading() &&
      !page().isEmpty())
    newPage();
  placeLines(m_fonts.wrapped(font, toQt(paragraph.text), m_body.width()), font);
}

double ReportLayout::leastBelowHeading() const {
  constexpr int kLinesBelow = 3;
  const auto* table =
      m_block < m_report.blocks.size() ? std::get_if<ReportTable>(&m_report.blocks[m_block]) : nullptr;
  if (table == nullptr)
    return kLinesBelow * m_fonts.lineHeight(PageFont::Body);
  const TableLayout& layout = m_tables.at(table);
  double height = layout.tallestHead();
  for (std::size_t row = 0; row < std::min(kFewestRows, table->rows.size()); ++row)
    height += layout.rowHeight(row);
  return height;
}

double ReportLayout::notesHeight() const {
  double height = 0;
  for (std::size_t block = m_block; block < m_report.blocks.size(); ++block) {
    const auto* note = std::get_if<ReportParagraph>(&m_report.blocks[block]);
    if (note == nullptr || note->style != ReportParagraph::Style::Note)
      break;
    const auto lines = m_fonts.wrapped(PageFont::Cell, toQt(note->text), m_body.width()).size();
    height += kGap + static_cast<double>(lines) * m_fonts.lineHeight(PageFont::Cell);
  }
  return height;
}

void ReportLayout::place(const ReportPageBreak& /*pageBreak*/) {
  if (!page().isEmpty())
    newPage();
}

void ReportLayout::place(const FormSheet& form) {
  if (!page().isEmpty())
    newPage();
  page().form = &form;
}

void ReportLayout::place(const ReportPicture& picture) {
  const bool isShotChart = std::holds_alternative<ShotDrawing>(picture.drawing);
  const int across = !isShotChart ? 1 : m_body.width() > kAcrossPage ? 4 : 2;
  const double width = (m_body.width() - (across - 1) * kSideGap) / across;
  const QStringList title = m_fonts.wrapped(PageFont::BoldCell, toQt(picture.title), width);
  const QStringList caption =
      picture.caption.empty() ? QStringList() : m_fonts.wrapped(PageFont::Cell, toQt(picture.caption), width);
  const double line = m_fonts.lineHeight(PageFont::Cell);
  const double drawing = pictureHeight(picture, width);
  const double height = drawing + static_cast<double>(title.size() + caption.size() + 1) * line;
  const bool isBeside = picture.standsBeside && hasRoomBeside(width, height);
  if (!isBeside && height > left() && !page().isEmpty())
    newPage();
  const QPointF at = isBeside ? QPointF(m_row.right + kSideGap, m_row.top) : QPointF(m_body.left(), m_y);
  double y = at.y();
  const auto addLines = [&](const QStringList& lines, PageFont font) {
    for (const QString& text : lines) {
      page().texts.push_back({QRectF(at.x(), y, m_fonts.width(font, text), line), text, font});
      y += line;
    }
  };
  addLines(title, PageFont::BoldCell);
  y += line / 2;
  page().pictures.push_back({QRectF(at.x(), y, width, drawing), &picture});
  y += drawing + line / 2;
  addLines(caption, PageFont::Cell);
  took(QRectF(at, QSizeF(width, height)));
}

void ReportLayout::place(const ReportSentences& block) {
  QStringList lines;
  for (const auto& sentence : block.sentences) {
    QString words;
    for (const ReportSentences::Part& part : sentence)
      words += toQt(part.text);
    lines += m_fonts.wrapped(PageFont::Body, words, m_body.width());
  }
  placeLines(m_fonts.wrapped(PageFont::Heading, toQt(block.title), m_body.width()), PageFont::Heading);
  placeLines(lines, PageFont::Body);
}

// A report of many pages has no rest of its page to fill.
void ReportLayout::place(const ReportRuledLines& /*block*/) {}

void ReportLayout::place(const ReportTable& table) {
  m_table = &m_tables.at(&table);
  m_part = 0;
  m_tableRow = 0;
  placeTablePart();
}

// As many rows as the page takes, under title and head; then the same rows in the other parts of the table,
// so that who reads a row on only turns to the next page.
void ReportLayout::placeTablePart() {
  const TableLayout& table = *m_table;
  const TableLayout::Part& part = table.parts()[m_part];
  const auto height = [&](std::size_t first, std::size_t end) {
    double sum = table.tallestHead();
    for (std::size_t row = first; row < end && sum <= m_body.height(); ++row)
      sum += table.rowHeight(row);
    return sum;
  };
  const std::size_t count = table.table().rows.size();
  const double whole = height(m_tableRow, m_part == 0 ? count : m_tableEnd);
  const bool isBeside =
      table.table().standsBeside && table.parts().size() == 1 && hasRoomBeside(table.width(part), whole);
  if (!isBeside && whole > left() && !page().isEmpty()) {
    const bool hasFew = height(m_tableRow, std::min(count, m_tableRow + kFewestRows)) > left();
    // A small table is not torn; a large one begins where it stands unless the page is nearly full.
    const bool isBetterWhole = whole <= m_body.height() && (whole <= kSmallTable * m_body.height() ||
                                                            left() < kMostBlank * m_body.height());
    if (m_part > 0 || isBetterWhole || hasFew)
      newPage();
  }
  const QPointF at = isBeside ? QPointF(m_row.right + kSideGap, m_row.top) : QPointF(m_body.left(), m_y);
  if (m_part == 0)
    m_tableEnd = rowsUntil(m_body.bottom() - at.y());
  const double bottom = placeRows(m_tableRow, m_tableEnd, at);
  took(QRectF(at, QPointF(at.x() + table.width(part), bottom)));
  if (++m_part < table.parts().size())
    return;
  m_part = 0;
  m_tableRow = m_tableEnd;
  if (m_tableRow < count)
    return newPage();
  m_table = nullptr;
}

// The end of the rows that have room there, one at least.
std::size_t ReportLayout::rowsUntil(double room) const {
  const std::vector<ReportRow>& rows = m_table->table().rows;
  room -= m_table->tallestHead();
  std::size_t end = m_tableRow;
  while (end < rows.size() && (room >= m_table->rowHeight(end) || end == m_tableRow))
    room -= m_table->rowHeight(end++);
  const bool leavesTotal =
      end + 1 == rows.size() && rows[end].emphasis == ReportRow::Emphasis::Total && end > m_tableRow + 1;
  // Neither a total, nor a row or two, nor the notes stand alone on the last page.
  const bool leavesFew = end < rows.size() && rows.size() - end < kFewestRows;
  const bool leavesNotes = end == rows.size() && room < notesHeight();
  if ((leavesFew || leavesNotes) && end - m_tableRow >= 2 * kFewestRows)
    return rows.size() - kFewestRows;
  return leavesTotal ? end - 1 : end;
}

double ReportLayout::placeRows(std::size_t first, std::size_t last, QPointF at) {
  const TableLayout::Part& part = m_table->parts()[m_part];
  m_table->placeTitle(page(), part, at);
  at.ry() += m_table->titleHeight(part);
  m_table->placeHead(page(), part, at);
  at.ry() += m_table->headHeight(part);
  for (std::size_t row = first; row < last; ++row) {
    m_table->placeRow(page(), part, row, at);
    at.ry() += m_table->rowHeight(row);
  }
  return at.y();
}

} // namespace hooptab
