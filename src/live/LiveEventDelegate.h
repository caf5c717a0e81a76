// Draws an event's words over the whole width of a narrow list, but for the score where it changed, and a
// mark before those of an event that looks wrong.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class LiveEventDelegate : public QStyledItemDelegate {
 public:
  static constexpr int kMarkSize = 13; // of a finding, at the left of the words

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override;
};

} // namespace hooptab
