#include "appearance/ColouredRowDelegate.h"

#include <QPainter>

namespace hooptab {

void ColouredRowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  // The look's own colour for what is pointed at is none on which the text of a team's colour is read.
  option->state &= ~QStyle::State_MouseOver;
}

void ColouredRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const QRect& cell = option.rect;
  painter->fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), option.palette.color(QPalette::Mid));
}

} // namespace hooptab
