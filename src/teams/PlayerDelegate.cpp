#include "teams/PlayerDelegate.h"

#include "teams/TeamSheet.h"

#include <QPainter>

namespace hooptab {

void PlayerDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.column() == static_cast<int>(PlayerColumn::Number))
    option->font.setBold(true);
}

void PlayerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const QRect& rect = option.rect;
  painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), option.palette.color(QPalette::Mid));
}

} // namespace hooptab
