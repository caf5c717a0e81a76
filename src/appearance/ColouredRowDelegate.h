// Draws the rows of a table that wears a team's colour, a hairline below each.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class ColouredRowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace hooptab
