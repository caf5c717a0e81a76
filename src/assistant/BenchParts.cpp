#include "assistant/BenchParts.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/SignedText.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr int kSmallestType = 11;
constexpr double kRadius = 7;
constexpr int kAlarmEdge = 8;

QFont sized(double pixels, QFont::Weight weight = QFont::Normal) {
  QFont font = Theme::font(Type::Body, weight);
  font.setPixelSize(std::max(static_cast<int>(pixels), kSmallestType));
  return font;
}

// In a row of that height.
int typeIn(int rowHeight) {
  return std::max(rowHeight * 56 / 100, kSmallestType);
}

void write(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text) {
  painter.drawText(room, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

void paintAlarm(QPainter& painter, const QRectF& room, double radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Theme::look().warningGround);
  painter.drawRoundedRect(room, radius, radius);
}

QColor colourOfTone(BenchTable::Tone tone, bool isAlarm) {
  const Look& look = Theme::look();
  switch (tone) {
  case BenchTable::Tone::Quiet: return isAlarm ? look.warningText : look.muted;
  case BenchTable::Tone::Good: return look.made;
  case BenchTable::Tone::Bad: return look.missed;
  case BenchTable::Tone::Usual: break;
  }
  return isAlarm ? look.warningText : look.ink;
}

} // namespace

QFont benchFont(int rowHeight, QFont::Weight weight) {
  return sized(typeIn(rowHeight), weight);
}

BenchPart::BenchPart(const char* name, QWidget* parent) : QWidget(parent) {
  setObjectName(QLatin1String(name));
}

// The window is refreshed several times a second, and most of it reads as before.
void BenchPart::say(const QString& title, const QStringList& words) {
  const QString all = words.join(QLatin1Char('\n'));
  if (title == accessibleName() && all == accessibleDescription())
    return;
  setAccessibleName(title);
  setAccessibleDescription(all);
  update();
}

// --- The head

BenchHead::BenchHead(QWidget* parent) : BenchPart("picBENCHHEAD", parent) {}

void BenchHead::showFigures(const BenchFigures& figures, const QString& state, const QString& fouls) {
  m_us = figures.us;
  m_them = figures.them;
  m_clock = toQt(figures.clock);
  m_period = QStringLiteral("%1 · %2").arg(toQt(figures.period), state);
  m_fouls = fouls;
  m_isRunning = figures.isRunning;
  QStringList words = {QStringLiteral("%1 %2").arg(m_clock, m_period)};
  for (const BenchFigures::Team* team : {&m_us, &m_them})
    words << QStringLiteral("%1 %2, %3: %4 %5")
                     .arg(toQt(team->name), QString::number(team->points), m_fouls,
                          QString::number(team->fouls), toQt(team->foulWords))
                     .trimmed() +
                 (team->timeOuts ? QStringLiteral(" T %1").arg(team->timeOuts->left) : QString());
  say(QStringLiteral("%1 %2–%3 %4")
          .arg(toQt(m_us.name), QString::number(m_us.points), QString::number(m_them.points),
               toQt(m_them.name)),
      words);
}

int BenchHead::paintTeam(QPainter& painter, int x, const BenchFigures::Team& team) const {
  const QColor colour = colourOf(team.colour);
  painter.setFont(sized(height() * 0.32, QFont::Bold));
  const QString name = toQt(team.name);
  const int width = painter.fontMetrics().horizontalAdvance(name) + height() / 4;
  const QRectF tag(x + 0.5, height() * 0.24 + 0.5, width, height() * 0.52);
  painter.setPen(outlineOf(colour, Theme::look().raised));
  painter.setBrush(colour);
  painter.drawRoundedRect(tag, kRadius - 2, kRadius - 2);
  painter.setPen(textOn(colour));
  painter.drawText(tag, Qt::AlignCenter | Qt::TextSingleLine, name);
  return x + width + height() / 5;
}

