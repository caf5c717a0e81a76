#include "review/CompactBoxDelegate.h"

#include "appearance/Theme.h"
#include "review/CompactBoxModel.h"

#include <QAbstractProxyModel>
#include <QPainter>
#include <QTableView>

namespace hooptab {

namespace {

using Model = CompactBoxModel;
using Emphasis = CompactCell::Emphasis;

constexpr int kMargin = 7; // of a text from either side

void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                 bool isTotal) {
  const Look& look = Theme::look();
  const QRect& cell = option.rect;
  const bool isSelected = (option.state & QStyle::State_Selected) != 0;
  if (isSelected)
    painter.fillRect(cell, look.soft);
  else if (isTotal)
    painter.fillRect(cell, look.raised);
  if (isSelected && index.column() == 0)
    painter.fillRect(QRect(cell.left(), cell.top(), 3, cell.height()), look.accent);
  if (isTotal)
    painter.fillRect(QRect(cell.left(), cell.top(), cell.width(), 1), look.edge);
  else
    painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), look.line);
}

// A hairline where another group of columns begins.
bool beginsGroup(const QModelIndex& index) {
  if (index.column() <= Model::FirstCell)
    return false;
  const auto* proxy = static_cast<const QAbstractProxyModel*>(index.model());
  const auto* model = static_cast<const Model*>(proxy->sourceModel());
  return model->columnAt(index.column()).group != model->columnAt(index.column() - 1).group;
}

void paintName(QPainter& painter, const QRect& room, const QModelIndex& index, bool isTotal) {
  const Look& look = Theme::look();
  const QString position = index.data(Model::PositionRole).toString();
  const QFont small = Theme::font(Type::Dense);
  const int reserved = position.isEmpty() ? 0 : QFontMetrics(small).horizontalAdvance(position) + 4;
  painter.setFont(Theme::font(Type::Body, isTotal ? QFont::DemiBold : QFont::Normal));
  painter.setPen(look.ink);
  const QFontMetrics metrics = painter.fontMetrics();
  const QString name = metrics.elidedText(index.data().toString(), Qt::ElideRight, room.width() - reserved);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
  if (position.isEmpty())
    return;
  painter.setFont(small);
  painter.setPen(look.muted);
  painter.drawText(room.adjusted(metrics.horizontalAdvance(name) + 4, 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, position);
}

// The text across all figures, of which each cell shows its part.
void paintDidNotPlay(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
  const auto* view = static_cast<const QTableView*>(option.widget);
  const int left = view->columnViewportPosition(Model::FirstCell);
  painter.setFont(Theme::font(Type::Body));
  painter.setPen(Theme::look().muted);
  painter.drawText(QRect(left + kMargin, option.rect.top(), view->viewport()->width(), option.rect.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   index.siblingAtColumn(Model::FirstCell).data().toString());
}

void paintChip(QPainter& painter, const QRect& room, const QString& text) {
  const Look& look = Theme::look();
  const int width = painter.fontMetrics().horizontalAdvance(text) + 2 * kMargin;
  const QRectF chip(room.right() - width + kMargin - 1, room.top() + 2, width, room.height() - 5);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.warningGround);
  painter.drawRoundedRect(chip, chip.height() / 2, chip.height() / 2);
  painter.setPen(look.warningText);
  painter.drawText(chip, Qt::AlignCenter | Qt::TextSingleLine, text);
}

QColor inkOf(Emphasis emphasis) {
  const Look& look = Theme::look();
  switch (emphasis) {
  case Emphasis::Faint: return look.faint;
  case Emphasis::Up: return look.made;
  case Emphasis::Down: return look.missed;
  default: return look.ink;
  }
}

void paintFigure(QPainter& painter, const QRect& room, const QModelIndex& index, bool isTotal) {
  const auto emphasis =
      isTotal ? Emphasis::None : static_cast<Emphasis>(index.data(Model::EmphasisRole).toInt());
  const bool isPoints =
      index.model()->headerData(index.column(), Qt::Horizontal, kTableNameRole) == QLatin1String("PTS");
  const bool isBold = isTotal || isPoints || (emphasis != Emphasis::None && emphasis != Emphasis::Faint);
  painter.setFont(Theme::font(isPoints ? Type::Name : Type::Body, isBold ? QFont::Bold : QFont::Normal));
  if (emphasis == Emphasis::Out)
    return paintChip(painter, room, index.data().toString());
  painter.setPen(inkOf(emphasis));
  painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, index.data().toString());
}

} // namespace

void CompactBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  painter->save();
  painter->setClipRect(option.rect);
  const bool isTotal = index.data(kTableTotalRole).toBool();
  const bool didNotPlay = index.data(Model::DidNotPlayRole).toBool();
  paintGround(*painter, option, index, isTotal);
  if (!didNotPlay && beginsGroup(index))
    painter->fillRect(QRect(option.rect.left(), option.rect.top(), 1, option.rect.height()),
                      Theme::look().line);
  const int margin = Theme::measure()(kMargin);
  const QRect room = option.rect.adjusted(margin, 0, -margin, -1);
  switch (index.column()) {
  case Model::Starter:
    painter->setFont(Theme::font(Type::Dense));
    painter->setPen(Theme::look().accent);
    painter->drawText(option.rect, Qt::AlignCenter, index.data().toString());
    break;
  case Model::Number:
    painter->setFont(Theme::font(Type::Body, QFont::Bold));
    painter->setPen(Theme::look().ink);
    painter->drawText(option.rect.adjusted(0, 0, -margin, -1),
                      Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, index.data().toString());
    break;
  case Model::Name: paintName(*painter, room, index, isTotal); break;
  default:
    if (didNotPlay)
      paintDidNotPlay(*painter, option, index);
    else
      paintFigure(*painter, room, index, isTotal);
  }
  painter->restore();
}

} // namespace hooptab
