#include "printing/TableLayout.h"

#include "appearance/relabel.h"
#include "printing/PageFormat.h"

#include <algorithm>
#include <numeric>

namespace hooptab {

namespace {

constexpr double kPadding = 22; // at either side of a cell
constexpr double kRowAir = 9;   // above and below its text
constexpr double kTitleAir = 25;
constexpr double kThinLine = 3;
constexpr double kGroupGap = 14; // between the titles of groups and the heads of columns
constexpr double kThickLine = 8;
constexpr double kStripe = 0.95;
constexpr double kHighlight = 0.85;
// A name of sixty letters takes two lines rather than half of the page.
constexpr double kLongestRepeated = 58 * kUnitsPerMillimetre;
constexpr double kLongestText = 150 * kUnitsPerMillimetre;
constexpr double kShortestText = 28 * kUnitsPerMillimetre; // when a table has to shrink

} // namespace

TableLayout::TableLayout(const ReportTable& table, const PageFonts& fonts)
    : m_table(table), m_fonts(fonts), m_air(kRowAir) {
  measure();
  widenForTitles();
}

void TableLayout::measure() {
  m_natural.assign(m_table.columns.size(), 0);
  for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
    const QString header = toQt(m_table.columns[i].header);
    const double whole = m_fonts.width(PageFont::BoldCell, header);
    // Over texts a head stands in one line, as they do; over numbers it would take room for nothing.
    if (m_table.columns[i].isLeftAligned && whole <= kShortestText) {
      m_natural[i] = whole;
      continue;
    }
    for (const QString& word : header.split(u' '))
      m_natural[i] = std::max(m_natural[i], m_fonts.width(PageFont::BoldCell, word));
  }
  for (const ReportRow& row : m_table.rows) {
    for (std::size_t i = 0; i < m_natural.size() && !row.isNote; ++i)
      m_natural[i] =
          std::max(m_natural[i], m_fonts.width(fontOf(row, row.cells[i]), toQt(row.cells[i].text)));
  }
  m_whole = m_natural;
  for (std::size_t i = 0; i < m_natural.size(); ++i)
    m_natural[i] = std::min(m_natural[i], m_table.columns[i].isRepeated ? kLongestRepeated : kLongestText) +
                   2 * kPadding;
  m_isShown.assign(m_natural.size(), true);
  std::size_t column = 0;
  for (const ReportColumnGroup& group : m_table.groups) {
    for (std::size_t i = 0; i < group.columns; ++i, ++column) {
      m_isShown[column] = !group.isUnused;
      if (group.isUnused)
        m_natural[column] = 0;
    }
  }
}

// A group is at least as wide as its title.
void TableLayout::widenForTitles() {
  m_beginsGroup.assign(m_natural.size(), false);
  std::size_t first = 0;
  for (const ReportColumnGroup& group : m_table.groups) {
    m_beginsGroup[first] = first > 0;
    const auto begin = m_natural.begin() + static_cast<std::ptrdiff_t>(first);
    const double width = std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(group.columns), 0.0);
    const double wanted = m_fonts.width(PageFont::BoldCell, toQt(group.title)) + 2 * kPadding;
    for (std::size_t i = 0; i < group.columns && wanted > width && !group.isUnused; ++i)
      m_natural[first + i] += (wanted - width) / static_cast<double>(group.columns);
    first += group.columns;
  }
}

std::vector<TableLayout::Unit> TableLayout::units() const {
  std::vector<Unit> units;
  std::size_t column = 0;
  for (const ReportColumnGroup& group : m_table.groups) {
    if (!group.title.empty() && !group.isUnused)
      units.push_back({column, group.columns});
    for (std::size_t i = 0; group.title.empty() && i < group.columns; ++i)
      units.push_back({column + i, 1});
    column += group.columns;
  }
  for (; column < m_table.columns.size(); ++column)
    units.push_back({column, 1});
  return units;
}

// How much narrower columns of texts can become.
double TableLayout::spareOf(std::size_t column) const {
  return m_table.columns[column].isLeftAligned ? std::max(0.0, m_natural[column] - kShortestText) : 0;
}

// Texts give that part of what they can: 0 none, 1 all.
void TableLayout::shrink(double part) {
  m_widths = m_natural;
  for (std::size_t i = 0; i < m_widths.size(); ++i)
    m_widths[i] -= part * spareOf(i);
}

