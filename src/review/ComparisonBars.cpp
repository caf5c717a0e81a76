#include "review/ComparisonBars.h"

#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 8;
constexpr int kGroupGap = 5;
constexpr int kValueWidth = 52;
constexpr int kLeastBar = 40;
constexpr int kHighestRow = 30;

int leastRow() {
  return Theme::measure()(17, 24);
}
int barHeight() {
  return Theme::measure()(9, 11);
}
QFont wordsFont() {
  return Theme::font(Type::Small);
}

} // namespace

ComparisonBars::ComparisonBars(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ComparisonBars::showRows(Head head, std::vector<ComparisonRow> rows) {
  m_head = std::move(head);
  m_rows = std::move(rows);
  updateGeometry();
  update();
}

void ComparisonBars::setUsualRows(std::size_t count) {
  m_usualRows = count;
  updateGeometry();
}

int ComparisonBars::headHeight() const {
  return teamTagHeight() + Theme::measure()(kGap) / 2;
}

QSize ComparisonBars::sizeHint() const {
  return {Theme::measure()(440), headHeight() + kGroupGap + static_cast<int>(m_usualRows) * leastRow()};
}

QSize ComparisonBars::minimumSizeHint() const {
  return {Theme::measure()(300), sizeHint().height()};
}

std::vector<QRect> ComparisonBars::rowRects() const {
  std::vector<QRect> rects;
  int top = headHeight();
  const auto groups = std::ranges::count(m_rows, true, &ComparisonRow::beginsGroup);
  const int room = height() - top - static_cast<int>(groups) * kGroupGap;
  const int rowHeight = std::clamp(room / std::max(static_cast<int>(m_rows.size()), 1), leastRow() - 1,
                                   Theme::measure()(kHighestRow));
  for (const ComparisonRow& row : m_rows) {
    top += row.beginsGroup ? kGroupGap : 0;
    if (top + rowHeight > height())
      break;
    rects.emplace_back(0, top, width(), rowHeight);
    top += rowHeight;
  }
  // A title tells nothing without the rows that it is for.
  while (!rects.empty() && rects.size() < m_rows.size() && m_rows[rects.size() - 1].isTitle)
    rects.pop_back();
  return rects;
}

TableContent ComparisonBars::tableContent() const {
  TableContent content;
  content.title = m_head.title;
  content.columns.push_back({m_head.title, {}, {}, true});
  for (const Side side : kSides)
    content.columns.push_back({m_head.name[side], {}, {}, false});
  for (const ComparisonRow& row : m_rows)
    content.rows.push_back(
        {{{toQt(row.words)}, {toQt(row.text[Side::Visitor])}, {toQt(row.text[Side::Home])}}, false});
  return content;
}

bool ComparisonBars::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip)
    return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const std::vector<QRect> rects = rowRects();
  const auto found =
      std::ranges::find_if(rects, [&](const QRect& each) { return each.contains(help->pos()); });
  const auto row = static_cast<std::size_t>(found - rects.begin());
  if (found == rects.end() || m_rows[row].tip.empty())
    QToolTip::hideText();
  else
    QToolTip::showText(help->globalPos(), toQt(m_rows[row].tip), this, *found);
  return true;
}

void ComparisonBars::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintHead(painter);
  const std::vector<QRect> rects = rowRects();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    if (m_rows[i].beginsGroup)
      painter.fillRect(QRect(0, rects[i].top() - kGroupGap / 2 - 1, width(), 1), Theme::look().line);
    if (m_rows[i].isTitle)
      paintTitle(painter, rects[i], m_rows[i]);
    else
      paintRow(painter, rects[i], m_rows[i], rects.size());
  }
}

// The title at the left; at the right both sides' tags with what stands between them.
void ComparisonBars::paintHead(QPainter& painter) const {
  const Look& look = Theme::look();
  painter.setFont(Theme::font(Type::Body, QFont::DemiBold));
  painter.setPen(look.muted);
  const QRect head(0, 0, width(), teamTagHeight());
  painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_head.title);
  const QFontMetrics bold(Theme::font(Type::Body, QFont::Bold));
  int right = width();
  for (const Side side : {Side::Home, Side::Visitor}) {
    const int tag = std::min(bold.horizontalAdvance(m_head.name[side]) + Theme::measure()(13), width() / 3);
    drawTeamTag(painter, {right - tag, 0, tag, teamTagHeight()}, m_head.name[side], m_head.colour[side],
                look.surface);
    right -= tag + kGap / 2;
    if (side == Side::Visitor)
      break;
    painter.setFont(Theme::font(Type::Small));
    painter.setPen(look.muted);
    painter.drawText(QRect(0, 0, right, teamTagHeight()),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_head.middle);
    right -= painter.fontMetrics().horizontalAdvance(m_head.middle) + kGap / 2;
  }
}

void ComparisonBars::paintTitle(QPainter& painter, const QRect& area, const ComparisonRow& row) {
  painter.setFont(Theme::font(Type::Body, QFont::DemiBold));
  painter.setPen(Theme::look().muted);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(toQt(row.words), Qt::ElideRight, area.width()));
}

void ComparisonBars::paintRow(QPainter& painter, const QRect& area, const ComparisonRow& row,
                              std::size_t shown) const {
  const Look& look = Theme::look();
  const Measure& measure = Theme::measure();
  int words = measure(100);
  for (std::size_t i = 0; i < shown; ++i)
    if (!m_rows[i].isTitle)
      words = std::max(words, QFontMetrics(wordsFont()).horizontalAdvance(toQt(m_rows[i].words)) + kGap / 2);
  const int value = measure(kValueWidth);
  words = std::min(words, std::max(width() - 2 * (value + 2 * kGap + kLeastBar), 1));
  const int bar = std::max((width() - words - 2 * value) / 2 - 2 * kGap, 1);
  painter.setFont(wordsFont());
  painter.setPen(look.muted);
  const QRect middle(area.center().x() - words / 2, area.top(), words, area.height());
  painter.drawText(middle, Qt::AlignCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(toQt(row.words), Qt::ElideRight, words));
  for (const Side side : kSides) {
    const bool isLeft = side == Side::Visitor;
    const int left = isLeft ? middle.left() - kGap - bar : middle.right() + 1 + kGap;
    const QRect track(left, area.center().y() - barHeight() / 2, bar, barHeight());
    painter.fillRect(track, look.raised);
    QRect filled = track;
    filled.setWidth(static_cast<int>(track.width() * row.share[side]));
    if (isLeft) // from the middle outwards
      filled.moveRight(track.right());
    if (filled.width() > 1) {
      painter.setPen(outlineOf(m_head.colour[side], look.surface));
      painter.setBrush(m_head.colour[side]);
      painter.drawRoundedRect(filled.adjusted(0, 0, -1, -1), 2, 2);
    }
    painter.setFont(Theme::font(Type::Body, row.better == side ? QFont::Bold : QFont::Normal));
    painter.setPen(look.ink);
    const QRect room = isLeft ? QRect(track.left() - kGap - value, area.top(), value, area.height())
                              : QRect(track.right() + 1 + kGap, area.top(), value, area.height());
    painter.drawText(room, static_cast<int>((isLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter),
                     toQt(row.text[side]));
  }
}

} // namespace hooptab
