// Paints a cell of a team's players on the team's colour: the number bold, a hairline below each row.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class PlayerDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace hooptab