std::size_t TableLayout::partsIn(double room) {
  split(room);
  return m_parts.size();
}

void TableLayout::fit(double room) {
  split(room);
  widenNames(room);
  measureParts(room);
}

// Names stand in one line where the page has room for it.
void TableLayout::widenNames(double room) {
  if (m_parts.size() != 1)
    return;
  for (std::size_t i = 0; i < m_widths.size(); ++i) {
    const double wanted = m_whole[i] + 2 * kPadding - m_widths[i];
    const double more = std::min(wanted, room - m_parts[0].width);
    if (m_table.columns[i].isRepeated && more > 0) {
      m_widths[i] += more;
      m_parts[0].width += more;
    }
  }
}

void TableLayout::fill(double room) {
  split(room);
  const auto name = std::ranges::find(m_table.columns, true, &ReportColumn::isRepeated);
  if (m_parts.size() == 1 && m_parts[0].width < room && name != m_table.columns.end()) {
    m_widths[static_cast<std::size_t>(name - m_table.columns.begin())] += room - m_parts[0].width;
    m_parts[0].width = room;
  }
  measureParts(room);
}

void TableLayout::spread(double room) {
  m_hasSingleLines = true;
  const double natural = naturalWidth();
  const double spare = natural - leastWidth();
  shrink(natural > room && spare > 0 ? std::min(1.0, (natural - room) / spare) : 0);
  m_parts.assign(1, {});
  for (std::size_t i = 0; i < m_widths.size(); ++i)
    m_parts[0].columns.push_back(i);
  double width = std::accumulate(m_widths.begin(), m_widths.end(), 0.0);
  for (std::size_t i = 0; i < m_widths.size(); ++i) { // a head is one line as well
    const double head = m_fonts.width(PageFont::BoldCell, toQt(m_table.columns[i].header)) + 2 * kPadding;
    const double more = std::clamp(head - m_widths[i], 0.0, std::max(0.0, room - width));
    m_widths[i] += more;
    width += more;
  }
  for (double& each : m_widths)
    each += (room - width) / static_cast<double>(m_widths.size());
  m_parts[0].width = room;
  measureParts(room);
}

double TableLayout::naturalWidth() const {
  return std::accumulate(m_natural.begin(), m_natural.end(), 0.0);
}

double TableLayout::leastWidth() const {
  double width = naturalWidth();
  for (std::size_t i = 0; i < m_natural.size(); ++i)
    width -= spareOf(i);
  return width;
}

// Long texts take more lines where that spares a part of the table, and no more than that takes.
void TableLayout::split(double room) {
  const double natural = naturalWidth();
  if (const double least = leastWidth(); least <= room) {
    shrink(natural > room ? (natural - room) / (natural - least) : 0);
    m_parts.assign(1, {});
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
      if (m_isShown[i])
        m_parts[0].columns.push_back(i);
    }
    m_parts[0].width = std::min(natural, room);
    return;
  }
  constexpr int kSteps = 8;
  splitShrunk(room, 1);
  const std::size_t fewest = m_parts.size();
  for (int step = 0; step < kSteps; ++step) {
    splitShrunk(room, static_cast<double>(step) / kSteps);
    if (m_parts.size() == fewest)
      return;
  }
  splitShrunk(room, 1);
}

void TableLayout::splitShrunk(double room, double shrunk) {
  shrink(shrunk);
  m_parts.clear();
  Part repeated;
  for (std::size_t i = 0; i < m_widths.size(); ++i) {
    if (m_table.columns[i].isRepeated) {
      repeated.columns.push_back(i);
      repeated.width += m_widths[i];
    }
  }
  const auto isFresh = [&] { return m_parts.back().columns.size() == repeated.columns.size(); };
  m_parts.push_back(repeated);
  for (Unit unit : units()) {
    const auto widthOf = [&](const Unit& which) {
      return std::accumulate(m_widths.begin() + static_cast<std::ptrdiff_t>(which.first),
                             m_widths.begin() + static_cast<std::ptrdiff_t>(which.first + which.count), 0.0);
    };
    if (m_table.columns[unit.first].isRepeated)
      continue;
    if (m_parts.back().width + widthOf(unit) > room && !isFresh())
      m_parts.push_back(repeated);
    // A group that has no room on a part of its own is torn after all; a column takes what there is.
    for (std::size_t column = unit.first; column < unit.first + unit.count; ++column) {
      m_widths[column] = std::min(m_widths[column], room - repeated.width);
      if (m_parts.back().width + m_widths[column] > room && !isFresh())
        m_parts.push_back(repeated);
      m_parts.back().columns.push_back(column);
      m_parts.back().width += m_widths[column];
    }
  }
}

