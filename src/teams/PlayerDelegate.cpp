#include "teams/PlayerDelegate.h"

#include "teams/TeamSheet.h"

namespace hooptab {

void PlayerDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  ColouredRowDelegate::initStyleOption(option, index);
  if (index.column() == static_cast<int>(PlayerColumn::Number))
    option->font.setBold(true);
}

} // namespace hooptab