// Two lines, ours above theirs: fouls, what they serve, and the time-outs that are left as dots.
void BenchHead::paintFouls(QPainter& painter, int left) const {
  const Look& look = Theme::look();
  const int line = height() / 2 - 3;
  const int type = std::max(height() * 28 / 100, kSmallestType);
  int top = 3;
  for (const BenchFigures::Team* team : {&m_us, &m_them}) {
    const QRect row(left, top, width() - left - height() / 6, line);
    top += line;
    int right = row.right();
    if (team->timeOuts) {
      const int dot = type * 6 / 10;
      const int all = team->timeOuts->left + team->timeOuts->taken;
      right -= all * (dot + 3);
      painter.setPen(look.ink);
      for (int place = 0; place < all; ++place) {
        painter.setBrush(place < team->timeOuts->left ? QBrush(look.ink) : QBrush(Qt::NoBrush));
        painter.drawEllipse(QRectF(right + place * (dot + 3) + 0.5, row.center().y() - dot / 2.0, dot, dot));
      }
    }
    painter.setFont(sized(type, QFont::Bold));
    const QString name = toQt(team->name);
    const int number = painter.fontMetrics().horizontalAdvance(QStringLiteral("00"));
    const int names = 2 + std::max(painter.fontMetrics().horizontalAdvance(toQt(m_us.name)),
                                   painter.fontMetrics().horizontalAdvance(toQt(m_them.name)));
    painter.setPen(look.ink);
    write(painter, {row.left(), row.top(), names, line}, Qt::AlignLeft, name);
    write(painter, {row.left() + names, row.top(), number + type / 2, line}, Qt::AlignRight,
          QString::number(team->fouls));
    const int words = row.left() + names + number + type;
    painter.setFont(sized(type, team->isInBonus ? QFont::DemiBold : QFont::Normal));
    painter.setPen(team->isInBonus ? look.missed : look.muted);
    write(painter, {words, row.top(), right - words - type / 2, line}, Qt::AlignLeft, toQt(team->foulWords));
  }
}

void BenchHead::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.line);
  painter.setBrush(look.raised);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  int x = paintTeam(painter, height() / 4, m_us);
  const auto put = [&](const QString& text, double size, QFont::Weight weight, const QColor& colour) {
    painter.setFont(sized(height() * size, weight));
    painter.setPen(colour);
    const int width = painter.fontMetrics().horizontalAdvance(text);
    painter.drawText(QRect(x, 0, width + 1, height()), Qt::AlignVCenter | Qt::TextSingleLine, text);
    x += width + height() / 5;
  };
  put(QStringLiteral("%1 – %2").arg(m_us.points).arg(m_them.points), 0.56, QFont::Bold, look.ink);
  x = paintTeam(painter, x, m_them) + height() / 6;
  put(m_clock, 0.56, QFont::Bold, look.ink);
  put(m_period, 0.28, QFont::DemiBold, m_isRunning ? look.made : look.muted);
  painter.setFont(sized(height() * 0.24));
  paintFouls(painter, x + height() / 6);
}

// --- A tile

void BenchTile::showTile(const BenchFigures::Tile& tile) {
  m_tile = tile;
  QStringList words = {toQt(tile.figure)};
  for (const std::string& line : tile.lines)
    words << toQt(line);
  if (tile.isAlarm)
    words << QStringLiteral("!");
  words.removeAll(QString());
  say(toQt(tile.title), words);
}

void BenchTile::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  if (m_tile.isAlarm) {
    paintAlarm(painter, card, kRadius);
    painter.setClipRect(QRect(0, 0, kAlarmEdge, height()));
    painter.setBrush(look.missed);
    painter.drawRoundedRect(card, kRadius, kRadius);
    painter.setClipping(false);
  }
  painter.setPen(m_tile.isAlarm ? look.missed : look.line);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(card, kRadius, kRadius);

  const int left = kAlarmEdge + height() / 10;
  const int line = height() * 22 / 100;
  const int width = this->width() - left - height() / 12;
  painter.setFont(sized(height() * 0.15, QFont::DemiBold));
  painter.setPen(m_tile.isAlarm ? look.warningText : look.muted);
  write(painter, {left, height() * 4 / 100, width, line}, Qt::AlignLeft, toQt(m_tile.title));
  int top = height() * 26 / 100;
  int next = left;
  painter.setPen(m_tile.isAlarm ? look.warningText : look.ink);
  const bool hasFigure = !m_tile.figure.empty();
  if (hasFigure) {
    painter.setFont(sized(height() * 0.46, QFont::Bold));
    write(painter, {left, top, width, height() * 62 / 100}, Qt::AlignLeft, toQt(m_tile.figure));
    next += painter.fontMetrics().horizontalAdvance(toQt(m_tile.figure)) + height() / 6;
    top += height() * 4 / 100;
  }
  // Beside the figure where it has room, so that a low tile says all; more lines than fit are counted.
  painter.setFont(sized(height() * 0.165, hasFigure ? QFont::Normal : QFont::DemiBold));
  constexpr std::size_t kLines = 3;
  const std::size_t most = m_tile.lines.size() > kLines ? kLines - 1 : kLines;
  for (std::size_t i = 0; i < std::min(m_tile.lines.size(), most); ++i, top += line)
    write(painter, {next, top, width - (next - left), line}, Qt::AlignLeft, toQt(m_tile.lines[i]));
  if (m_tile.lines.size() > most)
    write(painter, {next, top, width - (next - left), line}, Qt::AlignLeft,
          QStringLiteral("+ %1").arg(m_tile.lines.size() - most));
}