PageFont TableLayout::fontOf(const ReportRow& row, const ReportCell& cell) {
  return row.emphasis == ReportRow::Emphasis::None && !cell.isStrong ? PageFont::Cell : PageFont::BoldCell;
}

// Measured and placed alike: what is one line more when it is placed would stand on the next row.
QStringList TableLayout::linesOf(PageFont font, const QString& text, std::size_t column) const {
  const double room = m_widths[column] - 2 * kPadding + 0.5;
  if (m_fonts.width(font, text) <= room)
    return {text};
  return m_hasSingleLines ? QStringList{m_fonts.elided(font, text, room)} : m_fonts.wrapped(font, text, room);
}

// From the second column to the end of the part.
QStringList TableLayout::noteLines(const Part& part, const ReportRow& row) const {
  return m_fonts.wrapped(PageFont::Cell, toQt(row.cells[1].text),
                         part.width - m_widths[part.columns.front()] - 2 * kPadding);
}

std::size_t TableLayout::countOfLines(PageFont font, const std::string& text, std::size_t column) const {
  return static_cast<std::size_t>(linesOf(font, toQt(text), column).size());
}

bool TableLayout::hasGroupTitles(const Part& part) const {
  std::size_t end = 0; // of the group's columns
  for (const ReportColumnGroup& group : m_table.groups) {
    end += group.columns;
    const auto isIn = [&](std::size_t column) { return column >= end - group.columns && column < end; };
    if (!group.title.empty() && std::ranges::any_of(part.columns, isIn))
      return true;
  }
  return false;
}

void TableLayout::measureParts(double room) {
  m_rowHeights.assign(m_table.rows.size(), 0);
  for (std::size_t i = 0; i < m_parts.size(); ++i) {
    Part& part = m_parts[i];
    QString title = toQt(m_table.title);
    if (m_parts.size() > 1)
      title += QStringLiteral("  (%1/%2)").arg(i + 1).arg(m_parts.size());
    if (!title.isEmpty())
      part.title = m_fonts.wrapped(titleFont(), title, room);
    for (std::size_t row = 0; row < m_rowHeights.size(); ++row) {
      const ReportRow& cells = m_table.rows[row];
      std::size_t lines = 1;
      if (cells.isNote)
        lines = static_cast<std::size_t>(noteLines(part, cells).size());
      for (const std::size_t column : part.columns) {
        const ReportCell& cell = cells.cells[column];
        if (!cells.isNote)
          lines = std::max(lines, countOfLines(fontOf(cells, cell), cell.text, column));
      }
      m_rowHeights[row] = std::max(
          m_rowHeights[row], static_cast<double>(lines) * m_fonts.lineHeight(PageFont::Cell) + 2 * m_air);
    }
  }
}

double TableLayout::tallestHead() const {
  double tallest = 0;
  for (const Part& part : m_parts)
    tallest = std::max(tallest, titleHeight(part) + headHeight(part));
  return tallest;
}

// Small tables have small titles.
PageFont TableLayout::titleFont() const {
  return m_table.isInGrid ? PageFont::BoldBody : PageFont::Heading;
}

double TableLayout::titleHeight(const Part& part) const {
  return part.title.isEmpty()
             ? 0
             : static_cast<double>(part.title.size()) * m_fonts.lineHeight(titleFont()) + kTitleAir;
}

double TableLayout::width(const Part& part) const {
  double widest = part.width;
  for (const QString& line : part.title)
    widest = std::max(widest, m_fonts.width(titleFont(), line));
  return widest;
}

double TableLayout::headHeight(const Part& part) const {
  std::size_t lines = 1;
  for (const std::size_t column : part.columns)
    lines = std::max(lines, countOfLines(PageFont::BoldCell, m_table.columns[column].header, column));
  const double titles = hasGroupTitles(part) ? m_fonts.lineHeight(PageFont::BoldCell) + kGroupGap : 0;
  return titles + static_cast<double>(lines) * m_fonts.lineHeight(PageFont::BoldCell) + 2 * kRowAir;
}

