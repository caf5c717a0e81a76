#include "scorecard/PeriodGrid.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QGridLayout>

namespace hooptab {

namespace {

constexpr int kColumnWidth = 28;
constexpr int kTotalWidth = 36;
constexpr int kHeaderMargin = 3;
constexpr int kMostPeriods = static_cast<int>(GameState::kPeriodRows) - 1;

} // namespace

PeriodGrid::PeriodGrid(Content content, const QString& name, Text title, QWidget* parent)
    : QWidget(parent), m_content(content) {
  setObjectName(name);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* caption = new PlainLabel(this);
  caption->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*caption, title);
  layout->addWidget(caption, 0, 0);
  for (const Side team : kSides) {
    m_teams[team] = new ElidedLabel(this);
    m_teams[team]->setContentsMargins(0, 0, 8, 0);
    QFont bold = font();
    bold.setBold(true);
    m_teams[team]->setFont(bold);
    layout->addWidget(m_teams[team], 1 + numberOf(team), 0);
  }
  for (int period = 1; period <= kMostPeriods; ++period)
    m_periods.push_back(addColumn(*layout, name, period, period));
  if (m_content == Content::Points) {
    m_total = addColumn(*layout, name, 0, kMostPeriods + 1);
    m_total.header->setText(QStringLiteral("T"));
  }
  layout->setRowStretch(3, 1);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

PeriodGrid::Column PeriodGrid::addColumn(QGridLayout& layout, const QString& name, int period, int place) {
  Column column;
  const auto add = [&](int row, bool isBold) {
    auto* label = new PlainLabel(this);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(period == 0 ? kTotalWidth : kColumnWidth);
    if (row > 0)
      Theme::setType(*label, Type::Name, isBold ? QFont::DemiBold : QFont::Normal);
    layout.addWidget(label, row, place);
    return label;
  };
  column.header = add(0, false);
  column.header->setForegroundRole(QPalette::PlaceholderText);
  column.header->setContentsMargins(kHeaderMargin, 0, kHeaderMargin, 0);
  for (const Side team : kSides) {
    QLabel* label = add(1 + numberOf(team), period == 0);
    label->setObjectName(QStringLiteral("%1(%2,%3)").arg(name).arg(numberOf(team)).arg(period));
    column.numbers[team] = label;
  }
  return column;
}

void PeriodGrid::showPeriods(const Scoreboard& board) {
  for (const Side team : kSides)
    m_teams[team]->setText(toQt(board.teams[team].abbreviation));
  for (std::size_t i = 0; i < m_periods.size(); ++i) {
    const Scoreboard::Period* period = i < board.periods.size() ? &board.periods[i] : nullptr;
    const Column& column = m_periods[i];
    for (QLabel* label : {column.header, column.numbers[Side::Visitor], column.numbers[Side::Home]})
      label->setVisible(period != nullptr);
    if (period != nullptr)
      fill(column, *period);
  }
  if (m_total.header == nullptr)
    return;
  for (const Side team : kSides)
    m_total.numbers[team]->setText(QString::number(board.teams[team].points));
}

void PeriodGrid::fill(const Column& column, const Scoreboard::Period& period) {
  column.header->setText(toQt(period.label));
  for (const Side team : kSides) {
    QLabel& label = *column.numbers[team];
    const int number = m_content == Content::Points ? period.points[team] : period.fouls[team];
    label.setText(period.isPlayed ? QString::number(number) : QStringLiteral("–"));
    const bool isInBonus = m_content == Content::Fouls && period.isInBonus[team];
    Theme::setType(label, Type::Name, isInBonus ? QFont::DemiBold : QFont::Normal);
  }
}

} // namespace hooptab
