// Draws a row of a side's players on the team's colour: the number bold, the position and whoever does not
// play muted, a hairline below.
#pragma once

#include "appearance/ColouredRowDelegate.h"

namespace hooptab {

class SidePlayersDelegate : public ColouredRowDelegate {
 public:
  using ColouredRowDelegate::ColouredRowDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace hooptab
