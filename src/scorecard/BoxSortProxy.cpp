#include "scorecard/BoxSortProxy.h"

#include "appearance/relabel.h"
#include "scorecard/BoxScoreModel.h"
#include "storage/NameOrder.h"

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
  return nameOrderKey(fromQt(one.toString())) < nameOrderKey(fromQt(other.toString()));
}

} // namespace hooptab
