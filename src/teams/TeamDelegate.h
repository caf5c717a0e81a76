// Paints an entry of a list of teams: the abbreviation on the team's colour, full name and level below each
// other, and how many players it has.
#pragma once

#include <QStyledItemDelegate>

namespace hooptab {

class TeamDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace hooptab