// --- Tables

BenchTable::BenchTable(const char* name, std::vector<Column> columns, QWidget* parent)
    : BenchPart(name, parent), m_columns(std::move(columns)) {}

void BenchTable::showRows(const QStringList& heads, std::vector<Row> rows, int pips) {
  for (std::size_t i = 0; i < m_columns.size(); ++i)
    m_columns[i].head = heads.value(static_cast<qsizetype>(i));
  m_rows = std::move(rows);
  m_pips = pips;
  QStringList words;
  for (const Row& row : m_rows) {
    QStringList cells;
    for (const Cell& cell : row.cells)
      cells << (cell.pips < 0 ? cell.text : QStringLiteral("%1/%2").arg(cell.pips).arg(m_pips));
    words << cells.join(QLatin1Char(' ')) + (row.isAlarm ? QStringLiteral(" !") : QString());
  }
  say(heads.join(QLatin1Char(' ')).simplified(), words);
}

void BenchTable::setRowHeight(int height) {
  m_rowHeight = height;
  update();
}

BenchTable::Cell BenchTable::signedCell(int number) {
  return {.text = toQt(signedText(number)),
          .tone = number > 0   ? Tone::Good
                  : number < 0 ? Tone::Bad
                               : Tone::Usual,
          .isBold = true};
}

std::vector<QRect> BenchTable::places(int top, int type) const {
  int fixed = 0;
  for (const Column& column : m_columns)
    fixed += static_cast<int>(column.width * type);
  std::vector<QRect> places;
  int x = 0;
  for (const Column& column : m_columns) {
    const int width = column.width > 0 ? static_cast<int>(column.width * type) : this->width() - fixed;
    places.emplace_back(x, top, width, m_rowHeight);
    x += width;
  }
  return places;
}

void BenchTable::paintPips(QPainter& painter, const QRect& place, const Row& row, int count, int type) const {
  const Look& look = Theme::look();
  const double dot = type * 0.58;
  const double pitch = type * 0.8;
  QRectF pip(place.right() - m_pips * pitch + 1, place.center().y() - dot / 2 + 0.5, dot, dot);
  for (int i = 0; i < m_pips; ++i, pip.translate(pitch, 0)) {
    const QColor full = row.isOut ? look.missed : row.isAlarm ? look.warningText : look.ink;
    painter.setPen(QPen(i < count ? full : row.isAlarm ? look.warningText : look.edge, 1.2));
    painter.setBrush(i < count ? QBrush(full) : QBrush(Qt::NoBrush));
    if (row.isOut)
      painter.drawRect(pip);
    else
      painter.drawEllipse(pip);
  }
}

