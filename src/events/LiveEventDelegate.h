// Draws an event of the live list: clock, the bar of its team, number, mark of a shot, words, and at the
// right the score where it changed, or what is to be looked at. Each at a fixed place.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class LiveEventDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override;
  // The chip at the right of a row that is to be looked at.
  [[nodiscard]] static QRect chipOf(const QRect& row);
};

} // namespace hooptab
