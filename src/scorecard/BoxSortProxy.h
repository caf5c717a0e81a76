// Sorts a box score by any column and keeps the team's total at the bottom in both orders. Unsorted it is the
// order of the roster.
#pragma once

#include <QSortFilterProxyModel>

namespace hooptab {

class BoxSortProxy : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

} // namespace hooptab
