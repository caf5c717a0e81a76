#include "scorecard/BoxSortProxy.h"

#include "scorecard/BoxScoreModel.h"

namespace hooptab {

bool BoxSortProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  // In descending order the view asks with the sides exchanged.
  if (left.data(BoxScoreModel::TotalRole).toBool())
    return sortOrder() == Qt::DescendingOrder;
  if (right.data(BoxScoreModel::TotalRole).toBool())
    return sortOrder() == Qt::AscendingOrder;
  const QVariant one = left.data(BoxScoreModel::SortRole);
  const QVariant other = right.data(BoxScoreModel::SortRole);
  if (one.userType() == QMetaType::Double)
    return one.toDouble() < other.toDouble();
  return one.toString().localeAwareCompare(other.toString()) < 0;
}

} // namespace hooptab
