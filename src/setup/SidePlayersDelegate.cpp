#include "setup/SidePlayersDelegate.h"

#include "appearance/Theme.h"
#include "setup/SidePlayersModel.h"

namespace hooptab {

namespace {

constexpr double kMutedShare = 0.72; // of the text's colour over the team's

// As far as it is still read.
QColor mutedText(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const QColor muted = mix(text, ground, kMutedShare);
  return contrast(muted, ground) >= kReadable ? muted : text;
}

} // namespace

void SidePlayersDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  ColouredRowDelegate::initStyleOption(option, index);
  const int column = index.column();
  if (column == SidePlayersModel::Number) {
    option->font.setPixelSize(Theme::measure()(14, 17));
    option->font.setWeight(QFont::Bold);
    option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
  }
  const QModelIndex number = index.siblingAtColumn(SidePlayersModel::Number);
  const bool plays = number.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  if (column == SidePlayersModel::Position || !plays)
    option->palette.setColor(QPalette::Text, mutedText(option->palette));
}

} // namespace hooptab
