#include "live/LiveEventDelegate.h"

#include "appearance/Icons.h"
#include "live/LiveEventRows.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kPadding = 8;

// "ANA 41 ● free throw" beside a score: rather than what happened, the team goes, which the stripe of its
// colour names too.
void shorten(QStyleOptionViewItem& option) {
  const QRect room =
      option.widget->style()->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
  constexpr int kMargins = 2 * 3; // of the words in their rectangle
  if (option.fontMetrics.horizontalAdvance(option.text) <= room.width() - kMargins)
    return;
  option.text = option.text.mid(option.text.indexOf(u' ') + 1);
  option.textElideMode = Qt::ElideLeft;
}

} // namespace

void LiveEventDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                              const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  const QStyle& style = *option.widget->style();
  QStyleOptionViewItem empty = option;
  empty.text.clear();
  empty.icon = {};
  empty.features &= ~QStyleOptionViewItem::HasDecoration;
  style.drawControl(QStyle::CE_ItemViewItem, &empty, painter, option.widget);

  const QString score = index.siblingAtColumn(EventListModel::Score).data().toString();
  if (!score.isEmpty()) {
    QFont bold = option.font;
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(score) + kPadding;
    const QRect place = option.rect.adjusted(option.rect.width() - width, 0, -kPadding / 2, 0);
    painter->save();
    painter->setFont(bold);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter, score);
    painter->restore();
    option.rect.setRight(place.left());
  }
  if (index.data(LiveEventRows::HasFinding).toBool()) {
    const int top = option.rect.center().y() - kMarkSize / 2;
    icon(QStringLiteral("tocheck")).paint(painter, option.rect.left(), top, kMarkSize, kMarkSize);
    option.rect.setLeft(option.rect.left() + kMarkSize);
  }
  if (!score.isEmpty())
    shorten(option);
  style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
}

} // namespace hooptab
