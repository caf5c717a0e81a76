// Paints a cell of a team's players on the team's colour: the number bold, a hairline below each row.
#pragma once

#include "appearance/ColouredRowDelegate.h"

namespace hooptab {

class PlayerDelegate : public ColouredRowDelegate {
 public:
  using ColouredRowDelegate::ColouredRowDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace hooptab