void TableLayout::placeTitle(ReportPage& page, const Part& part, QPointF at) const {
  const double height = m_fonts.lineHeight(titleFont());
  for (const QString& line : part.title) {
    page.texts.push_back({QRectF(at, QSizeF(m_fonts.width(titleFont(), line), height)), line, titleFont()});
    at.ry() += height;
  }
}

void TableLayout::placeCell(ReportPage& page, PageFont font, const QString& text, std::size_t column,
                            QPointF at) const {
  if (text.isEmpty())
    return;
  const double room = m_widths[column] - 2 * kPadding;
  double y = at.y();
  for (const QString& line : linesOf(font, text, column)) {
    const double width = m_fonts.width(font, line);
    const ReportColumn& each = m_table.columns[column];
    const double spare = room - width;
    const double x = at.x() + kPadding + (each.isCentred ? spare / 2 : each.isLeftAligned ? 0 : spare);
    page.texts.push_back({QRectF(x, y, width, m_fonts.lineHeight(font)), line, font});
    y += m_fonts.lineHeight(font);
  }
}

void TableLayout::placeHead(ReportPage& page, const Part& part, QPointF at) const {
  const double height = headHeight(part);
  const double line = m_fonts.lineHeight(PageFont::BoldCell);
  double y = at.y() + kRowAir;
  if (hasGroupTitles(part)) {
    double x = at.x();
    std::size_t place = 0;
    std::size_t end = 0; // of the group's columns
    for (const ReportColumnGroup& group : m_table.groups) {
      end += group.columns;
      const double left = x;
      for (; place < part.columns.size() && part.columns[place] < end; ++place)
        x += m_widths[part.columns[place]];
      if (group.title.empty() || x == left)
        continue;
      const QString title = toQt(group.title);
      const double width = m_fonts.width(PageFont::BoldCell, title);
      page.texts.push_back(
          {QRectF(left + (x - left - width) / 2, y, width, line), title, PageFont::BoldCell});
      const double under = y + line + kGroupGap / 3;
      page.lines.push_back({{left + kPadding / 2, under}, {x - kPadding / 2, under}, kThinLine});
    }
    y += line + kGroupGap;
  }
  double x = at.x();
  for (const std::size_t column : part.columns) {
    placeCell(page, PageFont::BoldCell, toQt(m_table.columns[column].header), column, {x, y});
    x += m_widths[column];
  }
  page.lines.push_back({{at.x(), at.y() + height}, {at.x() + part.width, at.y() + height}, kThickLine});
}

void TableLayout::placeRow(ReportPage& page, const Part& part, std::size_t row, QPointF at) const {
  const ReportRow& cells = m_table.rows[row];
  const QRectF box(at, QSizeF(part.width, rowHeight(row)));
  const bool isTotal = cells.emphasis == ReportRow::Emphasis::Total;
  if (cells.emphasis == ReportRow::Emphasis::Highlighted)
    page.fills.push_back({box, kHighlight});
  else if (row % 2 == 1 && !isTotal)
    page.fills.push_back({box, kStripe});
  if (isTotal || cells.beginsSection)
    page.lines.push_back({box.topLeft(), box.topRight(), isTotal ? kThickLine : kThinLine * 2});
  const std::size_t firstText = page.texts.size();
  double x = at.x();
  for (const std::size_t column : part.columns) {
    if (m_beginsGroup[column])
      page.lines.push_back({{x, box.top()}, {x, box.bottom()}, kThinLine / 2});
    const ReportCell& cell = cells.cells[column];
    if (!cells.isNote)
      placeCell(page, fontOf(cells, cell), toQt(cell.text), column, {x, at.y() + m_air});
    x += m_widths[column];
  }
  if (cells.isNote)
    placeNote(page, part, row, at);
  for (std::size_t text = firstText; text < page.texts.size(); ++text)
    page.texts[text].isPale = cells.isPale;
}

void TableLayout::placeNote(ReportPage& page, const Part& part, std::size_t row, QPointF at) const {
  const double height = m_fonts.lineHeight(PageFont::Cell);
  QPointF place(at.x() + m_widths[part.columns.front()] + kPadding, at.y() + m_air);
  for (const QString& line : noteLines(part, m_table.rows[row])) {
    page.texts.push_back(
        {QRectF(place, QSizeF(m_fonts.width(PageFont::Cell, line), height)), line, PageFont::Cell});
    place.ry() += height;
  }
}

} // namespace hooptab
