#include "studies/StandingsDelegate.h"

#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/SignedText.h"
#include "season/SeasonTableView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kRadius = 4;

int chip() {
  return Theme::measure()(18, 22);
}
int gap() {
  return Theme::measure()(2);
}
int barRoom() {
  return Theme::measure()(76, 96);
}
bool endsGroup(StandingsColumn column) {
  return column == StandingsColumn::Behind || column == StandingsColumn::Away ||
         column == StandingsColumn::Streak || column == StandingsColumn::Difference;
}

} // namespace

QColor seasonTeamColour(const SeasonTeam& team) {
  return team.colour == 0 ? Theme::look().edge : colourOf(team.colour);
}

StandingsDelegate::StandingsDelegate(SeasonTableView& view, const Texts& texts)
    : QStyledItemDelegate(&view), m_view(view), m_texts(texts) {}

void StandingsDelegate::show(std::shared_ptr<const GameCatalogue> catalogue,
                             std::shared_ptr<const Standings> standings) {
  m_catalogue = std::move(catalogue);
  m_standings = std::move(standings);
  m_mostDifference = 1;
  for (const Standing& row : m_standings->rows())
    m_mostDifference = std::max(m_mostDifference, std::abs(row.difference()));
}

int StandingsDelegate::latestWidth() {
  return static_cast<int>(Standing::kLatest) * (chip() + gap());
}

int StandingsDelegate::differenceWidth() {
  return barRoom() +
         QFontMetrics(Theme::font(Type::Body, QFont::DemiBold)).horizontalAdvance(QStringLiteral("+00.0"));
}

const Standing& StandingsDelegate::standingAt(const QModelIndex& index) const {
  return m_standings->rows()[static_cast<std::size_t>(m_view.content().sourceRow(index.row()))];
}

void StandingsDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const auto column = static_cast<StandingsColumn>(index.column());
  const Look& look = Theme::look();
  if (column == StandingsColumn::Name)
    option->font = Theme::font(Type::Body, QFont::DemiBold);
  if (column == StandingsColumn::Streak) {
    const int streak = standingAt(index).streak;
    option->font = Theme::font(Type::Body, QFont::DemiBold);
    option->palette.setColor(QPalette::Text, streak > 0 ? look.made : streak < 0 ? look.missed : look.ink);
  }
}

void StandingsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  const auto column = static_cast<StandingsColumn>(index.column());
  const Standing& row =
      m_standings->rows()[static_cast<std::size_t>(m_view.content().sourceRow(index.row()))];
  const Look& look = Theme::look();
  QStyleOptionViewItem cell(option);
  const bool isDrawn = column == StandingsColumn::Tag || column == StandingsColumn::Latest ||
                       column == StandingsColumn::Difference;
  if (isDrawn) {
    initStyleOption(&cell, index);
    cell.text.clear();
    cell.widget->style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  } else
    QStyledItemDelegate::paint(painter, cell, index);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (column == StandingsColumn::Tag) {
    QRect tag(0, 0, std::min(teamTagWidth(), option.rect.width()), teamTagHeight());
    tag.moveCenter(option.rect.center());
    drawTeamTag(*painter, tag, index.data().toString(), seasonTeamColour(m_catalogue->teams()[row.team]),
                option.state.testFlag(QStyle::State_Selected) ? look.soft : look.surface);
  } else if (column == StandingsColumn::Latest)
    paintLatest(*painter, option.rect, row);
  else if (column == StandingsColumn::Difference)
    paintDifference(*painter, option.rect, row);
  painter->restore();
  painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), look.line);
  if (endsGroup(column))
    painter->fillRect(QRect(option.rect.right(), option.rect.top(), 1, option.rect.height()), look.line);
}

// The latest one first, as signs that differ by fill and letter.
void StandingsDelegate::paintLatest(QPainter& painter, const QRect& area, const Standing& row) const {
  const Look& look = Theme::look();
  painter.setFont(Theme::font(Type::Caption, QFont::Bold));
  QRectF sign(area.left() + gap() + 0.5, area.center().y() - chip() / 2 + 0.5, chip() - 1, chip() - 1);
  for (auto outcome = row.latest.rbegin(); outcome != row.latest.rend(); ++outcome) {
    const bool isWin = *outcome == GameOutcome::Win;
    const QColor colour = isWin ? look.made : *outcome == GameOutcome::Loss ? look.missed : look.muted;
    painter.setPen(colour);
    painter.setBrush(isWin ? colour : QColor(Qt::transparent));
    painter.drawRoundedRect(sign, kRadius, kRadius);
    painter.setPen(isWin ? textOn(colour) : colour);
    painter.drawText(sign, Qt::AlignCenter, toQt(outcomeText(*outcome, m_texts)));
    sign.translate(chip() + gap(), 0);
  }
}

void StandingsDelegate::paintDifference(QPainter& painter, const QRect& area, const Standing& row) const {
  const Look& look = Theme::look();
  const double difference = row.difference();
  const QString text = toQt(signedText(difference, 1));
  const bool isEven = !text.startsWith(u'+') && !text.startsWith(QChar(0x2212));
  const QColor colour = isEven ? look.ink : difference > 0 ? look.made : look.missed;
  const QRect room = area.adjusted(Theme::measure()(6), 0, -Theme::measure()(6), 0);
  const double middle = room.left() + barRoom() / 2.0;
  const double length = difference / m_mostDifference * barRoom() / 2.0;
  const double height = Theme::measure()(10, 12);
  const double top = room.center().y() - height / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(std::min(middle, middle + length), top, std::abs(length), height), 2, 2);
  painter.setPen(colour);
  painter.setFont(Theme::font(Type::Body, QFont::DemiBold));
  painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, text);
}

} // namespace hooptab
