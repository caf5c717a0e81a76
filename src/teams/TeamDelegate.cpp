#include "teams/TeamDelegate.h"

#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "teams/TeamList.h"

#include <QPainter>

namespace hooptab {

namespace {

int lineHeight(Type type) {
  return QFontMetrics(Theme::font(type)).height();
}

} // namespace

void TeamDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem row(option);
  initStyleOption(&row, index);
  row.text.clear();
  row.viewItemPosition = QStyleOptionViewItem::OnlyOne;
  const QStyle* style = row.widget->style();
  style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

  const Look& look = Theme::look();
  const Measure& measure = Theme::measure();
  const bool isSelected = row.state.testFlag(QStyle::State_Selected);
  const QRect inner = row.rect.adjusted(measure(8), 0, -measure(8), 0);
  QRect tag(inner.left(), 0, teamTagWidth(), teamTagHeight());
  tag.moveTop(inner.center().y() - tag.height() / 2);
  drawTeamTag(*painter, tag, index.data(TeamRole::Abbreviation).toString(),
              colourOf(index.data(TeamRole::Colour).toUInt()), isSelected ? look.soft : look.surface);

  painter->save();
  painter->setFont(Theme::font(Type::Body));
  painter->setPen(look.muted);
  const QString players = QString::number(index.data(TeamRole::Players).toInt());
  const int figures = painter->fontMetrics().horizontalAdvance(QStringLiteral("99")) + 2;
  painter->drawText(inner, Qt::AlignRight | Qt::AlignVCenter, players);

  QRect line(tag.right() + measure(10), 0, 0, 0);
  line.setRight(inner.right() - figures - measure(4));
  const auto write = [&](Type type, const QColor& colour, const QString& text) {
    painter->setFont(Theme::font(type));
    painter->setPen(colour);
    line.setHeight(lineHeight(type));
    painter->drawText(line, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
    line.translate(0, line.height());
  };
  const QString name = index.data(TeamRole::Name).toString().trimmed();
  const QString level = index.data(TeamRole::Category).toString().trimmed();
  const int high =
      (name.isEmpty() ? 0 : lineHeight(Type::Body)) + (level.isEmpty() ? 0 : lineHeight(Type::Small));
  line.moveTop(inner.center().y() - high / 2);
  if (!name.isEmpty())
    write(Type::Body, look.ink, name);
  if (!level.isEmpty())
    write(Type::Small, look.muted, level);
  painter->restore();
}

QSize TeamDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return {teamTagWidth() * 2, lineHeight(Type::Body) + lineHeight(Type::Small) + Theme::measure()(6)};
}

} // namespace hooptab
