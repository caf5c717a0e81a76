#include "scorecard/BoxHeader.h"

#include "appearance/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace hooptab {

namespace {

constexpr int kPadding = 4;
constexpr int kMarkWidth = 8;
constexpr int kMarkHeight = 4;
constexpr int kSpaceAroundText = 12; // above and below together; the mark stands in the upper half

} // namespace

BoxHeader::BoxHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setHighlightSections(false);
  setDefaultAlignment(Qt::AlignCenter);
}

QFont BoxHeader::boldFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

int BoxHeader::textWidth(const QString& text) const {
  return QFontMetrics(boldFont()).horizontalAdvance(text);
}

QSize BoxHeader::sizeHint() const {
  return {QHeaderView::sizeHint().width(), QFontMetrics(boldFont()).height() + kSpaceAroundText};
}

void BoxHeader::paintSection(QPainter* painter, const QRect& area, int column) const {
  painter->save();
  painter->setClipRect(area);
  const QVariant tint = model()->headerData(column, Qt::Horizontal, Qt::BackgroundRole);
  painter->fillRect(area,
                    tint.canConvert<QBrush>() ? tint.value<QBrush>() : palette().brush(QPalette::Button));
  painter->setPen(palette().color(QPalette::Mid));
  painter->drawLine(area.bottomLeft(), area.bottomRight());

  painter->setFont(boldFont());
  painter->setPen(palette().color(QPalette::ButtonText));
  const QVariant wish = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
  const Qt::Alignment alignment = wish.isValid() ? wish.value<Qt::Alignment>() : defaultAlignment();
  painter->drawText(area.adjusted(kPadding, 2, -kPadding, 0), static_cast<int>(alignment),
                    model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());

  if (isSortIndicatorShown() && sortIndicatorSection() == column) {
    const bool isAscending = sortIndicatorOrder() == Qt::AscendingOrder;
    const QPointF top(area.center().x() + 0.5, area.top() + 1.0);
    const double tip = isAscending ? 0.0 : kMarkHeight;
    const double base = kMarkHeight - tip;
    QPainterPath mark(top + QPointF(0, tip));
    mark.lineTo(top + QPointF(kMarkWidth / 2.0, base));
    mark.lineTo(top + QPointF(-kMarkWidth / 2.0, base));
    mark.closeSubpath();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(mark, Theme::accent());
  }
  painter->restore();
}

} // namespace hooptab
