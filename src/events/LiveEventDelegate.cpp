#include "events/LiveEventDelegate.h"

#include "appearance/Theme.h"
#include "events/LiveEventRows.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kClockWidth = 40;
constexpr int kBarWidth = 5;
constexpr int kNumberWidth = 26;
constexpr int kMarkWidth = 14;
constexpr int kMargin = 8;
constexpr int kChip = 18;

void drawMark(QPainter& painter, const QRectF& place, bool isMade) {
  const Look& look = Theme::look();
  const double radius = place.width() * 0.32;
  const QPointF centre = place.center();
  if (isMade) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.made);
    painter.drawEllipse(centre, radius, radius);
    return;
  }
  painter.setPen(QPen(look.missed, 2, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(centre - QPointF(radius, radius), centre + QPointF(radius, radius));
  painter.drawLine(centre - QPointF(radius, -radius), centre + QPointF(radius, -radius));
}

void drawChip(QPainter& painter, const QRect& place, const QString& sign, const QColor& ground,
              const QColor& text) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(place, 5, 5);
  painter.setPen(text);
  painter.setFont(Theme::font(Type::Caption, QFont::Bold));
  painter.drawText(place, Qt::AlignCenter, sign);
}

} // namespace

QRect LiveEventDelegate::chipOf(const QRect& row) {
  const int size = Theme::measure()(kChip);
  return {row.right() - size - 4, row.center().y() - size / 2 + 1, size, size};
}

void LiveEventDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                              const QModelIndex& index) const {
  const Look& look = Theme::look();
  const Measure& measure = Theme::measure();
  const LiveEventRow row = index.data(LiveEventRows::Whole).value<LiveEventRow>();
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  option.text.clear();
  option.icon = {};
  option.features &= ~QStyleOptionViewItem::HasDecoration;
  option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  if (!row.isUnderstood)
    option.backgroundBrush = look.warningGround;
  else if (row.isLatest && !isSelected)
    option.backgroundBrush = look.soft;
  option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);

  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const QRect& whole = option.rect;
  painter->fillRect(QRect(whole.left(), whole.bottom(), whole.width(), 1), look.line);
  if (row.isLatest)
    painter->fillRect(QRect(whole.left(), whole.top(), 3, whole.height()), look.accent);
  const auto font = [&](Type type, QFont::Weight weight) {
    QFont made = Theme::font(type, weight);
    made.setStrikeOut(row.isDeleted);
    painter->setFont(made);
  };
  const QColor muted = row.isDeleted ? look.faint : look.muted;
  const QColor ink = !row.isUnderstood ? look.warningText : row.isDeleted ? look.faint : look.ink;
  int x = whole.left() + measure(kMargin);
  const auto draw = [&](int width, Qt::Alignment alignment, const QString& text) {
    painter->drawText(QRect(x, whole.top(), width, whole.height()),
                      static_cast<int>(alignment | Qt::AlignVCenter), text);
  };
  font(Type::Small, QFont::Normal);
  painter->setPen(row.isUnderstood ? muted : ink);
  draw(measure(kClockWidth), Qt::AlignLeft, row.clock);
  x += measure(kClockWidth, kClockWidth + 6);
  if (row.team.isValid()) {
    painter->setPen(outlineOf(row.team, look.surface));
    painter->setBrush(row.team);
    painter->drawRoundedRect(QRectF(x + 0.5, whole.top() + 4.5, measure(kBarWidth) - 1, whole.height() - 10),
                             2, 2);
  }
  x += measure(kBarWidth) + 2;

  int right = whole.right() - 4;
  if (row.isDoubtful || row.hasFinding) {
    const QRect chip = chipOf(whole);
    if (row.isDoubtful)
      drawChip(*painter, chip, QStringLiteral("?"), look.doubtfulGround, look.doubtfulText);
    else
      drawChip(*painter, chip, QStringLiteral("!"), look.warningGround, look.warningText);
    right = chip.left() - 4;
  }
  if (!row.score.isEmpty()) {
    font(Type::Body, QFont::Bold);
    painter->setPen(ink);
    const int width = painter->fontMetrics().horizontalAdvance(row.score) + 2;
    painter->drawText(QRect(right - width, whole.top(), width, whole.height()),
                      Qt::AlignRight | Qt::AlignVCenter, row.score);
    right -= width + 6;
  }
  if (row.number.isEmpty() && row.name.isEmpty()) { // the clock's own, and who went in and out
    font(row.team.isValid() ? Type::Body : Type::Small, QFont::Normal);
    painter->setPen(row.team.isValid() || !row.isUnderstood ? ink : muted);
    x += 4;
    draw(right - x, Qt::AlignLeft, painter->fontMetrics().elidedText(row.action, Qt::ElideRight, right - x));
    painter->restore();
    return;
  }
  font(Type::Body, QFont::Bold);
  painter->setPen(ink);
  draw(measure(kNumberWidth), Qt::AlignRight, row.number);
  x += measure(kNumberWidth) + 4;
  if (row.isShot) {
    const double size = measure(kMarkWidth);
    drawMark(*painter, QRectF(x, whole.top() + (whole.height() - size) / 2, size, size), row.isMade);
    x += measure(kMarkWidth) + 2;
  }
  // Where room is short the name is cut: its number stands before it.
  font(Type::Body, QFont::Normal);
  const QFontMetrics metrics = painter->fontMetrics();
  const int blank = metrics.horizontalAdvance(u' ');
  QFont strong = painter->font();
  strong.setWeight(QFont::Bold);
  const int extra = row.extra.isEmpty() ? 0 : QFontMetrics(strong).horizontalAdvance(row.extra) + blank;
  const int actionWidth = metrics.horizontalAdvance(row.action) + 1;
  constexpr int kLeastName = 24;
  const QString name = metrics.elidedText(row.name, Qt::ElideRight, right - x - actionWidth - extra - blank);
  if (metrics.horizontalAdvance(name) >= std::min(kLeastName, metrics.horizontalAdvance(row.name))) {
    painter->setPen(ink);
    draw(right - x, Qt::AlignLeft, name);
    x += metrics.horizontalAdvance(name) + (name.isEmpty() ? 0 : blank);
  }
  painter->setPen(muted);
  draw(right - x, Qt::AlignLeft, metrics.elidedText(row.action, Qt::ElideRight, right - x));
  if (extra > 0) {
    x += actionWidth + blank;
    painter->setFont(strong);
    painter->setPen(ink);
    draw(right - x, Qt::AlignLeft, row.extra);
    x += extra;
    font(Type::Body, QFont::Normal);
    painter->setPen(muted);
    if (metrics.horizontalAdvance(row.tail) <= right - x) // whole, or not at all
      draw(right - x, Qt::AlignLeft, row.tail);
  }
  painter->restore();
}

} // namespace hooptab
