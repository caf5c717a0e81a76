// Draws a row of a side's players on the team's colour: the number bold, the position and whoever does not
// play muted, a hairline below.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class SidePlayersDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace hooptab
