// Draws a cell of a compact box: what is zero is faint, the best of a column bold, up and down in their
// colours, who is out on a chip, and "did not play" once across the figures.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class CompactBoxDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace hooptab