void BenchTable::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  const int type = typeIn(m_rowHeight);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const std::vector<QRect> head = places(0, type);
  for (std::size_t i = 0; i < m_columns.size(); ++i) {
    const bool isTitle = m_columns[i].width == 0;
    painter.setFont(sized(isTitle ? type : type * 0.86, isTitle ? QFont::Bold : QFont::DemiBold));
    painter.setPen(isTitle ? look.ink : look.muted);
    // The title is of the whole table, and begins with it.
    write(painter, isTitle ? head[i].adjusted(-head[i].left(), 0, -type / 2, 0) : head[i],
          m_columns[i].isRight ? Qt::AlignRight : Qt::AlignLeft, m_columns[i].head);
  }
  painter.fillRect(QRect(0, m_rowHeight - 2, width(), 2), look.edge);
  int top = m_rowHeight;
  for (const Row& row : m_rows) {
    const QRect line(0, top, width(), m_rowHeight - 1);
    if (row.isAlarm)
      paintAlarm(painter, line, 0);
    else if (row.isRaised)
      painter.fillRect(line, look.raised);
    painter.fillRect(QRect(0, top + m_rowHeight - 1, width(), 1), look.line);
    const std::vector<QRect> cells = places(top, type);
    for (std::size_t i = 0; i < std::min(row.cells.size(), cells.size()); ++i) {
      const Cell& cell = row.cells[i];
      if (cell.pips >= 0) {
        paintPips(painter, cells[i], row, cell.pips, type);
        continue;
      }
      painter.setFont(sized(type, cell.isBold ? QFont::Bold : QFont::Normal));
      painter.setPen(colourOfTone(cell.tone, row.isAlarm));
      QRect room = cells[i];
      if (i == 0 && row.hasPlate) {
        room.setWidth(static_cast<int>(type * 2.2));
        painter.setBrush(look.ink);
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(QRectF(room).adjusted(0, 2, 0, -3), 4, 4);
        painter.setPen(look.surface);
      }
      write(painter, room,
            i == 0 && m_columns[0].width > 0 ? Qt::AlignHCenter
            : m_columns[i].isRight           ? Qt::AlignRight
                                             : Qt::AlignLeft,
            cell.text);
    }
    top += m_rowHeight;
  }
}

// --- The four factors

BenchFactors::BenchFactors(QWidget* parent) : BenchPart("picBENCHFACTORS", parent) {}

void BenchFactors::showFactors(const QString& title, const BenchFigures& figures) {
  m_title = title;
  m_teams = QStringLiteral("%1 | %2").arg(toQt(figures.us.name), toQt(figures.them.name));
  m_factors = figures.factors;
  QStringList words;
  for (const BenchFigures::Factor& factor : m_factors)
    words << QStringLiteral("%1 %2 %3%4")
                 .arg(toQt(factor.name), toQt(factor.ours), toQt(factor.theirs),
                      factor.costsMost ? QStringLiteral(" !") : QString());
  say(m_title + u' ' + m_teams, words);
}

void BenchFactors::setRowHeight(int height) {
  m_rowHeight = height;
  update();
}

void BenchFactors::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  const int type = typeIn(m_rowHeight);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(sized(type * 0.86, QFont::DemiBold));
  const int teams = painter.fontMetrics().horizontalAdvance(m_teams) + 2;
  painter.setPen(look.muted);
  write(painter, {width() - teams, 0, teams, m_rowHeight}, Qt::AlignRight, m_teams);
  painter.setFont(sized(type, QFont::Bold));
  painter.setPen(look.ink);
  write(painter, {0, 0, width() - teams - type, m_rowHeight}, Qt::AlignLeft, m_title);
  painter.fillRect(QRect(0, m_rowHeight - 2, width(), 2), look.edge);

  const int number = type * 2;
  const int names = width() * 42 / 100;
  const int bars = width() - names - 2 * number - type;
  const int middle = names + number + type / 2 + bars / 2;
  int top = m_rowHeight;
  for (const BenchFigures::Factor& factor : m_factors) {
    if (factor.costsMost)
      paintAlarm(painter, QRect(0, top, width(), m_rowHeight - 1), 4);
    painter.setFont(sized(type, factor.costsMost ? QFont::Bold : QFont::Normal));
    painter.setPen(factor.costsMost ? look.warningText : look.ink);
    write(painter, {type / 3, top, names - type / 3, m_rowHeight}, Qt::AlignLeft, toQt(factor.name));
    painter.setFont(sized(type, QFont::Bold));
    write(painter, {names, top, number, m_rowHeight}, Qt::AlignRight, toQt(factor.ours));
    write(painter, {width() - number, top, number - 2, m_rowHeight}, Qt::AlignRight, toQt(factor.theirs));
    const int high = m_rowHeight * 46 / 100;
    const int y = top + (m_rowHeight - high) / 2;
    const int ours = static_cast<int>(factor.ourLength * bars / 2);
    const int theirs = static_cast<int>(factor.theirLength * bars / 2);
    painter.fillRect(QRect(middle - ours, y, ours, high), factor.costsMost ? look.warningText : look.ink);
    painter.fillRect(QRect(middle + 1, y, theirs, high), look.edge);
    top += m_rowHeight;
  }
}

} // namespace hooptab
